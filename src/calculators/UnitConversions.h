#pragma once

/// Conversion factors as divers' tables print them. Several are rounded, and the two ways between litres and
/// cubic inches are not each other's inverse: results are to agree with those tables, not with each other.
namespace sargan::units {

inline constexpr double psiPerBar = 14.50377;
inline constexpr double litresPerCubicFoot = 28.317;
inline constexpr double cubicInchesPerLitre = 61.024;            ///< from litres
inline constexpr double cubicInchesPerLitreBackwards = 61.0241;  ///< from cubic inches
inline constexpr double cubicInchesPerCubicFoot = 1727.972;
inline constexpr double metresPerFoot = 0.3048006;  ///< the survey foot, 1200/3937 m
inline constexpr double kilogramsPerPound = 0.4535924;

constexpr double barToPsi(double bar) {
    return bar * psiPerBar;
}

constexpr double psiToBar(double psi) {
    return psi / psiPerBar;
}

/// One volume in the three units.
struct Volume {
    double litres;
    double cubicFeet;
    double cubicInches;
};

constexpr Volume volumeFromLitres(double litres) {
    return {litres, litres / litresPerCubicFoot, litres * cubicInchesPerLitre};
}

constexpr Volume volumeFromCubicFeet(double feet) {
    return {feet * litresPerCubicFoot, feet, feet * cubicInchesPerCubicFoot};
}

constexpr Volume volumeFromCubicInches(double inches) {
    return {inches / cubicInchesPerLitreBackwards, inches / cubicInchesPerCubicFoot, inches};
}

constexpr double metresToFeet(double metres) {
    return metres / metresPerFoot;
}

constexpr double feetToMetres(double feet) {
    return feet * metresPerFoot;
}

constexpr double kilogramsToPounds(double kilograms) {
    return kilograms / kilogramsPerPound;
}

constexpr double poundsToKilograms(double pounds) {
    return pounds * kilogramsPerPound;
}

/// One temperature on the three scales.
struct Temperature {
    double celsius;
    double fahrenheit;
    double kelvin;
};

constexpr Temperature temperatureFromCelsius(double celsius) {
    return {celsius, celsius * 1.8 + 32, celsius + 273.15};
}

constexpr Temperature temperatureFromFahrenheit(double fahrenheit) {
    return {(fahrenheit - 32) / 1.8, fahrenheit, (fahrenheit - 32) / 1.8 + 273.15};
}

constexpr Temperature temperatureFromKelvin(double kelvin) {
    return {kelvin - 273.15, (kelvin - 273.15) * 1.8 + 32, kelvin};
}

}  // namespace sargan::units
