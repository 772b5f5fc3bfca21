#include "platform/print/Drawing.h"

#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <stdexcept>

#include "platform/files/ByteBuffer.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

QByteArray png(const Drawing& drawing) {
    QImage image(drawing.size.toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) throw std::invalid_argument("the picture is too large");
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.draw(painter);
    painter.end();
    ByteBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray svg(const Drawing& drawing, const QString& title) {
    ByteBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    // At 72 dots an inch a unit is a point, and the sizes of fonts stay what they are.
    generator.setResolution(72);
    generator.setSize(drawing.size.toSize());
    generator.setViewBox(QRectF(QPointF(), drawing.size));
    generator.setTitle(title);
    QPainter painter(&generator);
    drawing.draw(painter);
    painter.end();
    return buffer.data();
}

}  // namespace

Pages PicturePage::pages(QSizeF area) const {
    const qreal factor =
        std::min(area.width() / _drawing.size.width(), area.height() / _drawing.size.height());
    const auto draw = [drawing = _drawing, factor](QPainter& painter, int) {
        painter.scale(factor, factor);
        painter.setClipRect(QRectF(QPointF(), drawing.size));
        drawing.draw(painter);
    };
    return {1, draw};
}

QByteArray bytesOf(const Drawing& drawing, const QString& title, const QString& format) {
    if (format == "png"_L1) return png(drawing);
    if (format == "svg"_L1) return svg(drawing, title);
    if (format == "pdf"_L1) return pdfOf(PicturePage(drawing, title));
    throw std::invalid_argument("pictures are written as png, svg or pdf");
}

}  // namespace sargan
