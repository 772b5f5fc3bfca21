#include "logbook/DiveControls.h"

#include "logbook/DiveMenus.h"

namespace sargan {

namespace {

using F = PlongeeFields;

constexpr const char* tankVolumes[] = {"36", "33", "30", "24", "22", "20", "18", "15",
                                       "12", "11", "10", "9",  "6",  "5",  "4",  "2"};
constexpr const char* tankPressures[] = {"300", "232", "207", "200", "176"};
constexpr const char* planningSoftware[] = {"Z Planner",   "V Planner", "MultiDeco", "GAP-Diveplanner",
                                            "Decoplanner", "Abyss",     "..."};
constexpr const char* algorithms[] = {"ZHL16-C + GF", "ZHL16-C", "ZHL16-B", "VPM-B/E",      "VPM-B",
                                      "VPM-A",        "RGBM",    "MF11F6",  "B\u00fchlmannC-GF", "B\u00fchlmannB-GF"};

}  // namespace

std::span<const DiveControl> diveControls() {
    using enum ControlKind;
    static const DiveControl controls[] = {
        // General
        {{.name = "plongeeNoField", .kind = Number}, &F::noPlongee},
        {{.name = "dateField", .kind = Date}, &F::date},
        {{.name = "heureField", .kind = Time}, &F::heure},
        {{.name = "lieuField", .kind = Combo, .pickList = "lieux"}, &F::lieu},
        {{.name = "siteField", .kind = Combo, .pickList = "sites"}, &F::site},
        {{.name = "paysField", .kind = Combo, .pickList = "pays"}, &F::pays},
        {{.name = "countryCodeField", .kind = Combo, .pickList = "countryCode"}, &F::countryCode},
        {{.name = "gpsField", .kind = Text}, &F::gps},
        {{.name = "gpsSystemPopUp", .kind = PopUp, .menu = divemenus::positionSystem}, &F::gpsSystem},
        {{.name = "coeffField", .kind = Number}, &F::coeff},
        {{.name = "pmBmPopUp", .kind = PopUp, .menu = divemenus::tide}, &F::pmBm},
        {{.name = "partenairesField", .kind = Combo, .pickList = "partenaires"}, &F::partenaires},
        {{.name = "epavesField", .kind = Combo, .pickList = "epaves"}, &F::epaves},
        {{.name = "structureField", .kind = Combo, .pickList = "structures"}, &F::structure},
        {{.name = "bateauField", .kind = Text}, &F::bateau},
        // Conditions
        {{.name = "meteoPopUp", .kind = PopUp, .menu = divemenus::weather}, &F::meteo},
        {{.name = "ventSecteurPopUp", .kind = PopUp, .menu = divemenus::windSector}, &F::ventSecteur},
        {{.name = "ventForcePopUp", .kind = PopUp, .menu = divemenus::windForce}, &F::ventForce},
        {{.name = "courantPopUp", .kind = PopUp, .menu = divemenus::current}, &F::courant},
        {{.name = "visibilitePopUp", .kind = PopUp, .menu = divemenus::visibility}, &F::visibilite},
        {{.name = "typePlongeePopUp", .kind = PopUp, .menu = divemenus::diveType}, &F::typePlongee},
        {{.name = "nocturneSwitch", .kind = Switch}, &F::nocturne},
        {{.name = "inoubliablePopUp", .kind = PopUp, .menu = divemenus::unforgettable}, &F::inoubliable},
        {{.name = "tempEauField", .kind = Number}, &F::tempEau},
        {{.name = "tempAirField", .kind = Number}, &F::tempAir},
        {{.name = "surfaceField", .kind = Text}, &F::surface},
        {{.name = "difficulteSlider", .kind = Slider, .maximum = 5}, &F::difficulte},
        {{.name = "difficulteField", .kind = Caption}, nullptr},
        // Depth, time and decompression
        {{.name = "profondeurField", .kind = Number}, &F::profondeur},
        {{.name = "tempsField", .kind = Number}, &F::temps},
        {{.name = "altitudeField", .kind = Number}, &F::altitude},
        {{.name = "pAtmField", .kind = Number}, &F::pAtm},
        {{.name = "decoPopUp", .kind = PopUp, .menu = divemenus::deco}, &F::deco},
        {{.name = "deco_TTSField", .kind = Number}, &F::deco_TTS},
        {{.name = "decoSoftNameField", .kind = Combo, .choices = planningSoftware}, &F::decoSoftName},
        {{.name = "decoAlgoTypeField", .kind = Combo, .choices = algorithms}, &F::decoAlgoType},
        {{.name = "decoConservatismField", .kind = Text}, &F::decoConservatism},
        {{.name = "lowGFField", .kind = Number}, &F::lowGF},
        {{.name = "highGFField", .kind = Number}, &F::highGF},
        {{.name = "runtimeField", .kind = Area}, &F::runtime},
        {{.name = "decoO2_Level_1_Field", .kind = Number}, &F::decoO2_Level_1},
        {{.name = "decoHe_Level_1_Field", .kind = Number}, &F::decoHe_Level_1},
        {{.name = "depthDeco_Level_1_Field", .kind = Number}, &F::decoDepth_Level_1},
        {{.name = "timeDeco_Level_1_Field", .kind = Number}, &F::decoTime_Level_1},
        {{.name = "decoO2_Level_2_Field", .kind = Number}, &F::decoO2_Level_2},
        {{.name = "decoHe_Level_2_Field", .kind = Number}, &F::decoHe_Level_2},
        {{.name = "depthDeco_Level_2_Field", .kind = Number}, &F::decoDepth_Level_2},
        {{.name = "timeDeco_Level_2_Field", .kind = Number}, &F::decoTime_Level_2},
        {{.name = "decoO2_Level_3_Field", .kind = Number}, &F::decoO2_Level_3},
        {{.name = "decoHe_Level_3_Field", .kind = Number}, &F::decoHe_Level_3},
        {{.name = "depthDeco_Level_3_Field", .kind = Number}, &F::decoDepth_Level_3},
        {{.name = "timeDeco_Level_3_Field", .kind = Number}, &F::decoTime_Level_3},
        {{.name = "decoO2_Level_4_Field", .kind = Number}, &F::decoO2_Level_4},
        {{.name = "decoHe_Level_4_Field", .kind = Number}, &F::decoHe_Level_4},
        {{.name = "depthDeco_Level_4_Field", .kind = Number}, &F::decoDepth_Level_4},
        {{.name = "timeDeco_Level_4_Field", .kind = Number}, &F::decoTime_Level_4},
        {{.name = "decoO2_Level_5_Field", .kind = Number}, &F::decoO2_Level_5},
        {{.name = "decoHe_Level_5_Field", .kind = Number}, &F::decoHe_Level_5},
        {{.name = "depthDeco_Level_5_Field", .kind = Number}, &F::decoDepth_Level_5},
        {{.name = "timeDeco_Level_5_Field", .kind = Number}, &F::decoTime_Level_5},
        {{.name = "decoO2_Level_6_Field", .kind = Number}, &F::decoO2_Level_6},
        {{.name = "decoHe_Level_6_Field", .kind = Number}, &F::decoHe_Level_6},
        {{.name = "depthDeco_Level_6_Field", .kind = Number}, &F::decoDepth_Level_6},
        {{.name = "timeDeco_Level_6_Field", .kind = Number}, &F::decoTime_Level_6},
        // Gas and tanks
        {{.name = "rebreatherPopUp", .kind = PopUp, .menu = divemenus::apparatus}, &F::rebreather},
        {{.name = "flowField", .kind = Number}, &F::flow},
        {{.name = "sodaTypeField", .kind = Text}, &F::sodaType},
        {{.name = "ppO2PopUp", .kind = PopUp, .menu = divemenus::setPoint}, &F::ppO2},
        {{.name = "lowSetpointPopUp", .kind = PopUp, .menu = divemenus::setPoint}, &F::lowSetpoint},
        {{.name = "alliageBlocPopUp", .kind = PopUp, .menu = divemenus::tankMaterial}, &F::alliageBloc},
        {{.name = "volumeBlocField", .kind = Combo, .choices = tankVolumes}, &F::volumeBloc},
        {{.name = "pressionBlocField", .kind = Combo, .choices = tankPressures}, &F::pressionBloc},
        {{.name = "departField", .kind = Number}, &F::pressionDepart},
        {{.name = "finField", .kind = Number}, &F::pressionFin},
        {{.name = "gazPopUp", .kind = PopUp, .menu = divemenus::gas}, &F::gaz},
        {{.name = "o2MixField", .kind = Number}, &F::o2Mix},
        {{.name = "n2MixField", .kind = Number}, nullptr},
        {{.name = "heMixField", .kind = Number}, &F::heMix},
        {{.name = "deltaPressureField", .kind = Caption}, nullptr},
        {{.name = "cnsField", .kind = Caption}, nullptr},
        {{.name = "alliageBloc_2PopUp", .kind = PopUp, .menu = divemenus::tankMaterial}, &F::alliageBloc_2},
        {{.name = "volumeBloc_2Field", .kind = Combo, .choices = tankVolumes}, &F::volumeBloc_2},
        {{.name = "pressionBloc_2Field", .kind = Combo, .choices = tankPressures}, &F::pressionBloc_2},
        {{.name = "depart_2Field", .kind = Number}, &F::pressionDepart_2},
        {{.name = "fin_2Field", .kind = Number}, &F::pressionFin_2},
        {{.name = "gaz_2PopUp", .kind = PopUp, .menu = divemenus::gas}, &F::gaz_2},
        {{.name = "o2Mix_2Field", .kind = Number}, &F::o2Mix_2},
        {{.name = "n2Mix_2Field", .kind = Number}, nullptr},
        {{.name = "heMix_2Field", .kind = Number}, &F::heMix_2},
        {{.name = "deltaPressure_2Field", .kind = Caption}, nullptr},
        {{.name = "bailout_1_VolumeField", .kind = Number}, &F::volBailout1},
        {{.name = "bailout_1_DepartField", .kind = Number}, &F::pressDepartBailout1},
        {{.name = "bailout_1_FinField", .kind = Number}, &F::pressFinBailout1},
        {{.name = "bailout_1_O2Field", .kind = Number}, &F::O2Bailout1},
        {{.name = "bailout_1_HeField", .kind = Number}, &F::HeBailout1},
        {{.name = "bailout_2_VolumeField", .kind = Number}, &F::volBailout2},
        {{.name = "bailout_2_DepartField", .kind = Number}, &F::pressDepartBailout2},
        {{.name = "bailout_2_FinField", .kind = Number}, &F::pressFinBailout2},
        {{.name = "bailout_2_O2Field", .kind = Number}, &F::O2Bailout2},
        {{.name = "bailout_2_HeField", .kind = Number}, &F::HeBailout2},
        {{.name = "bailout_3_VolumeField", .kind = Number}, &F::volBailout3},
        {{.name = "bailout_3_DepartField", .kind = Number}, &F::pressDepartBailout3},
        {{.name = "bailout_3_FinField", .kind = Number}, &F::pressFinBailout3},
        {{.name = "bailout_3_O2Field", .kind = Number}, &F::O2Bailout3},
        {{.name = "bailout_3_HeField", .kind = Number}, &F::HeBailout3},
        // Equipment and computer
        {{.name = "combinaisonPopUp", .kind = PopUp, .menu = divemenus::suit}, &F::combinaison},
        {{.name = "lestageField", .kind = Number}, &F::lestage},
        {{.name = "configurationPopUp", .kind = PopUp, .menu = divemenus::configuration}, &F::configuration},
        {{.name = "fabricantField", .kind = Text}, &F::fabricant},
        {{.name = "ordinateurField", .kind = Combo, .pickList = "ordinateurs"}, &F::ordinateur},
        {{.name = "serieField", .kind = Text}, &F::serie},
        {{.name = "samplingRatePopUp", .kind = PopUp, .menu = divemenus::samplingRate}, &F::samplingRate},
        {{.name = "equip_1Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_1},
        {{.name = "equip_2Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_2},
        {{.name = "equip_3Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_3},
        {{.name = "equip_4Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_4},
        {{.name = "equip_5Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_5},
        {{.name = "equip_6Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_6},
        {{.name = "equip_7Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_7},
        {{.name = "equip_8Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_8},
        {{.name = "equip_9Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_9},
        {{.name = "equip_10Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_10},
        {{.name = "equip_11Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_11},
        {{.name = "equip_12Field", .kind = Combo, .pickList = "sac de plongee"}, &F::equip_12},
        // Notes
        {{.name = "notesField", .kind = Area}, &F::notes},
    };
    return controls;
}

}  // namespace sargan
