#include "platform/ui/SourceTable.h"

#include <QFont>

#include "platform/document/CellInk.h"

namespace sargan {

SourceTable::SourceTable(TableSource& source, const Strings& strings, QObject* parent)
    : QAbstractTableModel(parent),
      _source(source),
      _strings(strings),
      _columns(source.tableColumns()),
      _rows(int(source.tableRows())) {}

int SourceTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : _rows;
}

int SourceTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(_columns.size());
}

int SourceTable::columnNamed(const QString& identifier) const {
    const auto found = std::find_if(_columns.cbegin(), _columns.cend(), [&](const TableColumn& column) {
        return column.identifier == identifier;
    });
    return found == _columns.cend() ? -1 : int(found - _columns.cbegin());
}

const TableCell& SourceTable::cell(const QModelIndex& index) const {
    if (index.row() != _lastRow || index.column() != _lastColumn) {
        _last = _source.tableCell(index.row(), index.column());
        _lastRow = index.row();
        _lastColumn = index.column();
    }
    return _last;
}

QVariant SourceTable::data(const QModelIndex& index, int role) const {
    // Rows may have gone from the source that `followRows` has not told of yet.
    if (!index.isValid() || index.row() >= _source.tableRows()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return cell(index).text;
        case Qt::TextAlignmentRole:
            return int(_columns[index.column()].alignment);
        case Qt::ForegroundRole:
            return inkOf(cell(index)).isValid() ? inkOf(cell(index)) : QVariant();
        case Qt::BackgroundRole:
            return cell(index).background.isValid() ? cell(index).background : QVariant();
        case Qt::FontRole: {
            if (!cell(index).bold) return {};
            QFont font;  // nothing but its weight: the rest stays the view's
            font.setBold(true);
            return font;
        }
        case GaugeRole:
            return cell(index).gauge ? QVariant(*cell(index).gauge) : QVariant();
        default:
            return {};
    }
}

QVariant SourceTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const TableColumn& column = _columns[section];
    if (role == Qt::DisplayRole) return _strings.text(column.title);
    if (role == Qt::TextAlignmentRole) return int(column.alignment);
    return {};
}

void SourceTable::followRows() {
    _lastRow = -1;
    const int now = int(_source.tableRows());
    // Rows come and go at the end, so that the view keeps its place; which row holds what is told as a
    // change of all of them.
    if (now > _rows) {
        beginInsertRows({}, _rows, now - 1);
        _rows = now;
        endInsertRows();
    } else if (now < _rows) {
        beginRemoveRows({}, now, _rows - 1);
        _rows = now;
        endRemoveRows();
    }
    if (_rows > 0 && !_columns.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(_rows - 1, columnCount() - 1));
}

void SourceTable::followColumns() {
    beginResetModel();
    _lastRow = -1;
    _columns = _source.tableColumns();
    _rows = int(_source.tableRows());
    endResetModel();
}

}  // namespace sargan
