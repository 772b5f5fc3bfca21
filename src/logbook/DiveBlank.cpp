#include "logbook/DiveBlank.h"

#include "logbook/DiveControls.h"

namespace sargan {

namespace {

struct BlankText {
    const char* control;
    const char* text;
};

struct BlankTag {
    const char* control;
    int tag;
};

/// A control that starts with the text of a setting.
struct BlankSetting {
    const char* control;
    const char* key;
};

constexpr BlankText blankTexts[] = {
    {"plongeeNoField", ""},
    {"coeffField", "-"},
    {"lieuField", ""},
    {"siteField", ""},
    {"paysField", ""},
    {"partenairesField", ""},
    {"epavesField", ""},
    {"structureField", ""},
    {"bateauField", ""},
    {"tempEauField", "-"},
    {"tempAirField", "-"},
    {"surfaceField", "--:--"},
    {"profondeurField", ""},
    {"tempsField", ""},
    {"altitudeField", "0"},
    {"pAtmField", "0"},
    {"deco_TTSField", "-"},
    {"decoSoftNameField", "-"},
    {"decoAlgoTypeField", "-"},
    {"decoConservatismField", "-"},
    {"runtimeField", ""},
    {"flowField", "0"},
    {"departField", ""},
    {"finField", ""},
    {"o2MixField", "21"},
    {"n2MixField", "79"},
    {"heMixField", "0"},
    {"volumeBloc_2Field", ""},
    {"pressionBloc_2Field", ""},
    {"depart_2Field", ""},
    {"fin_2Field", ""},
    {"o2Mix_2Field", "21"},
    {"n2Mix_2Field", "79"},
    {"heMix_2Field", "0"},
    {"notesField", ""},
    {"decoO2_Level_1_Field", "-"},
    {"decoHe_Level_1_Field", "0"},
    {"timeDeco_Level_1_Field", "-"},
    {"decoO2_Level_2_Field", "-"},
    {"decoHe_Level_2_Field", "0"},
    {"timeDeco_Level_2_Field", "-"},
    {"decoO2_Level_3_Field", "-"},
    {"decoHe_Level_3_Field", "0"},
    {"timeDeco_Level_3_Field", "-"},
    {"decoO2_Level_4_Field", "-"},
    {"decoHe_Level_4_Field", "0"},
    {"timeDeco_Level_4_Field", "-"},
    {"decoO2_Level_5_Field", "-"},
    {"decoHe_Level_5_Field", "0"},
    {"timeDeco_Level_5_Field", "-"},
    {"decoO2_Level_6_Field", "-"},
    {"decoHe_Level_6_Field", "0"},
    {"timeDeco_Level_6_Field", "-"},
    {"bailout_1_VolumeField", "0"},
    {"bailout_1_DepartField", "0"},
    {"bailout_1_FinField", "0"},
    {"bailout_1_O2Field", "0"},
    {"bailout_1_HeField", "0"},
    {"bailout_2_VolumeField", "0"},
    {"bailout_2_DepartField", "0"},
    {"bailout_2_FinField", "0"},
    {"bailout_2_O2Field", "0"},
    {"bailout_2_HeField", "0"},
    {"bailout_3_VolumeField", "0"},
    {"bailout_3_DepartField", "0"},
    {"bailout_3_FinField", "0"},
    {"bailout_3_O2Field", "0"},
    {"bailout_3_HeField", "0"},
    {"equip_1Field", ""},
    {"equip_2Field", ""},
    {"equip_3Field", ""},
    {"equip_4Field", ""},
    {"equip_5Field", ""},
    {"equip_6Field", ""},
    {"equip_7Field", ""},
    {"equip_8Field", ""},
    {"equip_9Field", ""},
    {"equip_10Field", ""},
    {"equip_11Field", ""},
    {"equip_12Field", ""},
};

constexpr BlankTag blankTags[] = {
    {"pmBmPopUp", 0},         {"gpsSystemPopUp", 1},     {"meteoPopUp", 7},       {"ventSecteurPopUp", 0},
    {"ventForcePopUp", 0},    {"courantPopUp", 6},       {"visibilitePopUp", 7},  {"typePlongeePopUp", 8},
    {"inoubliablePopUp", 0},  {"nocturneSwitch", 0},     {"decoPopUp", 0},        {"rebreatherPopUp", 0},
    {"gazPopUp", 0},          {"gaz_2PopUp", 0},         {"ppO2PopUp", 0},        {"lowSetpointPopUp", 0},
    {"alliageBlocPopUp", 0},  {"alliageBloc_2PopUp", 0}, {"combinaisonPopUp", 0}, {"configurationPopUp", 1},
    {"samplingRatePopUp", 0}, {"difficulteSlider", 0},
};

constexpr BlankSetting blankSettings[] = {
    {"countryCodeField", "country code"},
    {"lowGFField", "low GF"},
    {"highGFField", "high GF"},
    {"sodaTypeField", "soda lime"},
    {"volumeBlocField", "tank volume"},
    {"pressionBlocField", "tank pressure"},
    {"fabricantField", "fabricant"},
    {"ordinateurField", "ordinateur"},
    {"serieField", "serie"},
};

constexpr ControlName stopDepths[] = {
    {"depthDeco_Level_1_Field"}, {"depthDeco_Level_2_Field"}, {"depthDeco_Level_3_Field"},
    {"depthDeco_Level_4_Field"}, {"depthDeco_Level_5_Field"}, {"depthDeco_Level_6_Field"},
};

/// A text that is there, also when it is empty.
QString present(const QString& text) {
    return text.isNull() ? QStringLiteral("") : text;
}

}  // namespace

void fillBlankDive(Form& form, const Desk& desk) {
    static const std::vector<QString> texts = [] {
        std::vector<QString> made;
        for (const BlankText& blank : blankTexts) made.push_back(QString::fromLatin1(blank.text));
        return made;
    }();
    for (std::size_t i = 0; i < texts.size(); ++i) form.setText(ControlName{blankTexts[i].control}, texts[i]);
    for (const auto& [control, tag] : blankTags) form.setTag(ControlName{control}, tag);
    for (const auto& [control, key] : blankSettings)
        form.setText(ControlName{control}, present(desk.defaults.text(QString::fromLatin1(key))));
    form.setText(ControlName{"gpsField"}, desk.strings.text({"Carnet", "GPS template"}));
    form.setText(ControlName{"lestageField"},
                 shortest(desk.defaults.number(QStringLiteral("default weight"))));

    const int interval = desk.defaults.integer(QStringLiteral("stop interval"));
    for (int stage = 1; const ControlName stop : stopDepths) form.setInteger(stop, stage++ * interval);

    const QDateTime now = desk.clock.now();
    form.setDate(form[divecontrol::date],
                 Moment::fromDateTime(QDateTime(
                     now.date(), QTime(now.time().hour(), now.time().minute(), now.time().second()))));
    form.setDate(form[divecontrol::heure], Moment::fromDateTime(QDateTime(QDate(2001, 1, 1), QTime(0, 0))));
}

}  // namespace sargan
