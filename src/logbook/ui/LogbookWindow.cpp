#include "logbook/ui/LogbookWindow.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QJsonArray>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>

#include "logbook/DiveColumns.h"
#include "logbook/ui/DiveEditWindow.h"
#include "logbook/ui/DiveTable.h"
#include "logbook/ui/RenumberSheet.h"
#include "logbook/ui/SearchBar.h"
#include "platform/ui/Icons.h"
#include "platform/ui/PlainWindow.h"

namespace sargan {

using namespace Qt::StringLiterals;

LogbookWindow::LogbookWindow(Carnet& carnet)
    : DocumentWindow(carnet, u"Carnet"_s),
      _carnet(carnet),
      _model(new DiveTable(carnet, this)),
      _table(new QTableView),
      _status(new QLabel) {
    makeActions();
    makeTable();
    makeToolbar();
    setContent(_table);
    statusBar()->addWidget(_status);
    observe();
    showSelection();
    if (carnet.selection().isEmpty() && carnet.count() > 0)
        _table->scrollTo(_model->index(int(carnet.count()) - 1, 0));
    _table->setFocus();
}

LogbookWindow::~LogbookWindow() = default;

QAction* LogbookWindow::action(const char* name, const char* icon, const QString& text, const QString& tip,
                               const QList<QKeySequence>& keys) {
    auto* made = new QAction(icon ? iconNamed(icon) : QIcon(), text, this);
    made->setObjectName(QLatin1String(name));
    made->setToolTip(tip);
    made->setShortcuts(keys);
    return made;
}

void LogbookWindow::makeActions() {
    const Strings& words = strings();
    _add = action("addDive", "ajouterPl", words.text({"Main", "Add"}), words.text({"Carnet", "Tip add"}),
                  {QKeySequence(u"Ctrl+Shift+N"_s), QKeySequence(Qt::Key_Insert)});
    _delete = action("deleteDive", "supprimerPl", words.text({"Main", "Delete"}),
                     words.text({"Carnet", "Tip delete"}), {QKeySequence(Qt::Key_Delete)});
    _editDive = action("editWindow", nullptr, words.ui("Edit"), words.ui("Edit the dive"),
                       {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    _previous = action("prevDive", "previous", words.ui("Previous"), words.ui("Previous dive"),
                       {QKeySequence(u"Ctrl+PgUp"_s)});
    _next =
        action("nextDive", "next", words.ui("Next"), words.ui("Next dive"), {QKeySequence(u"Ctrl+PgDown"_s)});
    _renumber = action("renumDives", nullptr, words.ui("Renumber…"), words.ui("Renumber dives"), {});
    // Plain keys belong to the table: elsewhere they mean something to the field that has the keyboard.
    _delete->setShortcutContext(Qt::WidgetShortcut);
    _editDive->setShortcutContext(Qt::WidgetShortcut);
    connect(_add, &QAction::triggered, this, &LogbookWindow::addDive);
    connect(_delete, &QAction::triggered, this, &LogbookWindow::deleteDive);
    connect(_editDive, &QAction::triggered, this, &LogbookWindow::editWindow);
    connect(_previous, &QAction::triggered, this, [this] { _carnet.prevDive(); });
    connect(_next, &QAction::triggered, this, [this] { _carnet.nextDive(); });
    connect(_renumber, &QAction::triggered, this, &LogbookWindow::renumberingWanted);
}

void LogbookWindow::makeTable() {
    _table->setObjectName(u"plongeesTableView"_s);
    setUpTable(_table);
    _table->setModel(_model);
    _table->horizontalHeader()->setSectionsClickable(false);
    _table->addActions({_editDive, _add, _delete});
    _table->setContextMenuPolicy(Qt::ActionsContextMenu);
    restoreColumns();
    connect(_table, &QTableView::doubleClicked, this, &LogbookWindow::editWindow);
    connect(_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LogbookWindow::tableSelectionChanged);
}

void LogbookWindow::makeToolbar() {
    QToolBar* bar = addToolBar(strings().ui("Toolbar"));
    bar->setObjectName(u"tableViewToolbar"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->addActions({_add, _delete});
    _search = new SearchBar(_carnet);
    _search->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(_search);
}

void LogbookWindow::observe() {
    connect(&_carnet, &Document::contentChanged, this, &LogbookWindow::contentChanged);
    connect(&_carnet, &Document::selectionChanged, this, &LogbookWindow::showSelection);
    connect(&_carnet, &Carnet::tableReloadWanted, _model, &DiveTable::reload);
    connect(&_carnet, &Carnet::renumSheetWanted, this, &LogbookWindow::openRenumberSheet);
    connect(&_carnet, &Carnet::scrollWanted, this, [this](qsizetype row) {
        if (row >= 0) _table->scrollTo(_model->index(int(row), 0));
    });
}

QMenu* LogbookWindow::makeKindMenu() {
    auto* menu = new QMenu(strings().ui("&Dive"), this);
    menu->addActions({_add, _editDive, _delete});
    menu->addSeparator();
    menu->addActions({_previous, _next});
    menu->addSeparator();
    menu->addAction(_renumber);
    return menu;
}

void LogbookWindow::restoreColumns() {
    const QJsonArray widths = rememberedPlace()[u"columns"_s].toArray();
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const auto columns = diveColumns();
    for (int i = 0; i < int(columns.size()); ++i) {
        const int usual = columns[std::size_t(i)].characters * digit + 14;
        const bool remembered = widths.size() == qsizetype(columns.size());
        _table->setColumnWidth(i, remembered ? std::clamp(widths[i].toInt(), 20, 2000) : usual);
    }
}

void LogbookWindow::addToPlace(QJsonObject& place) const {
    QJsonArray widths;
    for (int i = 0; i < _model->columnCount(); ++i) widths.append(_table->columnWidth(i));
    place[u"columns"_s] = widths;
}

void LogbookWindow::addDive() {
    if (_carnet.isReadOnly()) return;
    _carnet.storeForm();
    _carnet.addDive();
    editWindow();
    _edit->openOn(0);
}

void LogbookWindow::deleteDive() {
    if (_carnet.isReadOnly() || _carnet.selection().isEmpty()) return;
    _carnet.storeForm();
    _carnet.deleteDive();
}

void LogbookWindow::editWindow() {
    if (_carnet.selectedRow() < 0) return;
    if (!_edit) _edit = std::make_unique<DiveEditWindow>(_carnet, _previous, _next, _shared);
    _edit->openOn(_edit->paneShown());
}

bool LogbookWindow::mayHavePending() const {
    return _edit && _edit->isVisible() && !_carnet.isReadOnly();
}

void LogbookWindow::selectEverything() {
    _table->selectAll();
}

QString LogbookWindow::copiedText() const {
    return selectedText(*_table);
}

void LogbookWindow::startFind() {
    _search->startTyping();
}

void LogbookWindow::readOnlyChanged(bool) {
    validate();
    showStatus();
}

Selection LogbookWindow::tableSelection() const {
    Selection rows;
    const QItemSelection ranges = _table->selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges)
        for (int row = range.top(); row <= range.bottom(); ++row) rows.append(row);
    return cleanSelection(std::move(rows), _carnet.count());
}

void LogbookWindow::tableSelectionChanged() {
    if (_following) return;
    {
        const QScopedValueRollback following(_following, true);
        _carnet.changementSelection(tableSelection());
    }
    showSelection();
}

void LogbookWindow::showSelection() {
    validate();
    showStatus();
    if (_following || tableSelection() == _carnet.selection()) return;
    const QScopedValueRollback following(_following, true);
    QItemSelection ranges;
    const Selection& rows = _carnet.selection();
    for (qsizetype first = 0; first < rows.size();) {
        qsizetype last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
        ranges.append(QItemSelectionRange(_model->index(int(rows[first]), 0),
                                          _model->index(int(rows[last]), _model->columnCount() - 1)));
        first = last + 1;
    }
    _table->selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
    if (rows.isEmpty()) return;
    const QModelIndex first = _model->index(int(rows.first()), 0);
    _table->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    _table->scrollTo(first);
}

void LogbookWindow::contentChanged() {
    {
        const QScopedValueRollback following(_following, true);
        _model->follow();
    }
    validate();
    showStatus();
}

void LogbookWindow::validate() {
    const bool writable = !_carnet.isReadOnly();
    const qsizetype row = _carnet.selectedRow();
    _add->setEnabled(writable);
    _delete->setEnabled(writable && row >= 0);
    _editDive->setEnabled(row >= 0);
    _previous->setEnabled(row > 0);
    _next->setEnabled(row >= 0 && row + 1 < _carnet.count());
    _renumber->setEnabled(writable && _carnet.count() > 0);
}

void LogbookWindow::showStatus() {
    const auto counted = [this](qsizetype count, const QString& one, const Message<int>& many) {
        return count == 1 ? one : strings().text(many, int(count));
    };
    QString text =
        counted(_carnet.count(), strings().ui("1 dive"), Message<int>{"Interface", "%d dives", "%d dives"});
    if (const qsizetype selected = _carnet.selection().size(); selected > 0)
        text += u" · "_s + counted(selected, strings().ui("1 selected"),
                                   Message<int>{"Interface", "%d selected", "%d selected"});
    _status->setText(text);
}

void LogbookWindow::openRenumberSheet() {
    if (_carnet.isReadOnly()) return;
    if (!_sheet) _sheet = new RenumberSheet(_carnet, this);
    bringToFront();
    _sheet->open();
}

}  // namespace sargan
