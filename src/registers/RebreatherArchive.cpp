#include "registers/Rebreather.h"

namespace sargan {

namespace {

using F = RebreatherFields;

// The order is the file format.
constexpr auto rebreatherSlots = std::to_array<Slot<Rebreather>>({
    slot(F::date),
    slot(F::rebreatherTime),
    slot(F::sofnoTime),

    slot(F::sofnolime),
    slot(F::disinfection),
    slot(F::battery),
    slot(F::cells),
    slot(F::nbCells),
    slot(F::injector),
    slot(F::valve),
    slot(F::oRing),
    slot(F::electronicHead),
    slot(F::scrubber),
    slot(F::mpO2).since(2),
    slot(F::mpO2Value).since(2),

    slot(F::cell1).since(3),
    slot(F::cell2).since(3),
    slot(F::cell3).since(3),
    slot(F::cell4).since(3),
    slot(F::cell5).since(3),
    slot(F::typeCell1).since(4),
    slot(F::typeCell2).since(4),
    slot(F::typeCell3).since(4),
    slot(F::typeCell4).since(4),
    slot(F::typeCell5).since(4),
    slot(F::cell1_in).since(3),
    slot(F::cell2_in).since(3),
    slot(F::cell3_in).since(3),
    slot(F::cell4_in).since(3),
    slot(F::cell5_in).since(3),
    slot(F::notes),
});

}  // namespace

const RecordClass<Rebreather>& rebreatherClass() {
    static constexpr RecordClass<Rebreather> cls{Rebreather::className, 4, F::all, rebreatherSlots};
    return cls;
}

}  // namespace sargan
