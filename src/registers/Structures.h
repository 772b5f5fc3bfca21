#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One club or diving centre. The postal code is a number; opening hours as those of a firm.
class Structures : public Record {
    friend struct StructuresFields;

public:
    static constexpr const char* className = "Structures";

#define SARGAN_FIELDS "registers/Structures.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: StructuresFields::nom.
struct StructuresFields {
#define SARGAN_RECORD Structures
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Structures>& structuresClass();

}  // namespace sargan
