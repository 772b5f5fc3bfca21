#include "registers/RebreatherServ.h"
#include "registers/RegisterLayout.h"

namespace sargan {

using namespace registerlayout;

namespace {

LayoutPane interventionPage() {
    const LayoutSection day{ui("Intervention"),
                            {row({withButton("dateField", ui("Date"), "resetDateToNow", ui("Today"))}),
                             row({sized("rebreatherTimeField", ui("Loop time"), 8)}),
                             row({sized("sofnoTimeField", ui("Absorbent time"), 8)})}};
    const LayoutSection work{ui("Work done"),
                             {row({field("sofnolimeSwitch", ui("CO2 absorbent changed"))}),
                              row({field("disinfectionSwitch", ui("Loop disinfected"))}),
                              row({field("batterySwitch", ui("Battery changed"))}),
                              row({field("injectorSwitch", ui("Injector serviced"))}),
                              row({field("valveSwitch", ui("Valves serviced"))}),
                              row({field("oRingSwitch", ui("O-rings changed"))}),
                              row({field("scrubberSwitch", ui("Scrubber serviced"))}),
                              row({field("electronicHeadSwitch", ui("Electronic head serviced"))}),
                              row({field("mpO2Switch", ui("O2 intermediate pressure"))}),
                              row({sized("mpO2ValueField", ui("O2 pressure"), 7, ui("bar"))})},
                             true};
    return {"interventionPage", ui("Intervention"), "general", {day, work}};
}

LayoutRow cellRow(const char* fitted, const Message<>& label, const char* type, const char* in,
                  const char* out, const char* gauge) {
    return row({sized(fitted, label, 1), field(type), sized(in, none, 11), sized(out, none, 11),
                sized(gauge, none, 12)});
}

LayoutPane cellsPage() {
    const LayoutSection replaced{
        ui("Cells replaced"),
        {row({field("cellsSwitch", ui("Cells replaced"))}), row({sized("nbCellsPopUp", ui("How many"), 5)})}};
    const LayoutSection fitted{ui("Cells fitted"),
                               {row({heading(none), heading(ui("Cell type")), heading(ui("Fitted on")),
                                     heading(ui("End of life")), heading(ui("Life used"))}),
                                cellRow("cell1Switch", ui("Cell 1"), "typeCell1Field", "cell1_inField",
                                        "cell1_outField", "cell1Progress"),
                                cellRow("cell2Switch", ui("Cell 2"), "typeCell2Field", "cell2_inField",
                                        "cell2_outField", "cell2Progress"),
                                cellRow("cell3Switch", ui("Cell 3"), "typeCell3Field", "cell3_inField",
                                        "cell3_outField", "cell3Progress"),
                                cellRow("cell4Switch", ui("Cell 4"), "typeCell4Field", "cell4_inField",
                                        "cell4_outField", "cell4Progress"),
                                cellRow("cell5Switch", ui("Cell 5"), "typeCell5Field", "cell5_inField",
                                        "cell5_outField", "cell5Progress")}};
    return {"cellsPage", ui("Oxygen cells"), "gas", {replaced, fitted}};
}

LayoutPane notesPage() {
    return {"notesPage", ui("Remarks"), "notes", {{ui("Remarks"), {row({field("notesField")})}}}};
}

}  // namespace

const WindowLayout& rebreatherServLayout() {
    static const WindowLayout layout{"rebreatherEditWindow",
                                     ui("Rebreather intervention"),
                                     {interventionPage(), cellsPage(), notesPage()}};
    return layout;
}

}  // namespace sargan
