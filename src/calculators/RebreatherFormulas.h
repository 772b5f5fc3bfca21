#pragma once

#include <array>
#include <cmath>

#include "calculators/SeaWater.h"

/// Closed and semi-closed rebreathers. Depths in metres, pressures in bar, flows in litres a minute at the
/// surface; a "share" is 0 to 1. Nothing is checked: what divides by zero answers an infinity or NaN.
namespace sargan::rebreather {

/// How long a canister of absorbent lasts, in minutes: `weight` in kg, `capacity` in litres of carbon dioxide
/// a kg, `production` in litres a minute.
constexpr double absorbentMinutes(double weight, double capacity, double production) {
    return weight * capacity / production;
}

/// Minutes as whole hours and the whole minutes that are left, both cut off.
struct Endurance {
    double hours;
    double minutes;
};

inline Endurance endurance(double minutes) {
    const double hours = std::trunc(minutes / 60);
    return {hours, std::trunc(minutes - hours * 60)};
}

/// The oxygen share of the gas that flushes a loop to a partial pressure at a depth.
constexpr double flushShare(double depth, double ppO2) {
    return ppO2 / absolutePressure(depth);
}

struct Diluent {
    double oxygenPercent;
    double heliumPercent;
};

/// The diluent of a closed circuit in whole percents, cut off: 1.0 bar of oxygen at the greatest depth
/// whatever the set-point, and the nitrogen of air at the narcotic depth.
inline Diluent bestDiluent(double depth, double narcoticDepth) {
    const double nitrogen = absolutePressure(narcoticDepth) * nitrogenInAir / absolutePressure(depth);
    // Adding zero turns the -0 that cutting off a small negative number leaves into 0.
    const double oxygenPercent = std::trunc(100 / absolutePressure(depth)) + 0.0;
    return {oxygenPercent, 100 - oxygenPercent - std::trunc(nitrogen * 100)};
}

/// The oxygen share in the loop of a semi-closed apparatus: what the supply brings and the diver does not
/// use.
constexpr double breathedShare(double supplyShare, double flow, double consumption) {
    return (supplyShare * flow - consumption) / (flow - consumption);
}

/// The supply flow that keeps an oxygen share in the loop; breathedShare solved for the flow.
constexpr double idealFlow(double supplyShare, double loopShare, double consumption) {
    return consumption * (1 - loopShare) / (supplyShare - loopShare);
}

/// The oxygen consumptions of the tables, in litres a minute: from light to very hard work.
inline constexpr std::array consumptions{0.8, 0.9, 1.0, 1.1, 1.2, 1.3, 1.4, 1.5, 1.6, 1.7, 1.8};

/// How a table shows a value. `Same` leaves a row as it was.
enum class Verdict : char { Fine, Dangerous, Same };

/// Below the oxygen of air, 20.9 percent, the loop is too poor.
constexpr Verdict breathedVerdict(double percent) {
    if (percent < 20.9) return Verdict::Dangerous;
    return percent >= 20.9 ? Verdict::Fine : Verdict::Same;
}

/// Flows outside 3 to 20 l/min cannot be set. Exactly 20 is left as it was.
constexpr Verdict flowVerdict(double flow) {
    if (flow < 3 || flow > 20) return Verdict::Dangerous;
    return flow >= 3 && flow < 20 ? Verdict::Fine : Verdict::Same;
}

}  // namespace sargan::rebreather
