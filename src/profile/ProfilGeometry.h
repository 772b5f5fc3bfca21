#pragma once

#include <QPointF>
#include <QSizeF>
#include <optional>

#include "platform/archive/NumberArray.h"

namespace sargan {

/// Where things stand in the graph of a profile. Lengths are points of a view whose origin is its lower left
/// corner, as the graph has always been measured; `toPainter` turns a place upside down for painters.
class ProfilGeometry {
public:
    ProfilGeometry(QSizeF size, const NumberArray& depths);

    static constexpr qreal left = 30;        ///< the depth axis
    static constexpr qreal gasBottom = 20;   ///< the pressure scale: from here …
    static constexpr qreal gasTop = 80;      ///< … to here, at the start pressure
    static constexpr qreal axisMinutes = 5;  ///< between two labelled ticks of the time axis

    qsizetype samples() const { return _samples; }
    /// Of the whole depth scale, metres: the deepest sample and one more; 1 without a sample.
    qreal greatestDepth() const { return _greatest; }
    qreal width() const { return _size.width() - 40; }
    qreal height() const { return _size.height() - 20; }
    qreal surface() const { return _size.height() - 30; }  ///< y of depth 0
    qreal right() const { return width() + 20; }           ///< where the plot ends

    qreal x(qsizetype sample) const { return left + qreal(sample) * (width() - 10) / qreal(_samples); }
    qreal y(qreal depth) const { return surface() - depth * (height() - 30) / _greatest; }
    qreal metres(qreal points) const { return points * _greatest / (height() - 30); }
    /// Of a pressure in a tank that was filled to `start`, both in bar.
    qreal gasY(qreal pressure, qreal start) const {
        return pressure * (gasTop - gasBottom) / start + gasBottom;
    }
    /// Between two labelled ticks of the time axis, for a sampling-rate code; 0 without a sample. The time
    /// axis is a little narrower than the samples, as it has always been.
    qreal timeSpacing(int samplingRate) const;

    /// The sample under a place of the painter; none outside the samples.
    std::optional<qsizetype> sampleAt(QPointF painterPlace) const;
    QPointF toPainter(qreal x, qreal y) const { return {x, _size.height() - y}; }

    /// Samples between two labelled ticks: five minutes of them.
    static qreal samplesPerTick(int samplingRate);
    /// Seconds between two samples, as the time axis has it.
    static qreal secondsPerSample(int samplingRate) {
        return axisMinutes * 60 / samplesPerTick(samplingRate);
    }

private:
    QSizeF _size;
    qsizetype _samples;
    qreal _greatest = 1;
};

}  // namespace sargan
