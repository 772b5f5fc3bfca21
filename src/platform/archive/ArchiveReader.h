#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

#include "platform/archive/ArchiveError.h"
#include "platform/archive/ArchivedObject.h"
#include "platform/archive/Moment.h"
#include "platform/archive/NumberArray.h"

namespace sargan {

/// Reads an archive from front to back in one pass, straight into values: number lists into packed
/// storage, strings into QString, and objects of unknown classes as views. Every method throws
/// ArchiveError. Nothing is trusted: counts are bounded by the bytes left, depth, references and class
/// chains are checked, and memory stays within a small multiple of the file.
class ArchiveReader {
public:
    /// Checks the header. Objects that are kept hold on to the bytes, which must own their memory.
    explicit ArchiveReader(QByteArray bytes);
    ~ArchiveReader();
    ArchiveReader(const ArchiveReader&) = delete;
    ArchiveReader& operator=(const ArchiveReader&) = delete;

    // --- A root array of records -----------------------------------------------------------------

    /// The root group: an NSArray or NSMutableArray. Returns its count.
    quint32 beginRootArray();

    struct Element {
        bool isNew;      ///< false: a second reference to an earlier element
        quint32 number;  ///< for a repeated element, how many new elements came before it
    };
    /// The next element of the root array, which must be an object of exactly this class. Nil, other
    /// classes and references to anything but an earlier element are errors.
    Element beginElement(const char* className);
    /// The version that the file's class table gives for the class of the current element.
    qint32 elementVersion() const;
    void endElement();
    /// The end of the root array and of the file.
    void endRootArray();

    // --- Slots of a record, in order ---------------------------------------------------------------

    /// Names the slot that is read next, for error messages. The text must outlive the reader.
    void atSlot(const char* name);

    qint32 readInt();   ///< group "i"
    float readFloat();  ///< group "f"
    /// Group "@" holding a string or nil (a null string). An object of an unknown class is put into
    /// `kept` and gives a null string; a known class that is not a string is an error.
    QString readText(ArchivedObject& kept);
    /// Group "@" holding a date or nil. A class derived from NSDate gives its date and is kept.
    Moment readMoment(ArchivedObject& kept);
    /// Group "@" holding an array of numbers or nil. An array of a derived class is read and kept; an object
    /// of an unknown class is kept and gives an absent list. Among the numbers, objects of unknown classes
    /// and numbers of other types are `Kept`; nil and other known objects are errors.
    NumberArray readNumbers(ArchivedObject& kept);
    /// Group "@" holding any object or nil.
    ArchivedObject readObject();

    qint64 offset() const;

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

/// What stands at the head of an archive, found without reading the rest.
struct ArchiveHead {
    QString rootClass;              ///< "NSMutableArray"
    quint32 count = 0;              ///< elements of the root array
    QString recordClass;            ///< class of its first element; empty when there is none
    std::optional<qint32> version;  ///< and that class's version
};
/// Throws ArchiveError when the bytes do not begin like an archive of an array.
ArchiveHead readArchiveHead(const QByteArray& bytes);

/// A whole archive read and checked from end to end without knowing its classes.
/// Throws ArchiveError.
class Archive : public std::enable_shared_from_this<Archive> {
public:
    static std::shared_ptr<const Archive> read(QByteArray bytes);
    ~Archive();

    ArchivedObject root() const;
    const QByteArray& bytes() const;
    /// The object at this place of the object table; nil when none (or none that is finished) stands there.
    ArchivedObject objectAt(quint32 index) const;

    struct Tables;

private:
    friend class ArchiveReader;
    friend class ArchivedObject;
    friend class ArchiveWriter;
    Archive();

    std::unique_ptr<Tables> _tables;
};

}  // namespace sargan
