#pragma once

#include "registers/DiversDocs.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The diver's own papers.
const RegisterDescription<DiversDocs>& diversDocuments();

/// Its edit window: three pages.
const WindowLayout& diversDocumentsLayout();

}  // namespace sargan
