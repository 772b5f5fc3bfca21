#include "profile/ProfilGeometry.h"

#include <cmath>

namespace sargan {

ProfilGeometry::ProfilGeometry(QSizeF size, const NumberArray& depths)
    : _size(size), _samples(depths.size()) {
    std::optional<double> deepest;
    for (qsizetype i = 0; i < _samples; ++i) {
        const double depth = depths.at(i);
        if (std::isfinite(depth) && (!deepest || depth > *deepest)) deepest = depth;
    }
    // A profile that is nowhere below the surface still needs a scale.
    if (deepest && *deepest + 1 > 0) _greatest = *deepest + 1;
}

qreal ProfilGeometry::samplesPerTick(int samplingRate) {
    static constexpr qreal table[] = {15, 10, 5, 2.5, 75, 300, 60, 150, 100, 120};
    return samplingRate >= 1 && samplingRate <= 10 ? table[samplingRate - 1] : 30;
}

qreal ProfilGeometry::timeSpacing(int samplingRate) const {
    if (_samples == 0) return 0;
    return (width() - 60) / qreal(_samples) * samplesPerTick(samplingRate);
}

std::optional<qsizetype> ProfilGeometry::sampleAt(QPointF painterPlace) const {
    if (_samples == 0 || width() <= 10) return std::nullopt;
    const qreal at = std::round((painterPlace.x() - left) * qreal(_samples) / (width() - 10));
    if (!(at >= 0 && at < qreal(_samples))) return std::nullopt;
    return qsizetype(at);
}

}  // namespace sargan
