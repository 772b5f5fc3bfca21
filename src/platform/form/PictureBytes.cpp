#include "platform/form/PictureBytes.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include "platform/archive/ArchivedObject.h"

namespace sargan {

namespace {

/// The first page of a PDF, fine enough to be read; null where Qt has no plug-in for it. Left to itself, it
/// would make a pixel of a point, and what is scanned on a page is finer than that.
QImage firstPageOf(const QByteArray& file) {
    constexpr int pixelsOfAPoint = 2;
    constexpr int mostPixels = 4000;
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer, "pdf");
    const QSize points = reader.size();
    if (points.isEmpty()) return {};
    const QSize wanted = points * pixelsOfAPoint;
    const QSize most(mostPixels, mostPixels);
    reader.setScaledSize(wanted.boundedTo(most) == wanted ? wanted
                                                          : wanted.scaled(most, Qt::KeepAspectRatio));
    QImage page = reader.read();
    if (page.isNull()) return page;
    // Paper is white where a page says nothing.
    QImage paper(page.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, page);
    return paper;
}

}  // namespace

QByteArray pictureBytesOf(const QByteArray& file) {
    if (beginsLikePicture(file)) return file;
    return pictureBytesOf(file.startsWith("%PDF-") ? firstPageOf(file) : QImage::fromData(file));
}

QByteArray pictureBytesOf(const QImage& picture) {
    if (picture.isNull()) return {};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, "PNG") ? bytes : QByteArray();
}

}  // namespace sargan
