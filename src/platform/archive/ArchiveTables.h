#pragma once

#include <QByteArray>
#include <cstdlib>
#include <new>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ByteCursor.h"

namespace sargan {

/// What a class is to this reader: one of the known Foundation classes, derived from one, or unknown.
enum class ClassFamily : quint8 {
    Unknown,
    Object,
    String,
    Array,
    Set,
    Dictionary,
    Data,
    Date,
    Number,
    Value,
    Null,
    Url,
    Color,
    Font
};

ClassFamily knownFamily(QByteArrayView className);

inline constexpr quint32 noIndex = 0xffffffff;
/// Limits that keep recursion away from the end of the stack.
inline constexpr int mostClassesInChain = 64;
inline constexpr int mostNestedObjects = 256;

/// One item of the object table in eight bytes: where it starts in the file (48 bits), what it is (4 bits)
/// and 12 bits that depend on that. A number's value can be read without its class by `valueOffset`.
class ObjectEntry {
public:
    enum Type : quint8 {
        Open,  ///< met but not finished
        Class,
        CString,
        Object,
        NumberBool = 8,
        NumberInt,
        NumberLongLong,
        NumberFloat,
        NumberDouble
    };
    static constexpr int mostDelta = 0xff;

    ObjectEntry() = default;
    static ObjectEntry open(qint64 offset) { return make(offset, Open, 0); }
    static ObjectEntry cString(qint64 offset) { return make(offset, CString, 0); }
    static ObjectEntry object(qint64 offset, int height) { return make(offset, Object, height); }
    static ObjectEntry number(qint64 offset, NumberKind kind, int delta) {
        return make(offset, typeOf(kind), delta);
    }
    static ObjectEntry archivedClass(qint64 offset, ClassFamily family, bool derived, int chainLength) {
        return make(offset, Class, int(family) | (derived ? 0x10 : 0) | (chainLength - 1) << 5);
    }
    static constexpr Type typeOf(NumberKind kind) {
        switch (kind) {
            case NumberKind::Bool:
                return NumberBool;
            case NumberKind::Int:
                return NumberInt;
            case NumberKind::LongLong:
                return NumberLongLong;
            case NumberKind::Float:
                return NumberFloat;
            case NumberKind::Double:
                return NumberDouble;
            case NumberKind::Kept:
                break;
        }
        return Object;
    }

    qint64 offset() const { return qint64(_bits & ((quint64(1) << 48) - 1)); }
    Type type() const { return Type(_bits >> 48 & 0xf); }
    bool isNumber() const { return type() >= NumberBool; }
    bool isObject() const { return type() == Object || isNumber(); }
    NumberKind numberKind() const { return NumberKind("ciqfd"[type() - NumberBool]); }
    qint64 valueOffset() const { return offset() + detail(); }
    /// How many objects are nested in this one, itself included, counted through references.
    int height() const { return isNumber() ? 1 : detail(); }
    ClassFamily family() const { return ClassFamily(detail() & 0xf); }
    bool isDerived() const { return detail() & 0x10; }
    int chainLength() const { return (detail() >> 5) + 1; }

    /// For entries made in bulk: the bits above the offset.
    static quint64 numberBits(NumberKind kind, int delta) { return number(0, kind, delta)._bits; }
    static ObjectEntry fromBits(quint64 bits) { return ObjectEntry(bits); }

private:
    explicit ObjectEntry(quint64 bits) : _bits(bits) {}
    static ObjectEntry make(qint64 offset, Type type, int detail) {
        return ObjectEntry(quint64(offset) | quint64(type) << 48 | quint64(detail) << 52);
    }
    int detail() const { return int(_bits >> 52); }

    quint64 _bits;
};

/// A growing table of plain values. Unlike a vector it leaves new room untouched, so that room reserved by
/// a count that turns out false costs no memory, and large tables move by remapping.
template <typename T>
class GrowingTable {
public:
    GrowingTable() = default;
    ~GrowingTable() { std::free(_data); }
    GrowingTable(const GrowingTable&) = delete;
    GrowingTable& operator=(const GrowingTable&) = delete;

    quint32 size() const { return _size; }
    T& operator[](quint32 i) { return _data[i]; }
    const T& operator[](quint32 i) const { return _data[i]; }

    void push(T value) {
        if (_size == _capacity) reserve(1);
        _data[_size++] = value;
    }
    /// Room for `more` values, to be written from end() and then counted by grew().
    void reserve(quint32 more) {
        const quint64 needed = quint64(_size) + more;
        if (needed <= _capacity) return;
        if (needed >= noIndex) throw std::bad_alloc();
        const quint64 capacity =
            qMin(qMax(needed, quint64(_capacity) + _capacity / 2 + 64), quint64(noIndex) - 1);
        void* data = std::realloc(static_cast<void*>(_data), capacity * sizeof(T));
        if (!data) throw std::bad_alloc();
        _data = static_cast<T*>(data);
        _capacity = quint32(capacity);
    }
    T* begin() { return _data; }
    T* end() { return _data + _size; }
    void grew(quint32 count) { _size += count; }

private:
    T* _data = nullptr;
    quint32 _size = 0;
    quint32 _capacity = 0;
};

/// A class as a table index shows it; the name is a view of the archive's bytes.
struct ClassInfo {
    QByteArrayView name;
    qint32 version = 0;
    quint32 super = noIndex;
};

/// The tables that an archive's references mean, filled while it is read for the first time.
struct Archive::Tables {
    QByteArray bytes;
    GrowingTable<ObjectEntry> objects;
    /// Where each shared string's length stands; the top bit is set once it is known as a type encoding.
    GrowingTable<quint64> strings;
    quint32 root = noIndex;  ///< noIndex: nil

    static constexpr quint64 checkedType = quint64(1) << 63;

    const uchar* begin() const { return reinterpret_cast<const uchar*>(bytes.constData()); }
    ByteCursor cursorAt(qint64 offset) const { return {begin(), begin() + bytes.size(), offset}; }
    QByteArrayView stringAt(quint32 index) const;
    ClassInfo classAt(quint32 index) const;
    /// The class of a finished object; never absent.
    quint32 classOfObject(quint32 index) const;
};

}  // namespace sargan
