#pragma once

#include <QByteArray>
#include <QSize>

class QImage;

namespace sargan {

/// A file's bytes as records keep pictures: those of a PNG, JPEG or TIFF as they are, any other picture as a
/// PNG, and so one page of a PDF, counted from 0; null for what is none.
QByteArray pictureBytesOf(const QByteArray& file, int page = 0);
/// A picture that has no file, from the clipboard for example, as a PNG; null for a null picture.
QByteArray pictureBytesOf(const QImage& picture);

/// How many pages a file has to choose from: those of a PDF; 0 for anything else, and where Qt has no
/// plug-in for it.
int pdfPageCount(const QByteArray& file);
/// A page of a PDF, counted from 0, on white paper, as large as `most` allows; null when there is none.
QImage pdfPage(const QByteArray& file, int page, QSize most);

}  // namespace sargan
