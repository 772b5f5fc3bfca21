#pragma once

#include "registers/Entreprises.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The address book of firms and shops.
const RegisterDescription<Entreprises>& adressesEts();

/// Its edit window: three pages.
const WindowLayout& adressesEtsLayout();

}  // namespace sargan
