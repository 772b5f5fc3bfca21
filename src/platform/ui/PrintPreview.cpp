#include "platform/ui/PrintPreview.h"

#include <QGraphicsView>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>
#include <QVBoxLayout>

namespace sargan {

using namespace Qt::StringLiterals;

PrintPreview::PrintPreview(std::unique_ptr<Printable> printable, PrintActions& actions, Desk& desk,
                           QWidget* parent)
    : QDialog(parent),
      _desk(desk),
      _printable(std::move(printable)),
      _printer(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      _place(new QLabel) {
    setObjectName(u"printPreviewWindow"_s);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(desk.strings.ui("Print Preview") + u" – "_s + _printable->title());
    _printer->setPageLayout(pageLayoutOf(*_printable, paperOf(desk.defaults)));
    _view = new QPrintPreviewWidget(_printer.get());
    _view->findChild<QGraphicsView*>()->setAccessibleName(windowTitle());
    connect(_view, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { paint(*printer); });
    connect(_view, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::showPlace);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QToolBar;
    fillToolbar(*bar, actions);
    column->addWidget(bar);
    column->addWidget(_view, 1);
    _view->fitInView();
    resize(QSize(760, 760).boundedTo(screen()->availableSize() - QSize(40, 60)));
    showPlace();
}

PrintPreview::~PrintPreview() {
    // The view paints with the printer to its end.
    delete _view;
}

int PrintPreview::pageCount() const {
    return _view->pageCount();
}

void PrintPreview::fillToolbar(QToolBar& bar, PrintActions& actions) {
    const Strings& words = _desk.strings;
    bar.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar.addActions({actions.printAction(), actions.pdfAction()});
    addTool(bar, "previewPageLayout", words.ui("Page Setup…"), [this, &actions] {
        actions.pageLayout();
        pageChanged();
    });
    bar.addSeparator();
    const auto go = [this](int pages) { _view->setCurrentPage(_view->currentPage() + pages); };
    addTool(bar, "previousPage", u"◀"_s, [go] { go(-1); })->setToolTip(words.ui("Previous page"));
    bar.addWidget(_place);
    addTool(bar, "nextPage", u"▶"_s, [go] { go(1); })->setToolTip(words.ui("Next page"));
    bar.addSeparator();
    addTool(bar, "zoomOut", u"−"_s, [this] { _view->zoomOut(); })->setToolTip(words.ui("Smaller"));
    addTool(bar, "zoomIn", u"+"_s, [this] { _view->zoomIn(); })->setToolTip(words.ui("Larger"));
    addTool(bar, "fitPage", words.ui("Whole page"), [this] { _view->fitInView(); });
    // Signs are not read aloud.
    for (QAction* tool : bar.actions())
        if (QWidget* button = bar.widgetForAction(tool); button && button != _place)
            button->setAccessibleName(tool->toolTip());
}

QAction* PrintPreview::addTool(QToolBar& bar, const char* name, const QString& text,
                               std::function<void()> run) {
    QAction* action = bar.addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, std::move(run));
    return action;
}

void PrintPreview::paint(QPrinter& printer) {
    print(*_printable, printer);
}

void PrintPreview::pageChanged() {
    _printer->setPageLayout(pageLayoutOf(*_printable, paperOf(_desk.defaults)));
    _view->updatePreview();
}

void PrintPreview::showPlace() {
    _place->setText(u" %1/%2 "_s.arg(_view->currentPage()).arg(std::max(1, _view->pageCount())));
}

}  // namespace sargan
