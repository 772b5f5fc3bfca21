#pragma once

#include "registers/RegisterDescription.h"
#include "registers/Structures.h"

namespace sargan {

/// The address book of clubs and diving centres.
const RegisterDescription<Structures>& adressesStruct();

/// Its edit window: four pages.
const WindowLayout& adressesStructLayout();

namespace clubmenus {
extern const std::span<const MenuItem> kind;
}

}  // namespace sargan
