#include "registers/ui/RegisterWindow.h"

#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>

#include "platform/document/Sentences.h"
#include "platform/print/TablePages.h"
#include "platform/ui/FittingToolBar.h"
#include "platform/ui/Icons.h"
#include "platform/ui/WindowState.h"
#include "registers/RegisterToolbars.h"
#include "registers/ui/RegisterEditWindow.h"
#include "registers/ui/RegisterTableView.h"
#include "registers/ui/SynthesisWindow.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const Register& shown) {
    return QLatin1String(shown.design().nibName);
}

}  // namespace

RegisterWindow::RegisterWindow(Register& shown)
    : DocumentWindow(shown.registerDocument(), nameOf(shown)),
      _register(shown),
      _table(new RegisterTableView(shown.registerDocument(), shown, nameOf(shown))),
      _count(new QLabel) {
    makeActions();
    makeTable();
    makeToolbar();
    setContent(_table);
    _count->setObjectName(QLatin1String(registercontrol::count.text));
    statusBar()->addWidget(_count);
    observe();
    _register.refresh();
    showSelection();
    _table->setFocus();
}

RegisterWindow::~RegisterWindow() {
    _register.onScroll = nullptr;
}

QAction* RegisterWindow::action(const char* name, const char* icon, const QString& text,
                                const QList<QKeySequence>& keys, void (RegisterWindow::*run)()) {
    auto* made = new QAction(icon ? iconNamed(icon) : QIcon(), text, this);
    made->setObjectName(QLatin1String(name));
    made->setShortcuts(keys);
    connect(made, &QAction::triggered, this, run);
    return made;
}

void RegisterWindow::makeActions() {
    const Strings& words = strings();
    const RegisterOperations& names = _register.design().operations;
    _add =
        action(names.add, "ajouterPl", words.text({"Main", "Add"}),
               {QKeySequence(u"Ctrl+Shift+N"_s), QKeySequence(Qt::Key_Insert)}, &RegisterWindow::addRecord);
    _delete = action(names.erase, "supprimerPl", words.text({"Main", "Delete"}),
                     {QKeySequence(Qt::Key_Delete)}, &RegisterWindow::deleteRecords);
    _openEdit =
        action(names.edit, nullptr, words.ui("Edit"),
               {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)}, &RegisterWindow::editWindow);
    _previous = action(names.previous, "previous", words.ui("Previous"), {QKeySequence(u"Ctrl+PgUp"_s)},
                       &RegisterWindow::previous);
    _next =
        action(names.next, "next", words.ui("Next"), {QKeySequence(u"Ctrl+PgDown"_s)}, &RegisterWindow::next);
    _card = action(names.synthesis, "texte", words.text({"Main", "Synthesis card"}), {},
                   &RegisterWindow::synthesisWindow);
    _printing = new PrintActions(names.print, words.ui("Print the list…"), document().desk(), this,
                                 [this] { return printableList(); });
    // Plain keys belong to the table: elsewhere they mean something to the field that has the keyboard.
    _delete->setShortcutContext(Qt::WidgetShortcut);
    _openEdit->setShortcutContext(Qt::WidgetShortcut);
}

void RegisterWindow::makeTable() {
    _table->setObjectName(u"registerTableView"_s);
    _table->setAccessibleName(strings().ui("List of cards"));
    _table->addActions({_openEdit, _add, _delete});
    _table->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(_table, &QTableView::doubleClicked, this, &RegisterWindow::editWindow);
    connect(_table, &SourceTableView::rowsChosen, this, [this](const Selection& rows) {
        _register.chooseRows(rows);
        showSelection();
    });
}

void RegisterWindow::makeToolbar() {
    auto* bar = new FittingToolBar(strings().ui("Toolbar"), Qt::ToolButtonTextUnderIcon, this);
    bar->setObjectName(QLatin1String(_register.design().listBar.identifier));
    bar->addActions(toolActions(_register.design().listBar));
    _editTools = toolActions(_register.design().editBar);
}

QList<QAction*> RegisterWindow::toolActions(const RegisterToolbar& bar) {
    QList<QAction*> actions;
    for (const ToolbarItem& item : toolbarItems(_register.design(), bar)) {
        auto* tool = new QAction(iconNamed(item.look.icon), strings().text(item.look.label), this);
        tool->setObjectName(QLatin1String(item.identifier));
        tool->setToolTip(strings().text(item.look.tip));
        const QByteArray identifier = item.identifier;
        connect(tool, &QAction::triggered, this, [this, identifier] { runTool(identifier); });
        actions << tool;
        _tools << tool;
    }
    return actions;
}

void RegisterWindow::runTool(const QByteArray& identifier) {
    const RegisterOperations& names = _register.design().operations;
    if (identifier == names.add) return addRecord();
    if (identifier == names.erase) return deleteRecords();
    if (identifier == "saveDocument") return Q_EMIT saveWanted();
    if (identifier == "imprimer") return _printing->print();
    if (identifier == "synthese") return synthesisWindow();
    if (identifier == "blankFields" && !document().isReadOnly()) _register.form().press(u"blankFields"_s);
}

