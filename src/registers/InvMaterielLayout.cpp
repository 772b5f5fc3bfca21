#include "registers/InvMateriel.h"
#include "registers/RegisterLayout.h"

namespace sargan {

using namespace registerlayout;

namespace {

constexpr MenuItem stateItems[] = {
    {0, {"Materiel", "En service", "N/A"}}, {1, {"Materiel", "A reparer", "N/A"}},
    {2, {"Materiel", "Reforme", "N/A"}},    {3, {"Materiel", "Gift", "N/A"}},
    {4, {"Materiel", "Sold", "N/A"}},       {5, {"Materiel", "Lost", "N/A"}},
    {6, {"Materiel", "Replace", "N/A"}},
};

constexpr MenuItem inspectionResultItems[] = {
    {0, {"Materiel", "TIV none"}},
    {1, {"Materiel", "TIV accepted"}},
    {2, {"Materiel", "TIV requalify"}},
    {3, {"Materiel", "TIV refused"}},
};

LayoutPane itemPage() {
    const LayoutSection item{
        ui("Item"),
        {row({sized("matosNoField", ui("Card number"), 8)}), row({field("typeMatosField", ui("Kind"))}),
         row({field("marqueMatosField", ui("Make"))}), row({field("serieMatosField", ui("Serial number"))}),
         row({sized("quantiteMatosField", ui("Quantity"), 6)}),
         row({field("equipStatePopUp", ui("Equipment state"))})}};
    const LayoutSection purchase{
        ui("Purchase"),
        {row({sized("dateAchatField", ui("Bought on"), 11)}), row({field("lieuAchatMatosField", ui("Shop"))}),
         row({sized("prixMatosField", ui("Price"), 10)}), row({field("factureMatosSwitch", ui("Invoice"))})},
        true};
    return {"itemPage", ui("Item"), "equipment", {item, purchase}};
}

LayoutPane inspectionPage() {
    const LayoutSection inspection{
        ui("Periodic inspection"),
        {row({field("noInspectionSwitch", ui("Needs none"))}),
         row({sized("lastRevisionField", ui("Last"), 11)}), row({sized("nextRevisionField", ui("Next"), 11)}),
         row({field("tempsProgress", ui("Period used up")), sized("tempsField", none, 6)}),
         row({field("statusField")})}};
    const LayoutSection cylinder{
        ui("Cylinder"),
        {row({field("blocSwitch", ui("Is a cylinder"))}), row({field("tankMakerField", ui("Maker"))}),
         row({sized("capaciteBlocField", ui("Capacity"), 7, ui("l"))}),
         row({sized("pressionServiceField", ui("Working pressure"), 7, ui("bar"))}),
         row({sized("pressionEpreuveField", ui("Test pressure"), 7, ui("bar"))}),
         row({sized("firstRequalificationDateField", ui("First test"), 11)}),
         row({sized("lastRequalificationField", ui("Last test"), 11)}),
         row({sized("nextRequalificationField", ui("Next test"), 11)})},
        true};
    const LayoutSection visual{
        ui("Visual inspection"),
        {row({field("tivSwitch", ui("Visually inspected"))}), row({field("nomTIVField", ui("Inspector"))}),
         row({field("noTIVField", ui("Inspector's number"))}), row({field("valveRefField", ui("Valve"))}),
         row({field("resultTIVPopUp", ui("Result"))})}};
    return {"inspectionPage", ui("Inspection"), "history", {inspection, visual, cylinder}};
}

LayoutPane notesPage() {
    return {"notesPage", ui("Remarks"), "notes", {{none, {row({field("notesMatosField")})}}}};
}

}  // namespace

namespace equipmentmenus {
const std::span<const MenuItem> state = stateItems;
const std::span<const MenuItem> inspectionResult = inspectionResultItems;
}  // namespace equipmentmenus

const WindowLayout& invMaterielLayout() {
    static const WindowLayout layout{
        "equipEditWindow", ui("Equipment"), {itemPage(), inspectionPage(), notesPage()}};
    return layout;
}

}  // namespace sargan
