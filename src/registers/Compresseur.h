#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One service of a breathing-air compressor. An analysis value of -1 was not measured.
class Compresseur : public Record {
    friend struct CompresseurFields;

public:
    static constexpr const char* className = "Compresseur";

#define SARGAN_FIELDS "registers/Compresseur.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: CompresseurFields::marque.
struct CompresseurFields {
#define SARGAN_RECORD Compresseur
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Compresseur>& compresseurClass();

}  // namespace sargan
