#include "logbook/DiveLayout.h"

namespace sargan {

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

constexpr Message<> none{nullptr, nullptr};
constexpr Message<> metres = ui("m");
constexpr Message<> minutes = ui("min");
constexpr Message<> degrees = ui("°C");
constexpr Message<> bar = ui("bar");
constexpr Message<> litres = ui("l");
constexpr Message<> percent = ui("%");

LayoutItem field(const char* control, const Message<>& label = none) {
    return {.control = control, .label = label};
}

LayoutItem sized(const char* control, const Message<>& label, int width, const Message<>& unit = none) {
    return {.control = control, .label = label, .unit = unit, .width = width};
}

LayoutItem heading(const Message<>& words) {
    return {.label = words};
}

LayoutItem button(const char* action, const Message<>& words) {
    return {.action = action, .label = words};
}

LayoutPane generalPane() {
    const LayoutSection dive{
        ui("Dive"),
        {{{sized("plongeeNoField", ui("Number"), 7), field("typePlongeePopUp", ui("Type"))}},
         {{field("dateField", ui("Date")), field("heureField", ui("Time in"))}},
         {{field("nocturneSwitch", ui("Night dive")), field("inoubliablePopUp", ui("Mark"))}},
         {{field("difficulteSlider", ui("Difficulty")), field("difficulteField")}}}};
    const LayoutSection company{ui("Company"),
                                {{{field("partenairesField", ui("Buddies"))}},
                                 {{field("structureField", ui("Club or centre"))}},
                                 {{field("bateauField", ui("Boat"))}}}};
    const LayoutSection place{ui("Place"),
                              {{{field("lieuField", ui("Place"))}},
                               {{field("siteField", ui("Site"))}},
                               {{field("paysField", ui("Country"))}},
                               {{sized("countryCodeField", ui("Country code"), 8)}},
                               {{field("epavesField", ui("Wrecks"))}},
                               {{field("gpsField", ui("Position"))}},
                               {{field("gpsSystemPopUp", ui("Map datum"))}}},
                              true};
    return {"generalPane", ui("General"), "general", {dive, company, place}};
}

LayoutPane conditionsPane() {
    const LayoutSection sky{ui("Weather"),
                            {{{field("meteoPopUp", ui("Sky"))}},
                             {{field("ventSecteurPopUp", ui("Wind from"))}},
                             {{field("ventForcePopUp", ui("Wind force"))}},
                             {{sized("tempAirField", ui("Air"), 7, degrees)}}}};
    const LayoutSection water{ui("Water"),
                              {{{sized("tempEauField", ui("Water"), 7, degrees)}},
                               {{field("visibilitePopUp", ui("Visibility"))}},
                               {{field("courantPopUp", ui("Current"))}}},
                              true};
    const LayoutSection tide{
        ui("Tide"), {{{field("pmBmPopUp", ui("State"))}}, {{sized("coeffField", ui("Coefficient"), 7)}}}};
    return {"conditionsPane", ui("Conditions"), "conditions", {sky, water, tide}};
}

LayoutRow stage(const char* number, const char* depth, const char* time, const char* o2, const char* he) {
    return {{sized(depth, {"Interface", number, number}, 6), sized(time, none, 6), sized(o2, none, 6),
             sized(he, none, 6)}};
}

LayoutSection stages() {
    return {ui("Decompression stages"),
            {{{heading(ui("Depth (m)")), heading(ui("Time (min)")), heading(ui("O₂ (%)")),
               heading(ui("He (%)"))}},
             stage("1", "depthDeco_Level_1_Field", "timeDeco_Level_1_Field", "decoO2_Level_1_Field",
                   "decoHe_Level_1_Field"),
             stage("2", "depthDeco_Level_2_Field", "timeDeco_Level_2_Field", "decoO2_Level_2_Field",
                   "decoHe_Level_2_Field"),
             stage("3", "depthDeco_Level_3_Field", "timeDeco_Level_3_Field", "decoO2_Level_3_Field",
                   "decoHe_Level_3_Field"),
             stage("4", "depthDeco_Level_4_Field", "timeDeco_Level_4_Field", "decoO2_Level_4_Field",
                   "decoHe_Level_4_Field"),
             stage("5", "depthDeco_Level_5_Field", "timeDeco_Level_5_Field", "decoO2_Level_5_Field",
                   "decoHe_Level_5_Field"),
             stage("6", "depthDeco_Level_6_Field", "timeDeco_Level_6_Field", "decoO2_Level_6_Field",
                   "decoHe_Level_6_Field")},
            true};
}

LayoutPane decoPane() {
    const LayoutSection depth{ui("Depth and time"),
                              {{{sized("profondeurField", ui("Maximum depth"), 7, metres)}},
                               {{sized("tempsField", ui("Dive time"), 7, minutes)}},
                               {{sized("surfaceField", ui("Surface interval"), 9)}},
                               {{sized("altitudeField", ui("Altitude"), 7, metres)}},
                               {{sized("pAtmField", ui("Air pressure"), 7, ui("hPa"))}}}};
    const LayoutSection method{ui("Decompression"),
                               {{{field("decoPopUp", ui("Method"))}},
                                {{sized("deco_TTSField", ui("Time to surface"), 7, minutes)}},
                                {{field("decoSoftNameField", ui("Software"))}},
                                {{field("decoAlgoTypeField", ui("Algorithm"))}},
                                {{field("decoConservatismField", ui("Conservatism"))}},
                                {{sized("lowGFField", ui("Low gradient factor"), 7, percent)}},
                                {{sized("highGFField", ui("High gradient factor"), 7, percent)}}}};
    const LayoutSection runtime{ui("Run time"), {{{field("runtimeField")}}}};
    return {"decoPane", ui("Depth & deco"), "deco", {depth, method, stages(), runtime}};
}

struct TankControls {
    const char *material, *volume, *pressure, *start, *end, *gas, *o2, *n2, *he, *used;
};

QList<LayoutRow> tankRows(const TankControls& tank) {
    return {{{field(tank.material, ui("Material")), field(tank.gas, ui("Gas"))}},
            {{sized(tank.volume, ui("Volume"), 5, litres), sized(tank.o2, ui("O₂"), 6, percent)}},
            {{sized(tank.pressure, ui("Rated for"), 5, bar), sized(tank.n2, ui("N₂"), 6, percent)}},
            {{sized(tank.start, ui("Start"), 7, bar), sized(tank.he, ui("He"), 6, percent)}},
            {{sized(tank.end, ui("End"), 7, bar), field(tank.used, ui("Used"))}}};
}

LayoutRow bailout(const char* number, const char* volume, const char* start, const char* end, const char* o2,
                  const char* he) {
    return {{sized(volume, {"Interface", number, number}, 5), sized(start, none, 5), sized(end, none, 5),
             sized(o2, none, 5), sized(he, none, 5)}};
}

LayoutPane gasPane() {
    LayoutSection main{ui("Main tank"), tankRows({"alliageBlocPopUp", "volumeBlocField", "pressionBlocField",
                                                  "departField", "finField", "gazPopUp", "o2MixField",
                                                  "n2MixField", "heMixField", "deltaPressureField"})};
    main.rows.append({{field("cnsField", ui("Oxygen"))}});
    const LayoutSection shortcuts{none,
                                  {{{button("razAir", ui("Air")), button("razNitrox", ui("Nitrox")),
                                     button("razHeliox", ui("Heliox"))}}}};
    const LayoutSection second{ui("Second tank"),
                               tankRows({"alliageBloc_2PopUp", "volumeBloc_2Field", "pressionBloc_2Field",
                                         "depart_2Field", "fin_2Field", "gaz_2PopUp", "o2Mix_2Field",
                                         "n2Mix_2Field", "heMix_2Field", "deltaPressure_2Field"})};
    const LayoutSection apparatus{
        ui("Apparatus"),
        {{{field("rebreatherPopUp", ui("Apparatus")), sized("flowField", ui("Flow"), 6, ui("l/min"))}},
         {{field("ppO2PopUp", ui("Set-point")), field("lowSetpointPopUp", ui("Low set-point"))}},
         {{field("sodaTypeField", ui("CO₂ absorbent"))}}},
        true};
    const LayoutSection bailouts{ui("Bail-out tanks"),
                                 {{{heading(ui("Volume (l)")), heading(ui("Start (bar)")),
                                    heading(ui("End (bar)")), heading(ui("O₂ (%)")), heading(ui("He (%)"))}},
                                  bailout("1", "bailout_1_VolumeField", "bailout_1_DepartField",
                                          "bailout_1_FinField", "bailout_1_O2Field", "bailout_1_HeField"),
                                  bailout("2", "bailout_2_VolumeField", "bailout_2_DepartField",
                                          "bailout_2_FinField", "bailout_2_O2Field", "bailout_2_HeField"),
                                  bailout("3", "bailout_3_VolumeField", "bailout_3_DepartField",
                                          "bailout_3_FinField", "bailout_3_O2Field", "bailout_3_HeField")}};
    return {"gasPane", ui("Gas & tanks"), "gas", {main, shortcuts, second, apparatus, bailouts}};
}

LayoutPane equipmentPane() {
    const LayoutSection worn{ui("Worn"),
                             {{{field("combinaisonPopUp", ui("Suit"))}},
                              {{sized("lestageField", ui("Weight"), 7, ui("kg"))}},
                              {{field("configurationPopUp", ui("Configuration"))}}}};
    const LayoutSection computer{ui("Dive computer"),
                                 {{{field("fabricantField", ui("Maker"))}},
                                  {{field("ordinateurField", ui("Model"))}},
                                  {{field("serieField", ui("Serial number"))}},
                                  {{field("samplingRatePopUp", ui("One sample every"))}}}};
    const LayoutSection bag{ui("Dive bag"),
                            {{{field("equip_1Field", ui("1")), field("equip_7Field", ui("7"))}},
                             {{field("equip_2Field", ui("2")), field("equip_8Field", ui("8"))}},
                             {{field("equip_3Field", ui("3")), field("equip_9Field", ui("9"))}},
                             {{field("equip_4Field", ui("4")), field("equip_10Field", ui("10"))}},
                             {{field("equip_5Field", ui("5")), field("equip_11Field", ui("11"))}},
                             {{field("equip_6Field", ui("6")), field("equip_12Field", ui("12"))}}},
                            true};
    return {"equipmentPane", ui("Equipment"), "equipment", {worn, computer, bag}};
}

LayoutPane notesPane() {
    return {"notesPane", ui("Notes"), "notes", {{none, {{{field("notesField")}}}}}};
}

}  // namespace

const WindowLayout& diveLayout() {
    static const WindowLayout layout{
        "editWindow",
        ui("Dive"),
        {generalPane(), conditionsPane(), decoPane(), gasPane(), equipmentPane(), notesPane()}};
    return layout;
}

}  // namespace sargan
