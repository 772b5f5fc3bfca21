#pragma once

#include "platform/form/WindowLayout.h"

namespace sargan {

/// The dive's edit window: six panes that together hold every control of the dive form once.
const WindowLayout& diveLayout();

}  // namespace sargan