void RegisterWindow::observe() {
    connect(&document(), &Document::contentChanged, this, [this] {
        validate();
        showCount();
    });
    connect(&document(), &Document::selectionChanged, this, &RegisterWindow::showSelection);
    connect(&document().desk().pickLists, &PickLists::changed, this, [this] { validate(); });
    _register.onScroll = [this](qsizetype row) { _table->scrollToRow(row); };
}

QMenu* RegisterWindow::makeKindMenu() {
    auto* menu = new QMenu(strings().ui("&Card"), this);
    menu->addActions({_add, _openEdit, _delete});
    menu->addSeparator();
    menu->addActions({_previous, _next});
    menu->addSeparator();
    menu->addAction(_card);
    menu->addActions(_printing->all());
    return menu;
}

void RegisterWindow::addToPlace(QJsonObject&) const {
    _table->rememberColumns();
}

void RegisterWindow::addRecord() {
    if (document().isReadOnly()) return;
    _register.storeForm();
    try {
        _register.addRecord({});
    } catch (const std::exception& error) {
        document().desk().prompt.alert(sentenceIn(strings(), error));
        return;
    }
    editWindow();
    _edit->goPage(0);
}

void RegisterWindow::deleteRecords() {
    if (document().isReadOnly() || _register.selectedRows().isEmpty()) return;
    _register.storeForm();
    _register.deleteRecords();
}

void RegisterWindow::editWindow() {
    if (!_edit)
        _edit =
            std::make_unique<RegisterEditWindow>(_register, QList{_previous, _next} + _editTools, _shared);
    _edit->open();
}

void RegisterWindow::synthesisWindow() {
    _register.storeForm();
    synthesis().open();
}

SynthesisWindow& RegisterWindow::synthesis() {
    if (!_synthesis) _synthesis = std::make_unique<SynthesisWindow>(_register);
    return *_synthesis;
}

std::unique_ptr<Printable> RegisterWindow::printableList() {
    _register.storeForm();
    _register.selectRows({});
    return std::make_unique<TablePages>(_register, strings(), document().displayName(),
                                        _table->columnOrder());
}

QJsonObject RegisterWindow::openParts() const {
    QJsonObject parts{{u"scrolled to"_s, _table->verticalScrollBar()->value()}};
    if (_edit && _edit->isVisible()) {
        parts.insert(u"page"_s, _edit->pageShown());
        parts.insert(u"edit"_s, stateOf(*_edit));
    }
    if (_synthesis && _synthesis->isVisible()) {
        parts.insert(u"card"_s, _synthesis->shownPage());
        parts.insert(u"synthesis"_s, stateOf(*_synthesis));
    }
    return parts;
}

void RegisterWindow::reopenParts(const QJsonObject& parts) {
    _table->verticalScrollBar()->setValue(parts[u"scrolled to"_s].toInt());
    if (parts.contains(u"synthesis"_s)) {
        synthesis().showPage(parts[u"card"_s].toString());
        bringBack(synthesis(), parts[u"synthesis"_s].toObject());
        synthesis().open();
    }
    if (parts.contains(u"edit"_s)) {
        editWindow();
        _edit->goPage(parts[u"page"_s].toInt());
        bringBack(*_edit, parts[u"edit"_s].toObject());
    }
}

bool RegisterWindow::mayHavePending() const {
    return _edit && _edit->isVisible() && !document().isReadOnly();
}

void RegisterWindow::selectEverything() {
    _table->selectAll();
}

QString RegisterWindow::copiedText() const {
    return _table->selectedText();
}

void RegisterWindow::readOnlyChanged(bool) {
    validate();
}

void RegisterWindow::showSelection() {
    validate();
    showCount();
    _table->showRows(_register.selectedRows());
}

void RegisterWindow::validate() {
    const bool writable = !document().isReadOnly();
    const bool hasRow = _register.selectedRow() >= 0;
    _add->setEnabled(writable);
    _delete->setEnabled(writable && hasRow);
    _previous->setEnabled(_register.canGoBack());
    _next->setEnabled(_register.canGoOn());
    const RegisterOperations& names = _register.design().operations;
    for (QAction* tool : std::as_const(_tools)) {
        const QByteArray identifier = tool->objectName().toLatin1();
        const bool changes =
            identifier == names.add || identifier == names.erase || identifier == "blankFields";
        tool->setEnabled(validateToolbarItem(_register, identifier) && (writable || !changes));
    }
}

void RegisterWindow::showCount() {
    QString text = _register.tableCount();
    const int selected = int(_register.selectedRows().size());
    if (selected == 1) text += u" · "_s + strings().ui("1 selected");
    if (selected > 1)
        text += u" · "_s + strings().text(Message<int>{"Interface", "%d selected", "%d selected"}, selected);
    _count->setText(text);
}

}  // namespace sargan
