#pragma once

#include "registers/Epaves.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The wreck register: wrecks as dive sites.
const RegisterDescription<Epaves>& repEpaves();

/// Its edit window: five pages.
const WindowLayout& repEpavesLayout();

/// Its synthesis card: everything that is known of a wreck.
void writeWreckCard(CardWriter& card, const Epaves& wreck, qsizetype row);

namespace wreckmenus {
extern const std::span<const MenuItem> material;
extern const std::span<const MenuItem> propulsion;
extern const std::span<const MenuItem> powerUnit;  ///< suffixes, with the blank before them
extern const std::span<const MenuItem> heel;
extern const std::span<const MenuItem> difficulty;  ///< of access and of finding
extern const std::span<const MenuItem> positionSystem;
}  // namespace wreckmenus

}  // namespace sargan
