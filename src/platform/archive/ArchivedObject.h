#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <variant>

namespace sargan {

class Archive;
class ArchivedObject;

/// One class of an archived object's chain.
struct ArchivedClass {
    QString name;
    qint32 version = 0;
    friend bool operator==(const ArchivedClass&, const ArchivedClass&) = default;
};

/// One value of a group: nil, an integer, a real, bytes (unshared string, C string, selector, byte array),
/// an object, a class, or the fields of a struct or array.
struct ArchivedValue {
    std::variant<std::monostate, qint64, double, QByteArray, std::shared_ptr<const ArchivedObject>,
                 ArchivedClass, QList<ArchivedValue>>
        value;
};

/// What one encode call wrote: its type encoding and its values.
struct ArchivedGroup {
    QByteArray type;
    QList<ArchivedValue> values;
};

/// A view of one object of a checked archive: its class chain and its groups, decoded when asked for.
/// It keeps the archive's bytes and object table alive and copies nothing, so an object of an unknown class
/// can be kept inside a record and written back unchanged. Two views are equal when they show the same
/// instance.
class ArchivedObject {
public:
    ArchivedObject() = default;  ///< nil

    bool isNil() const { return !_archive; }
    /// The class chain, the object's own class first. Empty for nil.
    QList<ArchivedClass> classes() const;
    QString className() const;
    /// Whether the chain contains a class of this name.
    bool isKindOf(const char* name) const;
    /// The object's groups, superclass data first, in file order.
    QList<ArchivedGroup> groups() const;

    /// The text when this is a string; a null string otherwise.
    QString asText() const;
    /// The elements when this is an array (nil or not an array: empty).
    QList<ArchivedObject> asArray() const;
    /// The first byte array in this object, or in objects within it, that begins like a TIFF, PNG or JPEG
    /// picture; null when there is none.
    QByteArray pictureBytes() const;

    const std::shared_ptr<const Archive>& archive() const { return _archive; }
    quint32 index() const { return _index; }  ///< place in the archive's object table

    friend bool operator==(const ArchivedObject&, const ArchivedObject&) = default;

private:
    friend class Archive;
    friend class ArchiveReader;
    ArchivedObject(std::shared_ptr<const Archive> archive, quint32 index)
        : _archive(std::move(archive)), _index(index) {}

    std::shared_ptr<const Archive> _archive;
    quint32 _index = 0;
};

/// Whether bytes begin like a TIFF, PNG or JPEG file.
bool beginsLikePicture(QByteArrayView bytes);

}  // namespace sargan
