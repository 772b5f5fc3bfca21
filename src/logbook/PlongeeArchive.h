#pragma once

#include "logbook/Plongee.h"
#include "platform/record/Slots.h"

namespace sargan {

/// The dive in archives: class version 27, and every older version as it was written.
const RecordClass<Plongee>& plongeeClass();

}  // namespace sargan
