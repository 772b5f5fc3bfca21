#pragma once

#include <vector>

#include "platform/archive/ArchiveTables.h"

namespace sargan {

/// The head of an object value.
struct ObjectHead {
    enum What { Nil, Reference, New };
    What what = Nil;
    quint32 index = noIndex;  ///< in the object table
    quint32 cls = noIndex;    ///< of a new object
    qint64 offset = 0;        ///< where the head stands
};

/// Reads an archive's items (shared strings, classes, C strings, object heads). In the first pass it fills
/// the tables and checks everything. A replay reads again what the first pass has accepted, from any
/// object on: it knows the object's index, counts on from there, and adds nothing to the tables.
class ItemReader {
public:
    /// The first pass, from the start of the bytes.
    explicit ItemReader(Archive::Tables& tables)
        : at(tables.cursorAt(0)), _tables(&tables), _growing(&tables) {}
    /// A replay that stands at the head of the object with this index.
    ItemReader(const Archive::Tables& tables, quint32 index)
        : at(tables.cursorAt(tables.objects[index].offset())), _tables(&tables), _next(index) {}

    ByteCursor at;

    Archive::Tables* growing() { return _growing; }
    const Archive::Tables& tables() const { return *_tables; }
    ObjectEntry entry(quint32 index) const { return _tables->objects[index]; }

    void header();
    void endOfFile();
    /// The root group's head, which must be an array, up to and with the type of its count.
    ObjectHead rootArray();
    /// A group's type encoding, checked.
    QByteArrayView groupType();
    /// A group's type encoding, which must be this one letter.
    void groupOf(char code, ArchiveWords expected);
    /// The count of a collection (pairs count twice), bounded by the bytes left.
    quint64 takeCount(ClassFamily family);
    /// A shared string; null (not empty) for nil, which is an error unless allowed.
    QByteArrayView sharedText(ArchiveWords expected, bool nilAllowed);
    QByteArrayView unsharedText();  ///< null for nil
    QByteArrayView cString();       ///< null for nil
    quint32 classReference();       ///< noIndex for nil
    ObjectHead objectHead();
    /// Ends a new object: takes its end byte and completes its table entry.
    void objectEnd(const ObjectHead& head, int height);
    /// Marks a finished object as a number that can be read at its value's offset alone.
    void markNumber(const ObjectHead& head, NumberKind kind, qint64 valueOffset);

private:
    struct SharedString {
        QByteArrayView text;
        quint32 index = noIndex;
    };
    SharedString sharedString(ArchiveWords expected, bool nilAllowed);
    QByteArrayView newStringText(ArchiveWords expected);
    quint32 openItem(qint64 offset);
    quint32 reference(uchar head, qint64 offset, ArchiveWords expected);
    struct NewClass {
        quint32 index;
        qint64 offset;
        QByteArrayView name;
    };
    NewClass newClass(qint64 offset);
    void closeClasses(const std::vector<NewClass>& classes, quint32 super);

    const Archive::Tables* _tables;
    Archive::Tables* _growing = nullptr;
    quint32 _next = 0;
};

}  // namespace sargan
