#include <QCoreApplication>
#include <cstdio>

#include "app/Desktop.h"
#include "app/FirstPaint.h"
#include "cli/Cli.h"
#include "platform/print/CommandApplication.h"

int main(int argc, char** argv) {
    sargan::FirstPaint::startClock();
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
    if (sargan::cli::isCommand(arguments)) {
        const sargan::CommandApplication application(argc, argv);
        return sargan::cli::run(QCoreApplication::arguments().mid(1));
    }
    if (!sargan::hasDisplay()) {
        std::fputs(
            "sargan: there is no display to show windows on; connect with \"ssh -X\" or start it with "
            "\"xvfb-run sargan\", and meanwhile \"sargan --help\" lists what the command line can do\n",
            stderr);
        return 1;
    }
    return sargan::runDesktop(argc, argv);
}
