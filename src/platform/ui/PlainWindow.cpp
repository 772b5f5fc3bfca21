#include "platform/ui/PlainWindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>
#include <QTableView>

#include "platform/ui/PlainTable.h"

namespace sargan {

PlainWindow::PlainWindow(PlainDocument& document)
    : DocumentWindow(document, QLatin1String(document.kind().documentClass)),
      _plain(document),
      _table(new QTableView),
      _count(new QLabel) {
    setUpTable(_table);
    _table->setObjectName(QStringLiteral("recordsTableView"));
    _table->setModel(new PlainTable(document, this));
    _table->horizontalHeader()->setDefaultSectionSize(110);
    setContent(_table);
    statusBar()->addWidget(_count);
    connect(&document, &Document::contentChanged, this, &PlainWindow::showCount);
    showCount();
}

void PlainWindow::selectEverything() {
    _table->selectAll();
}

QString PlainWindow::copiedText() const {
    return selectedText(*_table);
}

void PlainWindow::showCount() {
    const int count = int(_plain.count());
    _count->setText(count == 1
                        ? strings().ui("1 record")
                        : strings().text(Message<int>{"Interface", "%d records", "%d records"}, count));
}

QString selectedText(const QTableView& table) {
    QStringList lines;
    QModelIndexList rows = table.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex& row : std::as_const(rows)) {
        QStringList cells;
        for (int column = 0; column < table.model()->columnCount(); ++column)
            cells << row.siblingAtColumn(column).data().toString();
        lines << cells.join(u'\t');
    }
    return lines.join(u'\n');
}

}  // namespace sargan
