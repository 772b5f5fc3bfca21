#include "registers/ui/SynthesisWindow.h"

#include <QCloseEvent>
#include <QJsonArray>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>

#include "platform/print/TextPages.h"
#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"window synthesis card"_s;

}  // namespace

SynthesisWindow::SynthesisWindow(Register& shown) : _register(shown), _page(new QTextBrowser) {
    const Document& document = shown.registerDocument();
    const Strings& strings = document.strings();
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setWindowTitle(strings.text({"Main", "Synthesis card"}) + u" – "_s + document.displayName());
    _page->setObjectName(u"synthesisTextView"_s);
    _page->setAccessibleName(strings.text({"Main", "Synthesis card"}));
    _page->setOpenLinks(false);
    // A card is a page of paper, whatever the colours of the desktop.
    QPalette paper = _page->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    _page->setPalette(paper);
    setCentralWidget(_page);
    QToolBar* bar = addToolBar(strings.ui("Toolbar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    _printing = new PrintActions("printSynthesis", strings.text({"Main", "Print"}), document.desk(), this,
                                 [this] { return printableCard(); });
    bar->addActions(_printing->all());
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    const auto follow = [this] {
        if (isVisible()) fillSynthesisWindow();
    };
    connect(&document, &Document::selectionChanged, this, follow);
    connect(&document, &Document::contentChanged, this, follow);
    const QJsonObject place = document.desk().defaults.value(placeKey).toObject();
    resize(place.isEmpty() ? QSize(560, 640) : QSize(place[u"width"_s].toInt(), place[u"height"_s].toInt()));
}

void SynthesisWindow::open() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
    if (_register.rowCount() > 0) fillSynthesisWindow();
}

void SynthesisWindow::fillSynthesisWindow() {
    const qsizetype row = _register.selectedRow();
    if (row < 0) return;
    _register.card(row).toDocument(*_page->document());
    _page->document()->setDocumentMargin(12);
}

QString SynthesisWindow::shownPage() const {
    return _page->toHtml();
}

void SynthesisWindow::showPage(const QString& page) {
    _page->setHtml(page);
}

std::unique_ptr<Printable> SynthesisWindow::printableCard() const {
    const qsizetype row = _register.selectedRow();
    if (row < 0 || !_register.hasCard()) return nullptr;
    return std::make_unique<TextPages>(_register.card(row), _register.registerDocument().displayName());
}

void SynthesisWindow::closeEvent(QCloseEvent* event) {
    _register.registerDocument().desk().defaults.store(
        placeKey, QJsonObject{{u"width"_s, width()}, {u"height"_s, height()}});
    event->accept();
}

}  // namespace sargan
