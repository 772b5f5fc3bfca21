#pragma once

#include <QColor>
#include <algorithm>

namespace sargan {

/// A text's colour that was chosen for light backgrounds, light enough to be read on a dark one.
inline QColor legibleOn(const QColor& background, const QColor& color) {
    if (background.lightnessF() > 0.5F || qGray(color.rgb()) > 110) return color;
    // Black is what texts are anyway.
    if (color.hslSaturationF() <= 0) return QColor::fromHslF(0, 0, 0.92F);
    return QColor::fromHslF(std::max(0.0F, color.hslHueF()), color.hslSaturationF() * 0.8F, 0.72F);
}

}  // namespace sargan
