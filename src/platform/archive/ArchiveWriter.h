#pragma once

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <memory>

#include "platform/archive/ArchivedObject.h"
#include "platform/archive/Moment.h"
#include "platform/archive/NumberArray.h"

namespace sargan {

class Archive;

/// A class as this program writes it, with its chain up to the root class. The name and the superclass
/// must outlive the writer.
struct ArchiveClass {
    const char* name;
    qint32 version;
    const ArchiveClass* super = nullptr;
};

namespace archiveclass {
inline constexpr ArchiveClass object{"NSObject", 0};
inline constexpr ArchiveClass string{"NSString", 1, &object};
inline constexpr ArchiveClass array{"NSArray", 0, &object};
inline constexpr ArchiveClass mutableArray{"NSMutableArray", 0, &array};
inline constexpr ArchiveClass value{"NSValue", 0, &object};
inline constexpr ArchiveClass number{"NSNumber", 0, &value};
inline constexpr ArchiveClass date{"NSDate", 0, &object};
inline constexpr ArchiveClass data{"NSData", 0, &object};
inline constexpr ArchiveClass color{"NSColor", 0, &object};
}  // namespace archiveclass

/// Writes an archive. What counts as one instance follows current systems: whole numbers (per kind),
/// booleans and ASCII strings of up to seven characters are written once per file and referenced
/// afterwards; other strings are instances by the address of the QString that is passed, so a field
/// passed twice is referenced and two equal fields are written in full; dates, arrays and numbers with a
/// fraction are written in full; kept objects keep the identities of the archive they came from.
class ArchiveWriter {
public:
    ArchiveWriter();
    ~ArchiveWriter();
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    /// Room for about this many bytes, so that a large archive is not copied while it grows.
    void reserve(qsizetype bytes);

    void beginRootArray(quint32 count);  ///< NSMutableArray; `count` elements must follow
    void endRootArray();

    void beginObject(const ArchiveClass& cls);  ///< as the value of a group "@"
    /// The same for an instance that may come again: the first time as beginObject (true; its groups and
    /// endObject must follow), later as a back reference (false; nothing follows).
    bool beginInstance(const void* instance, const ArchiveClass& cls);
    void endObject();

    void writeInt(qint32 value);
    void writeFloat(float value);
    void writeText(const QString& text);  ///< a null string writes nil; the string must outlive the writer
    void writeMoment(const Moment& moment);
    void writeNumbers(const NumberArray& numbers);  ///< NSMutableArray of NSNumber; absent writes nil
    void writeBytes(const QByteArray& bytes);       ///< NSData object
    void writeObject(const ArchivedObject& object);
    void writeNil();

    /// Groups of other types, for classes with a layout of their own: "c" and four floats "ffff".
    void writeByteGroup(qint8 value);
    void writeFloatsGroup(std::initializer_list<float> values);

    /// The finished archive. The writer is empty afterwards.
    QByteArray take();

    /// A whole archive written anew from its tree, instances as they were.
    static QByteArray rewrite(const Archive& archive);

private:
    class Impl;
    std::unique_ptr<Impl> _impl;
};

}  // namespace sargan
