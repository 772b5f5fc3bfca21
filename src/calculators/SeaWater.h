#pragma once

namespace sargan {

/// Absolute pressure in bar at a depth in metres of sea water: 10 m weigh one bar, the air above another.
/// The rule of thumb that dive planning works with; sea water is really 10.06 m of water to a bar.
constexpr double absolutePressure(double depth) {
    return depth / 10 + 1;
}

/// The share of air that is nitrogen, argon counted with it.
inline constexpr double nitrogenInAir = 0.79;

}  // namespace sargan
