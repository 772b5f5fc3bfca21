#pragma once

#include <QHash>
#include <QTableView>

#include "platform/document/RecordDocument.h"
#include "platform/ui/SourceTable.h"

namespace sargan {

/// A document's list in its window: the table of `Document::table()`, which must not be null. It follows the
/// document's content; a click on a header is passed to the source; widths and order of the columns are
/// kept in the settings.
class SourceTableView : public QTableView {
    Q_OBJECT

public:
    /// `name`: under which the columns are remembered, "table NAME".
    SourceTableView(Document& document, const QString& name);

    SourceTable& list() const { return *_list; }

    /// The selected rows, ascending.
    Selection selectedRows() const;
    /// Selects exactly these rows and scrolls to the first; `rowsChosen` is not emitted.
    void showRows(const Selection& rows);
    void scrollToRow(qsizetype row);

    /// All cells anew: units, words or colours have changed.
    void reload();
    /// Columns have been shown or hidden.
    void reloadColumns();
    /// Stores widths and order; for when the window goes.
    void rememberColumns();
    /// The columns' identifiers as they stand from left to right.
    QStringList columnOrder() const;
    /// The selected rows as lines of tab-separated texts, from left to right.
    QString selectedText() const;

Q_SIGNALS:
    /// The person has selected other rows.
    void rowsChosen(const Selection& rows);

protected:
    /// Rows are what is selected, so Home and End go to the first and the last one.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers keys) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void follow();
    void clickColumn(int section);
    void showSortMark();
    void noteColumns();
    void placeColumns();
    int usualWidth(int column) const;

    Document& _document;
    TableSource& _source;
    QString _name;
    SourceTable* _list;
    QHash<QString, int> _widths;  ///< by identifier, as last seen or remembered
    QStringList _order;           ///< identifiers from left to right, as last seen or remembered
    bool _following = false;      ///< the selection changes because the document's did
};

}  // namespace sargan
