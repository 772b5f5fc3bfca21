#pragma once

#include <span>

#include "cli/Arguments.h"

namespace sargan::cli {

class Session;

/// One command, as data: the parser, the help and the man page all read it.
struct Command {
    const char* name;
    const char* usage;    ///< what follows the name
    const char* summary;  ///< one sentence, with more behind it if need be
    std::span<const OptionSpec> options;
    void (*run)(Session&, const Arguments&);
};

/// In the order of the help.
std::span<const Command> commands();
const Command* findCommand(const QString& name);

/// The commands, by subject.
std::span<const Command> documentCommands();
std::span<const Command> logbookCommands();
std::span<const Command> settingsCommands();
std::span<const Command> profileCommands();
std::span<const Command> interchangeCommands();
std::span<const Command> tableCommands();
std::span<const Command> statsCommands();
std::span<const Command> registerCommands();
std::span<const Command> calculatorCommands();
std::span<const Command> pageCommands();

/// `sargan --help`, `sargan COMMAND --help`, and the manual page's source, all from the same data.
QString overallHelp();
QString helpFor(const Command& command);
QString usageLine(const Command& command);
QString manualPage();
/// docs/file-format.md, printed from the slot tables.
QString fileFormatPage();

}  // namespace sargan::cli
