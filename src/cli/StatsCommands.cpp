#include "cli/Command.h"

namespace sargan::cli {

std::span<const Command> statsCommands() {
    return {};
}

}  // namespace sargan::cli
