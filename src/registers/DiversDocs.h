#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One of the diver's own papers: a certificate, a licence, an invoice … with its scanned copy.
class DiversDocs : public Record {
    friend struct DiversDocsFields;

public:
    static constexpr const char* className = "DiversDocs";

#define SARGAN_FIELDS "registers/DiversDocs.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: DiversDocsFields::titre.
struct DiversDocsFields {
#define SARGAN_RECORD DiversDocs
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<DiversDocs>& diversDocsClass();

}  // namespace sargan
