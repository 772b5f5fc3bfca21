#include "calculators/CalculatorWindows.h"
#include "calculators/TrimixController.h"
#include "calculators/WindowBuilder.h"

namespace sargan {

namespace {

CalculatorSpec trimixWindow(WindowBuilder& builder) {
    return builder.of("Trimix", "TrimixController", makeController<TrimixController>);
}

}  // namespace

QList<CalculatorSpec> trimixWindows() {
    return {
        trimixWindow(
            WindowBuilder("displayTrimixEAD_ENDWindow", "Trimix", "Equivalent air and narcotic depth")
                .input("profondeurMaxField", "Depth", "m")
                .input("fracO2TxField", "Oxygen of the mix", "%")
                .input("fracHeTxField", "Helium of the mix", "%")
                .button("calcEAD_END")
                .section("Result")
                .result("resultatField")),
        trimixWindow(WindowBuilder("displayTrimixProfMinWindow", "Trimix Prof Min", "Minimum depth")
                         .input("fracO2TxField", "Oxygen of the mix", "%")
                         .button("profMin")
                         .section("Result")
                         .result("resultatField")),
        trimixWindow(WindowBuilder("displayBestTrimix", "Best Trimix", "Best trimix for a depth")
                         .input("depthTxField", "Depth", "m")
                         .input("ENDField", "Equivalent narcotic depth", "m")
                         .input("ppO2Field", "ppO₂ at that depth", "bar")
                         .button("calcBestTx")
                         .section("Result")
                         .result("resultatField")),
    };
}

}  // namespace sargan
