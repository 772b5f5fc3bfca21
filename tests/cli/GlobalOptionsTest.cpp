#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class GlobalOptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void standBeforeAndAfterTheCommand_data() {
        QTest::addColumn<QStringList>("words");
        const QStringList command{u"delete"_s, u"a.carnet"_s, u"--row"_s, u"0"_s};
        const QStringList global{u"--yes"_s, u"--lang"_s, u"keys"_s};
        QTest::newRow("before") << global + command;
        QTest::newRow("after") << command + global;
        QTest::newRow("between") << command.mid(0, 1) + global + command.mid(1);
        QTest::newRow("on both sides") << global.mid(1) + command + global.mid(0, 1);
        QTest::newRow("before the values of an option end") << QStringList(
            {u"--lang"_s, u"keys"_s, u"delete"_s, u"--row"_s, u"0"_s, u"--yes"_s, u"a.carnet"_s});
    }
    void standBeforeAndAfterTheCommand() {
        QFETCH(QStringList, words);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}}), dive({{u"noPlongee"_s, 2}})});
        const Outcome outcome = shop.run(words);
        QCOMPARE(outcome.errors, u"beep\nquestion: Erase dive\n"_s);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(shop.records(u"a.carnet"_s).size(), 1);
    }

    void theClockIsTheOneThatWasSet_data() {
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("date");
        QTest::newRow("summer") << u"2016-06-07T14:30:00"_s << u"2016-06-07T14:30:00"_s;
        QTest::newRow("winter, before 2001") << u"1999-12-31T23:59:59"_s << u"1999-12-31T23:59:59"_s;
        QTest::newRow("universal time") << u"2016-06-07T12:30:00Z"_s << u"2016-06-07T14:30:00"_s;
    }
    void theClockIsTheOneThatWasSet() {
        QFETCH(QString, now);
        const Workshop shop;
        shop.putGolden(u"empty.carnet"_s, u"a.carnet"_s);
        QCOMPARE(shop.run({u"add"_s, u"a.carnet"_s, u"--now"_s, now}).status, 0);
        QTEST(shop.record(u"a.carnet"_s, 0).value("date"_L1).toString(), "date");
    }

    void withoutOneTheClockRuns() {
        const Workshop shop;
        shop.putGolden(u"empty.carnet"_s, u"a.carnet"_s);
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        QCOMPARE(shop.run({u"add"_s, u"a.carnet"_s}).status, 0);
        const QDateTime date =
            QDateTime::fromString(shop.record(u"a.carnet"_s, 0).value("date"_L1).toString(), Qt::ISODate);
        QVERIFY2(date >= before && date <= QDateTime::currentDateTime(), qPrintable(date.toString()));
    }

    void twoDashesEndTheOptions_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        QTest::newRow("a file like an option") << QStringList({u"info"_s, u"--"_s, u"--json"_s}) << 0;
        QTest::newRow("without them it is one") << QStringList({u"info"_s, u"--json"_s}) << 2;
        QTest::newRow("a global option behind them is a word")
            << QStringList({u"info"_s, u"--"_s, u"--json"_s, u"--yes"_s}) << 2;
        QTest::newRow("options before them count")
            << QStringList({u"form"_s, u"--row"_s, u"0"_s, u"--"_s, u"--json"_s}) << 0;
        QTest::newRow("several values end there")
            << QStringList({u"delete"_s, u"--row"_s, u"0"_s, u"--"_s, u"7"_s}) << 0;
        QTest::newRow("only the first pair") << QStringList({u"info"_s, u"--"_s, u"--"_s}) << 1;
    }
    void twoDashesEndTheOptions() {
        QFETCH(QStringList, words);
        QFETCH(int, status);
        const Workshop shop;
        shop.putLogbook(u"--json"_s, {dive({{u"noPlongee"_s, 1}})});
        shop.putLogbook(u"7"_s, {dive({{u"noPlongee"_s, 1}})});
        const Outcome outcome = shop.run(words);
        QVERIFY2(outcome.status == status, qPrintable(outcome.errors));
    }

    void otherSettingsAreNeverTouched() {
        const Workshop shop;
        const Folder home(Folder::Where::Memory);
        QProcess core;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        core.setProcessEnvironment(environment);
        core.setWorkingDirectory(shop.folder().path());
        core.start(QStringLiteral(SARGAN_CORE_PROGRAM),
                   {u"new"_s, u"Epaves"_s, u"a.epaves"_s, u"--settings"_s, shop.settings().path()});
        QVERIFY(core.waitForFinished());
        QCOMPARE(core.exitCode(), 0);
        QCOMPARE(home.names(), QStringList());
        QCOMPARE(shop.settings().names(), QStringList());
    }
};

int runGlobalOptionsTest(int argc, char** argv) {
    GlobalOptionsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GlobalOptionsTest.moc"
