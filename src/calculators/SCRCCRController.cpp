#include "calculators/SCRCCRController.h"

#include "calculators/CalculatorMessages.h"
#include "calculators/RebreatherFormulas.h"
#include "platform/form/SystemColors.h"

namespace sargan {

namespace {

/// The table rows for 0.8 to 1.8 l/min, in the order of rebreather::consumptions.
using Rows = std::array<ControlName, rebreather::consumptions.size()>;
constexpr Rows breathedRows{{{"c08Field"},
                             {"c09Field"},
                             {"c10Field"},
                             {"c11Field"},
                             {"c12Field"},
                             {"c13Field"},
                             {"c14Field"},
                             {"c15Field"},
                             {"c16Field"},
                             {"c17Field"},
                             {"c18Field"}}};
constexpr Rows flowRows{{{"d08Field"},
                         {"d09Field"},
                         {"d10Field"},
                         {"d11Field"},
                         {"d12Field"},
                         {"d13Field"},
                         {"d14Field"},
                         {"d15Field"},
                         {"d16Field"},
                         {"d17Field"},
                         {"d18Field"}}};

void tint(Form& form, ControlName row, rebreather::Verdict verdict) {
    if (verdict == rebreather::Verdict::Same) return;
    form.setColor(form[row],
                  verdict == rebreather::Verdict::Dangerous ? systemcolor::red : systemcolor::black);
}

}  // namespace

SCRCCRController::SCRCCRController(const CalculatorSpec& spec, Form& form, Desk& desk)
    : CalculatorController(spec, form, desk) {
    offer("calcSodaTime", [this] { calcSodaTime(); });
    offer("calcLoopFlush", [this] { calcLoopFlush(); });
    offer("calcCCRBestTx", [this] { calcCCRBestTx(); });
    offer("calcBreathedFracO2", [this] { calcBreathedFracO2(); });
    offer("calcIdealFlow", [this] { calcIdealFlow(); });
}

void SCRCCRController::calcSodaTime() {
    const auto time = rebreather::endurance(rebreather::absorbentMinutes(
        number({"sodaWeightField"}), number({"sodaCapacityField"}), number({"metabolicProductionField"})));
    show({"sodaTimeField"}, strings().text(calculatortext::sodaTime, {time.hours}, {time.minutes}));
}

void SCRCCRController::calcLoopFlush() {
    const double share = rebreather::flushShare(number({"loopMaxDepthField"}), number({"loopPpO2Field"}));
    show({"loopFracO2Field"}, strings().text(calculatortext::loopFlush, share * 100));
}

void SCRCCRController::calcCCRBestTx() {
    const auto mix = rebreather::bestDiluent(number({"depthCCR_TxField"}), number({"ENDCCR_TxField"}));
    show({"CCR_BestTxField"},
         strings().text(calculatortext::bestCcrTrimix, mix.oxygenPercent, mix.heliumPercent));
}

void SCRCCRController::calcBreathedFracO2() {
    const double supply = share({"brEanxField"});
    const double flow = number({"brFlowField"});
    const auto percent = [&](double consumption) {
        return rebreather::breathedShare(supply, flow, consumption) * 100;
    };
    show({"breathedFracO2Field"},
         strings().text(calculatortext::breathedFrac, percent(number({"brMetabolicField"}))));
    for (std::size_t i = 0; i < breathedRows.size(); ++i) {
        const double consumption = rebreather::consumptions[i];
        const double breathed = percent(consumption);
        show(breathedRows[i], strings().text(calculatortext::tableBreathedFrac, consumption, breathed));
        tint(form(), breathedRows[i], rebreather::breathedVerdict(breathed));
    }
}

void SCRCCRController::calcIdealFlow() {
    const double loop = share({"idRealFracO2Field"});
    const double supply = share({"idEanxField"});
    show({"idealFlowField"},
         strings().text(calculatortext::idealFlow,
                        rebreather::idealFlow(supply, loop, number({"idMetabolicField"}))));
    for (std::size_t i = 0; i < flowRows.size(); ++i) {
        const double consumption = rebreather::consumptions[i];
        const double flow = rebreather::idealFlow(supply, loop, consumption);
        show(flowRows[i], strings().text(calculatortext::tableFlow, consumption, flow));
        tint(form(), flowRows[i], rebreather::flowVerdict(flow));
    }
}

}  // namespace sargan
