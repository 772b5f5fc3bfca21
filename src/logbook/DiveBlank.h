#pragma once

#include "platform/desk/Desk.h"
#include "platform/form/Form.h"

namespace sargan {

/// Sets every control of the dive form to what a new dive starts with; some of it comes from the settings
/// (tank, weight, gradient factors, stop interval, country, computer).
void fillBlankDive(Form& form, const Desk& desk);

}  // namespace sargan
