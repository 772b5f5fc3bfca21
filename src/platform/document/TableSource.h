#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <Qt>
#include <optional>

#include "platform/text/Message.h"

namespace sargan {

/// One column of a document's list.
struct TableColumn {
    QString identifier;
    Message<> title;
    int characters;  ///< width that a usual value needs
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
};

/// One cell as it is displayed. Invalid colours are the default ones.
struct TableCell {
    QString text;
    QColor color = {};
    QColor background = {};
    bool bold = false;
    /// A bar between 0 and 1 behind the text: how full, how used up.
    std::optional<double> gauge = {};

    friend bool operator==(const TableCell&, const TableCell&) = default;
};

/// A document's list as a table, without a display: the window, the printer and the command line show the
/// same cells. A cell is made when it is asked for; nothing is kept.
class TableSource {
public:
    virtual ~TableSource() = default;

    /// The columns that are shown, in order.
    virtual QList<TableColumn> tableColumns() const = 0;
    virtual qsizetype tableRows() const = 0;
    /// The cell of a row under the shown column at this place.
    virtual TableCell tableCell(qsizetype row, int column) const = 0;
    /// What a click on this column's header does: sorts. Throws UnknownKeyError for a column that there is
    /// not.
    virtual void clickTableColumn(const QString& identifier) = 0;
    /// The column clicked last and whether it stands in ascending order; for the mark in the header.
    virtual QString sortedColumn() const { return {}; }
    virtual bool isSortAscending() const { return false; }
    /// The text beside the table that says how many there are; empty for none.
    virtual QString tableCount() const { return {}; }
};

}  // namespace sargan
