#include <QCoreApplication>

#include "cli/Cli.h"
#include "platform/print/CommandApplication.h"

// The command line alone, without the desktop: what the border tests look into, and what machines without
// any window system can be given.
int main(int argc, char** argv) {
    const sargan::CommandApplication application(argc, argv);
    return sargan::cli::run(QCoreApplication::arguments().mid(1));
}
