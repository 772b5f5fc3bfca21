#include "cli/Cli.h"

#include <cstdio>

#include "cli/Command.h"
#include "cli/Session.h"

namespace sargan::cli {

namespace {

void complain(const QString& sentence) {
    std::fprintf(stderr, "sargan: %s\n", qUtf8Printable(sentence));
}

void showUsage(const QString& line) {
    std::fprintf(stderr, "usage: %s\n", qUtf8Printable(line));
}

int runCommand(const Command& command, const GlobalOptions& options) {
    try {
        const Arguments arguments(options.rest.mid(1), command.options);
        Session session(options);
        command.run(session, arguments);
        if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return done;
        complain(QStringLiteral("standard output takes no more"));
    } catch (const UsageError& error) {
        complain(sentenceOf(error));
        showUsage(usageLine(command));
        return wrongUsage;
    } catch (const std::bad_alloc&) {
        complain(QStringLiteral("there is not enough memory for this"));
    } catch (const std::exception& error) {
        complain(sentenceOf(error));
    }
    return failed;
}

}  // namespace

std::span<const Command> commands() {
    static const std::vector<Command> all = [] {
        std::vector<Command> list;
        for (const auto part : {documentCommands(), tableCommands(), registerCommands(), logbookCommands(),
                                interchangeCommands(), profileCommands(), statsCommands(), settingsCommands(),
                                calculatorCommands(), pageCommands()})
            list.insert(list.end(), part.begin(), part.end());
        return list;
    }();
    return all;
}

const Command* findCommand(const QString& name) {
    for (const Command& command : commands())
        if (name == QLatin1String(command.name)) return &command;
    return nullptr;
}

bool isCommand(const QStringList& arguments) {
    try {
        const GlobalOptions options = GlobalOptions::take(arguments);
        if (options.help || options.version) return true;
        return findCommand(options.rest.value(0));
    } catch (const UsageError&) {
        return true;
    }
}

int run(const QStringList& arguments) {
    try {
        const GlobalOptions options = GlobalOptions::take(arguments);
        const QString name = options.rest.value(0);
        const Command* command = findCommand(name);
        if (options.version) {
            print(QStringLiteral("sargan " SARGAN_VERSION));
        } else if (options.help || name.isEmpty()) {
            print(command ? helpFor(*command) : overallHelp());
        } else if (command) {
            return runCommand(*command, options);
        } else {
            throw UsageError(
                QStringLiteral("there is no command \"%1\"; sargan --help lists them").arg(name));
        }
        return done;
    } catch (const UsageError& error) {
        complain(sentenceOf(error));
        showUsage(QStringLiteral("sargan [FILE…], or sargan COMMAND …"));
        return wrongUsage;
    }
}

}  // namespace sargan::cli
