#pragma once

#include "calculators/SeaWater.h"

/// Mixes of oxygen, helium and nitrogen. Depths in metres, pressures in bar, mixes in percent. Nothing is
/// checked but what says so.
namespace sargan::trimix {

struct EquivalentDepths {
    double air;       ///< where air has the mix's nitrogen pressure; never above the surface
    double narcotic;  ///< helium alone does not count as narcotic; may be negative
};

constexpr EquivalentDepths equivalentDepths(double oxygenPercent, double heliumPercent, double depth) {
    const double air = ((100 - oxygenPercent - heliumPercent) / 100) * (depth + 10) / nitrogenInAir - 10;
    return {air < 0 ? 0 : air, (depth + 10) * (1 - heliumPercent / 100) - 10};
}

/// Whether a mix is too poor in oxygen for the surface, so that it has a least depth: 1 to 16 percent.
constexpr bool isHypoxic(double oxygenPercent) {
    return oxygenPercent >= 1 && oxygenPercent <= 16;
}

/// The depth from which the mix gives 0.16 bar of oxygen, the least that keeps a diver conscious.
constexpr double leastDepth(double oxygenPercent) {
    return (16 / oxygenPercent - 1) * 10;
}

struct Mix {
    double oxygenPercent;
    double heliumPercent;  ///< negative where the narcotic depth is below the depth itself
};

/// The mix that at a depth gives a partial pressure of oxygen, and the nitrogen of air at the narcotic depth.
constexpr Mix bestMix(double depth, double narcoticDepth, double ppO2) {
    const double oxygen = ppO2 / absolutePressure(depth);
    const double nitrogen = absolutePressure(narcoticDepth) * -nitrogenInAir / absolutePressure(depth) * 100;
    return {oxygen * 100, 100 - oxygen * 100 + nitrogen};
}

}  // namespace sargan::trimix
