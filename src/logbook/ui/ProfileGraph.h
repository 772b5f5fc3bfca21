#pragma once

#include <memory>

#include "logbook/Carnet.h"
#include "profile/ui/GraphProfileWindow.h"

namespace sargan {

/// The profile window of a logbook: the graph of the dive in the form, as it stands there now. It follows
/// the selection, every change of the form, and the settings.
std::unique_ptr<GraphProfileWindow> makeProfileGraph(Carnet& carnet);

}  // namespace sargan
