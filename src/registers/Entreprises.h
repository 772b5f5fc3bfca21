#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One firm or shop. A day has four times: opening and closing of the morning, then of the afternoon.
class Entreprises : public Record {
    friend struct EntreprisesFields;

public:
    static constexpr const char* className = "Entreprises";

#define SARGAN_FIELDS "registers/Entreprises.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: EntreprisesFields::ville.
struct EntreprisesFields {
#define SARGAN_RECORD Entreprises
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Entreprises>& entreprisesClass();

}  // namespace sargan
