#include "calculators/NitroxController.h"

#include "calculators/CalculatorMessages.h"
#include "calculators/NitroxFormulas.h"

namespace sargan {

namespace {

constexpr ControlName fracO2{"fracO2Field"};
constexpr ControlName ppO2{"ppO2PopUp"};
constexpr ControlName resultat{"resultatField"};

}  // namespace

NitroxController::NitroxController(const CalculatorSpec& spec, Form& form, Desk& desk)
    : CalculatorController(spec, form, desk) {
    offer("profMax", [this] { profMax(); });
    offer("bestMix", [this] { bestMix(); });
    offer("profEquivalente", [this] { profEquivalente(); });
    offer("oxygenWindow", [this] { oxygenWindow(); });
    offer("blendNitrox", [this] { blendNitrox(); });
}

double NitroxController::ppO2Limit() const {
    return nitrox::ppO2Limit(form().tag(ppO2));
}

void NitroxController::profMax() {
    show(resultat, filled(u"MOD : %.1f m", {nitrox::depthAtPpO2(number(fracO2) / 100, ppO2Limit())}));
}

void NitroxController::bestMix() {
    const double share = nitrox::shareAtPpO2(number({"profondeurMaxField"}), ppO2Limit());
    show(resultat, strings().text(calculatortext::bestMix, share * 100));
}

void NitroxController::profEquivalente() {
    const double depth = nitrox::equivalentAirDepth(number(fracO2), number({"profondeurField"}));
    show(resultat, filled(u"EAD : %.1f m", {depth}));
}

void NitroxController::oxygenWindow() {
    const auto window = nitrox::oxygenWindow(number({"winFO2"}) / 100, number({"winMinPpO2"}));
    show({"winResult"},
         strings().text(calculatortext::oxygenWindow, window.deepest, window.shallowest, window.usable));
}

void NitroxController::blendNitrox() {
    const auto blend = nitrox::blend(number({"pressionInitialeField"}), number({"fracO2InitialeField"}),
                                     number({"pressionFinaleField"}), number({"fracO2FinaleField"}));
    show(resultat, strings().text(calculatortext::oxygenToTransfer, blend.oxygen, blend.addedPercent));
}

}  // namespace sargan
