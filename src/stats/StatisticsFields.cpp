#include "stats/StatisticsFields.h"

#include <vector>

namespace sargan {

namespace {

constexpr CounterFields counters[] = {
    {Bio,
     "statBioField",
     "statP_BioField",
     "statSumBioField",
     {"Carnet", "Biology"},
     {"Carnet", "Statistics bio"}},
    {Carriere,
     "statCarriereField",
     "statP_CarriereField",
     "statSumCarriereField",
     {"Carnet", "Quarry"},
     {"Carnet", "Statistics quarry"}},
    {Derivante,
     "statDerivanteField",
     "statP_DerivanteField",
     "statSumDerivanteField",
     {"Carnet", "Drift"},
     {"Carnet", "Statistics drift"}},
    {EpavesCount,
     "statEpavesField",
     "statP_EpavesField",
     "statSumEpavesField",
     {"Carnet", "Wreck"},
     {"Carnet", "Statistics wrecks"}},
    {Explo,
     "statExploField",
     "statP_ExploField",
     "statSumExploField",
     {"Carnet", "Recreational"},
     {"Carnet", "Statistics recreational"}},
    {Formation,
     "statFormationField",
     "statP_FormationField",
     "statSumFormationField",
     {"Carnet", "Training"},
     {"Carnet", "Statistics training"}},
    {Nocturne,
     "statNocturneField",
     "statP_NocturneField",
     "statSumNocturneField",
     {"Carnet", "Night"},
     {"Carnet", "Statistics night"}},
    {Photo,
     "statPhotoField",
     "statP_PhotoField",
     "statSumPhotoField",
     {"Carnet", "Photo dive"},
     {"Carnet", "Statistics photo"}},
    {Recuperation,
     "statRecupField",
     "statP_RecupField",
     "statSumRecupField",
     {"Carnet", "Recuperation"},
     {"Carnet", "Statistics recuperation"}},
    {Glace,
     "statGlaceField",
     "statP_GlaceField",
     "statSumGlaceField",
     {"Carnet", "Under ice"},
     {"Carnet", "Statistics ice"}},
    {Speleo,
     "statSpeleoField",
     "statP_SpeleoField",
     "statSumSpeleoField",
     {"Carnet", "Cave"},
     {"Carnet", "Statistics cave"}},
    {Tek,
     "statTekField",
     "statP_TekField",
     "statSumTekField",
     {"Carnet", "Tek"},
     {"Carnet", "Statistics tek"}},
    {Travail,
     "statTravailField",
     "statP_TravailField",
     "statSumTravailField",
     {"Carnet", "Work"},
     {"Carnet", "Statistics work"}},
    {Video,
     "statVideoField",
     "statP_VideoField",
     "statSumVideoField",
     {"Carnet", "Movies"},
     {"Carnet", "Statistics video"}},
    {Autre,
     "statAutreField",
     "statP_AutreField",
     "statSumAutreField",
     {"Carnet", "Other"},
     {"Carnet", "Statistics other"}},
    {OpenCircuit, "statCOField", "statP_COField", "statSumCOField", {"Carnet", "Open circuit"}},
    {SemiClosed,
     "statSCRField",
     "statP_SCRField",
     "statSumSCRField",
     {"Interface", "Semi-closed", "Semi-closed"}},
    {ClosedCircuit,
     "statCCRField",
     "statP_CCRField",
     "statSumCCRField",
     {"Interface", "Closed circuit", "Closed circuit"}},
    {AirCount,
     "statAirField",
     "statP_AirField",
     "statSumAirField",
     {"Carnet", "Air"},
     {"Carnet", "Statistics air"}},
    {NitroxCount,
     "statNitroxField",
     "statP_NitroxField",
     "statSumNitroxField",
     {"Carnet", "Nitrox"},
     {"Carnet", "Statistics nitrox"}},
    {TrimixCount,
     "statTrimixField",
     "statP_TrimixField",
     "statSumTrimixField",
     {"Carnet", "Trimix"},
     {"Carnet", "Statistics trimix"}},
    {HelioxCount,
     "statHelioxField",
     "statP_HelioxField",
     "statSumHelioxField",
     {"Carnet", "Heliox"},
     {"Carnet", "Statistics heliox"}},
    {Prof_1,
     "statProf_1Field",
     "statP_Prof_1Field",
     "statSumProf_1Field",
     {"Interface", "0 to 9 m", "0 to 9 m"},
     {"Carnet", "Statistics prof_1"}},
    {Prof_2,
     "statProf_2Field",
     "statP_Prof_2Field",
     "statSumProf_2Field",
     {"Interface", "10 to 19 m", "10 to 19 m"},
     {"Carnet", "Statistics prof_2"}},
    {Prof_3,
     "statProf_3Field",
     "statP_Prof_3Field",
     "statSumProf_3Field",
     {"Interface", "20 to 29 m", "20 to 29 m"},
     {"Carnet", "Statistics prof_3"}},
    {Prof_4,
     "statProf_4Field",
     "statP_Prof_4Field",
     "statSumProf_4Field",
     {"Interface", "30 to 39 m", "30 to 39 m"},
     {"Carnet", "Statistics prof_4"}},
    {Prof_5,
     "statProf_5Field",
     "statP_Prof_5Field",
     "statSumProf_5Field",
     {"Interface", "40 to 49 m", "40 to 49 m"},
     {"Carnet", "Statistics prof_5"}},
    {Prof_6,
     "statProf_6Field",
     "statP_Prof_6Field",
     "statSumProf_6Field",
     {"Interface", "50 to 59 m", "50 to 59 m"},
     {"Carnet", "Statistics prof_6"}},
    {Prof_7,
     "statProf_7Field",
     "statP_Prof_7Field",
     "statSumProf_7Field",
     {"Interface", "60 m and more", "60 m and more"},
     {"Carnet", "Statistics prof_7"}},
};

constexpr FigureField figures[] = {
    {"statProfMaxField", {"Interface", "Deepest dive", "Deepest dive"}, {"Carnet", "Statistics prof max"}},
    {"statTempsMaxField", {"Interface", "Longest dive", "Longest dive"}, {"Carnet", "Statistics temps max"}},
    {"statProfTotalField", {"Interface", "Total depth", "Total depth"}, {"Carnet", "Statistics somme prof"}},
    {"statTempsTotalField", {"Interface", "Total time", "Total time"}, {"Carnet", "Statistics somme temps"}},
    {"statProfMoyField", {"Interface", "Mean depth", "Mean depth"}, {"Carnet", "Statistics prof moy"}},
    {"statTempsMoyField", {"Interface", "Mean time", "Mean time"}, {"Carnet", "Statistics temps moy"}},
    {"statTempEauMinField",
     {"Interface", "Coldest water", "Coldest water"},
     {"Carnet", "Statistics temp min"}},
    {"statTempEauMaxField",
     {"Interface", "Warmest water", "Warmest water"},
     {"Carnet", "Statistics temp max"}},
    {"statTempEauMoyField",
     {"Interface", "Mean water temperature", "Mean water temperature"},
     {"Carnet", "Statistics temp moy"}},
};

constexpr PreviousField previous[] = {
    {"co", "statSumCOField"},
    {"scr", "statSumSCRField"},
    {"ccr", "statSumCCRField"},
    {"air", "statSumAirField"},
    {"nitrox", "statSumNitroxField"},
    {"trimix", "statSumTrimixField"},
    {"heliox", "statSumHelioxField"},
    {"prof_1", "statSumProf_1Field"},
    {"prof_2", "statSumProf_2Field"},
    {"prof_3", "statSumProf_3Field"},
    {"prof_4", "statSumProf_4Field"},
    {"prof_5", "statSumProf_5Field"},
    {"prof_6", "statSumProf_6Field"},
    {"prof_7", "statSumProf_7Field"},
    {"prof max", "statSumProfMaxField"},
    {"temps max", "statSumTempsMaxField"},
    {"temperature min", "statSumTempMinField"},
    {"temperature max", "statSumTempMaxField"},
    {"bio", "statSumBioField"},
    {"carriere", "statSumCarriereField"},
    {"derivante", "statSumDerivanteField"},
    {"epaves", "statSumEpavesField"},
    {"explo", "statSumExploField"},
    {"formation", "statSumFormationField"},
    {"nocturne", "statSumNocturneField"},
    {"photo", "statSumPhotoField"},
    {"recuperation", "statSumRecupField"},
    {"glace", "statSumGlaceField"},
    {"speleo", "statSumSpeleoField"},
    {"tek", "statSumTekField"},
    {"travail", "statSumTravailField"},
    {"video", "statSumVideoField"},
    {"autre", "statSumAutreField"},
    {"total profondeur", "statSumProfField"},
    {"total temps", "statSumTempsField"},
    {"total plongees", "statSumDivesField"},
};

/// The order of the panel puts the means beside their totals.
constexpr const char* figureOrder[] = {"statProfMaxField",    "statProfMoyField",    "statTempsMaxField",
                                       "statProfTotalField",  "statTempsTotalField", "statTempsMoyField",
                                       "statTempEauMinField", "statTempEauMaxField", "statTempEauMoyField"};

std::vector<ControlSpec> panelControls() {
    std::vector<ControlSpec> controls{{.name = statcontrol::state.text, .kind = ControlKind::Caption}};
    for (const CounterFields& fields : counters) {
        controls.push_back({.name = fields.field, .kind = ControlKind::Caption});
        controls.push_back({.name = fields.shareField, .kind = ControlKind::Caption});
    }
    for (const char* field : figureOrder) controls.push_back({.name = field, .kind = ControlKind::Caption});
    controls.push_back({.name = statcontrol::ignorePrevious.text, .kind = ControlKind::Switch});
    return controls;
}

std::vector<ControlSpec> editorControls() {
    std::vector<ControlSpec> controls;
    for (const PreviousField& field : previous)
        controls.push_back({.name = field.field, .kind = ControlKind::Number});
    return controls;
}

}  // namespace

std::span<const CounterFields> counterFields() {
    return counters;
}

std::span<const FigureField> figureFields() {
    return figures;
}

std::span<const PreviousField> previousFields() {
    return previous;
}

std::span<const ControlSpec> statisticsControls() {
    static const std::vector<ControlSpec> controls = panelControls();
    return controls;
}

std::span<const ControlSpec> previousDivesControls() {
    static const std::vector<ControlSpec> controls = editorControls();
    return controls;
}

}  // namespace sargan
