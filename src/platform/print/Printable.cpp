#include "platform/print/Printable.h"

#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>

#include "platform/files/ByteBuffer.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr int pointsPerInch = 72;
constexpr int pdfResolution = 600;

}  // namespace

QPageLayout pageLayoutOf(const Printable& printable, const QPageSize& paper) {
    QPageLayout layout(paper, printable.orientation(), printsettings::margins, QPageLayout::Point);
    return layout;
}

bool print(const Printable& printable, QPagedPaintDevice& device) {
    const QSizeF area = device.pageLayout().paintRect(QPageLayout::Point).size() / printsettings::scale;
    const Pages pages = printable.pages(area);
    const QPageRanges wanted = device.pageRanges();
    QPainter painter;
    if (!painter.begin(&device)) return false;
    bool first = true;
    for (int page = 0; page < pages.count; ++page) {
        if (!wanted.isEmpty() && !wanted.contains(page + 1)) continue;
        if (!first && !device.newPage()) return false;
        first = false;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(device.logicalDpiX() * printsettings::scale / pointsPerInch,
                      device.logicalDpiY() * printsettings::scale / pointsPerInch);
        pages.draw(painter, page);
        painter.restore();
    }
    return painter.end();
}

QByteArray pdfOf(const Printable& printable, const QPageSize& paper) {
    ByteBuffer buffer;
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfResolution);
    writer.setTitle(printable.title());
    writer.setCreator(u"Sargan"_s);
    writer.setPageLayout(pageLayoutOf(printable, paper));
    print(printable, writer);
    return buffer.data();
}

}  // namespace sargan
