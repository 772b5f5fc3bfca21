#include "cli/Command.h"

namespace sargan::cli {

std::span<const Command> tableCommands() {
    return {};
}

}  // namespace sargan::cli
