#include "platform/archive/ArchiveOutput.h"

#include <cmath>
#include <limits>

namespace sargan {

namespace {

template <typename T>
uchar* putTagged(uchar* out, uchar tag, T value) {
    *out = tag;
    qToLittleEndian(value, out + 1);
    return out + 1 + sizeof(T);
}

uchar* putUnsigned(uchar* out, quint64 value) {
    // Where the sign bit would be set, the next wider form is taken, which means the same either way.
    if (value <= quint64(std::numeric_limits<qint32>::max())) return putInteger(out, qint64(value));
    if (value <= std::numeric_limits<quint32>::max())
        return putTagged(out, archivetag::int32, quint32(value));
    return putTagged(out, archivetag::int64, value);
}

}  // namespace

uchar* putInteger(uchar* out, qint64 value) {
    if (value >= archivetag::leastBareValue && value <= 127) {
        *out = uchar(qint8(value));
        return out + 1;
    }
    if (value == qint16(value)) return putTagged(out, archivetag::int16, qint16(value));
    if (value == qint32(value)) return putTagged(out, archivetag::int32, qint32(value));
    return putTagged(out, archivetag::int64, value);
}

bool isWrittenAsInteger(double value) {
    return value >= std::numeric_limits<qint32>::min() && value <= std::numeric_limits<qint32>::max() &&
           value == std::trunc(value) && !(value == 0 && std::signbit(value));
}

ArchiveOutput::ArchiveOutput() {
    _simpleTypes.fill(noItem);
    raw(QByteArrayView("\x04\x0bstreamtyped\x81\xe8\x03", 16));
}

void ArchiveOutput::enlarge(qsizetype count) {
    _capacity = qMax(_size + count, _capacity + _capacity / 2 + 4096);
    _bytes.resize(_capacity);
    _data = reinterpret_cast<uchar*>(_bytes.data());
}

void ArchiveOutput::raw(QByteArrayView bytes) {
    ensure(bytes.size());
    std::memcpy(end(), bytes.data(), size_t(bytes.size()));
    grew(bytes.size());
}

void ArchiveOutput::integer(qint64 value) {
    ensure(9);
    _size = putInteger(end(), value) - _data;
}

void ArchiveOutput::unsignedInteger(quint64 value) {
    ensure(9);
    _size = putUnsigned(end(), value) - _data;
}

void ArchiveOutput::realFloat(float value) {
    if (isWrittenAsInteger(value)) return integer(qint64(value));
    ensure(5);
    _size = putTagged(end(), archivetag::real, value) - _data;
}

void ArchiveOutput::realDouble(double value) {
    if (isWrittenAsInteger(value)) return integer(qint64(value));
    ensure(9);
    _size = putTagged(end(), archivetag::real, value) - _data;
}

void ArchiveOutput::unshared(QByteArrayView text) {
    unsignedInteger(quint64(text.size()));
    raw(text);
}

void ArchiveOutput::shared(QByteArrayView text) {
    const size_t letter = text.size() == 1 ? uchar(text[0]) : _simpleTypes.size();
    const bool isSimple = letter < _simpleTypes.size();
    if (isSimple && _simpleTypes[letter] != noItem) return reference(_simpleTypes[letter]);
    const QByteArray key(text.data(), text.size());
    const auto known = _strings.constFind(key);
    if (known != _strings.constEnd()) return reference(*known);
    const quint32 index = quint32(_strings.size());
    _strings.insert(key, index);
    if (isSimple) _simpleTypes[letter] = index;
    byte(archivetag::newItem);
    unshared(text);
}

void ArchiveOutput::cString(QByteArrayView text) {
    const QByteArray key(text.data(), text.size());
    const auto known = _cStrings.constFind(key);
    if (known != _cStrings.constEnd()) return reference(*known);
    _cStrings.insert(key, newItem());
    byte(archivetag::newItem);
    shared(text);
}

quint32 ArchiveOutput::archivedClass(std::span<const ClassLink> chain) {
    quint32 first = noItem;
    for (size_t i = 0; i < chain.size(); ++i) {
        QByteArray key;
        for (const ClassLink& link : chain.subspan(i)) {
            key += QByteArray::number(link.name.size()) + ' ' + link.name.toByteArray() +
                   QByteArray::number(link.version) + ' ';
        }
        const auto known = _classes.constFind(key);
        if (known != _classes.constEnd()) {
            reference(*known);
            return i == 0 ? *known : first;
        }
        const quint32 index = newItem();
        if (i == 0) first = index;
        _classes.insert(key, index);
        byte(archivetag::newItem);
        shared(chain[i].name);
        integer(chain[i].version);
    }
    byte(archivetag::nil);
    return first;
}

QByteArray ArchiveOutput::take() {
    _bytes.resize(_size);
    _data = nullptr;
    return std::move(_bytes);
}

}  // namespace sargan
