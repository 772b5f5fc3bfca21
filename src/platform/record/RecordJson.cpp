#include "platform/record/RecordJson.h"

#include <QJsonArray>
#include <cmath>
#include <limits>

#include "platform/text/Message.h"

namespace sargan::json {

namespace {

[[noreturn]] void wrong(const QString& path, const char* expected) {
    throw JsonError(path, QStringLiteral("expected %1").arg(QString::fromUtf8(expected)));
}

/// A picture told as the archived object that it is.
constexpr const char* archivedKind = "archived";

const char* pictureKind(const QByteArray& bytes) {
    if (bytes.isEmpty()) return archivedKind;
    if (bytes.startsWith("\x89PNG")) return "png";
    if (bytes.startsWith("\xff\xd8\xff")) return "jpeg";
    return "tiff";
}

std::optional<double> readNumber(const QJsonValue& json) {
    if (json.isDouble()) return json.toDouble();
    if (json == QLatin1String("inf")) return std::numeric_limits<double>::infinity();
    if (json == QLatin1String("-inf")) return -std::numeric_limits<double>::infinity();
    if (json == QLatin1String("nan")) return std::numeric_limits<double>::quiet_NaN();
    return std::nullopt;
}

bool isInt32(double value) {
    return value == std::trunc(value) && std::abs(value) <= 2147483648.0 && value != 2147483648.0;
}

}  // namespace

QJsonValue number(double value) {
    return std::isfinite(value) ? QJsonValue(value) : QJsonValue(shortest(value));
}

QJsonValue value(Int field) {
    return field;
}

QJsonValue value(Float field) {
    // The shortest decimals of the float, as a double: 12.3, where widening would show 12.300000190734863.
    return std::isfinite(field) ? QJsonValue(shortest(field).toDouble()) : QJsonValue(shortest(field));
}

QJsonValue value(const Text& field) {
    return field.isNull() ? QJsonValue() : QJsonValue(field);
}

QJsonValue value(const Date& field) {
    return field.isPresent() ? QJsonValue(field.iso()) : QJsonValue();
}

QJsonValue value(const Numbers& field) {
    if (field.isAbsent()) return {};
    QJsonArray array;
    for (qsizetype i = 0; i < field.size(); ++i) {
        const NumberKind kind = field.kindAt(i);
        if (kind == NumberKind::Kept)
            array.append(QJsonValue());
        else if (kind == NumberKind::Float)
            array.append(value(Float(field.at(i))));
        else if (kind == NumberKind::LongLong)
            array.append(field.textAt(i).toLongLong());
        else
            array.append(number(field.at(i)));
    }
    return array;
}

QJsonValue value(const Picture& field) {
    if (field.isAbsent()) return {};
    return QJsonObject{{QStringLiteral("image"), QLatin1String(pictureKind(field.bytes))},
                       {QStringLiteral("base64"), QString::fromLatin1(field.bytes.toBase64())}};
}

QJsonValue value(const ArchivedObject& picture) {
    ArchiveWriter writer;
    writer.writeObject(picture);
    return QJsonObject{{QStringLiteral("image"), QLatin1String(archivedKind)},
                       {QStringLiteral("base64"), QString::fromLatin1(writer.take().toBase64())}};
}

void read(const QJsonValue& json, const QString& path, ListKind, Int& field) {
    const double value = json.toDouble(0.5);
    if (!isInt32(value)) wrong(path, "a whole number of 32 bits");
    field = Int(value);
}

void read(const QJsonValue& json, const QString& path, ListKind, Float& field) {
    const auto value = readNumber(json);
    if (!value) wrong(path, "a number");
    // 3.4028235e38 is how the largest float is written, though it is a little more.
    if (std::isfinite(*value) && std::isinf(Float(*value))) wrong(path, "a number that 32 bits can hold");
    field = Float(*value);
}

void read(const QJsonValue& json, const QString& path, ListKind, Text& field) {
    if (json.isNull()) return;
    if (!json.isString()) wrong(path, "a text or null");
    field = json.toString();
    if (field.isNull()) field = QLatin1String("");
}

void read(const QJsonValue& json, const QString& path, ListKind, Date& field) {
    if (json.isNull()) return;
    field = json.isString() ? Moment::fromIso(json.toString()) : Moment();
    if (!field.isPresent()) wrong(path, "a date such as \"2016-06-07T14:30:00\" or null");
}

void read(const QJsonValue& json, const QString& path, ListKind kind, Numbers& field) {
    if (json.isNull()) return;
    if (!json.isArray()) wrong(path, "an array of numbers or null");
    field = NumberArray::empty();
    const QJsonArray array = json.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        const auto value = readNumber(array[i]);
        if (!value) wrong(path + QStringLiteral("[%1]").arg(i), "a number");
        if (kind == ListKind::Integers && isInt32(*value))
            field.appendInt(qint32(*value));
        else if (kind == ListKind::Integers && array[i].toInteger(0) != 0)
            field.appendLongLong(array[i].toInteger());
        else
            field.append(*value);
    }
}

namespace {

QByteArray readBase64(const QJsonValue& json, const QString& path) {
    const QJsonValue base64 = json.toObject().value(QLatin1String("base64"));
    if (!base64.isString()) wrong(path, "a picture {\"image\": …, \"base64\": …} or null");
    auto decoded =
        QByteArray::fromBase64Encoding(base64.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (decoded.decodingStatus != QByteArray::Base64DecodingStatus::Ok)
        wrong(path + QStringLiteral(".base64"), "base64 text");
    return std::move(decoded.decoded);
}

}  // namespace

void read(const QJsonValue& json, const QString& path, ListKind, Picture& field) {
    if (json.isNull()) return;
    const QByteArray bytes = readBase64(json, path);
    if (!beginsLikePicture(bytes))
        wrong(path + QStringLiteral(".base64"), "the bytes of a PNG, JPEG or TIFF picture");
    const char* kind = pictureKind(bytes);
    const QJsonValue told = json.toObject().value(QLatin1String("image"));
    if (!told.isUndefined() && told != QLatin1String(kind)) wrong(path + QStringLiteral(".image"), kind);
    field.bytes = bytes;
}

ArchivedObject readArchived(const QJsonValue& json, const QString& path) {
    if (json.toObject().value(QLatin1String("image")) != QLatin1String(archivedKind)) return {};
    const QByteArray bytes = readBase64(json, path);
    try {
        const ArchivedObject root = Archive::read(bytes)->root();
        if (!root.isNil() && root.pictureBytes().isNull()) return root;
    } catch (const ArchiveError&) {
    }
    wrong(path + QStringLiteral(".base64"), "an archive of a picture object that cannot be read");
}

}  // namespace sargan::json
