#pragma once

#include "registers/Consommables.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The inventory of spare parts and consumables.
const RegisterDescription<Consommables>& invConso();

/// Its edit window: two pages.
const WindowLayout& invConsoLayout();

}  // namespace sargan
