#pragma once

#include "calculators/CalculatorController.h"

namespace sargan {

/// Closed and semi-closed rebreathers; the formulas stand in RebreatherFormulas.h.
class SCRCCRController : public CalculatorController {
public:
    SCRCCRController(const CalculatorSpec& spec, Form& form, Desk& desk);

    void calcSodaTime();        ///< how long the absorbent lasts
    void calcLoopFlush();       ///< oxygen of the flush gas
    void calcCCRBestTx();       ///< diluent of a closed circuit
    void calcBreathedFracO2();  ///< oxygen breathed on a semi-closed circuit, and a table over consumptions
    void calcIdealFlow();       ///< flow of a semi-closed circuit, and a table over consumptions

private:
    double share(ControlName percentField) const { return number(percentField) / 100; }
};

}  // namespace sargan
