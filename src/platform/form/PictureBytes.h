#pragma once

#include <QByteArray>

class QImage;

namespace sargan {

/// A file's bytes as records keep pictures: those of a PNG, JPEG or TIFF as they are, any other picture as a
/// PNG, and so the first page of a PDF; null for what is none.
QByteArray pictureBytesOf(const QByteArray& file);
/// A picture that has no file, from the clipboard for example, as a PNG; null for a null picture.
QByteArray pictureBytesOf(const QImage& picture);

}  // namespace sargan
