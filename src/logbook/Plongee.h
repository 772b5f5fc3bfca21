#pragma once

#include "platform/record/Field.h"

namespace sargan {

/// One dive: a plain record with one property per field, and no behaviour beyond storage. What a new dive
/// holds is the dive form's business. A water temperature of -50 means that none was recorded.
class Plongee : public Record {
    friend struct PlongeeFields;

public:
    static constexpr const char* className = "Plongee";

#define SARGAN_FIELDS "logbook/Plongee.def"
#include "platform/record/RecordMembers.h"
};

/// The dive's fields as typed constants: PlongeeFields::lieu.
struct PlongeeFields {
#define SARGAN_RECORD Plongee
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

}  // namespace sargan
