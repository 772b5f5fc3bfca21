#include "cli/Command.h"

namespace sargan::cli {

std::span<const Command> profileCommands() {
    return {};
}

}  // namespace sargan::cli
