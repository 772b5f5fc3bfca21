#include "app/Desktop.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <cstdio>

#include "app/DesktopSuite.h"
#include "app/FirstPaint.h"
#include "app/SingleInstance.h"
#include "cli/Cli.h"
#include "cli/GlobalOptions.h"
#include "cli/Suite.h"
#include "platform/document/DocumentError.h"
#include "platform/ui/DesktopPrompt.h"
#include "platform/ui/DocumentWindow.h"
#include "platform/ui/Icons.h"
#include "settings/InterfaceChoice.h"
#include "settings/RegisteredDefaults.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// The files among the words that are no option. Throws UsageError for an option that nobody knows.
QStringList filesAmong(const QStringList& words) {
    QStringList files;
    bool onlyFiles = false;
    for (const QString& word : words) {
        if (!onlyFiles && word == u"--"_s)
            onlyFiles = true;
        else if (!onlyFiles && word.startsWith(u'-'))
            throw cli::UsageError(u"there is no option \"%1\"; sargan --help lists them"_s.arg(word));
        else
            files << QFileInfo(word).absoluteFilePath();
    }
    return files;
}

/// What can wait until the first window is on screen.
void finishStarting(InterfaceKeeper& interface, SingleInstance& instance) {
    QApplication::setWindowIcon(iconNamed("sargan"));
    instance.listen();
    interface.loadToolkitTexts();
}

void reportFirstPaint(DocumentWindow* window) {
    QObject::connect(new FirstPaint(window), &FirstPaint::painted, window, [](qint64 milliseconds) {
        std::fprintf(stderr, "first paint: %lld ms\n", static_cast<long long>(milliseconds));
        QCoreApplication::exit(0);
    });
}

int runSuite(const cli::GlobalOptions& options, const QStringList& files) {
    const bool isMeasured = qEnvironmentVariableIsSet("SARGAN_TIME_TO_PAINT");
    SingleInstance instance(SingleInstance::nameFor(options.settings));
    if (!isMeasured && instance.handOver(files)) return 0;
    UserDefaults defaults(options.settings);
    Strings strings(options.language.value_or(preferredLanguage(defaults)));
    DesktopPrompt prompt(strings);
    defaults.onProblem = [&prompt](const QString& problem) { prompt.alert(problem); };
    NotificationCenter notifications;
    PickLists pickLists(defaults);
    registerDefaults(defaults, pickLists);
    Desk desk{prompt, defaults, strings, notifications, pickLists, Clock(options.now), Log()};
    const SaveTypes saveTypes = makeSaveTypes();
    const DocumentKinds kinds = makeDocumentKinds(saveTypes);
    DesktopSuite suite(kinds, desk);
    QObject::connect(&suite, &DesktopSuite::finished, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&instance, &SingleInstance::filesReceived, &suite, &DesktopSuite::takeOver);
    if (isMeasured) QObject::connect(&suite.windows(), &DocumentWindows::windowMade, qApp, &reportFirstPaint);
    QTimer::singleShot(0, &suite, [&] {
        suite.launch(files);
        if (!defaults.problem().isEmpty()) prompt.alert(defaults.problem());
        if (!isMeasured) QTimer::singleShot(50, &suite, [&] { finishStarting(suite.interface(), instance); });
    });
    return QApplication::exec();
}

}  // namespace

bool hasDisplay() {
    const auto isSet = [](const char* name) { return !qEnvironmentVariableIsEmpty(name); };
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

int runDesktop(int& argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"sargan"_s);
    QApplication::setApplicationDisplayName(u"Sargan"_s);
    QApplication::setApplicationVersion(QStringLiteral(SARGAN_VERSION));
    QApplication::setDesktopFileName(u"sargan"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        const cli::GlobalOptions options = cli::GlobalOptions::take(QApplication::arguments().mid(1));
        return runSuite(options, filesAmong(options.rest));
    } catch (const cli::UsageError& error) {
        std::fprintf(stderr, "sargan: %s\n", qUtf8Printable(sentenceOf(error)));
        return cli::wrongUsage;
    }
}

}  // namespace sargan
