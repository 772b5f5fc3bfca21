#include "registers/ui/RegisterEditWindow.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QJsonArray>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>

#include "platform/ui/FittingToolBar.h"
#include "platform/ui/FormView.h"
#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(760, 500);
constexpr QSize smallestSize(320, 240);

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
    restoreSizes();
    resize(_sizes.first());
    showFile();
}

RegisterEditWindow::~RegisterEditWindow() = default;

void RegisterEditWindow::makeToolbar(const QList<QAction*>& tools) {
    auto* bar = new FittingToolBar(_register.registerDocument().strings().ui("Toolbar"),
                                   Qt::ToolButtonTextUnderIcon, this);
    bar->setObjectName(QLatin1String(_register.design().editBar.identifier));
    makePageButtons(bar);
    bar->addSeparator();
    bar->addActions(tools);
}

void RegisterEditWindow::makePageButtons(QToolBar* bar) {
    _pages = new QActionGroup(this);
    const QList<LayoutPane>& panes = _register.design().layout().panes;
    for (int i = 0; i < int(panes.size()); ++i) {
        const QString label = _register.registerDocument().strings().text(panes[i].label);
        const QKeySequence key(u"Ctrl+%1"_s.arg(i + 1));
        QAction* page = bar->addAction(iconNamed(panes[i].icon), QString(label).replace(u'&', u"&&"_s));
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
    const bool hasOwnSize = !isMaximized() && !isFullScreen();
    if (hasOwnSize) _sizes[pageShown()] = size();
    _view->showPane(page);
    if (hasOwnSize) resize(_sizes[page]);
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

void RegisterEditWindow::restoreSizes() {
    const QJsonArray kept =
        _register.registerDocument().desk().defaults.value(placeKey()).toObject()[u"pages"_s].toArray();
    const QSize room = screen()->availableSize() - QSize(20, 40);
    for (int i = 0; i < _view->paneCount(); ++i) {
        const QJsonArray one = kept[i].toArray();
        const QSize size = one.size() == 2 ? QSize(one[0].toInt(), one[1].toInt()) : usualSize;
        _sizes.append(size.expandedTo(smallestSize).boundedTo(room));
    }
}

void RegisterEditWindow::rememberSizes() {
    _sizes[pageShown()] = isMaximized() || isFullScreen() ? normalGeometry().size() : size();
    QJsonArray pages;
    for (const QSize& size : std::as_const(_sizes)) pages.append(QJsonArray{size.width(), size.height()});
    _register.registerDocument().desk().defaults.store(placeKey(), QJsonObject{{u"pages"_s, pages}});
}

void RegisterEditWindow::closeEvent(QCloseEvent* event) {
    _register.updateRecord();
    _register.setFormOpen(false);
    rememberSizes();
    event->accept();
}

}  // namespace sargan
