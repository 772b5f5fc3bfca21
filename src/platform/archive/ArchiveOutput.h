#pragma once

#include <QByteArray>
#include <QHash>
#include <array>
#include <span>
#include <string>

#include "platform/archive/ByteCursor.h"

namespace sargan {

/// The bytes of an archive that is being written, with its two tables: shared strings, classes and
/// C strings are written in full once, by content, and as references afterwards.
class ArchiveOutput {
public:
    static constexpr quint32 noItem = 0xffffffff;

    struct ClassLink {
        QByteArrayView name;
        qint32 version;
    };

    ArchiveOutput();

    /// Room for `count` more bytes at end(); say with grew() how many were written.
    void ensure(qsizetype count) {
        if (_capacity - _size < count) enlarge(count);
    }
    uchar* end() { return _data + _size; }
    void grew(qsizetype count) { _size += count; }

    void byte(uchar value) {
        ensure(1);
        _data[_size++] = value;
    }
    void raw(QByteArrayView bytes);
    void integer(qint64 value);
    void unsignedInteger(quint64 value);
    void realFloat(float value);
    void realDouble(double value);
    void unshared(QByteArrayView text);
    void shared(QByteArrayView text);
    void simpleType(char code) { shared(QByteArrayView(&code, 1)); }
    void cString(QByteArrayView text);
    /// A class by its chain, subclass first; an empty chain is nil. Returns its place in the object table.
    quint32 archivedClass(std::span<const ClassLink> chain);
    void reference(quint32 index) { integer(qint64(index) + archivetag::referenceBase); }

    /// Takes the next number of the object table.
    quint32 newItem() { return _items++; }
    quint32 itemCount() const { return _items; }
    qsizetype stringCount() const { return _strings.size(); }
    qsizetype size() const { return _size; }
    QByteArray take();

private:
    void enlarge(qsizetype count);

    QByteArray _bytes;
    uchar* _data = nullptr;
    qsizetype _size = 0;
    qsizetype _capacity = 0;
    quint32 _items = 0;
    QHash<QByteArray, quint32> _strings;
    std::array<quint32, 128> _simpleTypes;
    QHash<QByteArray, quint32> _cStrings;
    QHash<QByteArray, quint32> _classes;
};

/// Writes the narrowest form of an integer at `out`, where 9 bytes are free; returns the end.
uchar* putInteger(uchar* out, qint64 value);
/// Whether a real value is written as an integer: whole, within 32 bits, and not minus zero.
bool isWrittenAsInteger(double value);

}  // namespace sargan
