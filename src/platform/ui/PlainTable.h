#pragma once

#include <QAbstractTableModel>
#include <QCache>

#include "platform/document/PlainDocument.h"

namespace sargan {

/// A plain document's records as a table: one row per record, one numbered column per archived value. Only
/// rows that are looked at are formatted.
class PlainTable : public QAbstractTableModel {
    Q_OBJECT

public:
    PlainTable(const PlainDocument& document, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void reload();

    const PlainDocument& _document;
    int _columns = 0;
    mutable QCache<int, QStringList> _rows{200};
};

}  // namespace sargan
