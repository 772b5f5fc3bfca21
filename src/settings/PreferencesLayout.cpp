#include "settings/Preferences.h"

namespace sargan {

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

constexpr Message<> main(const char* key) {
    return {"Main", key};
}

constexpr Message<> none{nullptr, nullptr};

LayoutItem field(const char* control, const Message<>& label = none) {
    return {.control = control, .label = label};
}

/// As wide as it is, so that what follows stands close to it.
LayoutItem narrow(const char* control, const Message<>& label) {
    return {.control = control, .label = label, .width = 1};
}

LayoutItem sized(const char* control, const Message<>& label, int width, const Message<>& unit = none) {
    return {.control = control, .label = label, .unit = unit, .width = width};
}

LayoutPane generalPane() {
    const LayoutSection newDive{ui("New dives"),
                                {{{sized("volumeBlocField", ui("Tank volume"), 7, ui("l"))}},
                                 {{sized("pressionBlocField", ui("Tank pressure"), 7, ui("bar"))}},
                                 {{sized("defaultWeightField", ui("Weight"), 7, ui("kg"))}}}};
    const LayoutSection units{ui("Units"),
                              {{{field("usUnitsSwitch", ui("Feet and degrees Fahrenheit"))}},
                               {{field("displayUnitsSwitch", ui("Units behind the values in tables"))}}}};
    const LayoutSection program{
        ui("Program"),
        {{{field("languagePopUp", ui("Language"))}}, {{field("appearancePopUp", ui("Appearance"))}}}};
    return {"general", main("General"), "GeneralPreferences", {newDive, units, program}};
}

LayoutPane logbookPane() {
    const LayoutSection depth{ui("Depth and time"),
                              {{{narrow("tableColorSwitch", ui("In colour"))}},
                               {{narrow("profondeurWell", ui("Colour of depths"))}},
                               {{narrow("dureeWell", ui("Colour of durations"))}}}};
    const LayoutSection words{ui("Dives that stand out"),
                              {{{field("itemColorSwitch", ui("Text in colour"))}},
                               {{field("textInColorField", ui("Text"))}},
                               {{field("themeInColorPopUp", ui("In the column"))}}}};
    const LayoutSection cold{ui("Cold water"),
                             {{{narrow("lowTemperatureSwitch", ui("In colour"))}},
                              {{sized("tempValueField", ui("Below"), 7), narrow("temperatureCaption", none)}},
                              {{narrow("lowTemperatureWell", ui("Colour"))}}},
                             true};
    const LayoutSection gas{ui("Breathing gas"), {{{narrow("mixInColorSwitch", ui("Mixes in colour"))}}}};
    const LayoutSection abroad{ui("Dives abroad"),
                               {{{narrow("foreignInColorSwitch", ui("In colour"))}},
                                {{sized("countryCodeField", ui("Home country code"), 8)}},
                                {{narrow("foreignWell", ui("Colour"))}}}};
    return {"carnet", main("Logbook"), "carnet", {depth, words, gas, cold, abroad}};
}

LayoutPane displayPane() {
    const LayoutSection columns{
        ui("Columns of the logbook"),
        {{{field("numeroColumnSwitch", ui("Number")), field("tempsColumnSwitch", ui("Duration"))}},
         {{field("dateColumnSwitch", ui("Date")), field("temperatureColumnSwitch", ui("Water temperature"))}},
         {{field("lieuColumnSwitch", ui("Place")), field("decoColumnSwitch", ui("Decompression"))}},
         {{field("siteColumnSwitch", ui("Site")), field("coeffColumnSwitch", ui("Tide"))}},
         {{field("heureColumnSwitch", ui("Time in")), field("visibiliteColumnSwitch", ui("Visibility"))}},
         {{field("profondeurColumnSwitch", ui("Dive depth")), field("inoubliableColumnSwitch", ui("Mark"))}},
         {{field("gazColumnSwitch", ui("Gas")), field("scaphColumnSwitch", ui("Apparatus"))}}}};
    return {"affichage", main("Display"), "colonnes", {columns}};
}

LayoutPane profilePane() {
    const LayoutSection line{
        ui("Line"), {{{narrow("plotColorWell", ui("Colour")), narrow("ppO2Switch", ui("ppO2 line"))}}}};
    const LayoutSection fill{
        ui("Area below the line"),
        {{{narrow("fillSwitch", ui("Filled"))}},
         {{narrow("fillColorWell", ui("Colour")), sized("alphaFillField", ui("Opacity, 0 to 1"), 6)}}}};
    const LayoutSection ground{ui("Background"),
                               {{{narrow("gradientYesSwitch", ui("Gradient"))}},
                                {{narrow("backgroundColorWell", ui("Colour")),
                                  sized("alphaBackgroundField", ui("Opacity, 0 to 1"), 6)}}}};
    const LayoutSection grid{ui("Grid"),
                             {{{narrow("gradientLinesColorWell", ui("Line colour")),
                                narrow("dashedLinesSwitch", ui("Dashed lines"))}},
                              {{narrow("xMinorTicksSwitch", ui("Small ticks of time")),
                                narrow("yMinorTicksSwitch", ui("Small ticks of depth"))}}}};
    return {"profil", main("Profile"), "profil", {line, fill, ground, grid}};
}

LayoutPane decoPane() {
    const LayoutSection stops{ui("Decompression stops"),
                              {{{sized("stopIntervalField", ui("Distance between stops"), 7, ui("m"))}}}};
    const LayoutSection factors{
        ui("Gradient factors"),
        {{{sized("lowGFField", ui("Low"), 7, ui("%"))}}, {{sized("highGFField", ui("High"), 7, ui("%"))}}}};
    return {"deco", main("Deco"), "deco", {stops, factors}};
}

LayoutPane rebreatherPane() {
    const LayoutSection newDive{ui("New dives"), {{{field("sodaLimeField", ui("CO₂ absorbent"))}}}};
    const LayoutSection cells{ui("Oxygen cells"),
                              {{{sized("cellLifeField", ui("Life of a cell"), 7, ui("months"))}}}};
    return {"rebreather", main("Rebreather"), "rebreather", {newDive, cells}};
}

}  // namespace

const WindowLayout& preferencesLayout() {
    static const WindowLayout layout{
        "Preferences",
        ui("Preferences"),
        {generalPane(), logbookPane(), displayPane(), profilePane(), decoPane(), rebreatherPane()}};
    return layout;
}

}  // namespace sargan
