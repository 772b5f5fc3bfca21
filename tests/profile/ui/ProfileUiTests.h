#pragma once

#include <QPainter>
#include <QtTest>

#include "profile/Profil.h"

// Each runs one test class of this folder and returns the number of its failures.
int runGraphProfileWindowTest(int argc, char** argv);
int runProfilDrawingTest(int argc, char** argv);

namespace sargan {

inline NumberArray reals(std::initializer_list<double> values) {
    return NumberArray::ofDoubles(std::vector<double>(values));
}
inline NumberArray flags(std::initializer_list<qint32> values) {
    return NumberArray::ofInts(std::vector<qint32>(values));
}

/// White, without any option; the curve is pure magenta, the lines are pure cyan.
inline Profil plainProfil() {
    Profil profil;
    profil.profilData = reals({0, 10, 19, 5});
    profil.style.plotColor = QColor(255, 0, 255);
    profil.style.fillColor = QColor(255, 0, 0, 128);
    profil.style.backgroundColor = QColor(0, 0, 0, 0);
    profil.style.linesColor = QColor(0, 255, 255);
    profil.style.ascColor = QColor(250, 200, 10);
    profil.style.slowColor = QColor(10, 120, 60);
    return profil;
}

/// 840 x 450: samples 197.5 apart from x = 30 on, the surface 30 below the top edge, 20 points a metre.
inline constexpr QSize plainSize{840, 450};

inline QImage pictureOf(const Profil& profil, QSize size = plainSize, qreal ratio = 1) {
    static const Strings strings(Strings::Language::English);
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    profil.draw(painter, size, strings);
    return image;
}

inline int distance(QRgb a, const QColor& b) {
    return std::max(
        {std::abs(qRed(a) - b.red()), std::abs(qGreen(a) - b.green()), std::abs(qBlue(a) - b.blue())});
}

/// How near the picture comes to a colour within a pixel of a place.
inline int nearest(const QImage& image, QPointF place, const QColor& color, int reach = 1) {
    int best = 255;
    for (int dy = -reach; dy <= reach; ++dy)
        for (int dx = -reach; dx <= reach; ++dx) {
            const QPoint at(int(place.x()) + dx, int(place.y()) + dy);
            if (image.rect().contains(at)) best = std::min(best, distance(image.pixel(at), color));
        }
    return best;
}

/// How many pixels of a row, between two places, have a colour.
inline int countInRow(const QImage& image, int y, int from, int to, const QColor& color, int tolerance = 40) {
    int count = 0;
    for (int x = from; x < to; ++x) count += distance(image.pixel(x, y), color) <= tolerance;
    return count;
}

}  // namespace sargan
