#pragma once

#include <QAbstractTableModel>

#include "logbook/Carnet.h"

namespace sargan {

/// The dives as a table model. It keeps nothing but the shared list; a cell is formatted when it is looked
/// at. A changed list is compared with the one before, so that the table keeps its place.
class DiveTable : public QAbstractTableModel {
    Q_OBJECT

public:
    DiveTable(const Carnet& carnet, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Takes over the document's list.
    void follow();
    /// All cells anew: units, words or colours have changed.
    void reload();

private:
    const Carnet& _carnet;
    Records<Plongee> _dives;
};

}  // namespace sargan
