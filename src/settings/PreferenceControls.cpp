#include "settings/InterfaceChoice.h"
#include "settings/PreferenceTable.h"

namespace sargan {

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

/// The column of the logbook whose cells the coloured text is looked for in.
constexpr MenuItem themes[] = {{0, ui("Place")}, {1, ui("Site")}, {2, ui("Visibility")}};

constexpr MenuItem languages[] = {{interfacechoice::SystemLanguage, ui("As the system")},
                                  {interfacechoice::English, ui("English")},
                                  {interfacechoice::French, ui("Français")}};

constexpr MenuItem appearances[] = {{interfacechoice::SystemAppearance, ui("As the system")},
                                    {interfacechoice::Light, ui("Light")},
                                    {interfacechoice::Dark, ui("Dark")}};

using enum ControlKind;

constexpr ControlSpec specs[] = {
    {.name = "volumeBlocField", .kind = Number},
    {.name = "pressionBlocField", .kind = Number},
    {.name = "defaultWeightField", .kind = Number},
    {.name = "usUnitsSwitch", .kind = Switch},
    {.name = "displayUnitsSwitch", .kind = Switch},
    {.name = "tableColorSwitch", .kind = Switch},
    {.name = "profondeurWell", .kind = Color},
    {.name = "dureeWell", .kind = Color},
    {.name = "itemColorSwitch", .kind = Switch},
    {.name = "textInColorField", .kind = Text},
    {.name = "themeInColorPopUp", .kind = PopUp, .menu = themes},
    {.name = "lowTemperatureSwitch", .kind = Switch},
    {.name = "tempValueField", .kind = Number},
    {.name = "temperatureCaption", .kind = Caption},
    {.name = "lowTemperatureWell", .kind = Color},
    {.name = "mixInColorSwitch", .kind = Switch},
    {.name = "foreignInColorSwitch", .kind = Switch},
    {.name = "foreignWell", .kind = Color},
    {.name = "countryCodeField", .kind = Combo, .pickList = "countryCode"},
    {.name = "numeroColumnSwitch", .kind = Switch},
    {.name = "dateColumnSwitch", .kind = Switch},
    {.name = "lieuColumnSwitch", .kind = Switch},
    {.name = "siteColumnSwitch", .kind = Switch},
    {.name = "heureColumnSwitch", .kind = Switch},
    {.name = "profondeurColumnSwitch", .kind = Switch},
    {.name = "tempsColumnSwitch", .kind = Switch},
    {.name = "temperatureColumnSwitch", .kind = Switch},
    {.name = "decoColumnSwitch", .kind = Switch},
    {.name = "coeffColumnSwitch", .kind = Switch},
    {.name = "visibiliteColumnSwitch", .kind = Switch},
    {.name = "inoubliableColumnSwitch", .kind = Switch},
    {.name = "gazColumnSwitch", .kind = Switch},
    {.name = "scaphColumnSwitch", .kind = Switch},
    {.name = "plotColorWell", .kind = Color},
    {.name = "backgroundColorWell", .kind = Color},
    {.name = "alphaBackgroundField", .kind = Number},
    {.name = "fillSwitch", .kind = Switch},
    {.name = "fillColorWell", .kind = Color},
    {.name = "alphaFillField", .kind = Number},
    {.name = "gradientYesSwitch", .kind = Switch},
    {.name = "gradientLinesColorWell", .kind = Color},
    {.name = "xMinorTicksSwitch", .kind = Switch},
    {.name = "yMinorTicksSwitch", .kind = Switch},
    {.name = "dashedLinesSwitch", .kind = Switch},
    {.name = "ppO2Switch", .kind = Switch},
    {.name = "stopIntervalField", .kind = Number},
    {.name = "lowGFField", .kind = Number},
    {.name = "highGFField", .kind = Number},
    {.name = "sodaLimeField", .kind = Text},
    {.name = "cellLifeField", .kind = Number},
    {.name = "languagePopUp", .kind = PopUp, .menu = languages},
    {.name = "appearancePopUp", .kind = PopUp, .menu = appearances},
};

}  // namespace

std::span<const ControlSpec> preferenceControls() {
    return specs;
}

}  // namespace sargan
