#include "logbook/ui/DiveEditWindow.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QCloseEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QToolBar>

#include "logbook/DiveLayout.h"
#include "platform/ui/FittingToolBar.h"
#include "platform/ui/FormView.h"
#include "platform/ui/Icons.h"
#include "platform/ui/Mnemonics.h"
#include "platform/ui/PaneSizes.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"window editWindow"_s;
/// Most panes are of this size; the one of the notes would be too small for notes.
constexpr QSize leastSize(960, 420);

const char* firstControl(const LayoutPane& pane) {
    return pane.sections.first().rows.first().items.first().control;
}

const char* lastControl(const LayoutPane& pane) {
    const char* last = nullptr;
    for (const LayoutSection& section : pane.sections)
        for (const LayoutRow& row : section.rows)
            for (const LayoutItem& item : row.items)
                if (item.control) last = item.control;
    return last;
}

}  // namespace

DiveEditWindow::DiveEditWindow(Carnet& carnet, const QList<QAction*>& tools, const QList<QAction*>& shared)
    : _carnet(carnet),
      _view(new FormView(carnet.form(), diveLayout(), carnet.desk())),
      _sizes(new PaneSizes(*this, *_view, leastSize)) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(_view);
    for (QScrollArea* pane : _view->findChildren<QScrollArea*>()) allotMnemonics(pane);
    makeToolbar(tools);
    addActions(shared);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(&carnet, &Document::selectionChanged, this, &DiveEditWindow::showDive);
    connect(&carnet, &Document::contentChanged, this, &DiveEditWindow::showDive);
    connect(&carnet, &Document::fileChanged, this, &DiveEditWindow::showReadOnly);
    carnet.finishEditing = [this] { _view->finishEditing(); };
    _sizes->restore(carnet.desk().defaults.value(placeKey).toObject());
    showReadOnly();
}

DiveEditWindow::~DiveEditWindow() {
    _carnet.finishEditing = {};
}

QAction* DiveEditWindow::button(const char* name, const char* icon, const QString& text, const QString& tip) {
    QAction* action = _bar->addAction(iconNamed(icon), QString(text).replace(u'&', u"&&"_s));
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    return action;
}

void DiveEditWindow::makeToolbar(const QList<QAction*>& tools) {
    const Strings& strings = _carnet.strings();
    _bar = new FittingToolBar(strings.ui("Toolbar"), Qt::ToolButtonTextUnderIcon, this);
    _bar->setObjectName(u"editWindowToolbar"_s);
    makePaneButtons();
    _bar->addSeparator();
    for (QAction* tool : tools) tool ? _bar->addAction(tool) : void(_bar->addSeparator());
    _bar->addSeparator();
    _blank =
        button("blankFields", "raz", strings.text({"Main", "Erase"}), strings.text({"Carnet", "Tip erase"}));
    _store = button("addDiveToList", "enregistrer", strings.ui("Store"),
                    strings.ui("Store the form in the logbook"));
    _store->setShortcut(QKeySequence(u"Ctrl+Return"_s));
    connect(_blank, &QAction::triggered, this, &DiveEditWindow::blank);
    connect(_store, &QAction::triggered, this, &DiveEditWindow::store);
}

void DiveEditWindow::makePaneButtons() {
    _panes = new QActionGroup(this);
    const QList<LayoutPane>& panes = diveLayout().panes;
    for (int i = 0; i < int(panes.size()); ++i) {
        const QString label = _carnet.strings().text(panes[i].label);
        const QByteArray name = "goView_" + QByteArray::number(i + 1);
        const QKeySequence key(u"Ctrl+%1"_s.arg(i + 1));
        QAction* pane = button(name, panes[i].icon, label,
                               label + u" ("_s + key.toString(QKeySequence::NativeText) + u')');
        pane->setCheckable(true);
        pane->setShortcut(key);
        _panes->addAction(pane);
        connect(pane, &QAction::triggered, this, [this, i] { _view->showPane(i); });
    }
    connect(_view, &FormView::paneChanged, this,
            [this](int pane) { _panes->actions().at(pane)->setChecked(true); });
    _panes->actions().first()->setChecked(true);
}

void DiveEditWindow::openOn(int pane) {
    _view->showPane(pane);
    _carnet.setFormOpen(true);
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
    _view->takeFocus();
}

int DiveEditWindow::paneShown() const {
    return _view->currentPane();
}

/// Return goes on like Tab, and presses a button.
void DiveEditWindow::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || (event->modifiers() & ~Qt::KeypadModifier)) return QMainWindow::keyPressEvent(event);
    auto* pressed = qobject_cast<QAbstractButton*>(focusWidget());
    if (pressed && !pressed->isCheckable())
        pressed->click();
    else
        focusNextPrevChild(true);
}

/// Tab goes through all six panes, so that a dive can be written down without the mouse.
bool DiveEditWindow::focusNextPrevChild(bool next) {
    const QList<LayoutPane>& panes = diveLayout().panes;
    const int shown = _view->currentPane();
    const char* edge = next ? lastControl(panes[shown]) : firstControl(panes[shown]);
    const QWidget* focused = focusWidget();
    // A pane that is being hidden gives its focus away in this way too, and is no reason to turn another one.
    if (!focused || !focused->isVisible() || focused->objectName() != QLatin1String(edge))
        return QMainWindow::focusNextPrevChild(next);
    const int count = int(panes.size());
    const int wanted = (shown + (next ? 1 : count - 1)) % count;
    _view->showPane(wanted);
    return focusControl(next ? firstControl(panes[wanted]) : lastControl(panes[wanted]));
}

bool DiveEditWindow::focusControl(const char* control) {
    auto* widget = _view->findChild<QWidget*>(QLatin1String(control));
    if (!widget || !widget->isEnabled()) return false;
    widget->setFocus(Qt::TabFocusReason);
    return true;
}

void DiveEditWindow::store() {
    _view->finishEditing();
    _carnet.updateDive();
}

void DiveEditWindow::blank() {
    _carnet.form().press(u"blankFields"_s);
    _view->showPane(0);
    _view->takeFocus();
}

void DiveEditWindow::showDive() {
    const qsizetype row = _carnet.selectedRow();
    const QString dive = row < 0 ? _carnet.strings().ui("No dive selected")
                                 : _carnet.strings().text(Message<int>{"Interface", "Dive %d", "Dive %d"},
                                                          _carnet.record(row).noPlongee());
    setWindowTitle(dive + u" – "_s + _carnet.displayName());
    _view->setEnabled(row >= 0);
    const bool writable = row >= 0 && !_carnet.isReadOnly();
    _blank->setEnabled(writable);
    _store->setEnabled(writable);
}

void DiveEditWindow::showReadOnly() {
    _view->setReadOnly(_carnet.isReadOnly());
    showDive();
}

void DiveEditWindow::closeEvent(QCloseEvent* event) {
    store();
    _carnet.setFormOpen(false);
    _carnet.desk().defaults.store(placeKey, _sizes->place());
    event->accept();
}

}  // namespace sargan
