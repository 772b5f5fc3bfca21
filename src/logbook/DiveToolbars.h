#pragma once

#include "platform/document/Toolbar.h"

namespace sargan {

class Carnet;

/// The toolbars of the logbook's window and of the dive's edit window.
QList<ToolbarState> diveToolbars(const Carnet& carnet);

/// Whether an item of these toolbars can be used now. An unknown one can.
bool validateToolbarItem(const Carnet& carnet, const QString& identifier);

}  // namespace sargan
