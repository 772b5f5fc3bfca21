#include <QTest>

#include "cli/CliTests.h"
#include "cli/Command.h"
#include "cli/GlobalOptions.h"
#include "cli/Workshop.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class HelpTest : public QObject {
    Q_OBJECT

    Workshop _shop;

    QString helpOf(const QStringList& words) const {
        const Outcome outcome = _shop.run(words);
        return outcome.status == 0 && outcome.errors.isEmpty() ? outcome.text() : u"failed"_s;
    }

private Q_SLOTS:
    void aCommandsHelpMentionsItsOptions_data() {
        QTest::addColumn<QStringList>("options");
        const auto row = [](const char* command, const QStringList& options) {
            QTest::newRow(command) << options;
        };
        row("info", {u"--json"_s});
        row("dump", {u"--as TYPE"_s});
        row("load", {u"-o OUT"_s});
        row("new", {});
        row("add", {u"--press ACTION"_s});
        row("set", {u"--row N"_s, u"--press ACTION"_s});
        row("form", {u"--row N"_s, u"--json"_s});
        row("delete", {u"--row N"_s});
        row("renumber", {u"--from S"_s});
        row("find", {u"--in FIELD"_s});
        row("export", {u"--type NAME"_s, u"-o OUT"_s});
        row("calc", {u"--action NAME"_s, u"--json"_s, u"--log"_s, u"--then control=value"_s});
        row("man", {});
        row("file-format", {});
    }
    void aCommandsHelpMentionsItsOptions() {
        QFETCH(QStringList, options);
        const QString command = QString::fromLatin1(QTest::currentDataTag());
        const QString help = helpOf({command, u"--help"_s});
        const QStringList lines = help.split(u'\n');
        QCOMPARE(lines[0].section(u' ', 0, 2), u"usage: sargan "_s + command);
        for (const QString& option : options) {
            const auto tells = [&](const QString& line) { return line.startsWith(u"  "_s + option); };
            QVERIFY2(std::any_of(lines.begin(), lines.end(), tells), qPrintable(option));
        }
        QCOMPARE(helpOf({u"--help"_s, command}), help);
    }

    void everyCommandAndItsOptionsStandInTheirHelp() {
        const QString overall = helpOf({u"--help"_s});
        for (const cli::Command& command : cli::commands()) {
            const QString name = QString::fromLatin1(command.name);
            QVERIFY2(overall.contains(u"\n  "_s + name + u' '), command.name);
            const QString help = helpOf({name, u"--help"_s});
            for (const cli::OptionSpec& option : command.options)
                QVERIFY2(help.contains(u"\n  "_s + QLatin1String(option.name)), command.name);
        }
    }

    void theOverallHelpTellsTheGlobalOptionsAndTheExitStatus() {
        const QString help = helpOf({u"--help"_s});
        for (const auto& option : {u"--lang en|fr|keys"_s, u"--settings DIR"_s, u"--yes"_s, u"--no"_s,
                                   u"--now TIME"_s, u"--help"_s, u"--version"_s})
            QVERIFY2(help.contains(u"\n  "_s + option + u' '), qPrintable(option));
        QVERIFY(help.contains("0 done, 1 failed"_L1));
        QVERIFY(help.contains("2 wrong usage"_L1));
        QCOMPARE(helpOf({}), help);
    }

    void everyCommandIsOneLineOfTheOverallHelp() {
        const QStringList lines = helpOf({u"--help"_s}).split(u'\n');
        for (const QString& line : lines) QVERIFY2(line.size() <= 110, qPrintable(line));
        const QString add = u"  add           Adds a record through the blank form and prints its row."_s;
        QVERIFY(lines.contains(add));
        QVERIFY(
            lines.contains(u"  profile-data  Shows the seven lists of a dive's profile as texts with their "
                           "counts, or replaces them."_s));
    }

    void valuesWithLettersBeyondAsciiAreToldAsTheyAre() {
        QVERIFY(helpOf({u"delete"_s, u"--help"_s}).contains(u"\n  --row N… "_s));
        QVERIFY(helpOf({u"man"_s}).contains(u"\n\\fB\\-\\-row N…\\fR\n"_s));
    }

    void theVersionIsOneLine() {
        QCOMPARE(helpOf({u"--version"_s}), u"sargan " SARGAN_VERSION "\n"_s);
        QCOMPARE(helpOf({u"info"_s, u"--version"_s}), u"sargan " SARGAN_VERSION "\n"_s);
    }

    void theManualPageInTheTreeIsTheOneThatIsPrinted() {
        QFile page(QStringLiteral(SARGAN_SOURCE_DIR "/docs/sargan.1"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        QCOMPARE(helpOf({u"man"_s}), QString::fromUtf8(page.readAll()));
    }

    void theManualPageHasEveryCommandAndOption() {
        const QString page = helpOf({u"man"_s}).replace(u"\\-"_s, u"-"_s);
        for (const cli::Command& command : cli::commands()) {
            QVERIFY2(page.contains(u"\n.SS sargan "_s + QLatin1String(command.name)), command.name);
            for (const cli::OptionSpec& option : command.options)
                QVERIFY2(page.contains(u"\n\\fB"_s + QLatin1String(option.name)), option.name);
        }
        for (const cli::OptionSpec& option : cli::globalOptionSpecs())
            QVERIFY2(page.contains(u"\n\\fB"_s + QLatin1String(option.name)), option.name);
    }
};

int runHelpTest(int argc, char** argv) {
    HelpTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HelpTest.moc"
