#include "stats/ui/ReportWindow.h"

#include <QFileInfo>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>
#include <QToolBar>

#include "platform/print/TextPages.h"
#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// A few dives; laying them out takes the time of a frame or two.
constexpr qsizetype runsAtOnce = 300;

}  // namespace

ReportWindow::ReportWindow(Desk& desk, const QString& frameName, const char* view, const char* printName,
                           std::function<std::optional<Report>()> source)
    : AuxiliaryWindow(desk, frameName), _viewName(view), _printName(printName), _source(std::move(source)) {
    setObjectName(frameName);
    chooseFile = [this](const QString& suggested) {
        return askWhereToWrite(this, this->desk().strings.ui("Save Report"), suggested,
                               {u"PDF (*.pdf)"_s, u"HTML (*.html)"_s, u"TXT (*.txt)"_s});
    };
    connect(&_more, &QTimer::timeout, this, &ReportWindow::showMore);
    build();
    if (!restorePlace()) resize(QSize(620, 680).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

void ReportWindow::build() {
    const Strings& strings = desk().strings;
    _view = new QTextBrowser;
    _view->setObjectName(QLatin1String(_viewName));
    _view->setOpenLinks(false);
    QPalette paper = _view->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, inkcolor::black);
    _view->setPalette(paper);
    setCentralWidget(_view);

    for (QToolBar* old : findChildren<QToolBar*>()) delete old;
    delete _printing;
    _printing =
        new PrintActions(_printName, strings.ui("Print…"), desk(), this, [this] { return printable(); });
    QToolBar* bar = addToolBar(strings.ui("Toolbar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({_printing->printAction(), _printing->previewAction(), _printing->pageLayoutAction()});
    QAction* save = bar->addAction(iconNamed("enregistrer"), strings.ui("Save As…"));
    save->setObjectName(u"saveReport"_s);
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [this] {
        const QString path = chooseFile(_report.title + u".pdf"_s);
        if (!path.isEmpty()) saveReport(path);
    });
    fill();
}

void ReportWindow::open() {
    fill();
    _wantedScroll = 0;
    _view->verticalScrollBar()->setValue(0);
    bringToFront();
    _view->setFocus();
}

void ReportWindow::refresh() {
    if (isVisible()) fill();
}

void ReportWindow::showEvent(QShowEvent* event) {
    AuxiliaryWindow::showEvent(event);
    if (!event->spontaneous()) fill();
}

void ReportWindow::fill() {
    if (std::optional<Report> report = _source()) {
        const bool isSame = report->text == _report.text;
        _report = std::move(*report);
        setWindowTitle(_report.title);
        _view->setAccessibleName(_report.title);
        if (isSame && !_view->document()->isEmpty()) return;
    }
    _wantedScroll = std::max(_wantedScroll, _view->verticalScrollBar()->value());
    _shownRuns = 0;
    _report.text.startDocument(*_view->document());
    _view->document()->setDocumentMargin(12);
    _more.start();
    showMore();
}

void ReportWindow::showMore() {
    const bool isFirst = _shownRuns == 0;
    _report.text.appendRuns(*_view->document(), _shownRuns, runsAtOnce);
    // The reader's cursor stood where the text came in.
    if (isFirst) _view->moveCursor(QTextCursor::Start);
    _shownRuns = std::min(_shownRuns + runsAtOnce, _report.text.runs().size());
    QScrollBar* bar = _view->verticalScrollBar();
    if (isComplete()) _more.stop();
    if (_wantedScroll == 0 || (bar->maximum() < _wantedScroll && !isComplete())) return;
    bar->setValue(_wantedScroll);
    _wantedScroll = 0;
}

std::unique_ptr<Printable> ReportWindow::printable() const {
    if (_report.text.isEmpty()) return nullptr;
    return std::make_unique<TextPages>(_report.text, _report.title);
}

bool ReportWindow::saveReport(const QString& path) {
    return writeFile(path, desk(), [&] {
        return bytesOf(_report.text, _report.title, QFileInfo(path).suffix().toLower());
    });
}

}  // namespace sargan
