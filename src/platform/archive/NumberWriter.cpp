#include "platform/archive/NumberWriter.h"

#include <bit>
#include <cmath>

#include "platform/archive/ArchiveWriter.h"

namespace sargan {

namespace {

constexpr uchar objectType = 0x92;  // the first shared string, "@"

template <typename T>
bool isWhole(T value) {
    if constexpr (std::is_floating_point_v<T>) {
        return std::isfinite(value) && value == std::trunc(value) && !(value == 0 && std::signbit(value));
    }
    return true;
}

template <typename T>
quint64 bitsOf(T value) {
    if constexpr (std::is_same_v<T, double>) return std::bit_cast<quint64>(value);
    if constexpr (std::is_same_v<T, float>) return std::bit_cast<quint32>(value);
    return quint64(value);
}

template <typename T>
uchar* putReal(uchar* out, T value) {
    if (isWrittenAsInteger(double(value))) return putInteger(out, qint64(value));
    *out = archivetag::real;
    qToLittleEndian(value, out + 1);
    return out + 1 + sizeof(T);
}

template <typename T>
uchar* putValue(uchar* out, T value, NumberKind kind) {
    if constexpr (std::is_floating_point_v<T>) return putReal(out, value);
    if (kind != NumberKind::Bool) return putInteger(out, qint64(value));
    *out = uchar(value);
    return out + 1;
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
                number(qint8(bits), kind);
                break;
            case NumberKind::Int:
                number(qint32(bits), kind);
                break;
            case NumberKind::LongLong:
                number(qint64(bits), kind);
                break;
            case NumberKind::Float:
                number(std::bit_cast<float>(quint32(bits)), kind);
                break;
            case NumberKind::Double:
                number(std::bit_cast<double>(bits), kind);
                break;
            case NumberKind::Kept:
                writeKept(numbers.keptAt(i));
                break;
        }
    }
}

template <typename T>
void NumberWriter::packed(std::span<const T> values, NumberKind kind) {
    for (const T value : values) {
        _output.ensure(mostBytes);
        number(value, kind);
    }
}

template <typename T>
void NumberWriter::number(T value, NumberKind kind) {
    if (value >= T(leastSmall) && (sizeof(T) == 1 || value <= T(mostSmall))) {
        const qint64 small = qint64(value);
        const quint64 group = kindOf(kind).small[size_t(small - leastSmall)];
        if (T(small) == value && group && isWhole(value)) {
            qToLittleEndian(group, _output.end());
            return _output.grew(qsizetype(group >> 56));
        }
    }
    isWhole(value) ? whole(value, kind) : full(value, kind);
}

template <typename T>
void NumberWriter::whole(T value, NumberKind kind) {
    Kind& known = kindOf(kind);
    const quint64 bits = bitsOf(value);
    const auto written = known.large.constFind(bits);
    if (written != known.large.constEnd()) {
        const quint64 group = referenceGroup(*written);
        qToLittleEndian(group, _output.end());
        return _output.grew(qsizetype(group >> 56));
    }
    full(value, kind);
    // The number is the last item that was added: its class and type letter come before it or are known.
    const bool isSmall = value >= T(leastSmall) && (sizeof(T) == 1 || value <= T(mostSmall));
    isSmall ? void(known.small[size_t(qint64(value) - leastSmall)] = referenceGroup(_lastNumber))
            : void(known.large.insert(bits, _lastNumber));
}

template <typename T>
void NumberWriter::full(T value, NumberKind kind) {
    Prefix& prefix = kindOf(kind).prefix;
    if (prefix.length == 0) {
        spellPrefix(kind);
        _output.ensure(mostBytes);
    } else {
        std::memcpy(_output.end(), prefix.bytes.data(), prefix.bytes.size());
        _output.grew(prefix.length);
        _lastNumber = _output.newItem();
    }
    uchar* const start = _output.end();
    uchar* end = putValue(start, value, kind);
    *end++ = archivetag::end;
    _output.grew(end - start);
}

/// Writes a number up to its value, and remembers the bytes when they say nothing for the first time.
void NumberWriter::spellPrefix(NumberKind kind) {
    static constexpr ArchiveOutput::ClassLink chain[] = {{"NSNumber", 0}, {"NSValue", 0}, {"NSObject", 0}};
    const qsizetype start = _output.size();
    const qsizetype strings = _output.stringCount();
    _lastNumber = _output.newItem();
    _output.byte(objectType);
    _output.byte(archivetag::newItem);
    _output.archivedClass(chain);
    _output.simpleType('*');
    const char code = char(kind);
    _output.cString(QByteArrayView(&code, 1));
    _output.simpleType(code);
    if (_output.itemCount() != _lastNumber + 1 || _output.stringCount() != strings) return;
    Prefix& prefix = kindOf(kind).prefix;
    prefix.length = int(_output.size() - start);
    std::memcpy(prefix.bytes.data(), _output.end() - prefix.length, size_t(prefix.length));
}

}  // namespace sargan
