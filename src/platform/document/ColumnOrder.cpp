#include "platform/document/ColumnOrder.h"

#include <QJsonArray>
#include <QJsonObject>

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

int placeOf(const QList<TableColumn>& columns, const QString& identifier) {
    const auto found = std::find_if(columns.cbegin(), columns.cend(), [&](const TableColumn& column) {
        return column.identifier == identifier;
    });
    return found == columns.cend() ? -1 : int(found - columns.cbegin());
}

}  // namespace

QString columnsKey(const QString& tableName) {
    return u"table "_s + tableName;
}

QStringList rememberedColumnOrder(const UserDefaults& defaults, const QString& tableName) {
    QStringList order;
    const QJsonArray kept = defaults.value(columnsKey(tableName)).toObject()[u"order"_s].toArray();
    for (const auto& identifier : kept) order << identifier.toString();
    return order;
}

QList<int> placesInOrder(const QList<TableColumn>& columns, const QStringList& order) {
    QList<int> places;
    for (const QString& identifier : order) {
        const int place = placeOf(columns, identifier);
        if (place >= 0 && !places.contains(place)) places << place;
    }
    for (int place = 0; place < int(columns.size()); ++place)
        if (!places.contains(place)) places.insert(std::min<qsizetype>(place, places.size()), place);
    return places;
}

}  // namespace sargan
