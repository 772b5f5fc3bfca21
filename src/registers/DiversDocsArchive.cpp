#include "registers/DiversDocs.h"

namespace sargan {

namespace {

using F = DiversDocsFields;

// The order is the file format; every version has it.
constexpr auto diversDocsSlots = std::to_array<Slot<DiversDocs>>({
    slot(F::type),
    slot(F::titre),
    slot(F::emetteur),
    slot(F::date),
    slot(F::renouveler),
    slot(F::dateRenouvellement),
    slot(F::photocopy),
    slot(F::notes),
});

}  // namespace

const RecordClass<DiversDocs>& diversDocsClass() {
    static constexpr RecordClass<DiversDocs> cls{DiversDocs::className, 1, F::all, diversDocsSlots};
    return cls;
}

}  // namespace sargan
