#include "platform/record/Field.h"

namespace sargan {

UnknownKeyError::UnknownKeyError(const QString& key, const QString& where)
    : std::runtime_error(QStringLiteral("%1 has no field named \"%2\"").arg(where, key).toStdString()), _key(key) {}

QVariant toVariant(Int value) { return value; }
QVariant toVariant(Float value) { return value; }
QVariant toVariant(const Text& value) { return value.isNull() ? QVariant() : QVariant(value); }
QVariant toVariant(const Date& value) { return value.isPresent() ? QVariant(value.local()) : QVariant(); }
QVariant toVariant(const Numbers& value) { return value.isAbsent() ? QVariant() : QVariant(value.size()); }
QVariant toVariant(const Picture& value) { return value.isAbsent() ? QVariant() : QVariant(value.bytes); }

}  // namespace sargan
