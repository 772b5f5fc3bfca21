#pragma once

#include <QPageLayout>
#include <QString>
#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace sargan {

/// A piece of work laid out on pages of one size.
struct Pages {
    int count = 0;
    /// Draws a page, counted from 0, with the origin at its top left corner.
    std::function<void(QPainter&, int page)> draw;
};

/// Something that can be printed, whatever the device: paper, a preview, a PDF.
class Printable {
public:
    virtual ~Printable() = default;

    /// What the print job or the PDF is called.
    virtual QString title() const = 0;
    virtual QPageLayout::Orientation orientation() const = 0;
    /// Lays itself out on areas of this size, in points before the scale. What it prints must stay as it is
    /// while the pages are in use.
    virtual Pages pages(QSizeF area) const = 0;
};

/// The settings that all documents print with. Nothing is centred: everything starts at the top left corner.
namespace printsettings {
inline constexpr QMarginsF margins{10, 24.8, 10, 25};  ///< left, top, right, bottom; points
inline constexpr qreal scale = 0.7;
}  // namespace printsettings

/// The page of a printable on this paper.
QPageLayout pageLayoutOf(const Printable& printable, const QPageSize& paper = QPageSize(QPageSize::A4));

/// Draws the pages, those of the device's page ranges when it has any, on the device's own page layout.
/// Answers false when the device failed.
bool print(const Printable& printable, QPagedPaintDevice& device);

/// A PDF whose texts can be searched and copied. Needs ensureGuiApplication().
QByteArray pdfOf(const Printable& printable, const QPageSize& paper = QPageSize(QPageSize::A4));

}  // namespace sargan
