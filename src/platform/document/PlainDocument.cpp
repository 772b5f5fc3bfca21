#include "platform/document/PlainDocument.h"

#include <QJsonArray>

#include "platform/archive/ArchiveWriter.h"
#include "platform/document/DocumentError.h"
#include "platform/record/RecordJson.h"

namespace sargan {

namespace {

QJsonValue plainValue(const ArchivedValue& archived, bool isFloat);

/// Whether the value at this place of a group was archived as a 32-bit real.
bool isFloatAt(const ArchivedGroup& group, qsizetype place) {
    return group.type.size() == group.values.size() && group.type[place] == 'f';
}

/// A date, when the object is one: its first group is a "d".
std::optional<Moment> asMoment(const ArchivedObject& object) {
    if (!object.isKindOf("NSDate")) return std::nullopt;
    const QList<ArchivedGroup> groups = object.groups();
    if (groups.isEmpty() || groups[0].type != "d" || groups[0].values.isEmpty()) return std::nullopt;
    const auto* seconds = std::get_if<double>(&groups[0].values[0].value);
    return seconds ? std::optional(Moment::fromSeconds(*seconds)) : std::nullopt;
}

QJsonValue plainObject(const ArchivedObject& object) {
    if (object.isNil()) return {};
    if (const QString text = object.asText(); !text.isNull()) return text;
    if (const auto moment = asMoment(object)) return moment->iso();
    if (const QByteArray picture = object.pictureBytes(); !picture.isNull())
        return json::value(Picture{picture});
    if (object.isKindOf("NSArray")) {
        QJsonArray list;
        for (const ArchivedObject& element : object.asArray()) list.append(plainObject(element));
        return list;
    }
    if (object.isKindOf("NSNumber")) {
        const QList<ArchivedGroup> groups = object.groups();
        if (groups.size() > 1 && !groups[1].values.isEmpty())
            return plainValue(groups[1].values[0], isFloatAt(groups[1], 0));
    }
    return QJsonObject{{QStringLiteral("object"), object.className()}};
}

QJsonValue plainValue(const ArchivedValue& archived, bool isFloat) {
    if (const auto* whole = std::get_if<qint64>(&archived.value)) return *whole;
    if (const auto* real = std::get_if<double>(&archived.value))
        return isFloat ? json::value(Float(*real)) : json::number(*real);
    if (const auto* bytes = std::get_if<QByteArray>(&archived.value)) return QString::fromUtf8(*bytes);
    if (const auto* object = std::get_if<std::shared_ptr<const ArchivedObject>>(&archived.value))
        return *object ? plainObject(**object) : QJsonValue();
    return {};
}

QJsonArray plainRecord(const ArchivedObject& record) {
    QJsonArray values;
    for (const ArchivedGroup& group : record.groups())
        for (qsizetype i = 0; i < group.values.size(); ++i)
            values.append(plainValue(group.values[i], isFloatAt(group, i)));
    return values;
}

QString shownValue(const QJsonValue& value) {
    if (value.isString()) return value.toString();
    if (value.isDouble()) return shortest(value.toDouble());
    if (value.isArray()) return QStringLiteral("(%1)").arg(value.toArray().size());
    if (value.toObject().contains(QLatin1String("image"))) return QStringLiteral("(picture)");
    if (value.isObject())
        return QStringLiteral("(%1)").arg(value.toObject().value(QLatin1String("object")).toString());
    return {};
}

}  // namespace

PlainDocument::PlainDocument(const DocumentKind& kind, Desk& desk) : Document(kind, desk) {}

std::unique_ptr<Document> PlainDocument::create(const DocumentKind& kind, Desk& desk) {
    return std::make_unique<PlainDocument>(kind, desk);
}

QStringList PlainDocument::values(qsizetype row) const {
    QStringList shown;
    const QJsonArray values = plainRecord(record(row));
    for (const QJsonValue& value : values) shown << shownValue(value);
    return shown;
}

QByteArray PlainDocument::dataRepresentationOfType(const QString& type) {
    if (type != kind().currentTypeName(desk())) return {};
    if (_archive) return ArchiveWriter::rewrite(*_archive);
    ArchiveWriter writer;
    writer.beginRootArray(0);
    writer.endRootArray();
    return writer.take();
}

bool PlainDocument::loadDataRepresentation(const QByteArray& bytes, const QString& type) {
    const std::shared_ptr<const Archive> archive = Archive::read(bytes);
    if (!archive->root().isKindOf("NSArray"))
        throw DocumentError(QStringLiteral("its content is not a list of records"));
    _archive = archive;
    _records = archive->root().asArray();
    setState(newState());
    Q_EMIT contentChanged();
    return type == kind().currentTypeName(desk());
}

DocumentSummary PlainDocument::summary() const {
    DocumentSummary summary{QString::fromLatin1(kind().recordClass), std::nullopt, count(), {}, {}};
    if (!_records.isEmpty()) summary.version = _records.first().classes().value(0).version;
    return summary;
}

QJsonObject PlainDocument::dump() const {
    QJsonArray list;
    for (const ArchivedObject& record : _records)
        list.append(QJsonObject{{QStringLiteral("values"), plainRecord(record)}});
    const DocumentSummary about = summary();
    return {{QStringLiteral("type"), QLatin1String(kind().typeName)},
            {QStringLiteral("class"), about.recordClass},
            {QStringLiteral("version"), about.version ? QJsonValue(*about.version) : QJsonValue()},
            {QStringLiteral("records"), list}};
}

void PlainDocument::loadRecords(const QJsonArray& records) {
    if (!records.isEmpty())
        throw DocumentError(QStringLiteral("records of the type \"%1\" cannot be made yet, only read")
                                .arg(QLatin1String(kind().typeName)));
}

bool PlainDocument::holdsContent(const QByteArray& bytes) const {
    const std::shared_ptr<const Archive> read = Archive::read(bytes);
    return read->root().asArray().size() == count() && ArchiveWriter::rewrite(*read) == bytes;
}

}  // namespace sargan
