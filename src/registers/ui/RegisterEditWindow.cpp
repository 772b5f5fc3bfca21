#include "registers/ui/RegisterEditWindow.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QShortcut>
#include <QToolBar>

#include "platform/ui/FittingToolBar.h"
#include "platform/ui/FormView.h"
#include "platform/ui/Icons.h"
#include "platform/ui/PaneSizes.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize leastSize(760, 420);

}  // namespace

RegisterEditWindow::RegisterEditWindow(Register& shown, const QList<QAction*>& tools,
                                       const QList<QAction*>& shared)
    : _register(shown),
      _view(new FormView(shown.form(), shown.design().layout(), shown.registerDocument().desk())) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(_view);
    makeToolbar(tools);
    addActions(shared);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    Document& document = shown.registerDocument();
    connect(&document, &Document::selectionChanged, this, &RegisterEditWindow::showRecord);
    connect(&document, &Document::contentChanged, this, &RegisterEditWindow::showRecord);
    connect(&document, &Document::fileChanged, this, &RegisterEditWindow::showFile);
    // Wide enough for the words in the toolbar.
    _sizes = new PaneSizes(*this, *_view, leastSize.expandedTo({_bar->sizeHint().width(), 0}));
    _sizes->restore(shown.registerDocument().desk().defaults.value(placeKey()).toObject());
    showFile();
}

RegisterEditWindow::~RegisterEditWindow() {
    if (isVisible()) rememberSizes();
}

void RegisterEditWindow::makeToolbar(const QList<QAction*>& tools) {
    _bar = new FittingToolBar(_register.registerDocument().strings().ui("Toolbar"),
                              Qt::ToolButtonTextUnderIcon, this);
    _bar->setObjectName(QLatin1String(_register.design().editBar.identifier));
    makePageButtons();
    _bar->addSeparator();
    _bar->addActions(tools);
}

void RegisterEditWindow::makePageButtons() {
    _pages = new QActionGroup(this);
    const QList<LayoutPane>& panes = _register.design().layout().panes;
    for (int i = 0; i < int(panes.size()); ++i) {
        const QString label = _register.registerDocument().strings().text(panes[i].label);
        const QKeySequence key(u"Ctrl+%1"_s.arg(i + 1));
        QAction* page = _bar->addAction(iconNamed(panes[i].icon), QString(label).replace(u'&', u"&&"_s));
        page->setObjectName(QLatin1String(_register.design().operations.goPage) + QString::number(i + 1));
        page->setToolTip(label + u" ("_s + key.toString(QKeySequence::NativeText) + u')');
        page->setCheckable(true);
        page->setShortcut(key);
        _pages->addAction(page);
        connect(page, &QAction::triggered, this, [this, i] { goPage(i); });
    }
    _pages->actions().first()->setChecked(true);
}

void RegisterEditWindow::goPage(int page) {
    if (page < 0 || page >= _view->paneCount() || page == pageShown()) return;
    _view->showPane(page);
    _pages->actions().at(page)->setChecked(true);
    _register.refresh();
}

int RegisterEditWindow::pageShown() const {
    return _view->currentPane();
}

void RegisterEditWindow::open() {
    _register.setFormOpen(true);
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
    _view->takeFocus();
}

void RegisterEditWindow::showRecord() {
    const Document& document = _register.registerDocument();
    const qsizetype row = _register.selectedRow();
    const QString record = row < 0 ? document.strings().ui("No card selected") : _register.recordTitle(row);
    setWindowTitle((record.isEmpty() ? document.strings().ui("Card without a name") : record) + u" – "_s +
                   document.displayName());
    _view->setEnabled(row >= 0);
}

void RegisterEditWindow::showFile() {
    _view->setReadOnly(_register.registerDocument().isReadOnly());
    showRecord();
}

QString RegisterEditWindow::placeKey() const {
    return u"window "_s + QLatin1String(_register.design().layout().name);
}

void RegisterEditWindow::rememberSizes() {
    _register.registerDocument().desk().defaults.store(placeKey(), _sizes->place());
}

void RegisterEditWindow::closeEvent(QCloseEvent* event) {
    _register.updateRecord();
    _register.setFormOpen(false);
    rememberSizes();
    event->accept();
}

}  // namespace sargan
