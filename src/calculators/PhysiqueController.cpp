#include "calculators/PhysiqueController.h"

#include "calculators/UnitConversions.h"

namespace sargan {

namespace {

constexpr ControlName bar{"barField"};
constexpr ControlName psi{"psiField"};
constexpr ControlName litres{"litresField"};
constexpr ControlName cubicFeet{"cubicFeetUSField"};
constexpr ControlName cubicInches{"cubicInchesUSField"};
constexpr ControlName metres{"metresField"};
constexpr ControlName feet{"feetField"};
constexpr ControlName kilograms{"kilogrammeField"};
constexpr ControlName pounds{"livreUSField"};
constexpr ControlName celsius{"celsiusField"};
constexpr ControlName fahrenheit{"farenheitField"};
constexpr ControlName kelvin{"kelvinField"};

}  // namespace

PhysiqueController::PhysiqueController(const CalculatorSpec& spec, Form& form, Desk& desk)
    : CalculatorController(spec, form, desk) {
    offer("convertir", [this] { convertir(); });
}

void PhysiqueController::convertir() {
    static constexpr std::pair<const char*, void (PhysiqueController::*)()> panes[] = {
        {"pression", &PhysiqueController::convertPressure},
        {"volume", &PhysiqueController::convertVolume},
        {"longueur", &PhysiqueController::convertLength},
        {"masse", &PhysiqueController::convertMass},
        {"temperature", &PhysiqueController::convertTemperature},
    };
    const QString shown = form().text(ControlName{"conversionsTabView"});
    for (const auto& [id, convert] : panes)
        if (shown == QLatin1String(id)) return (this->*convert)();
}

void PhysiqueController::convertPressure() {
    if (form().tag(ControlName{"choixPressionMatrix"}) == 1)
        showNumber(psi, units::barToPsi(number(bar)));
    else
        showNumber(bar, units::psiToBar(number(psi)));
}

void PhysiqueController::convertVolume() {
    const int from = form().tag(ControlName{"choixVolumeMatrix"});
    const units::Volume volume = from == 1   ? units::volumeFromLitres(number(litres))
                                 : from == 2 ? units::volumeFromCubicFeet(number(cubicFeet))
                                             : units::volumeFromCubicInches(number(cubicInches));
    // The field that was converted from stays as it was typed.
    if (from != 1) showNumber(litres, volume.litres);
    if (from != 2) showNumber(cubicFeet, volume.cubicFeet);
    if (from == 1 || from == 2) showNumber(cubicInches, volume.cubicInches);
}

void PhysiqueController::convertLength() {
    if (form().tag(ControlName{"choixLongueurMatrix"}) == 1)
        showNumber(feet, units::metresToFeet(number(metres)));
    else
        showNumber(metres, units::feetToMetres(number(feet)));
}

void PhysiqueController::convertMass() {
    if (form().tag(ControlName{"choixMasseMatrix"}) == 1)
        showNumber(pounds, units::kilogramsToPounds(number(kilograms)));
    else
        showNumber(kilograms, units::poundsToKilograms(number(pounds)));
}

void PhysiqueController::convertTemperature() {
    const int from = form().tag(ControlName{"choixTemperatureMatrix"});
    const units::Temperature temperature = from == 1   ? units::temperatureFromCelsius(number(celsius))
                                           : from == 2 ? units::temperatureFromFahrenheit(number(fahrenheit))
                                                       : units::temperatureFromKelvin(number(kelvin));
    if (from != 1) showNumber(celsius, temperature.celsius);
    if (from != 2) showNumber(fahrenheit, temperature.fahrenheit);
    if (from == 1 || from == 2) showNumber(kelvin, temperature.kelvin);
}

void PhysiqueController::showNumber(ControlName name, double value) {
    show(name, QString::number(value + 0.0, 'g', 10));
}

}  // namespace sargan
