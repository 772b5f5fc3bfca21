#pragma once

#include "calculators/CalculatorController.h"

namespace sargan {

/// Pressure, volume, length, mass and temperature in other units; the factors stand in UnitConversions.h. The
/// pane in view tells the quantity, its chooser the unit to convert from. Numbers are shown with ten
/// significant digits: enough for any factor, and free of the noise of binary fractions.
class PhysiqueController : public CalculatorController {
public:
    PhysiqueController(const CalculatorSpec& spec, Form& form, Desk& desk);

    /// From the chosen unit into the others of the pane in view. A pane of another name converts nothing.
    void convertir();

private:
    void convertPressure();
    void convertVolume();
    void convertLength();
    void convertMass();
    void convertTemperature();
    void showNumber(ControlName name, double value);
};

}  // namespace sargan
