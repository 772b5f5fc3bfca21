#include "platform/ui/DocumentWindow.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// Keeps neighbouring texts apart where one stands at the right and the next at the left.
class SpacedCells : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem whole = option;
        initStyleOption(&whole, index);
        whole.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, whole.widget);
        QStyleOptionViewItem inner = option;
        inner.rect.adjust(4, 0, -4, 0);
        QStyledItemDelegate::paint(painter, inner, index);
    }
};

}  // namespace

DocumentWindow::DocumentWindow(Document& document, const QString& name) : _document(document), _name(name) {
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    restorePlace();
    connect(&document, &Document::fileChanged, this, &DocumentWindow::showFile);
    connect(&document, &Document::editedChanged, this, [this] { setWindowModified(_document.isEdited()); });
}

void DocumentWindow::setContent(QWidget* content) {
    auto* whole = new QWidget;
    auto* lines = new QVBoxLayout(whole);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    _note = new QLabel(strings().ui("Open to look at only: changes are not possible here."));
    _note->setObjectName(u"readOnlyNote"_s);
    _note->setMargin(6);
    _note->setBackgroundRole(QPalette::ToolTipBase);
    _note->setForegroundRole(QPalette::ToolTipText);
    _note->setAutoFillBackground(true);
    lines->addWidget(_note);
    lines->addWidget(content, 1);
    setCentralWidget(whole);
    showFile();
}

void DocumentWindow::showFile() {
    setWindowTitle(_document.displayName() + u"[*]"_s);
    setWindowFilePath(_document.path());
    setWindowModified(_document.isEdited());
    if (_note) _note->setVisible(_document.isReadOnly());
    readOnlyChanged(_document.isReadOnly());
}

void DocumentWindow::bringToFront() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

QJsonObject DocumentWindow::rememberedPlace() const {
    return _document.desk().defaults.value(placeKey()).toObject();
}

void DocumentWindow::restorePlace() {
    const QJsonObject place = rememberedPlace();
    const QRect wanted(place[u"x"_s].toInt(), place[u"y"_s].toInt(), place[u"width"_s].toInt(),
                       place[u"height"_s].toInt());
    const QRect room = screen()->availableGeometry();
    const QSize size = place.isEmpty() ? QSize(1200, 680) : wanted.size();
    resize(size.boundedTo(room.size() - QSize(20, 40)).expandedTo(QSize(320, 240)));
    // A place on a screen that is gone would hide the window.
    if (!place.isEmpty() && room.contains(wanted.topLeft() + QPoint(40, 20))) move(wanted.topLeft());
}

void DocumentWindow::rememberPlace() {
    const QRect normal = isMaximized() || isFullScreen() ? normalGeometry() : geometry();
    QJsonObject place{{u"x"_s, pos().x()},
                      {u"y"_s, pos().y()},
                      {u"width"_s, normal.width()},
                      {u"height"_s, normal.height()}};
    addToPlace(place);
    _document.desk().defaults.store(placeKey(), place);
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT closeWanted();
}

void DocumentWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void DocumentWindow::dropEvent(QDropEvent* event) {
    const QStringList paths = localFiles(*event->mimeData());
    if (paths.isEmpty()) return;
    event->acceptProposedAction();
    Q_EMIT filesDropped(paths);
}

QStringList localFiles(const QMimeData& dragged) {
    QStringList paths;
    const QList<QUrl> urls = dragged.urls();
    for (const QUrl& url : urls)
        if (url.isLocalFile()) paths << url.toLocalFile();
    return paths;
}

void setUpTable(QTableView* table) {
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setAlternatingRowColors(true);
    table->setItemDelegate(new SpacedCells(table));
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setFrameShape(QFrame::NoFrame);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

}  // namespace sargan
