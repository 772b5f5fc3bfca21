#pragma once

#include "logbook/Carnet.h"
#include "platform/document/DocumentKind.h"

/// How the parts of the program are laid together, for the desktop and the command line alike.
namespace sargan {

/// The logbook's save-as formats. Must outlive the kinds made with it.
SaveTypes makeSaveTypes();

/// The ten document kinds, the logbook first. Must outlive every document.
DocumentKinds makeDocumentKinds(const SaveTypes& saveTypes);

}  // namespace sargan
