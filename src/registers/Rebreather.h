#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One intervention on a rebreather, with the oxygen cells that are fitted after it.
class Rebreather : public Record {
    friend struct RebreatherFields;

public:
    static constexpr const char* className = "Rebreather";

#define SARGAN_FIELDS "registers/Rebreather.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: RebreatherFields::date.
struct RebreatherFields {
#define SARGAN_RECORD Rebreather
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Rebreather>& rebreatherClass();

}  // namespace sargan
