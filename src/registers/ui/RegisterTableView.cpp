#include "registers/ui/RegisterTableView.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>

namespace sargan {

RegisterTableView::RegisterTableView(Document& document, Register& shown, const QString& name)
    : SourceTableView(document, name), _register(shown) {
    if (!shown.design().draggedRows) return;
    setDragEnabled(true);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

void RegisterTableView::startDrag(Qt::DropActions) {
    const Selection rows = selectedRows();
    if (rows.isEmpty() || !_register.design().draggedRows) return;
    QByteArrayList numbers;
    for (const qsizetype row : rows) numbers << QByteArray::number(row);
    auto* dragged = new QMimeData;
    dragged->setData(QLatin1String(_register.design().draggedRows), numbers.join(' '));
    auto* drag = new QDrag(this);
    drag->setMimeData(dragged);
    drag->exec(Qt::CopyAction);
}

bool RegisterTableView::takes(const QMimeData& dragged) const {
    return _register.design().draggedRows && dragged.hasFormat(QLatin1String(_register.design().draggedRows));
}

void RegisterTableView::dragEnterEvent(QDragEnterEvent* event) {
    if (takes(*event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void RegisterTableView::dragMoveEvent(QDragMoveEvent* event) {
    if (takes(*event->mimeData()) && _register.validateDrop())
        event->acceptProposedAction();
    else
        event->ignore();
}

void RegisterTableView::dropEvent(QDropEvent* event) {
    const QStringList types = event->mimeData()->formats();
    for (const QString& type : types)
        if (_register.acceptDrop(type)) return event->acceptProposedAction();
    event->ignore();
}

}  // namespace sargan
