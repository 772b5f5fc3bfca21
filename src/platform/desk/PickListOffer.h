#pragma once

#include "platform/desk/Desk.h"

namespace sargan {

/// What was typed into a combo box is offered for the list that it chooses from: asks whether to add a word
/// that the list lacks, and sorts and stores the list whatever the answer. Blanks alone are no word; around
/// one they belong to it.
void offerToPickList(Desk& desk, const QString& key, const QString& text);

}  // namespace sargan
