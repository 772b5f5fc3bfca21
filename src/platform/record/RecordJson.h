#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <stdexcept>

#include "platform/record/Slots.h"

namespace sargan {

/// A JSON value that does not fit: where it stands ("records[3].profondeur") and what is wrong with it.
class JsonError : public std::runtime_error {
public:
    JsonError(const QString& path, const QString& problem)
        : std::runtime_error((path + QStringLiteral(": ") + problem).toStdString()) {}
    QString sentence() const { return QString::fromUtf8(what()); }
};

namespace json {

/// Finite numbers as they are, floats in the shortest decimals that read back; others as "inf", "-inf",
/// "nan".
QJsonValue number(double value);

QJsonValue value(Int field);
QJsonValue value(Float field);
QJsonValue value(const Text& field);     ///< null when absent
QJsonValue value(const Date& field);     ///< local ISO 8601 with seconds, null when absent
QJsonValue value(const Numbers& field);  ///< an array; elements without a value are null
QJsonValue value(const Picture& field);  ///< {"image": kind, "base64": bytes}, null when absent
/// A picture object that holds no bytes that anyone can read: {"image": "archived", "base64": an archive of
/// the object as it is}, so that nothing of it is lost.
QJsonValue value(const ArchivedObject& picture);

/// How the numbers of a list are archived when they come from JSON, which does not tell kinds apart.
enum class ListKind : char { Reals, Integers };

void read(const QJsonValue& json, const QString& path, ListKind, Int& field);
void read(const QJsonValue& json, const QString& path, ListKind, Float& field);
void read(const QJsonValue& json, const QString& path, ListKind, Text& field);
void read(const QJsonValue& json, const QString& path, ListKind, Date& field);
void read(const QJsonValue& json, const QString& path, ListKind kind, Numbers& field);
void read(const QJsonValue& json, const QString& path, ListKind, Picture& field);
/// The object of a picture that is told as "archived"; nil for any other value.
ArchivedObject readArchived(const QJsonValue& json, const QString& path);

}  // namespace json

/// The picture fields that have an object and no bytes.
template <class R>
void insertUnreadablePictures(const R& record, FieldList<R> fields, QJsonObject& object) {
    for (const Field<R>* field : fields) {
        if (!field->template is<Picture>() || !object[QLatin1String(field->name)].isNull()) continue;
        const ArchivedObject kept = record.kept(fieldIndex(fields, *field));
        if (!kept.isNil()) object.insert(QLatin1String(field->name), json::value(kept));
    }
}

/// Every field by its name, those that are not archived included.
template <class R>
QJsonObject recordToJson(const R& record, FieldList<R> fields) {
    QJsonObject object;
    for (const Field<R>* field : fields)
        field->visit(record, [&](const auto& value) {
            object.insert(QLatin1String(field->name), json::value(value));
        });
    if (record.hasKept()) insertUnreadablePictures(record, fields, object);
    return object;
}

/// The inverse. Missing fields are zero or absent; fields that are not archived are dropped. Throws
/// JsonError for an unknown field or a value of the wrong kind.
template <class R>
R recordFromJson(const QJsonObject& object, const QString& path, const RecordClass<R>& cls) {
    R record;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString at = path + u'.' + it.key();
        const auto known = std::find_if(cls.fields.begin(), cls.fields.end(), [&](const Field<R>* field) {
            return it.key() == QLatin1String(field->name);
        });
        if (known == cls.fields.end()) throw JsonError(at, QStringLiteral("unknown field"));
        R scratch;
        R& target = cls.archives(**known) ? record : scratch;
        const json::ListKind kind =
            cls.isRealList(**known) ? json::ListKind::Reals : json::ListKind::Integers;
        if ((*known)->template is<Picture>())
            if (ArchivedObject picture = json::readArchived(it.value(), at); !picture.isNil()) {
                target.keep(fieldIndex(cls.fields, **known), std::move(picture));
                continue;
            }
        (*known)->visit(target, [&](auto& value) { json::read(it.value(), at, kind, value); });
    }
    return record;
}

}  // namespace sargan
