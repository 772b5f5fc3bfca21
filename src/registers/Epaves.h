#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One wreck described as a dive site. A length, beam or depth of -1 is not known; codes are tags of the
/// form's menus; the dates of building and of sinking are texts, for they are rarely known to the day.
class Epaves : public Record {
    friend struct EpavesFields;

public:
    static constexpr const char* className = "Epaves";

#define SARGAN_FIELDS "registers/Epaves.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: EpavesFields::nom.
struct EpavesFields {
#define SARGAN_RECORD Epaves
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Epaves>& epavesClass();

}  // namespace sargan
