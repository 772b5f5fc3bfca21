#include "cli/Command.h"

namespace sargan::cli {

std::span<const Command> interchangeCommands() {
    return {};
}

}  // namespace sargan::cli
