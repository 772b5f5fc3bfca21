#pragma once

#include "registers/Budget.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The budget forecast: priced services of firms.
const RegisterDescription<Budget>& previBudget();

/// Its edit window: three pages.
const WindowLayout& previBudgetLayout();

}  // namespace sargan
