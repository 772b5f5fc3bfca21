#include "logbook/PlongeeArchive.h"

namespace sargan {

namespace {

using F = PlongeeFields;

// The order is the file format. Up to version 26 a dive had switches per stage and three pony tanks; the
// switches stand in the order 3, 2, 1, 4, 5, 6, as those versions wrote them. Stage 6 came with version 25
// and the third bail-out tank with 27. Stage depths are floats whose bits are archived as an integer.
constexpr auto plongeeSlots = std::to_array<Slot<Plongee>>({
    slot(F::profilProfondeur),
    slot(F::ASC_Flag),
    slot(F::SLOW_Flag),
    slot(F::SURF_Flag),
    slot(F::CEIL_Flag),
    slot(F::GAZ_Flag),
    slot(F::PRESS_Data),

    slot(F::noPlongee),
    slot(F::coeff),
    slot(F::pmBm),
    slot(F::date),
    slot(F::lieu),
    slot(F::site),
    slot(F::pays),
    slot(F::countryCode),
    slot(F::gps),
    slot(F::gpsSystem),
    slot(F::partenaires),
    slot(F::epaves),
    slot(F::structure),
    slot(F::bateau),
    slot(F::surface),
    slot(F::heure),
    slot(F::profondeur),

    slot(F::temps),
    slot(F::altitude),
    slot(F::pAtm).since(26),
    slot(F::deco),
    slot(F::deco_TTS).since(24),

    slot(F::deco_Level_3_sw).until(26),
    slot(F::deco_Level_2_sw).until(26),
    slot(F::deco_Level_1_sw).until(26),
    slot(F::deco_Level_4_sw).until(26),
    slot(F::deco_Level_5_sw).until(26),
    slot(F::deco_Level_6_sw).since(25).until(26),

    slot(F::decoO2_Level_1),
    slot(F::decoO2_Level_2),
    slot(F::decoO2_Level_3),
    slot(F::decoO2_Level_4),
    slot(F::decoO2_Level_5),
    slot(F::decoO2_Level_6).since(25),
    slot(F::decoHe_Level_1),
    slot(F::decoHe_Level_2),
    slot(F::decoHe_Level_3),
    slot(F::decoHe_Level_4),
    slot(F::decoHe_Level_5),
    slot(F::decoHe_Level_6).since(25),
    bits(F::decoDepth_Level_1),
    bits(F::decoDepth_Level_2),
    bits(F::decoDepth_Level_3),
    bits(F::decoDepth_Level_4),
    bits(F::decoDepth_Level_5),
    bits(F::decoDepth_Level_6).since(25),
    slot(F::decoTime_Level_1),
    slot(F::decoTime_Level_2),
    slot(F::decoTime_Level_3),
    slot(F::decoTime_Level_4),
    slot(F::decoTime_Level_5),
    slot(F::decoTime_Level_6).since(25),

    slot(F::volPony1).until(26),
    slot(F::volPony2).until(26),
    slot(F::volPony3).until(26),
    slot(F::pressDepartPony1).until(26),
    slot(F::pressDepartPony2).until(26),
    slot(F::pressDepartPony3).until(26),
    slot(F::pressFinPony1).until(26),
    slot(F::pressFinPony2).until(26),
    slot(F::pressFinPony3).until(26),

    slot(F::volBailout1),
    slot(F::volBailout2),
    slot(F::volBailout3).since(27),
    slot(F::pressDepartBailout1),
    slot(F::pressDepartBailout2),
    slot(F::pressDepartBailout3).since(27),
    slot(F::pressFinBailout1),
    slot(F::pressFinBailout2),
    slot(F::pressFinBailout3).since(27),
    slot(F::O2Bailout1),
    slot(F::O2Bailout2),
    slot(F::O2Bailout3).since(27),
    slot(F::HeBailout1),
    slot(F::HeBailout2),
    slot(F::HeBailout3).since(27),

    slot(F::alliageBloc),
    slot(F::volumeBloc),
    slot(F::pressionBloc),
    slot(F::pressionDepart),
    slot(F::pressionFin),
    slot(F::gaz),
    slot(F::flow),
    slot(F::sodaType).since(27),
    slot(F::o2Mix),
    slot(F::heMix),

    slot(F::alliageBloc_2),
    slot(F::volumeBloc_2),
    slot(F::pressionBloc_2),
    slot(F::pressionDepart_2),
    slot(F::pressionFin_2),
    slot(F::gaz_2),
    slot(F::o2Mix_2),
    slot(F::heMix_2),

    slot(F::ppO2),
    slot(F::lowSetpoint).since(25),
    slot(F::decoSoftName),
    slot(F::decoAlgoType),
    slot(F::decoConservatism),
    slot(F::highGF).since(25),
    slot(F::lowGF).since(25),
    slot(F::runtime),

    slot(F::meteo),
    slot(F::ventSecteur),
    slot(F::ventForce),
    slot(F::visibilite),
    slot(F::courant),
    slot(F::typePlongee),
    slot(F::nocturne),
    slot(F::tempEau),
    slot(F::tempAir),
    slot(F::inoubliable),
    slot(F::combinaison),

    slot(F::fabricant),
    slot(F::ordinateur),
    slot(F::serie),
    slot(F::samplingRate),
    slot(F::equip_1),
    slot(F::equip_2),
    slot(F::equip_3),
    slot(F::equip_4),
    slot(F::equip_5),
    slot(F::equip_6),
    slot(F::equip_7),
    slot(F::equip_8),
    slot(F::equip_9),
    slot(F::equip_10),
    slot(F::equip_11),
    slot(F::equip_12),
    slot(F::rebreather),
    slot(F::lestage),
    slot(F::configuration),
    slot(F::notes),
    slot(F::difficulte),
});

/// A pony tank's value of 1 or more takes the place of the bail-out tank's.
void movePony(Plongee& dive, qint32 version) {
    if (version >= 27) return;
    struct Move {
        const Int& (Plongee::*pony)() const;
        void (Plongee::*setBailout)(Int);
    };
    static constexpr Move moves[] = {
        {&Plongee::volPony1, &Plongee::setVolBailout1},
        {&Plongee::volPony2, &Plongee::setVolBailout2},
        {&Plongee::volPony3, &Plongee::setVolBailout3},
        {&Plongee::pressDepartPony1, &Plongee::setPressDepartBailout1},
        {&Plongee::pressDepartPony2, &Plongee::setPressDepartBailout2},
        {&Plongee::pressDepartPony3, &Plongee::setPressDepartBailout3},
        {&Plongee::pressFinPony1, &Plongee::setPressFinBailout1},
        {&Plongee::pressFinPony2, &Plongee::setPressFinBailout2},
        {&Plongee::pressFinPony3, &Plongee::setPressFinBailout3},
    };
    for (const Move& move : moves)
        if ((dive.*move.pony)() >= 1) (dive.*move.setBailout)((dive.*move.pony)());
}

constexpr const Field<Plongee>* plongeeRealLists[] = {&F::profilProfondeur, &F::PRESS_Data};

}  // namespace

const RecordClass<Plongee>& plongeeClass() {
    static constexpr RecordClass<Plongee> cls{Plongee::className, 27,       F::all, plongeeSlots,
                                              nullptr,            movePony, plongeeRealLists};
    return cls;
}

}  // namespace sargan
