#pragma once

#include "calculators/CalculatorController.h"

namespace sargan {

/// Depths and mixes of oxygen-enriched air; the formulas stand in NitroxFormulas.h.
class NitroxController : public CalculatorController {
public:
    NitroxController(const CalculatorSpec& spec, Form& form, Desk& desk);

    void profMax();          ///< greatest depth of a mix
    void bestMix();          ///< richest mix for a depth
    void profEquivalente();  ///< equivalent air depth
    void oxygenWindow();     ///< between which depths a mix is of use
    void blendNitrox();      ///< topping up with oxygen, then air

private:
    double ppO2Limit() const;
};

}  // namespace sargan
