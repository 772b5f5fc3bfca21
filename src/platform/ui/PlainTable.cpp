#include "platform/ui/PlainTable.h"

namespace sargan {

PlainTable::PlainTable(const PlainDocument& document, QObject* parent)
    : QAbstractTableModel(parent), _document(document) {
    connect(&document, &Document::contentChanged, this, &PlainTable::reload);
    reload();
}

void PlainTable::reload() {
    beginResetModel();
    _rows.clear();
    qsizetype columns = 0;
    for (qsizetype row = 0; row < _document.count(); ++row) {
        qsizetype values = 0;
        const QList<ArchivedGroup> groups = _document.record(row).groups();
        for (const ArchivedGroup& group : groups) values += group.values.size();
        columns = std::max(columns, values);
    }
    _columns = int(columns);
    endResetModel();
}

int PlainTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(_document.count());
}

int PlainTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : _columns;
}

QVariant PlainTable::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) return {};
    QStringList* values = _rows.object(index.row());
    if (!values) {
        values = new QStringList(_document.values(index.row()));
        _rows.insert(index.row(), values);
    }
    return values->value(index.column());
}

QVariant PlainTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return QString::number(section + 1);
}

}  // namespace sargan
