#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One piece of equipment: what it is, its purchase, its inspections and, for a cylinder, its hydrostatic
/// tests and its visual inspection. 1 January 1900 stands for no inspection date.
class Materiel : public Record {
    friend struct MaterielFields;

public:
    static constexpr const char* className = "Materiel";

#define SARGAN_FIELDS "registers/Materiel.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: MaterielFields::typeMatos.
struct MaterielFields {
#define SARGAN_RECORD Materiel
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Materiel>& materielClass();

}  // namespace sargan
