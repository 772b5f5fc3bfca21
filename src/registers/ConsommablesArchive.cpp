#include "registers/Consommables.h"

namespace sargan {

namespace {

using F = ConsommablesFields;

// The order is the file format. Stock was counted in whole pieces up to version 1.
constexpr auto consommablesSlots = std::to_array<Slot<Consommables>>({
    slot(F::reference),
    slot(F::marque),
    slot(F::utilisation),

    oldInt(F::stock).until(1),
    oldInt(F::reserve).until(1),
    slot(F::stock).since(2),
    slot(F::reserve).since(2),
    slot(F::reserveMax).since(3),

    slot(F::rangement),
    slot(F::noInventaire),
    slot(F::dateInventaire),
    slot(F::notes),
});

}  // namespace

const RecordClass<Consommables>& consommablesClass() {
    static constexpr RecordClass<Consommables> cls{Consommables::className, 3, F::all, consommablesSlots};
    return cls;
}

}  // namespace sargan
