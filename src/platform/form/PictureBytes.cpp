#include "platform/form/PictureBytes.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include "platform/archive/ArchivedObject.h"

namespace sargan {

namespace {

bool isPdf(const QByteArray& file) {
    return file.startsWith("%PDF-");
}

/// A PDF on its way through Qt's plug-in.
struct PdfReader {
    QBuffer buffer;
    QImageReader reader;

    explicit PdfReader(const QByteArray& file) {
        buffer.setData(file);
        buffer.open(QIODevice::ReadOnly);
        reader.setDevice(&buffer);
        reader.setFormat("pdf");
    }
};

/// A page fine enough to be read. Left to itself, the plug-in would make a pixel of a point, and what is
/// scanned on a page is finer than that.
QImage readablePage(const QByteArray& file, int page) {
    constexpr int pixelsOfAPoint = 2;
    constexpr QSize most(4000, 4000);
    PdfReader pdf(file);
    if (!pdf.reader.jumpToImage(page)) return {};
    return pdfPage(file, page, (pdf.reader.size() * pixelsOfAPoint).boundedTo(most));
}

}  // namespace

int pdfPageCount(const QByteArray& file) {
    return isPdf(file) ? std::max(0, PdfReader(file).reader.imageCount()) : 0;
}

QImage pdfPage(const QByteArray& file, int page, QSize most) {
    if (page < 0 || page >= pdfPageCount(file)) return {};
    PdfReader pdf(file);
    if (!pdf.reader.jumpToImage(page) || pdf.reader.size().isEmpty()) return {};
    pdf.reader.setScaledSize(pdf.reader.size().scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage ink = pdf.reader.read();
    if (ink.isNull()) return {};
    // Paper is white where a page says nothing.
    QImage paper(ink.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, ink);
    return paper;
}

QByteArray pictureBytesOf(const QByteArray& file, int page) {
    if (beginsLikePicture(file)) return file;
    return pictureBytesOf(isPdf(file) ? readablePage(file, page) : QImage::fromData(file));
}

QByteArray pictureBytesOf(const QImage& picture) {
    if (picture.isNull()) return {};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, "PNG") ? bytes : QByteArray();
}

}  // namespace sargan
