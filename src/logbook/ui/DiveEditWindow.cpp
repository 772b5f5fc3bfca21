#include "logbook/ui/DiveEditWindow.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>

#include "logbook/DiveLayout.h"
#include "platform/ui/FormView.h"
#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"window editWindow"_s;

}  // namespace

DiveEditWindow::DiveEditWindow(Carnet& carnet, QAction* previous, QAction* next,
                               const QList<QAction*>& shared)
    : _carnet(carnet), _view(new FormView(carnet.form(), diveLayout(), carnet.desk())) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(_view);
    makeToolbar(previous, next);
    addActions(shared);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(&carnet, &Document::selectionChanged, this, &DiveEditWindow::showDive);
    connect(&carnet, &Document::fileChanged, this, &DiveEditWindow::showReadOnly);
    const QJsonObject place = carnet.desk().defaults.value(placeKey).toObject();
    const QSize size =
        place.isEmpty() ? QSize(860, 560) : QSize(place[u"width"_s].toInt(), place[u"height"_s].toInt());
    resize(size.expandedTo(QSize(320, 240)).boundedTo(screen()->availableSize() - QSize(20, 40)));
    showDive();
    showReadOnly();
}

DiveEditWindow::~DiveEditWindow() = default;

QAction* DiveEditWindow::button(QToolBar* bar, const char* name, const char* icon, const QString& text,
                                const QString& tip) {
    QAction* action = bar->addAction(iconNamed(icon), QString(text).replace(u'&', u"&&"_s));
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    return action;
}

void DiveEditWindow::makeToolbar(QAction* previous, QAction* next) {
    const Strings& strings = _carnet.strings();
    QToolBar* bar = addToolBar(strings.ui("Toolbar"));
    bar->setObjectName(u"editWindowToolbar"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    makePaneButtons(bar);
    bar->addSeparator();
    bar->addAction(previous);
    bar->addAction(next);
    bar->addSeparator();
    _blank = button(bar, "blankFields", "raz", strings.text({"Main", "Erase"}),
                    strings.text({"Carnet", "Tip erase"}));
    _store = button(bar, "addDiveToList", "enregistrer", strings.ui("Store"),
                    strings.ui("Store the form in the logbook"));
    _store->setShortcut(QKeySequence(u"Ctrl+Return"_s));
    connect(_blank, &QAction::triggered, this, &DiveEditWindow::blank);
    connect(_store, &QAction::triggered, this, [this] { _carnet.updateDive(); });
}

void DiveEditWindow::makePaneButtons(QToolBar* bar) {
    _panes = new QActionGroup(this);
    const QList<LayoutPane>& panes = diveLayout().panes;
    for (int i = 0; i < int(panes.size()); ++i) {
        const QString label = _carnet.strings().text(panes[i].label);
        const QByteArray name = "goView_" + QByteArray::number(i + 1);
        const QKeySequence key(u"Ctrl+%1"_s.arg(i + 1));
        QAction* pane = button(bar, name, panes[i].icon, label,
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
    _carnet.updateDive();
    _carnet.setFormOpen(false);
    _carnet.desk().defaults.store(placeKey, QJsonObject{{u"width"_s, width()}, {u"height"_s, height()}});
    event->accept();
}

}  // namespace sargan
