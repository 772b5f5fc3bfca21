#include "logbook/ui/DiveTable.h"

#include "logbook/DiveColumns.h"

namespace sargan {

DiveTable::DiveTable(const Carnet& carnet, QObject* parent)
    : QAbstractTableModel(parent), _carnet(carnet), _dives(carnet.records()) {}

int DiveTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(_dives.size());
}

int DiveTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(diveColumns().size());
}

QVariant DiveTable::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= _dives.size()) return {};
    const DiveColumn& column = diveColumns()[std::size_t(index.column())];
    if (role == Qt::DisplayRole) return column.text(*_dives[index.row()], _carnet.strings());
    if (role == Qt::TextAlignmentRole) return int(column.alignment);
    return {};
}

QVariant DiveTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const DiveColumn& column = diveColumns()[std::size_t(section)];
    if (role == Qt::DisplayRole) return _carnet.strings().text(column.title);
    if (role == Qt::TextAlignmentRole) return int(column.alignment);
    return {};
}

void DiveTable::follow() {
    const Records<Plongee>& now = _carnet.records();
    const auto [firstOld, firstNew] = std::mismatch(_dives.cbegin(), _dives.cend(), now.cbegin(), now.cend());
    const int head = int(firstOld - _dives.cbegin());
    if (firstOld == _dives.cend() && firstNew == now.cend()) return;
    const auto tails = std::mismatch(_dives.crbegin(), std::make_reverse_iterator(firstOld), now.crbegin(),
                                     std::make_reverse_iterator(firstNew));
    const int tail = int(tails.first - _dives.crbegin());
    const int oldMiddle = int(_dives.size()) - head - tail;
    const int newMiddle = int(now.size()) - head - tail;
    const int replaced = std::min(oldMiddle, newMiddle);
    std::copy_n(firstNew, replaced, _dives.begin() + head);
    if (replaced > 0) Q_EMIT dataChanged(index(head, 0), index(head + replaced - 1, columnCount() - 1));
    if (oldMiddle > replaced) {
        beginRemoveRows({}, head + replaced, head + oldMiddle - 1);
        _dives = now;
        endRemoveRows();
    } else if (newMiddle > replaced) {
        beginInsertRows({}, head + replaced, head + newMiddle - 1);
        _dives = now;
        endInsertRows();
    }
    _dives = now;
}

void DiveTable::reload() {
    if (!_dives.isEmpty()) Q_EMIT dataChanged(index(0, 0), index(int(_dives.size()) - 1, columnCount() - 1));
}

}  // namespace sargan
