#pragma once

#include <QString>
#include <optional>
#include <span>

#include "platform/archive/ArchivedObject.h"

namespace sargan {

/// The kind of one archived number: its type code in the archive. `Kept` is a number object that this
/// program does not understand; it has no value (NaN) and is written back as it was read.
enum class NumberKind : char { Bool = 'c', Int = 'i', LongLong = 'q', Float = 'f', Double = 'd', Kept = '@' };

/// An ordered list of numbers, each of which remembers its archived kind, in packed storage: a list whose
/// numbers are all of one kind costs that kind's size per number and one small block. Implicitly shared.
/// A list can also be absent (no object in the archive), which is not the same as empty.
class NumberArray {
public:
    NumberArray() noexcept = default;  ///< absent
    NumberArray(const NumberArray& other) noexcept;
    NumberArray(NumberArray&& other) noexcept;
    NumberArray& operator=(NumberArray other) noexcept;
    ~NumberArray();

    static NumberArray empty();
    static NumberArray ofDoubles(std::span<const double> values);
    static NumberArray ofInts(std::span<const qint32> values);

    bool isAbsent() const;
    qsizetype size() const;  ///< 0 when absent
    bool isEmpty() const { return size() == 0; }

    /// The kind that all numbers share; none when they differ or there are none.
    std::optional<NumberKind> commonKind() const;
    NumberKind kindAt(qsizetype i) const;

    /// Number i as a double; NaN for a kept object. i must be in range.
    double at(qsizetype i) const;
    /// Number i as an integer, truncated towards zero and clamped to int32; 0 for NaN. i must be in range.
    qint32 intAt(qsizetype i) const;
    /// Number i in its shortest plain form: "0", "12.25"; floats in the shortest form that reads back.
    QString textAt(qsizetype i) const;
    /// The bits of number i as its kind has them, in the low bytes.
    quint64 bitsAt(qsizetype i) const;
    /// The object behind a `Kept` number, null for others.
    ArchivedObject keptAt(qsizetype i) const;

    /// The packed numbers when all are of kind T (qint32, qint64, float, double, bool); empty otherwise.
    template <typename T>
    std::span<const T> packed() const;

    void append(double value);
    void appendFloat(float value);
    void appendInt(qint32 value);
    void appendLongLong(qint64 value);
    void appendBool(bool value);
    void appendRawBool(qint8 value);  ///< kind `c` with any byte, as an archive may hold it
    void appendKept(const ArchivedObject& object);
    void clear();  ///< leaves an empty (not absent) list

    /// Same length, same kinds, same bits; kept objects by identity.
    friend bool operator==(const NumberArray& a, const NumberArray& b);

    struct Storage;  ///< private to NumberArray.cpp and the archive reader

private:
    friend class NumberArrayBuilder;
    explicit NumberArray(Storage* storage) noexcept : _storage(storage) {}

    Storage* _storage = nullptr;
};

}  // namespace sargan
