#pragma once

#include <QString>
#include <QStringList>

namespace sargan::cli {

/// Exit statuses of every command.
enum Status { done = 0, failed = 1, wrongUsage = 2 };

/// Whether the desktop is not meant: the first argument that is no global option is a command's name, or
/// help or the version is asked for.
bool isCommand(const QStringList& arguments);

/// Runs a command. `arguments` without the program's name. Needs a QCoreApplication.
int run(const QStringList& arguments);

}  // namespace sargan::cli
