#include "cli/Command.h"
#include "cli/Session.h"

namespace sargan::cli {

namespace {

void runMan(Session&, const Arguments& arguments) {
    arguments.atMost(0);
    print(manualPage());
}

void runFileFormat(Session&, const Arguments& arguments) {
    arguments.atMost(0);
    print(fileFormatPage());
}

constexpr Command list[] = {
    {"man", "", "Prints the source of the manual page.", {}, runMan},
    {"file-format", "", "Prints the page that describes how documents are archived.", {}, runFileFormat},
};

}  // namespace

std::span<const Command> pageCommands() {
    return list;
}

}  // namespace sargan::cli
