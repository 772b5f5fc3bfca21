#pragma once

#include <array>

#include "platform/archive/ItemReader.h"
#include "platform/archive/NumberStorage.h"

namespace sargan {

/// The quick way through arrays of numbers, in the first pass over an archive.
///
/// Once a class, a type letter and so on are in the tables, every further number of a kind begins with the
/// same bytes up to its value. Those bytes are learned from the general path and compared with two loads.
/// References to numbers are resolved through the object table alone. Whatever looks different is left to
/// the general path, which also reports errors.
class NumberRun {
public:
    explicit NumberRun(ItemReader& items) : _items(items) {}

    /// Learns how numbers of a kind begin from one that the general path has just read; `group` is where its
    /// group began and `strings` how many strings there were then.
    void learn(const ObjectHead& number, const uchar* group, quint32 strings);
    /// Takes at most this many elements of an array as far as they can be taken quickly. Returns how many.
    quint32 take(NumberArrayBuilder& builder, quint32 most);
    /// The same for elements whose values nobody wants.
    quint32 pass(quint32 most);

private:
    /// How numbers of one kind begin. Sixteen bytes at most; the masks are empty past `length`.
    struct Start {
        quint64 low = 0;
        quint64 high = 0;
        quint64 lowMask = 0;
        quint64 highMask = 0;
        quint64 entryBits = 0;  ///< what a table entry adds to the group's offset
        int length = 0;         ///< 0: not learned
        NumberKind kind = NumberKind::Kept;

        bool matches(quint64 first, quint64 second) const {
            return (((first ^ low) & lowMask) | ((second ^ high) & highMask)) == 0;
        }
    };
    class Window;

    template <typename T>
    quint32 takePacked(NumberArrayBuilder& builder, quint32 most, const Start& start);
    quint32 takeMixed(NumberArrayBuilder& builder, quint32 most);
    const Start* startAt(const uchar* at);
    const Start& startOf(NumberKind kind) const;

    ItemReader& _items;
    std::array<Start, 5> _starts;
    size_t _lastStart = 0;
};

}  // namespace sargan
