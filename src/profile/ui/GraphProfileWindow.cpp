#include "profile/ui/GraphProfileWindow.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "platform/ui/FittingToolBar.h"
#include "platform/ui/Icons.h"
#include "platform/ui/Mnemonics.h"
#include "profile/ui/ProfilView.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"window GraphProfileWindow"_s;

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

/// The markers that can be shown, by the setting that shows them.
struct MarkerSetting {
    const char* key;
    Message<> words;
};

constexpr MarkerSetting markerSettings[] = {
    {"alarmeASC", ui("Decompression stops")}, {"alarmeSLOW", ui("Fast ascents")},
    {"alarmeCEIL", ui("Ceiling violations")}, {"alarmeGAZ", ui("Gas switches")},
    {"alarmeGAZO2", ui("Oxygen switches")},
};

}  // namespace

GraphProfileWindow::GraphProfileWindow(Desk& desk, std::function<ShownProfil()> source)
    : _desk(desk), _source(std::move(source)), _view(new ProfilView(desk.strings)), _readOut(new QLabel) {
    setObjectName(u"GraphProfileWindow"_s);
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(_view);
    _readOut->setObjectName(u"readOut"_s);
    statusBar()->addWidget(_readOut);
    _bar = new FittingToolBar(desk.strings.ui("Toolbar"), Qt::ToolButtonTextBesideIcon, this);
    _bar->setObjectName(u"profileToolbar"_s);
    _toolsEnd = _bar->addSeparator();
    addTool("savePicture", "enregistrer", desk.strings.ui("Save Picture…"),
            desk.strings.ui("Save the graph as a picture"), &GraphProfileWindow::askAndSave);
    addPrinting();
    addMarkerMenu();
    chooseFile = [this](const QString& suggested) {
        return askWhereToWrite(this, _desk.strings.ui("Save Picture"), suggested,
                               {u"PNG (*.png)"_s, u"SVG (*.svg)"_s, u"PDF (*.pdf)"_s});
    };
    connect(_view, &ProfilView::pointerMoved, this, &GraphProfileWindow::showReadOut);
    _pending.setSingleShot(true);
    connect(&_pending, &QTimer::timeout, this, &GraphProfileWindow::fetch);
    _observation = desk.notifications.observe(u"fillProfileChanged"_s, [this](const void*) { refresh(); });
    for (const QKeySequence& key : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    restorePlace();
    fetch();
}

QAction* GraphProfileWindow::addTool(const char* name, const char* icon, const QString& text,
                                     const QString& tip, void (GraphProfileWindow::*slot)()) {
    QAction* action = icon ? _bar->addAction(iconNamed(icon), text) : _bar->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void GraphProfileWindow::addTools(const QList<QAction*>& tools) {
    _bar->insertActions(_toolsEnd, tools);
}

void GraphProfileWindow::addPrinting() {
    _printing = new PrintActions("printProfile", _desk.strings.ui("Print…"), _desk, this,
                                 [this] { return std::make_unique<PicturePage>(drawing(), windowTitle()); });
    _bar->addActions({_printing->printAction(), _printing->previewAction(), _printing->pageLayoutAction()});
    _bar->addSeparator();
}

void GraphProfileWindow::addMarkerMenu() {
    auto* button = new QToolButton;
    button->setObjectName(u"markers"_s);
    button->setText(_desk.strings.ui("Markers"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    for (const MarkerSetting& setting : markerSettings) {
        QAction* action = menu->addAction(_desk.strings.text(setting.words));
        action->setObjectName(QLatin1String(setting.key));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, key = setting.key](bool on) {
            _desk.defaults.store(QLatin1String(key), on);
            refresh();
        });
    }
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        for (QAction* action : menu->actions())
            action->setChecked(_desk.defaults.boolean(action->objectName()));
    });
    keepMnemonics(menu);
    button->setMenu(menu);
    _bar->addWidget(button);
}

void GraphProfileWindow::restorePlace() {
    const QJsonObject place = _desk.defaults.value(placeKey).toObject();
    const QSize size =
        place.isEmpty() ? QSize(820, 520) : QSize(place[u"width"_s].toInt(), place[u"height"_s].toInt());
    resize(size.expandedTo(QSize(320, 240)).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

void GraphProfileWindow::open() {
    fetch();
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

void GraphProfileWindow::refresh() {
    if (isVisible()) _pending.start(0);
}

void GraphProfileWindow::fetch() {
    _pending.stop();
    const ShownProfil shown = _source();
    _view->setProfil(shown.profil);
    setWindowTitle(shown.title);
    _fileName = shown.fileName;
    showReadOut();
}

void GraphProfileWindow::showReadOut() {
    _readOut->setText(_view->readOut());
}

Drawing GraphProfileWindow::drawing() const {
    return {Profil::usualSize, [profil = _view->profil(), &strings = _desk.strings](QPainter& painter) {
                profil.draw(painter, Profil::usualSize, strings);
            }};
}

void GraphProfileWindow::askAndSave() {
    const QString path = chooseFile(_fileName + u".png"_s);
    if (!path.isEmpty()) savePicture(path);
}

bool GraphProfileWindow::savePicture(const QString& path) {
    return writeFile(path, _desk,
                     [&] { return bytesOf(drawing(), windowTitle(), QFileInfo(path).suffix().toLower()); });
}

void GraphProfileWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!event->spontaneous()) fetch();
}

void GraphProfileWindow::closeEvent(QCloseEvent* event) {
    _desk.defaults.store(placeKey, QJsonObject{{u"width"_s, width()}, {u"height"_s, height()}});
    event->accept();
}

}  // namespace sargan
