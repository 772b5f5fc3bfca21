#include "calculators/CalculatorWindows.h"
#include "calculators/SCRCCRController.h"
#include "calculators/WindowBuilder.h"

namespace sargan {

namespace {

CalculatorSpec rebreatherWindow(WindowBuilder& builder) {
    return builder.of("Rebreather", "SCRCCRController", makeController<SCRCCRController>);
}

WindowBuilder& table(WindowBuilder& builder, const char* title, std::initializer_list<const char*> rows) {
    builder.section(title, true);
    for (const char* row : rows) builder.result(row);
    return builder;
}

CalculatorSpec sodaTime() {
    return rebreatherWindow(WindowBuilder("displaySodaTimeWindow", "Soda Time", "Absorbent endurance")
                                .input("sodaWeightField", "Absorbent", "kg")
                                .input("sodaCapacityField", "CO₂ it absorbs", "l/kg")
                                .input("metabolicProductionField", "CO₂ produced", "l/min")
                                .button("calcSodaTime")
                                .section("Result")
                                .result("sodaTimeField"));
}

CalculatorSpec loopFlush() {
    return rebreatherWindow(WindowBuilder("displayLoopFlushWindow", "Loop Flush", "Loop flush")
                                .input("loopMaxDepthField", "Depth", "m")
                                .input("loopPpO2Field", "ppO₂ after the flush", "bar")
                                .button("calcLoopFlush")
                                .section("Result")
                                .result("loopFracO2Field"));
}

CalculatorSpec bestDiluent() {
    return rebreatherWindow(
        WindowBuilder("displayCCRBestTrimixWindow", "CCR Best Trimix", "Best diluent of a closed circuit")
            .input("depthCCR_TxField", "Maximum depth", "m")
            .input("ENDCCR_TxField", "Equivalent narcotic depth", "m")
            .input("PpO2FlushCCR_TxField", "ppO₂ of the flush (noted only: 1.0 bar is used)", "bar")
            .button("calcCCRBestTx")
            .section("Result")
            .result("CCR_BestTxField"));
}

CalculatorSpec breathedOxygen() {
    WindowBuilder builder("displaySCRBreathedFracO2Window", "SCR Breathed Frac O2",
                          "Oxygen breathed on a semi-closed circuit");
    builder.section("Apparatus")
        .input("brEanxField", "Oxygen of the supply", "%")
        .input("brFlowField", "Supply flow", "l/min")
        .input("brMetabolicField", "Oxygen consumption", "l/min")
        .button("calcBreathedFracO2")
        .section("Result")
        .result("breathedFracO2Field");
    return rebreatherWindow(table(builder, "By oxygen consumption",
                                  {"c08Field", "c09Field", "c10Field", "c11Field", "c12Field", "c13Field",
                                   "c14Field", "c15Field", "c16Field", "c17Field", "c18Field"}));
}

CalculatorSpec idealFlow() {
    WindowBuilder builder("displaySCRIdealFlowWindow", "SCR Flow Calc", "Flow of a semi-closed circuit");
    builder.section("Apparatus")
        .input("idEanxField", "Oxygen of the supply", "%")
        .input("idMetabolicField", "Oxygen consumption", "l/min")
        .input("idRealFracO2Field", "Oxygen wanted in the loop", "%")
        .button("calcIdealFlow")
        .section("Result")
        .result("idealFlowField");
    return rebreatherWindow(table(builder, "By oxygen consumption",
                                  {"d08Field", "d09Field", "d10Field", "d11Field", "d12Field", "d13Field",
                                   "d14Field", "d15Field", "d16Field", "d17Field", "d18Field"}));
}

}  // namespace

QList<CalculatorSpec> rebreatherWindows() {
    return {sodaTime(), loopFlush(), bestDiluent(), breathedOxygen(), idealFlow()};
}

}  // namespace sargan
