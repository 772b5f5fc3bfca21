#include "platform/archive/NumberWriter.h"

#include <bit>
#include <cmath>

#include "platform/archive/ArchiveWriter.h"

namespace sargan {

namespace {

constexpr uchar objectType = 0x92;  // the first shared string, "@"

/// Whole and within 32 bits, where the conversion is defined and quick. Minus zero is not.
template <typename T>
bool isWhole32(T value) {
    if constexpr (std::is_floating_point_v<T>) {
        if (!(value >= T(-2147483648.0) && value < T(2147483648.0))) return false;
        const qint32 whole = qint32(value);
        return T(whole) == value && (whole != 0 || !std::signbit(value));
    } else {
        return sizeof(T) <= sizeof(qint32) || qint32(value) == value;
    }
}

/// Whole but past 32 bits.
template <typename T>
bool isWideWhole(T value) {
    if constexpr (std::is_floating_point_v<T>) {
        return std::abs(value) >= T(2147483648.0) && std::isfinite(value) && value == std::trunc(value);
    } else {
        return !isWhole32(value);
    }
}

template <typename T>
quint64 bitsOf(T value) {
    if constexpr (std::is_same_v<T, double>) return std::bit_cast<quint64>(value);
    if constexpr (std::is_same_v<T, float>) return std::bit_cast<quint32>(value);
    return quint64(value);
}

template <typename T>
uchar* putValue(uchar* out, T value, bool whole32) {
    if constexpr (sizeof(T) == 1) {
        *out = uchar(value);
        return out + 1;
    } else if constexpr (std::is_floating_point_v<T>) {
        if (whole32) return putInteger(out, qint64(value));
        *out = archivetag::real;
        qToLittleEndian(value, out + 1);
        return out + 1 + sizeof(T);
    } else {
        return putInteger(out, qint64(value));
    }
}

quint64 referenceGroup(quint32 index) {
    uchar bytes[16] = {objectType};
    const qsizetype length = putInteger(bytes + 1, qint64(index) + archivetag::referenceBase) - bytes;
    return loadLittle<quint64>(bytes) | quint64(length) << 56;
}

}  // namespace

NumberWriter::Kind& NumberWriter::kindOf(NumberKind kind) {
    switch (kind) {
        case NumberKind::Bool:
            return _kinds[0];
        case NumberKind::Int:
            return _kinds[1];
        case NumberKind::LongLong:
            return _kinds[2];
        case NumberKind::Float:
            return _kinds[3];
        default:
            return _kinds[4];
    }
}

void NumberWriter::elements(const NumberArray& numbers, const KeptWriter& writeKept) {
    switch (numbers.commonKind().value_or(NumberKind::Kept)) {
        case NumberKind::Int:
            return packed(numbers.packed<qint32>(), NumberKind::Int);
        case NumberKind::LongLong:
            return packed(numbers.packed<qint64>(), NumberKind::LongLong);
        case NumberKind::Float:
            return packed(numbers.packed<float>(), NumberKind::Float);
        case NumberKind::Double:
            return packed(numbers.packed<double>(), NumberKind::Double);
        default:
            return general(numbers, writeKept);
    }
}

void NumberWriter::general(const NumberArray& numbers, const KeptWriter& writeKept) {
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        _output.ensure(mostBytes);
        const NumberKind kind = numbers.kindAt(i);
        const quint64 bits = numbers.bitsAt(i);
        switch (kind) {
            case NumberKind::Bool:
                number(qint8(bits), kindOf(kind));
                break;
            case NumberKind::Int:
                number(qint32(bits), kindOf(kind));
                break;
            case NumberKind::LongLong:
                number(qint64(bits), kindOf(kind));
                break;
            case NumberKind::Float:
                number(std::bit_cast<float>(quint32(bits)), kindOf(kind));
                break;
            case NumberKind::Double:
                number(std::bit_cast<double>(bits), kindOf(kind));
                break;
            case NumberKind::Kept:
                writeKept(numbers.keptAt(i));
                break;
        }
    }
}

template <typename T>
void NumberWriter::packed(std::span<const T> values, NumberKind kind) {
    Kind& known = kindOf(kind);
    for (const T value : values) {
        _output.ensure(mostBytes);
        number(value, known);
    }
}

template <typename T>
void NumberWriter::number(T value, Kind& kind) {
    if (isWhole32(value)) {
        const qint64 small = qint64(value) - leastSmall;
        const quint64 group = quint64(small) < kind.small.size() ? kind.small[size_t(small)] : 0;
        if (group == 0) return rareWhole(value, kind);
        qToLittleEndian(group, _output.end());
        return _output.grew(qsizetype(group >> 56));
    }
    isWideWhole(value) ? rareWhole(value, kind) : full(value, kind, false);
}

/// A whole number that the table of small ones does not have: large, or not written before.
template <typename T>
void NumberWriter::rareWhole(T value, Kind& kind) {
    const quint64 bits = bitsOf(value);
    const auto written = kind.large.constFind(bits);
    if (written != kind.large.constEnd()) {
        const quint64 group = referenceGroup(*written);
        qToLittleEndian(group, _output.end());
        return _output.grew(qsizetype(group >> 56));
    }
    full(value, kind, isWhole32(value));
    const bool isSmall = double(value) >= double(leastSmall) && double(value) <= double(mostSmall);
    if (isSmall) {
        kind.small[size_t(qint64(value) - leastSmall)] = referenceGroup(_lastNumber);
    } else {
        kind.large.insert(bits, _lastNumber);
    }
}

template <typename T>
void NumberWriter::full(T value, Kind& kind, bool whole32) {
    const Prefix& prefix = kind.prefix;
    if (prefix.length == 0) {
        spellPrefix(kind);
        _output.ensure(mostBytes);
    } else {
        std::memcpy(_output.end(), prefix.bytes.data(), prefix.bytes.size());
        _output.grew(prefix.length);
        _lastNumber = _output.newItem();
    }
    uchar* const start = _output.end();
    uchar* end = putValue(start, value, whole32);
    *end++ = archivetag::end;
    _output.grew(end - start);
}

/// Writes a number up to its value, and remembers the bytes when they say nothing for the first time.
void NumberWriter::spellPrefix(Kind& kind) {
    static constexpr ArchiveOutput::ClassLink chain[] = {{"NSNumber", 0}, {"NSValue", 0}, {"NSObject", 0}};
    const qsizetype start = _output.size();
    const qsizetype strings = _output.stringCount();
    _lastNumber = _output.newItem();
    _output.byte(objectType);
    _output.byte(archivetag::newItem);
    _output.archivedClass(chain);
    _output.simpleType('*');
    const char code = char(kind.kind);
    _output.cString(QByteArrayView(&code, 1));
    _output.simpleType(code);
    if (_output.itemCount() != _lastNumber + 1 || _output.stringCount() != strings) return;
    kind.prefix.length = int(_output.size() - start);
    std::memcpy(kind.prefix.bytes.data(), _output.end() - kind.prefix.length, size_t(kind.prefix.length));
}

}  // namespace sargan
