#include "platform/ui/PaneScroller.h"

#include <QBoxLayout>

namespace sargan {

PaneScroller::PaneScroller(QWidget* content, QBoxLayout* columns) : _columns(columns) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(content);
}

QSize PaneScroller::sideBySide(QSize (QLayoutItem::*sizeOf)() const) const {
    int height = 0;
    int width = _columns->spacing() * (_columns->count() - 1);
    for (int i = 0; i < _columns->count(); ++i) {
        const QSize column = (_columns->itemAt(i)->*sizeOf)();
        width += column.width();
        height = std::max(height, column.height());
    }
    return QSize(width, height).grownBy(_columns->contentsMargins());
}

QSize PaneScroller::sizeSideBySide() const {
    return sideBySide(&QLayoutItem::sizeHint);
}

QSize PaneScroller::leastSideBySide() const {
    return sideBySide(&QLayoutItem::minimumSize);
}

void PaneScroller::resizeEvent(QResizeEvent* event) {
    // Measured without the scroll bar, which comes and goes with the answer.
    const bool fits = leastSideBySide().width() <= width();
    _columns->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QScrollArea::resizeEvent(event);
}

}  // namespace sargan
