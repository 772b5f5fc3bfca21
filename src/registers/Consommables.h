#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One spare part or consumable with its stock, in pieces or whatever its unit is.
class Consommables : public Record {
    friend struct ConsommablesFields;

public:
    static constexpr const char* className = "Consommables";

#define SARGAN_FIELDS "registers/Consommables.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: ConsommablesFields::stock.
struct ConsommablesFields {
#define SARGAN_RECORD Consommables
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Consommables>& consommablesClass();

}  // namespace sargan
