#pragma once

#include <atomic>
#include <bit>
#include <memory>
#include <vector>

#include "platform/archive/NumberArray.h"

namespace sargan {

static_assert(std::endian::native == std::endian::little, "numbers are moved by their low bytes");

/// One block of memory: this head, then the numbers. While all numbers are of one kind they lie packed in
/// that kind's size. Once kinds differ, each number has a cell of eight bytes, and after the room for all
/// cells follows one byte per number with its kind. A kept object's cell is its archive's place in `sources`
/// (upper half) and its index there (lower half).
struct NumberArray::Storage {
    using Sources = std::vector<std::shared_ptr<const Archive>>;
    static constexpr char noKind = 0;
    static constexpr char mixed = 'm';

    std::atomic<quint32> references{1};
    char kind = noKind;
    quint32 size = 0;
    quint32 capacity = 0;
    Sources* sources = nullptr;

    static Storage* create(quint32 capacity, char kind);
    static void release(Storage* storage) noexcept;
    /// These may move the block, which must not be shared, and change `storage` then.
    static void reserve(Storage*& storage, quint64 capacity);
    static void toMixed(Storage*& storage, quint32 capacity);

    static int cellSize(char kind);
    uchar* data() { return reinterpret_cast<uchar*>(this + 1); }
    const uchar* data() const { return reinterpret_cast<const uchar*>(this + 1); }
    uchar* kinds() { return data() + 8 * quint64(capacity); }
    const uchar* kinds() const { return data() + 8 * quint64(capacity); }
    char kindAt(qsizetype i) const { return kind == mixed ? char(kinds()[i]) : kind; }
    /// The bits of number i, in the low bytes.
    quint64 bitsAt(qsizetype i) const;
    /// Adds a number for which there is room, and whose kind the block can hold.
    void put(char numberKind, quint64 bits);
    quint32 sourceNumber(const std::shared_ptr<const Archive>& archive);

private:
    static quint64 blockSize(quint64 capacity, char kind);
};

/// Fills a NumberArray from an archive. Room is made once, for as many numbers as the archive can hold.
class NumberArrayBuilder {
public:
    explicit NumberArrayBuilder(quint32 mostNumbers) : _most(mostNumbers) {}
    ~NumberArrayBuilder();
    NumberArrayBuilder(const NumberArrayBuilder&) = delete;
    NumberArrayBuilder& operator=(const NumberArrayBuilder&) = delete;

    bool isEmpty() const { return !_storage; }
    /// The kind that all numbers so far share, or Storage::mixed; Storage::noKind when there are none.
    char kind() const { return _storage ? _storage->kind : NumberArray::Storage::noKind; }

    void append(NumberKind kind, quint64 bits);
    void appendKept(const ArchivedObject& object);

    /// Where the next packed number goes, with room up to the announced count; then say how many came.
    template <typename T>
    T* packedEnd() {
        return reinterpret_cast<T*>(_storage->data()) + _storage->size;
    }
    quint64* cellsEnd() { return packedEnd<quint64>(); }
    uchar* kindsEnd() { return _storage->kinds() + _storage->size; }
    void grew(qsizetype count) { _storage->size += quint32(count); }

    NumberArray take();

private:
    quint32 _most;
    NumberArray::Storage* _storage = nullptr;
};

}  // namespace sargan
