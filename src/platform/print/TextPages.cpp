#include "platform/print/TextPages.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>
#include <memory>

namespace sargan {

using namespace Qt::StringLiterals;

Pages TextPages::pages(QSizeF area) const {
    const auto document = std::make_shared<QTextDocument>();
    _text.toDocument(*document);
    document->setDocumentMargin(0);
    const QSizeF size(area.width(), area.height() - footerHeight);
    document->setPageSize(size);
    const int count = document->pageCount();
    const auto draw = [document, size, area, count, title = _title](QPainter& painter, int page) {
        const QRectF part(QPointF(0, page * size.height()), size);
        painter.save();
        painter.translate(0, -part.top());
        painter.setClipRect(part);
        QAbstractTextDocumentLayout::PaintContext context;
        // A line that only touches the page belongs to the next one.
        context.clip = part.adjusted(0, 1, 0, -1);
        context.palette.setColor(QPalette::Text, inkcolor::black);
        document->documentLayout()->draw(&painter, context);
        painter.restore();
        if (count > 1) drawFooter(painter, area, title, page, count);
    };
    return {count, draw};
}

void drawFooter(QPainter& painter, QSizeF area, const QString& title, int page, int count) {
    const QRectF line(0, area.height() - footerHeight, area.width(), footerHeight);
    const QString number = u"%1/%2"_s.arg(page + 1).arg(count);
    painter.setFont(printFont(10));
    painter.setPen(QColor(90, 90, 90));
    const qreal numberWidth = QFontMetricsF(painter.font()).horizontalAdvance(number) + 20;
    const QString shown =
        QFontMetricsF(painter.font()).elidedText(title, Qt::ElideMiddle, line.width() - numberWidth);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, shown);
    painter.drawText(line, Qt::AlignRight | Qt::AlignBottom, number);
}

}  // namespace sargan
