#pragma once

#include <QString>
#include <QVariant>
#include <algorithm>
#include <bit>
#include <span>
#include <stdexcept>
#include <variant>

#include "platform/record/FieldGroups.h"
#include "platform/record/Record.h"

namespace sargan {

/// A field name that a record class does not have.
class UnknownKeyError : public std::runtime_error {
public:
    UnknownKeyError(const QString& key, const QString& where);
    const QString& key() const { return _key; }
    QString sentence() const { return QString::fromUtf8(what()); }

private:
    QString _key;
};

/// One field of record class R: its name and where it lives.
template <class R>
struct Field {
    const char* name;
    std::variant<Int R::*, Float R::*, Text R::*, Date R::*, Numbers R::*, Picture R::*> member;

    /// Calls `visitor(value)` with a reference to the field of `record`, const or not.
    template <class Rec, class Visitor>
    decltype(auto) visit(Rec& record, Visitor&& visitor) const {
        return std::visit([&](auto pointer) -> decltype(auto) { return visitor(record.*pointer); }, member);
    }
    template <class T>
    constexpr bool is() const {
        return std::holds_alternative<T R::*>(member);
    }
};

/// The fields of a record class, in declaration order.
template <class R>
using FieldList = std::span<const Field<R>* const>;

/// A field's value for tables, sorting and search: an int, a float, a string, a date-time, or nothing when
/// the value is absent (number lists and pictures: their count and their bytes).
QVariant toVariant(Int value);
QVariant toVariant(Float value);
QVariant toVariant(const Text& value);
QVariant toVariant(const Date& value);
QVariant toVariant(const Numbers& value);
QVariant toVariant(const Picture& value);

/// The place of the field with this name. Throws UnknownKeyError.
template <class R>
int fieldIndex(FieldList<R> fields, QStringView name) {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (name == QLatin1String(fields[i]->name)) return int(i);
    throw UnknownKeyError(name.toString(), QString::fromLatin1(R::className));
}

/// The place of a field constant in its class's list.
template <class R>
constexpr int fieldIndex(FieldList<R> fields, const Field<R>& field) {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i] == &field) return int(i);
    return -1;
}

/// Whether two values of a field are the same to the bit.
template <class T>
bool sameValue(const T& a, const T& b) {
    if constexpr (std::is_same_v<T, Float>)
        return std::bit_cast<quint32>(a) == std::bit_cast<quint32>(b);
    else if constexpr (std::is_same_v<T, Text>)
        return a == b && a.isNull() == b.isNull();
    else
        return a == b;
}

/// Field by field, and the kept objects.
template <class R>
bool sameRecord(const R& a, const R& b, FieldList<R> fields) {
    const auto same = [&](const Field<R>* field) {
        return std::visit([&](auto pointer) { return sameValue(a.*pointer, b.*pointer); }, field->member);
    };
    return std::all_of(fields.begin(), fields.end(), same) &&
           static_cast<const Record&>(a) == static_cast<const Record&>(b);
}

}  // namespace sargan
