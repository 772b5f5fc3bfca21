#include "registers/Compresseur.h"

namespace sargan {

namespace {

using F = CompresseurFields;

// The order is the file format; every version has it.
constexpr auto compresseurSlots = std::to_array<Slot<Compresseur>>({
    slot(F::marque),        slot(F::modele),    slot(F::cumulTemps), slot(F::date),
    slot(F::temps),

    slot(F::vidange),       slot(F::typeHuile), slot(F::filtreAir),  slot(F::operationFiltre),
    slot(F::cartouche),     slot(F::charbon),   slot(F::alumine),    slot(F::tamis),
    slot(F::depoussierage), slot(F::controles), slot(F::soupapes),   slot(F::intSoupape),

    slot(F::anHuile),       slot(F::anCO2),     slot(F::anCO),       slot(F::anH2O),
    slot(F::anCO2Unit),     slot(F::anCOUnit),  slot(F::notes),
});

}  // namespace

const RecordClass<Compresseur>& compresseurClass() {
    static constexpr RecordClass<Compresseur> cls{Compresseur::className, 1, F::all, compresseurSlots};
    return cls;
}

}  // namespace sargan
