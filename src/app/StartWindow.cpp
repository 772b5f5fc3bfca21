#include "app/StartWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/text/Strings.h"
#include "platform/ui/DocumentWindow.h"
#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

StartWindow::StartWindow(const Strings& strings) {
    setObjectName(u"startWindow"_s);
    setWindowTitle(u"Sargan"_s);
    setAcceptDrops(true);
    auto* picture = new QLabel;
    picture->setPixmap(iconNamed("sargan").pixmap(64, 64));
    picture->setAlignment(Qt::AlignCenter);
    auto* logbook = new QPushButton(strings.ui("&New logbook"));
    logbook->setObjectName(u"newLogbook"_s);
    auto* open = new QPushButton(strings.ui("&Open…"));
    open->setObjectName(u"openDocument"_s);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(40, 24, 40, 24);
    whole->setSpacing(12);
    whole->addWidget(picture);
    whole->addWidget(logbook);
    whole->addWidget(open);
    logbook->setMinimumWidth(220);
    connect(logbook, &QPushButton::clicked, this, &StartWindow::newLogbookWanted);
    connect(open, &QPushButton::clicked, this, &StartWindow::openWanted);
    connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, this,
            &StartWindow::newLogbookWanted);
    connect(new QShortcut(QKeySequence::Open, this), &QShortcut::activated, this, &StartWindow::openWanted);
    connect(new QShortcut(QKeySequence(u"Ctrl+Q"_s), this), &QShortcut::activated, this, &QWidget::close);
}

void StartWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    hide();
    Q_EMIT closed();
}

void StartWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void StartWindow::dropEvent(QDropEvent* event) {
    const QStringList paths = localFiles(*event->mimeData());
    if (paths.isEmpty()) return;
    event->acceptProposedAction();
    Q_EMIT filesDropped(paths);
}

}  // namespace sargan
