#pragma once

#include "registers/Materiel.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The equipment inventory: a diver's or a club's equipment, its inspections and its cylinders' tests.
const RegisterDescription<Materiel>& invMateriel();

/// Its edit window: three pages.
const WindowLayout& invMaterielLayout();

namespace equipmentmenus {
extern const std::span<const MenuItem> state;
extern const std::span<const MenuItem> inspectionResult;
}  // namespace equipmentmenus

}  // namespace sargan
