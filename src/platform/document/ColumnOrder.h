#pragma once

#include <QStringList>

#include "platform/desk/UserDefaults.h"
#include "platform/document/TableSource.h"

namespace sargan {

/// The setting in which the window of this list keeps widths and order of its columns.
QString columnsKey(const QString& tableName);
/// The identifiers from left to right as the person last left them; empty when no column was ever moved.
QStringList rememberedColumnOrder(const UserDefaults& defaults, const QString& tableName);

/// The places of the columns from left to right when they stand in this order. It may name columns that are
/// not shown; a shown one that it does not name takes its designed place as far as the others allow.
QList<int> placesInOrder(const QList<TableColumn>& columns, const QStringList& order);

}  // namespace sargan
