#pragma once

#include <QSize>

#include "platform/print/Printable.h"

namespace sargan {

/// A picture as a function: drawn on a window, on paper, in a file, always by the same code.
struct Drawing {
    QSizeF size;  ///< in its own units; y downwards from the top left corner
    std::function<void(QPainter&)> draw;
};

/// A drawing on one page, as large as the page allows, at its top left corner.
class PicturePage : public Printable {
public:
    PicturePage(Drawing drawing, QString title, QPageLayout::Orientation orientation = QPageLayout::Landscape)
        : _drawing(std::move(drawing)), _title(std::move(title)), _orientation(orientation) {}

    QString title() const override { return _title; }
    QPageLayout::Orientation orientation() const override { return _orientation; }
    Pages pages(QSizeF area) const override;

private:
    Drawing _drawing;
    QString _title;
    QPageLayout::Orientation _orientation;
};

/// Drawing -> the bytes of a file: "png" (a pixel for a unit, on white), "svg", or "pdf" (as it is printed).
/// Throws std::invalid_argument for another format. Needs ensureGuiApplication().
QByteArray bytesOf(const Drawing& drawing, const QString& title, const QString& format);

}  // namespace sargan
