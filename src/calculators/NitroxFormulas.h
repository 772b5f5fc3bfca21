#pragma once

#include "calculators/SeaWater.h"

/// Oxygen-enriched air. Depths in metres, pressures in bar; a "share" is 0 to 1, a "percent" 0 to 100.
/// Nothing is checked: what divides by zero answers an infinity or NaN.
namespace sargan::nitrox {

/// The highest partial pressure of oxygen, in bar, that a chooser's item stands for: 1.2 to 1.6 for the items
/// 0 to 4, and 1.4 when nothing or anything else is chosen.
constexpr double ppO2Limit(int item) {
    constexpr double limits[] = {1.2, 1.3, 1.4, 1.5, 1.6};
    return item >= 0 && item < 5 ? limits[item] : 1.4;
}

/// The depth at which a mix reaches a partial pressure of oxygen (Dalton's law, solved for the depth).
constexpr double depthAtPpO2(double oxygenShare, double ppO2) {
    return (ppO2 / oxygenShare - 1) * 10;
}

/// The oxygen share that reaches a partial pressure at a depth.
constexpr double shareAtPpO2(double depth, double ppO2) {
    return ppO2 / absolutePressure(depth);
}

/// The depth at which air has the nitrogen pressure that the mix has at `depth`. Negative above the surface.
constexpr double equivalentAirDepth(double oxygenPercent, double depth) {
    return (1 - oxygenPercent / 100) * (depth + 10) / nitrogenInAir - 10;
}

/// Between which depths a mix is of use, in metres.
struct OxygenWindow {
    double deepest;     ///< ppO2 reaches 1.6 bar
    double shallowest;  ///< ppO2 reaches the minimum wanted
    double usable;      ///< nor more nitrogen than air at the surface, nor more oxygen than 1.6 bar
};

constexpr OxygenWindow oxygenWindow(double oxygenShare, double leastPpO2) {
    const double nitrogenLimit = (nitrogenInAir / (1 - oxygenShare) - 1) * 10;
    const double oxygenLimit = depthAtPpO2(oxygenShare, 1.6);
    return {oxygenLimit, depthAtPpO2(oxygenShare, leastPpO2),
            nitrogenLimit > oxygenLimit ? oxygenLimit : nitrogenLimit};
}

/// Topping up a cylinder with oxygen, then air.
struct Blend {
    double oxygen;        ///< bar of pure oxygen to let in first
    double addedPercent;  ///< oxygen percent of everything that is added
};

/// Pressures in bar, mixes in percent of oxygen. Partial-pressure blending of ideal gases: the nitrogen that
/// is still missing comes with air, of which it is 79 percent.
constexpr Blend blend(double startPressure, double startPercent, double endPressure, double endPercent) {
    const double added = endPressure - startPressure;
    const double nitrogenAdded = endPressure * (100 - endPercent) - startPressure * (100 - startPercent);
    return {added - nitrogenAdded / 79, (endPressure * endPercent - startPressure * startPercent) / added};
}

}  // namespace sargan::nitrox
