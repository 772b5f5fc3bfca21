#pragma once

#include "platform/desk/PickLists.h"
#include "platform/desk/UserDefaults.h"

namespace sargan {

/// The settings that apply while the person has stored nothing, and the pick lists into memory. Once, before
/// any document opens.
void registerDefaults(UserDefaults& defaults, PickLists& pickLists);

}  // namespace sargan
