#include "logbook/ui/LogbookWindow.h"

#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>

#include "logbook/ui/DiveEditWindow.h"
#include "logbook/ui/DiveProfileWindow.h"
#include "logbook/ui/ProfileGraph.h"
#include "logbook/ui/RenumberSheet.h"
#include "logbook/ui/SearchBar.h"
#include "platform/ui/FittingToolBar.h"
#include "platform/ui/Icons.h"
#include "platform/ui/SourceTableView.h"
#include "platform/ui/WindowState.h"

namespace sargan {

using namespace Qt::StringLiterals;

LogbookWindow::LogbookWindow(Carnet& carnet)
    : DocumentWindow(carnet, u"Carnet"_s), _carnet(carnet), _status(new QLabel) {
    carnet.diveTable().displayColumnsInTableView();
    _table = new SourceTableView(carnet, u"Carnet"_s);
    makeActions();
    makeTable();
    makeToolbar();
    setContent(_table);
    statusBar()->addWidget(_status);
    observe();
    showSelection();
    if (carnet.selection().isEmpty()) _table->scrollToRow(carnet.count() - 1);
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
    _profil = action("profil", "ProfilPl", words.text({"Carnet", "Profile"}),
                     words.text({"Carnet", "Tip profile"}), {QKeySequence(u"Ctrl+Shift+P"_s)});
    _profilData = action("profilData", "profilData", words.text({"Carnet", "Profile datas"}),
                         words.text({"Carnet", "Tip profile datas"}), {QKeySequence(u"Ctrl+Shift+D"_s)});
    // Plain keys belong to the table: elsewhere they mean something to the field that has the keyboard.
    _delete->setShortcutContext(Qt::WidgetShortcut);
    _editDive->setShortcutContext(Qt::WidgetShortcut);
    connect(_add, &QAction::triggered, this, &LogbookWindow::addDive);
    connect(_delete, &QAction::triggered, this, &LogbookWindow::deleteDive);
    connect(_editDive, &QAction::triggered, this, &LogbookWindow::editWindow);
    connect(_previous, &QAction::triggered, this, [this] { _carnet.prevDive(); });
    connect(_next, &QAction::triggered, this, [this] { _carnet.nextDive(); });
    connect(_profil, &QAction::triggered, this, &LogbookWindow::profileGraph);
    connect(_profilData, &QAction::triggered, this, &LogbookWindow::profilInfo);
    connect(_renumber, &QAction::triggered, this, &LogbookWindow::renumberingWanted);
}

void LogbookWindow::makeTable() {
    _table->setObjectName(u"plongeesTableView"_s);
    _table->setAccessibleName(strings().ui("Dives"));
    _table->addActions({_editDive, _add, _delete});
    _table->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(_table, &QTableView::doubleClicked, this, &LogbookWindow::editWindow);
    connect(_table, &SourceTableView::rowsChosen, this, &LogbookWindow::rowsChosen);
}

void LogbookWindow::makeToolbar() {
    auto* bar = new FittingToolBar(strings().ui("Toolbar"), Qt::ToolButtonTextUnderIcon, this);
    bar->setObjectName(u"tableViewToolbar"_s);
    bar->addActions({_add, _delete, _profil, _profilData});
    _search = new SearchBar(_carnet);
    _search->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(_search);
}

void LogbookWindow::observe() {
    connect(&_carnet, &Document::contentChanged, this, &LogbookWindow::contentChanged);
    connect(&_carnet, &Document::selectionChanged, this, &LogbookWindow::showSelection);
    connect(&_carnet, &Carnet::tableReloadWanted, _table, &SourceTableView::reload);
    connect(&_carnet, &Carnet::columnsChanged, _table, &SourceTableView::reloadColumns);
    connect(&_carnet, &Carnet::renumSheetWanted, this, &LogbookWindow::openRenumberSheet);
    connect(&_carnet, &Carnet::scrollWanted, _table, &SourceTableView::scrollToRow);
}

QMenu* LogbookWindow::makeKindMenu() {
    auto* menu = new QMenu(strings().ui("&Dive"), this);
    menu->addActions({_add, _editDive, _delete});
    menu->addSeparator();
    menu->addActions({_previous, _next});
    menu->addSeparator();
    menu->addActions({_profil, _profilData});
    menu->addAction(_renumber);
    return menu;
}

void LogbookWindow::addToPlace(QJsonObject&) const {
    _table->rememberColumns();
}

void LogbookWindow::addDive() {
    if (_carnet.isReadOnly()) return;
    _carnet.storeTyped();
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
    if (_carnet.selectedRow() >= 0) edit().openOn(edit().paneShown());
}

DiveEditWindow& LogbookWindow::edit() {
    if (!_edit)
        _edit =
            std::make_unique<DiveEditWindow>(_carnet, QList{_previous, _next, _profil, _profilData}, _shared);
    return *_edit;
}

void LogbookWindow::profileGraph() {
    if (_carnet.selectedRow() >= 0) graph().open();
}

GraphProfileWindow& LogbookWindow::graph() {
    if (!_graph) {
        _graph = makeProfileGraph(_carnet);
        _graph->addTools({_previous, _next});
    }
    return *_graph;
}

void LogbookWindow::profilInfo() {
    if (_carnet.selectedRow() < 0) return;
    _carnet.storeForm();
    profileData().profilInfo();
}

DiveProfileWindow& LogbookWindow::profileData() {
    if (!_profileData) _profileData = std::make_unique<DiveProfileWindow>(_carnet);
    return *_profileData;
}

QJsonObject LogbookWindow::openParts() const {
    QJsonObject parts{{u"search in"_s, _search->place()},
                      {u"scrolled to"_s, _table->verticalScrollBar()->value()}};
    if (_edit && _edit->isVisible()) {
        parts.insert(u"pane"_s, _edit->paneShown());
        parts.insert(u"edit"_s, stateOf(*_edit));
    }
    if (_graph && _graph->isVisible()) parts.insert(u"profile"_s, stateOf(*_graph));
    if (_profileData && _profileData->isVisible()) {
        parts.insert(u"lists"_s, valuesOf(_profileData->profile().form()));
        parts.insert(u"profileData"_s, stateOf(*_profileData));
    }
    if (_sheet && _sheet->isVisible()) parts.insert(u"renumbering"_s, true);
    return parts;
}

void LogbookWindow::reopenParts(const QJsonObject& parts) {
    _search->lookIn(parts[u"search in"_s].toInt());
    // It was said in other words, and the dives that were found are selected still.
    _carnet.panel().setText(panelcontrol::found, {});
    _table->verticalScrollBar()->setValue(parts[u"scrolled to"_s].toInt());
    if (parts.contains(u"profile"_s)) {
        bringBack(graph(), parts[u"profile"_s].toObject());
        graph().open();
    }
    if (parts.contains(u"profileData"_s)) {
        bringBack(profileData(), parts[u"profileData"_s].toObject());
        profileData().profilInfo();
        setValues(profileData().profile().form(), parts[u"lists"_s].toObject());
    }
    if (parts.contains(u"edit"_s)) {
        edit().openOn(parts[u"pane"_s].toInt());
        bringBack(edit(), parts[u"edit"_s].toObject());
    }
    if (parts.contains(u"renumbering"_s)) openRenumberSheet();
}

bool LogbookWindow::mayHavePending() const {
    const bool hasForm = _edit && _edit->isVisible();
    const bool hasTexts = _profileData && _profileData->isVisible() && _profileData->profile().hasPending();
    return (hasForm || hasTexts) && !_carnet.isReadOnly();
}

void LogbookWindow::selectEverything() {
    _table->selectAll();
}

QString LogbookWindow::copiedText() const {
    return _table->selectedText();
}

void LogbookWindow::startFind() {
    _search->startTyping();
}

void LogbookWindow::readOnlyChanged(bool) {
    validate();
    showStatus();
}

void LogbookWindow::rowsChosen(const Selection& rows) {
    _carnet.changementSelection(rows);
    showSelection();
}

void LogbookWindow::showSelection() {
    validate();
    showStatus();
    _table->showRows(_carnet.selection());
}

void LogbookWindow::contentChanged() {
    validate();
    showStatus();
}

void LogbookWindow::validate() {
    const bool writable = !_carnet.isReadOnly();
    const qsizetype row = _carnet.selectedRow();
    for (QAction* item : {_add, _delete, _profil, _profilData})
        item->setEnabled(validateToolbarItem(_carnet, item->objectName()));
    _editDive->setEnabled(row >= 0);
    _previous->setEnabled(row > 0);
    _next->setEnabled(row >= 0 && row + 1 < _carnet.count());
    _renumber->setEnabled(writable && _carnet.count() > 0);
}

void LogbookWindow::showStatus() {
    QString text = _carnet.diveTable().tableCount();
    const int selected = int(_carnet.selection().size());
    if (selected == 1) text += u" · "_s + strings().ui("1 selected");
    if (selected > 1)
        text += u" · "_s + strings().text(Message<int>{"Interface", "%d selected", "%d selected"}, selected);
    _status->setText(text);
}

void LogbookWindow::openRenumberSheet() {
    if (_carnet.isReadOnly()) return;
    if (!_sheet) _sheet = new RenumberSheet(_carnet, this);
    bringToFront();
    _sheet->open();
}

}  // namespace sargan
