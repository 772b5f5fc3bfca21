#pragma once

/// What a dive took: gas from its tanks, and of the oxygen limit of the central nervous system.
namespace sargan::profile {

/// Of one tank.
struct GasUsed {
    int delta = 0;   ///< start less end pressure, bar; negative when the end is above the start
    int volume = 0;  ///< litres at the surface's pressure
};

/// Start and end pressure in bar, the tank's volume in litres; computed in 32 bits as they stand.
GasUsed gasUsed(int start, int end, int tankVolume);

/// The oxygen's partial pressure, in bar, at the deepest sample of a profile; in single precision.
float ppO2AtSample(double o2Percent, float depth);
/// The same at the greatest depth as the diver noted it, in metres; computed in double precision.
float ppO2AtDepth(double o2Percent, double depth);

/// The share of the oxygen limit, in per cent, that `minutes` at a constant partial pressure (bar) take.
/// The rates are those of the published single-exposure limits as this program has always had them, by
/// half-open bands (lower, upper]; there is no limit above 1.58 bar.
double calculSncClock(double ppO2, double minutes);

}  // namespace sargan::profile
