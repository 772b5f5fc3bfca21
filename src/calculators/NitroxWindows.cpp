#include "calculators/CalculatorWindows.h"
#include "calculators/NitroxController.h"
#include "calculators/WindowBuilder.h"

namespace sargan {

namespace {

constexpr MenuItem ppO2Limits[] = {{0, calculatorWord("1.2 bar")},
                                   {1, calculatorWord("1.3 bar")},
                                   {2, calculatorWord("1.4 bar")},
                                   {3, calculatorWord("1.5 bar")},
                                   {4, calculatorWord("1.6 bar")}};
constexpr int usualLimit = 2;

CalculatorSpec nitroxWindow(WindowBuilder& builder) {
    return builder.of("Nitrox", "NitroxController", makeController<NitroxController>);
}

}  // namespace

QList<CalculatorSpec> nitroxWindows() {
    return {
        nitroxWindow(WindowBuilder("displayProfMaxWindow", "Nitrox Prof Max", "Maximum depth")
                         .input("fracO2Field", "Oxygen of the mix", "%")
                         .popUp("ppO2PopUp", "Maximum ppO₂", ppO2Limits, usualLimit)
                         .button("profMax")
                         .section("Result")
                         .result("resultatField")),
        nitroxWindow(WindowBuilder("displayBestMixWindow", "Nitrox Best Mix", "Best nitrox for a depth")
                         .input("profondeurMaxField", "Maximum depth", "m")
                         .popUp("ppO2PopUp", "Maximum ppO₂", ppO2Limits, usualLimit)
                         .button("bestMix")
                         .section("Result")
                         .result("resultatField")),
        nitroxWindow(
            WindowBuilder("displayEquivalentDepthWindow", "Nitrox Equivalent Depth", "Equivalent air depth")
                .input("fracO2Field", "Oxygen of the mix", "%")
                .input("profondeurField", "Depth", "m")
                .button("profEquivalente")
                .section("Result")
                .result("resultatField")),
        nitroxWindow(WindowBuilder("displayOxygenWindow", "Nitrox Oxygen Window", "Oxygen window")
                         .input("winFO2", "Oxygen of the mix", "%")
                         .input("winMinPpO2", "Minimum ppO₂", "bar")
                         .button("oxygenWindow")
                         .section("Result")
                         .result("winResult")),
        nitroxWindow(WindowBuilder("displayBlendNitroxWindow", "Blend Nitrox", "Nitrox blending")
                         .section("In the cylinder")
                         .input("pressionInitialeField", "Pressure", "bar")
                         .input("fracO2InitialeField", "Oxygen", "%")
                         .section("Wanted")
                         .input("pressionFinaleField", "Pressure", "bar")
                         .input("fracO2FinaleField", "Oxygen", "%")
                         .button("blendNitrox")
                         .section("Result")
                         .result("resultatField")),
    };
}

}  // namespace sargan
