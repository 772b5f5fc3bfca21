#pragma once

#include <QHash>
#include <array>
#include <functional>
#include <span>

#include "platform/archive/ArchiveOutput.h"
#include "platform/archive/NumberArray.h"

namespace sargan {

/// Writes the elements of number arrays. Whole numbers are written once per kind and value and referenced
/// afterwards; numbers with a fraction, minus zero, infinities and NaN are written in full each time.
class NumberWriter {
public:
    using KeptWriter = std::function<void(const ArchivedObject&)>;
    explicit NumberWriter(ArchiveOutput& output) : _output(output) {}

    /// The elements as groups "@". The type "@" must be the output's first shared string.
    void elements(const NumberArray& numbers, const KeptWriter& writeKept);

private:
    /// Whole numbers in this range are found by a plain table.
    static constexpr qint64 leastSmall = -128;
    static constexpr qint64 mostSmall = 1023;
    /// Most bytes of one number: head, references of up to five bytes, value, end.
    static constexpr qsizetype mostBytes = 40;

    struct Prefix {
        std::array<uchar, 24> bytes{};
        int length = 0;  ///< 0 until the kind has been written twice
    };
    /// A group with a reference, up to six bytes, and its length in the top byte; 0 when not written yet.
    using SmallReferences = std::array<quint64, size_t(mostSmall - leastSmall + 1)>;
    struct Kind {
        NumberKind kind;
        Prefix prefix;
        SmallReferences small{};
        QHash<quint64, quint32> large;
    };

    template <typename T>
    void packed(std::span<const T> values, NumberKind kind);
    template <typename T>
    void number(T value, Kind& kind);
    template <typename T>
    void full(T value, Kind& kind, bool whole32);
    template <typename T>
    void rareWhole(T value, Kind& kind);
    void general(const NumberArray& numbers, const KeptWriter& writeKept);
    void spellPrefix(Kind& kind);
    Kind& kindOf(NumberKind kind);

    ArchiveOutput& _output;
    std::array<Kind, 5> _kinds{{{NumberKind::Bool, {}, {}, {}},
                                {NumberKind::Int, {}, {}, {}},
                                {NumberKind::LongLong, {}, {}, {}},
                                {NumberKind::Float, {}, {}, {}},
                                {NumberKind::Double, {}, {}, {}}}};
    quint32 _lastNumber = 0;
};

}  // namespace sargan
