#pragma once

#include "registers/Compresseur.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The maintenance log of a breathing-air compressor.
const RegisterDescription<Compresseur>& maintComp();

/// Its edit window: three pages.
const WindowLayout& maintCompLayout();

namespace compressormenus {
extern const std::span<const MenuItem> oil;
extern const std::span<const MenuItem> filterWork;
extern const std::span<const MenuItem> valveWork;
extern const std::span<const MenuItem> gasUnit;
}  // namespace compressormenus

}  // namespace sargan
