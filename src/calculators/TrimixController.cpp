#include "calculators/TrimixController.h"

#include "calculators/CalculatorMessages.h"
#include "calculators/TrimixFormulas.h"

namespace sargan {

namespace {

constexpr ControlName fracO2{"fracO2TxField"};
constexpr ControlName resultat{"resultatField"};

}  // namespace

TrimixController::TrimixController(const CalculatorSpec& spec, Form& form, Desk& desk)
    : CalculatorController(spec, form, desk) {
    offer("calcEAD_END", [this] { calcEAD_END(); });
    offer("profMin", [this] { profMin(); });
    offer("calcBestTx", [this] { calcBestTx(); });
}

void TrimixController::calcEAD_END() {
    const auto depths =
        trimix::equivalentDepths(number(fracO2), number({"fracHeTxField"}), number({"profondeurMaxField"}));
    show(resultat, strings().text(calculatortext::eadEnd, depths.air, depths.narcotic));
}

void TrimixController::profMin() {
    const double oxygen = number(fracO2);
    show(resultat, trimix::isHypoxic(oxygen)
                       ? strings().text(calculatortext::profMin, trimix::leastDepth(oxygen))
                       : strings().text(calculatortext::noValidDatas));
}

void TrimixController::calcBestTx() {
    const auto mix = trimix::bestMix(number({"depthTxField"}), number({"ENDField"}), number({"ppO2Field"}));
    show(resultat, strings().text(calculatortext::bestTx, mix.oxygenPercent, mix.heliumPercent));
}

void TrimixController::showWin() {
    if (onShowWindow) onShowWindow();
}

}  // namespace sargan
