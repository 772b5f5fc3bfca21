#pragma once

#include <QAbstractTableModel>

#include "platform/document/TableSource.h"
#include "platform/text/Strings.h"

namespace sargan {

/// A document's list as a table model. It keeps nothing but the number of rows; a cell is made when it is
/// looked at, so a list of any length costs what is on screen.
class SourceTable : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Under this role a cell's bar between 0 and 1; nothing for a cell without one.
    static constexpr int GaugeRole = Qt::UserRole;

    SourceTable(TableSource& source, const Strings& strings, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    const QList<TableColumn>& columns() const { return _columns; }
    /// The column's place, or -1.
    int columnNamed(const QString& identifier) const;

    /// Takes over the source's rows as they are now.
    void followRows();
    /// Takes over the source's columns and rows as they are now; a model reset.
    void followColumns();

private:
    const TableCell& cell(const QModelIndex& index) const;

    TableSource& _source;
    const Strings& _strings;
    QList<TableColumn> _columns;
    int _rows = 0;
    // A view asks for a cell's text, colours and font one after the other.
    mutable TableCell _last;
    mutable int _lastRow = -1;
    mutable int _lastColumn = -1;
};

}  // namespace sargan
