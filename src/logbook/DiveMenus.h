#pragma once

#include <span>

#include "platform/form/Control.h"

/// The dive form's pop-up menus. Item n of every menu has tag n, and the tag is what a dive stores.
namespace sargan::divemenus {

extern const std::span<const MenuItem> tide;           ///< pmBm
extern const std::span<const MenuItem> positionSystem;  ///< gpsSystem
extern const std::span<const MenuItem> weather;
extern const std::span<const MenuItem> windSector;
extern const std::span<const MenuItem> windForce;  ///< one above the Beaufort force; 0 none
extern const std::span<const MenuItem> current;
extern const std::span<const MenuItem> visibility;
extern const std::span<const MenuItem> diveType;
extern const std::span<const MenuItem> unforgettable;
extern const std::span<const MenuItem> deco;
extern const std::span<const MenuItem> apparatus;
extern const std::span<const MenuItem> gas;
extern const std::span<const MenuItem> setPoint;  ///< 0,7 to 1,6 bar
extern const std::span<const MenuItem> tankMaterial;
extern const std::span<const MenuItem> suit;
extern const std::span<const MenuItem> configuration;
extern const std::span<const MenuItem> samplingRate;

}  // namespace sargan::divemenus
