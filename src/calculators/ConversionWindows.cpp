#include "calculators/CalculatorWindows.h"
#include "calculators/GpsController.h"
#include "calculators/PhysiqueController.h"
#include "calculators/WindowBuilder.h"

namespace sargan {

namespace {

constexpr MenuItem pressureUnits[] = {{1, calculatorWord("bar")}, {2, calculatorWord("psi")}};
constexpr MenuItem volumeUnits[] = {
    {1, calculatorWord("litres")}, {2, calculatorWord("cubic feet")}, {3, calculatorWord("cubic inches")}};
constexpr MenuItem lengthUnits[] = {{1, calculatorWord("metres")}, {2, calculatorWord("feet")}};
constexpr MenuItem massUnits[] = {{1, calculatorWord("kilograms")}, {2, calculatorWord("pounds")}};
constexpr MenuItem temperatureUnits[] = {
    {1, calculatorWord("Celsius")}, {2, calculatorWord("Fahrenheit")}, {3, calculatorWord("Kelvin")}};

constexpr MenuItem directions[] = {{0, calculatorWord("ED50 → WGS84")}, {1, calculatorWord("WGS84 → ED50")}};

CalculatorSpec physique() {
    WindowBuilder builder("displayConversionsWindow", "Physique", "Units");
    builder.pane("pression", "Pressure")
        .radio("choixPressionMatrix", "From", pressureUnits, 1)
        .either("barField", "Bar", "bar")
        .either("psiField", "Pounds per square inch", "psi")
        .button("convertir", "Convert")
        .pane("volume", "Volume")
        .radio("choixVolumeMatrix", "From", volumeUnits, 1)
        .either("litresField", "Litres", "l")
        .either("cubicFeetUSField", "Cubic feet", "ft³")
        .either("cubicInchesUSField", "Cubic inches", "in³")
        .button("convertir", "Convert")
        .pane("longueur", "Length")
        .radio("choixLongueurMatrix", "From", lengthUnits, 1)
        .either("metresField", "Metres", "m")
        .either("feetField", "Feet", "ft")
        .button("convertir", "Convert")
        .pane("masse", "Mass")
        .radio("choixMasseMatrix", "From", massUnits, 1)
        .either("kilogrammeField", "Kilograms", "kg")
        .either("livreUSField", "Pounds", "lb")
        .button("convertir", "Convert")
        .pane("temperature", "Temperature")
        .radio("choixTemperatureMatrix", "From", temperatureUnits, 1)
        .either("celsiusField", "Celsius", "°C")
        .either("farenheitField", "Fahrenheit", "°F")
        .either("kelvinField", "Kelvin", "K")
        .button("convertir", "Convert")
        .panesIn("conversionsTabView");
    return builder.of("Conversions", "PhysiqueController", makeController<PhysiqueController>);
}

CalculatorSpec gps() {
    WindowBuilder builder("displayConversionsGPSWindow", "Gps", "Positions on ED50 and WGS84");
    builder.section("Height above the ellipsoid")
        .input("altitude_inField", "Height", "m")
        .section("Degrees, minutes and seconds: ED50 → WGS84")
        .inputs("Latitude", {{"latitude_in_degreeField", "°"},
                             {"latitude_in_minutesField", "′"},
                             {"latitude_in_secondsField", "″"}})
        .inputs("Longitude", {{"longitude_in_degreeField", "°"},
                              {"longitude_in_minutesField", "′"},
                              {"longitude_in_secondsField", "″"}})
        .button("convertGPS", "Convert")
        .section("Decimal degrees, to some 20 m (height: no use)")
        .input("latitude_inField", "Latitude", "°")
        .input("longitude_inField", "Longitude", "°")
        .popUp("geodesiePopUp", "Direction", directions, 0)
        .button("convertGPS2", "Convert")
        .section("Result")
        .result("latitude_outField", "Latitude")
        .result("longitude_outField", "Longitude")
        .result("altitude_outField", "Height")
        .result("resultatField")
        .section("Calculation", true)
        .result("gpsDataField");
    return builder.of("Conversions", "GpsController", makeController<GpsController>);
}

}  // namespace

QList<CalculatorSpec> conversionWindows() {
    return {physique(), gps()};
}

}  // namespace sargan
