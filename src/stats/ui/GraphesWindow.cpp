#include "stats/ui/GraphesWindow.h"

#include <QFileInfo>
#include <QPainter>
#include <QScreen>
#include <QToolBar>

#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

void GraphesView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    GraphesStyle style = GraphesStyle::of(_defaults);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(rect(), style.background);
    style.background = Qt::transparent;
    const qreal factor = std::min(width() / Graphes::width, height() / Graphes::height);
    painter.translate((width() - factor * Graphes::width) / 2, (height() - factor * Graphes::height) / 2);
    painter.scale(factor, factor);
    painter.setClipRect(QRectF(0, 0, Graphes::width, Graphes::height));
    Graphes(_statistics.shares(), style).drawRect(painter);
}

GraphesWindow::GraphesWindow(Statistics& statistics)
    : AuxiliaryWindow(statistics.desk(), u"Graphes"_s), _statistics(statistics) {
    setObjectName(u"graphesWindow"_s);
    chooseFile = [this](const QString& suggested) {
        return askWhereToWrite(this, desk().strings.ui("Save Picture"), suggested,
                               {u"PNG (*.png)"_s, u"SVG (*.svg)"_s, u"PDF (*.pdf)"_s});
    };
    connect(&statistics, &Statistics::sharesChanged, this, [this] { _view->update(); });
    for (const char* name : {"fillProfileChanged", "profile"})
        _observations.push_back(
            desk().notifications.observe(QLatin1String(name), [this](const void*) { _view->update(); }));
    build();
    if (!restorePlace()) resize(QSize(900, 560).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

void GraphesWindow::build() {
    const Strings& strings = desk().strings;
    _view = new GraphesView(_statistics, desk().defaults);
    _view->setObjectName(u"graphesView"_s);
    _view->setMouseTracking(true);
    setCentralWidget(_view);
    setWindowTitle(title());
    for (QToolBar* old : findChildren<QToolBar*>()) delete old;
    delete _printing;
    _printing = new PrintActions("print", strings.ui("Print…"), desk(), this,
                                 [this] { return std::make_unique<PicturePage>(_view->drawing(), title()); });
    QToolBar* bar = addToolBar(strings.ui("Toolbar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({_printing->printAction(), _printing->previewAction(), _printing->pageLayoutAction()});
    QAction* save = bar->addAction(iconNamed("enregistrer"), strings.ui("Save Picture…"));
    save->setObjectName(u"savePicture"_s);
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [this] {
        const QString path = chooseFile(title() + u".png"_s);
        if (!path.isEmpty()) savePicture(path);
    });
}

QString GraphesWindow::title() const {
    return desk().strings.ui("Statistics graphs") + u" – "_s + _statistics.carnet().displayName();
}

bool GraphesWindow::savePicture(const QString& path) {
    return writeFile(path, desk(),
                     [&] { return bytesOf(_view->drawing(), title(), QFileInfo(path).suffix().toLower()); });
}

}  // namespace sargan
