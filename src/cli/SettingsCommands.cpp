#include "cli/Command.h"

namespace sargan::cli {

std::span<const Command> settingsCommands() {
    return {};
}

}  // namespace sargan::cli
