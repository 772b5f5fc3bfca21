#pragma once

#include "calculators/CalculatorController.h"
#include "calculators/Datum.h"

namespace sargan {

/// Positions between ED50 and WGS84; the formulas stand in Datum.h.
class GpsController : public CalculatorController {
public:
    GpsController(const CalculatorSpec& spec, Form& form, Desk& desk);

    /// Degrees, minutes and seconds on ED50 into those on WGS84, and the log of the calculation.
    void convertGPS();
    /// Decimal degrees either way, as the pop-up says. The pop-up's item must be one of the two that it has;
    /// throws ControlValueError for another.
    void convertGPS2();

    void convertCoordonates(const datum::Ed50Place& place);
    void convertLongitude(double longitude, double latitude, double altitude);

private:
    datum::Sexagesimal angle(ControlName degrees, ControlName minutes, ControlName seconds) const;
    datum::Direction direction() const;
};

}  // namespace sargan
