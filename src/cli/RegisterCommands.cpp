#include "cli/Command.h"

namespace sargan::cli {

std::span<const Command> registerCommands() {
    return {};
}

}  // namespace sargan::cli
