#include "platform/ui/SourceTableView.h"

#include <QHeaderView>
#include <QJsonArray>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "platform/document/ColumnOrder.h"
#include "platform/ui/CellDelegate.h"
#include "platform/ui/DocumentWindow.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// Titles begin and end where the words of their cells do.
class HeaderStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        return metric == PM_HeaderMargin ? CellDelegate::textMargin
                                         : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

}  // namespace

SourceTableView::SourceTableView(Document& document, const QString& name)
    : _document(document),
      _source(*document.table()),
      _name(name),
      _list(new SourceTable(_source, document.strings(), this)) {
    setUpTable(this);
    setItemDelegate(new CellDelegate(this));
    setModel(_list);
    QHeaderView* header = horizontalHeader();
    auto* style = new HeaderStyle;
    style->setParent(header);
    header->setStyle(style);
    header->setSectionsClickable(true);
    header->setSectionsMovable(true);
    header->setSortIndicatorShown(true);
    const UserDefaults& defaults = document.desk().defaults;
    const QJsonObject widths = defaults.value(columnsKey(_name)).toObject()[u"widths"_s].toObject();
    for (auto at = widths.begin(); at != widths.end(); ++at) _widths.insert(at.key(), at.value().toInt());
    _order = rememberedColumnOrder(defaults, _name);
    placeColumns();
    showSortMark();
    connect(header, &QHeaderView::sectionClicked, this, &SourceTableView::clickColumn);
    connect(&document, &Document::contentChanged, this, &SourceTableView::follow);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!_following) Q_EMIT rowsChosen(selectedRows());
    });
}

Selection SourceTableView::selectedRows() const {
    Selection rows;
    const QItemSelection ranges = selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges)
        for (int row = range.top(); row <= range.bottom(); ++row) rows.append(row);
    return cleanSelection(std::move(rows), _list->rowCount());
}

void SourceTableView::showRows(const Selection& rows) {
    if (_following || selectedRows() == rows) return;
    const QScopedValueRollback following(_following, true);
    QItemSelection ranges;
    const int lastColumn = _list->columnCount() - 1;
    for (qsizetype first = 0; first < rows.size();) {
        qsizetype last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
        ranges.append(QItemSelectionRange(_list->index(int(rows[first]), 0),
                                          _list->index(int(rows[last]), lastColumn)));
        first = last + 1;
    }
    selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
    if (rows.isEmpty()) return;
    const int column = std::max(0, horizontalHeader()->logicalIndex(0));
    selectionModel()->setCurrentIndex(_list->index(int(rows.first()), column), QItemSelectionModel::NoUpdate);
    scrollToRow(rows.first());
}

QModelIndex SourceTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers keys) {
    const bool isToEdge = action == MoveHome || action == MoveEnd;
    if (!isToEdge || _list->rowCount() == 0) return QTableView::moveCursor(action, keys);
    const int column =
        currentIndex().isValid() ? currentIndex().column() : horizontalHeader()->logicalIndex(0);
    return _list->index(action == MoveHome ? 0 : _list->rowCount() - 1, std::max(0, column));
}

void SourceTableView::keyPressEvent(QKeyEvent* event) {
    QTableView::keyPressEvent(event);
    // A row has the keyboard from the beginning without being selected: the key that leads there selects it.
    const bool isToEdge = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    if (isToEdge && currentIndex().isValid() && selectionModel()->selection().isEmpty())
        selectRow(currentIndex().row());
}

void SourceTableView::scrollToRow(qsizetype row) {
    if (row < 0) return;
    // Only the row matters: scrolling to a cell would also move sideways.
    const int sideways = horizontalScrollBar()->value();
    scrollTo(_list->index(int(row), std::max(0, horizontalHeader()->logicalIndex(0))));
    horizontalScrollBar()->setValue(sideways);
}

void SourceTableView::follow() {
    const QScopedValueRollback following(_following, true);
    _list->followRows();
    showSortMark();
}

void SourceTableView::reload() {
    follow();
}

void SourceTableView::reloadColumns() {
    noteColumns();
    const Selection rows = selectedRows();
    const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
    {
        const QScopedValueRollback following(_following, true);
        _list->followColumns();
        placeColumns();
    }
    showRows(rows);
    showSortMark();
    horizontalScrollBar()->setValue(place.x());
    verticalScrollBar()->setValue(place.y());
}

void SourceTableView::clickColumn(int section) {
    const QString identifier = _list->columns().at(section).identifier;
    _source.clickTableColumn(identifier);
    showSortMark();
}

void SourceTableView::showSortMark() {
    // The header turns its mark by itself at every click; what counts is the source's.
    const int column = _list->columnNamed(_source.sortedColumn());
    horizontalHeader()->setSortIndicator(
        column, _source.isSortAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
}

int SourceTableView::usualWidth(int column) const {
    const int digit = fontMetrics().horizontalAdvance(u'0');
    const int title = horizontalHeader()->fontMetrics().horizontalAdvance(
        _list->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    return std::max(_list->columns()[column].characters * digit, title + 2 * digit) + 14;
}

QStringList SourceTableView::columnOrder() const {
    QStringList order;
    for (int place = 0; place < _list->columnCount(); ++place)
        order << _list->columns()[horizontalHeader()->logicalIndex(place)].identifier;
    return order;
}

void SourceTableView::noteColumns() {
    _order = columnOrder();
    for (int column = 0; column < _list->columnCount(); ++column) {
        // The last one is as wide as the window leaves it.
        const bool isStretched = horizontalHeader()->visualIndex(column) == _list->columnCount() - 1;
        if (!isStretched) _widths.insert(_list->columns()[column].identifier, columnWidth(column));
    }
}

void SourceTableView::placeColumns() {
    for (int column = 0; column < _list->columnCount(); ++column) {
        const auto known = _widths.constFind(_list->columns()[column].identifier);
        setColumnWidth(column, known != _widths.cend() ? std::clamp(*known, 20, 2000) : usualWidth(column));
    }
    QHeaderView* header = horizontalHeader();
    const QList<int> columns = placesInOrder(_list->columns(), _order);
    for (int place = 0; place < int(columns.size()); ++place)
        header->moveSection(header->visualIndex(columns[place]), place);
}

void SourceTableView::rememberColumns() {
    noteColumns();
    QJsonObject widths;
    for (auto at = _widths.cbegin(); at != _widths.cend(); ++at) widths.insert(at.key(), at.value());
    _document.desk().defaults.store(
        columnsKey(_name),
        QJsonObject{{u"widths"_s, widths}, {u"order"_s, QJsonArray::fromStringList(_order)}});
}

QString SourceTableView::selectedText() const {
    QStringList lines;
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex& row : std::as_const(rows)) {
        QStringList cells;
        for (int place = 0; place < model()->columnCount(); ++place)
            cells << row.siblingAtColumn(horizontalHeader()->logicalIndex(place)).data().toString();
        lines << cells.join(u'\t');
    }
    return lines.join(u'\n');
}

}  // namespace sargan
