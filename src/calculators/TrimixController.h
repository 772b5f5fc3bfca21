#pragma once

#include "calculators/CalculatorController.h"

namespace sargan {

/// Depths and mixes of trimix; the formulas stand in TrimixFormulas.h.
class TrimixController : public CalculatorController {
public:
    TrimixController(const CalculatorSpec& spec, Form& form, Desk& desk);

    void calcEAD_END();  ///< equivalent air and narcotic depth
    void profMin();      ///< least depth of a hypoxic mix, or that the mix is none
    void calcBestTx();   ///< best mix for a depth
    void showWin();      ///< brings the window to the front
};

}  // namespace sargan
