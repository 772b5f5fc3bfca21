#include "registers/RegisterLayout.h"
#include "registers/RepEpaves.h"

namespace sargan {

using namespace registerlayout;

namespace {

constexpr MenuItem materialItems[] = {
    {0, {"Epaves", "N/A", "N/A"}}, {1, {"Epaves", "Wood"}},     {2, {"Epaves", "Iron"}},
    {3, {"Epaves", "Polyester"}},  {4, {"Epaves", "Concrete"}},
};

constexpr MenuItem propulsionItems[] = {
    {0, {"Epaves", "N/A", "N/A"}},  {1, {"Epaves", "Fuel"}},    {2, {"Epaves", "Diesel"}},
    {3, {"Epaves", "Kerosen"}},     {4, {"Epaves", "Nuclear"}}, {5, {"Epaves", "Oar"}},
    {6, {"Epaves", "Steam"}},       {7, {"Epaves", "Sail"}},    {8, {"Epaves", "Trailed"}},
    {9, {"Epaves", "Diesel elec"}},
};

constexpr MenuItem powerUnitItems[] = {
    {0, {"Epaves", " cv", " cv"}},   {1, {"Epaves", " kW", " kW"}},   {2, {"Epaves", " nhp", " nhp"}},
    {3, {"Epaves", " shp", " shp"}}, {4, {"Epaves", " ihp", " ihp"}}, {5, {"Epaves", " ...", " ..."}},
};

constexpr MenuItem heelItems[] = {
    {0, {"Epaves", "N/A", "N/A"}},
    {1, {"Epaves", "None"}},
    {2, {"Epaves", "Port"}},
    {3, {"Epaves", "Starboard"}},
};

constexpr MenuItem difficultyItems[] = {
    {0, {"Epaves", "N/A", "N/A"}},
    {1, {"Epaves", "Easy"}},
    {2, {"Epaves", "Medium"}},
    {3, {"Epaves", "Difficult"}},
};

constexpr MenuItem positionSystemItems[] = {
    {0, {"Carnet", "Position other"}},
    {1, {"Carnet", "WGS84", "WGS84"}},
    {2, {"Carnet", "ED50", "ED50"}},
};

LayoutPane wreckPage() {
    const LayoutSection identity{
        ui("Wreck"),
        {row({field("nomField", ui("Name"))}), row({field("typeField", ui("Kind of vessel"))}),
         row({field("immatriculationField", ui("Registration"))}),
         row({field("nationaliteField", ui("Nationality"))})}};
    const LayoutSection hull{
        ui("Hull"),
        {row({sized("longueurField", ui("Length"), 7, ui("m")),
              sized("largeurField", ui("Beam"), 7, ui("m"))}),
         row({sized("jaugeField", ui("Tonnage"), 9), field("materiauPopUp", ui("Hull material"))})}};
    const LayoutSection engine{ui("Engine"),
                               {row({field("propulsionPopUp", ui("Propulsion"))}),
                                row({field("typeMachineField", ui("Engine type"))}),
                                row({field("puissanceField", ui("Power")), field("puissancePopUp")})},
                               true};
    const LayoutSection card{ui("Card"),
                             {row({{.control = "miseAJourField",
                                    .action = "resetDateToNow",
                                    .label = ui("Updated on"),
                                    .width = 11,
                                    .button = ui("Today")}})}};
    return {"wreckPage", ui("Wreck"), "general", {identity, hull, engine, card}};
}

LayoutPane placePage() {
    const LayoutSection place{
        ui("Place"),
        {row({field("lieuField", ui("Place"))}), row({field("siteField", ui("Site"))}),
         row({field("paysField", ui("Country"))}), row({field("gpsField", ui("Position"))}),
         row({field("gpsSystemPopUp", ui("Map datum"))})}};
    const LayoutSection bottom{
        ui("On the bottom"),
        {row({sized("pointHautField", ui("Top"), 7, ui("m")),
              sized("pointBasField", ui("Bottom"), 7, ui("m"))}),
         row({field("natureFondField", ui("Sea bed"))}),
         row({field("orientationSwitch", ui("Heading known")),
              sized("orientationField", ui("Heading"), 5, ui("°"))}),
         row({field("orientationSlider")}), row({field("inclinaisonPopUp", ui("Heel"))})},
        true};
    const LayoutSection marks{
        ui("Landmarks"),
        {row({field("relevement1Field", ui("Bearing 1"))}), row({field("relevement2Field", ui("Bearing 2"))}),
         row({field("relevement3Field", ui("Bearing 3"))})}};
    return {"placePage", ui("Place"), "place", {place, marks, bottom}};
}

LayoutPane historyPage() {
    const LayoutSection life{
        ui("Ship"),
        {row({field("nomsPrecedentsField", ui("Previous names"))}),
         row({field("armateurField", ui("Owner"))}), row({field("portsField", ui("Home ports"))}),
         row({field("dateConstructionField", ui("Built on"))}),
         row({field("lieuConstructionField", ui("Built at"))})}};
    const LayoutSection loss{
        ui("Last voyage"),
        {row({field("capitaineField", ui("Master"))}), row({field("equipageField", ui("Crew"))}),
         row({field("chargementField", ui("Cargo"))}), row({field("provenanceField", ui("From"))}),
         row({field("destinationField", ui("Bound for"))}), row({field("dateNaufrageField", ui("Sunk on"))}),
         row({field("causeNaufrageField", ui("Cause"))})},
        true};
    return {"historyPage", ui("History"), "history", {life, loss}};
}

LayoutPane divingPage() {
    const LayoutSection access{ui("Getting there"),
                               {row({field("accesPopUp", ui("Access"))}),
                                row({field("accesBordSwitch", ui("Access from the shore"))}),
                                row({field("localisationPopUp", ui("Finding it"))})}};
    const LayoutSection rating{
        ui("Rating"),
        {row({field("interetSlider", ui("Interest")), sized("interetInfoField", none, 3)}),
         row({field("techniciteSlider", ui("Difficulty")), sized("techniciteInfoField", none, 3)})}};
    const LayoutSection visit{ui("Visit"),
                              {row({field("aVisiterSwitch", ui("Still to be visited"))}),
                               row({sized("dateVisiteField", ui("First visit"), 11)})},
                              true};
    return {"divingPage", ui("Diving"), "conditions", {access, rating, visit}};
}

LayoutPane notesPage() {
    const LayoutSection photo{ui("Photograph"), {row({field("photoWell")})}};
    const LayoutSection notes{ui("Remarks"), {row({field("notesField")})}, true};
    return {"notesPage", ui("Photo & remarks"), "picture", {photo, notes}};
}

}  // namespace

namespace wreckmenus {
const std::span<const MenuItem> material = materialItems;
const std::span<const MenuItem> propulsion = propulsionItems;
const std::span<const MenuItem> powerUnit = powerUnitItems;
const std::span<const MenuItem> heel = heelItems;
const std::span<const MenuItem> difficulty = difficultyItems;
const std::span<const MenuItem> positionSystem = positionSystemItems;
}  // namespace wreckmenus

const WindowLayout& repEpavesLayout() {
    static const WindowLayout layout{
        "wreckEditWindow", ui("Wreck"), {wreckPage(), placePage(), historyPage(), divingPage(), notesPage()}};
    return layout;
}

}  // namespace sargan
