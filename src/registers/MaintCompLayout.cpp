#include "registers/MaintComp.h"
#include "registers/RegisterLayout.h"

namespace sargan {

using namespace registerlayout;

namespace {

constexpr MenuItem oilItems[] = {{0, ui("Mineral oil")}, {1, ui("Synthetic oil")}};
constexpr MenuItem filterItems[] = {{0, ui("Filter cleaned")}, {1, ui("Filter replaced")}};
constexpr MenuItem valveItems[] = {{0, ui("Valves verified")}, {1, ui("Valves recalibrated")}};
constexpr MenuItem unitItems[] = {{0, ui("ml/m³")}, {1, ui("ppm")}};

LayoutPane servicePage() {
    const LayoutSection machine{
        ui("Compressor"),
        {row({field("marqueField", ui("Make"))}), row({field("modeleField", ui("Model"))})}};
    const LayoutSection service{
        ui("Service done"),
        {row({sized("dateField", ui("Date"), 11)}), row({sized("tempsField", ui("Time run"), 7)}),
         row({sized("cumulTempsField", ui("Hours in all"), 9)})}};
    return {"servicePage", ui("Service done"), "general", {machine, service}};
}

LayoutPane operationsPage() {
    const LayoutSection oil{
        ui("Oil and air filter"),
        {row({field("vidangeSwitch", ui("Oil changed"))}), row({field("typeHuileMatrix")}),
         row({field("filtreAirSwitch", ui("Air filter serviced"))}), row({field("operationFiltreMatrix")})}};
    const LayoutSection cartridge{ui("Purification"),
                                  {row({field("cartoucheSwitch", ui("Whole cartridge replaced"))}),
                                   row({field("charbonSwitch", ui("Activated charcoal renewed"))}),
                                   row({field("alumineSwitch", ui("Activated alumina renewed"))}),
                                   row({field("tamisSwitch", ui("Molecular sieve renewed"))})},
                                  true};
    const LayoutSection machine{
        ui("Machine"),
        {row({field("depoussierageSwitch", ui("Cleaned of dust"))}),
         row({field("controlesSwitch", ui("Checks made"))}),
         row({field("soupapesSwitch", ui("Safety valves serviced"))}), row({field("intSoupapeMatrix")})}};
    return {"operationsPage", ui("Operations"), "equipment", {oil, cartridge, machine}};
}

LayoutPane analysesPage() {
    const LayoutSection air{ui("Air analysis (-1: not measured)"),
                            {row({sized("anHuileField", ui("Oil"), 8, ui("mg/m³"))}),
                             row({sized("anCO2Field", ui("CO2"), 8), sized("anCO2UnitPopUp", none, 8)}),
                             row({sized("anCOField", ui("CO"), 8), sized("anCOUnitPopUp", none, 8)}),
                             row({sized("anH2OField", ui("Water"), 8, ui("ml/m³"))})}};
    const LayoutSection notes{ui("Remarks"), {row({field("notesField")})}, true};
    return {"analysesPage", ui("Analyses & remarks"), "notes", {air, notes}};
}

}  // namespace

namespace compressormenus {
const std::span<const MenuItem> oil = oilItems;
const std::span<const MenuItem> filterWork = filterItems;
const std::span<const MenuItem> valveWork = valveItems;
const std::span<const MenuItem> gasUnit = unitItems;
}  // namespace compressormenus

const WindowLayout& maintCompLayout() {
    static const WindowLayout layout{
        "serviceEditWindow", ui("Compressor service"), {servicePage(), operationsPage(), analysesPage()}};
    return layout;
}

}  // namespace sargan
