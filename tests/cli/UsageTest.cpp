#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class UsageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wrongUsageIsToldAndChangesNothing_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("quoted");
        const auto row = [](const QString& line, const QString& quoted) {
            QTest::newRow(qPrintable(line)) << line << quoted;
        };
        row(u"infos a.carnet"_s, u"\"infos\""_s);
        row(u"--lang de info a.carnet"_s, u"\"de\""_s);
        row(u"info a.carnet --lang"_s, u"--lang"_s);
        row(u"--now yesterday info a.carnet"_s, u"\"yesterday\""_s);
        row(u"info a.carnet --now 2016-13-01T00:00:00"_s, u"2016-13-01"_s);
        row(u"info"_s, u"FILE"_s);
        row(u"info a.carnet b.carnet"_s, u"\"b.carnet\""_s);
        row(u"info a.carnet --xml"_s, u"\"--xml\""_s);
        row(u"info a.carnet --row 0"_s, u"\"--row\""_s);
        row(u"dump"_s, u"FILE"_s);
        row(u"dump a.carnet --as"_s, u"--as"_s);
        row(u"load dives.json"_s, u"-o"_s);
        row(u"load -o b.carnet"_s, u"JSON"_s);
        row(u"load dives.json -o"_s, u"-o"_s);
        row(u"new"_s, u"TYPE"_s);
        row(u"new Epaves"_s, u"FILE"_s);
        row(u"new Epave b.epaves"_s, u"\"Epave\""_s);
        row(u"new Epaves b.epaves c.epaves"_s, u"\"c.epaves\""_s);
        row(u"add"_s, u"FILE"_s);
        row(u"add a.carnet bateau"_s, u"\"bateau\""_s);
        row(u"add a.carnet =x"_s, u"\"=x\""_s);
        row(u"add a.carnet navire=x"_s, u"\"navire\""_s);
        row(u"add a.carnet Bateau=x"_s, u"\"Bateau\""_s);
        row(u"add a.carnet bateau=x --press razEverything"_s, u"\"razEverything\""_s);
        row(u"add a.carnet nocturne=2"_s, u"nocturneSwitch"_s);
        row(u"add a.carnet nocturne=-1"_s, u"nocturneSwitch"_s);
        row(u"add a.carnet nocturne=yes"_s, u"nocturneSwitch"_s);
        row(u"add a.carnet meteoPopUp=Rainy"_s, u"meteoPopUp"_s);
        row(u"add a.carnet meteo=1.5"_s, u"meteoPopUp"_s);
        row(u"add a.carnet difficulte="_s, u"difficulteSlider"_s);
        row(u"add a.carnet difficulteField=Hard"_s, u"difficulteField"_s);
        row(u"add a.carnet date=07/06/2016"_s, u"dateField"_s);
        row(u"add a.carnet heure=25:00"_s, u"heureField"_s);
        row(u"add a.carnet date=2015-02-29"_s, u"dateField"_s);
        row(u"set a.carnet bateau=x"_s, u"--row"_s);
        row(u"set a.carnet --row first bateau=x"_s, u"\"first\""_s);
        row(u"set a.carnet --row 0 1 bateau=x"_s, u"--row"_s);
        row(u"set a.carnet --row 0 --row 1 bateau=x"_s, u"--row"_s);
        row(u"set a.carnet --row 99999999999 bateau=x"_s, u"99999999999"_s);
        row(u"set a.carnet --row 0 bateau=x navire=y"_s, u"\"navire\""_s);
        row(u"form a.carnet --row"_s, u"--row"_s);
        row(u"form a.carnet bateau=x"_s, u"\"bateau=x\""_s);
        row(u"delete a.carnet"_s, u"--row"_s);
        row(u"delete a.carnet --yes --row 0 one"_s, u"\"one\""_s);
        row(u"delete a.carnet --yes --row x"_s, u"\"x\""_s);
        row(u"renumber a.carnet"_s, u"--from"_s);
        row(u"renumber a.carnet --from one"_s, u"\"one\""_s);
        row(u"renumber a.carnet --from 1 2"_s, u"--from"_s);
        row(u"find a.carnet text"_s, u"--in"_s);
        row(u"find a.carnet --in notes"_s, u"TEXT"_s);
        row(u"find a.carnet --in lieu text"_s, u"--in"_s);
        row(u"export a.carnet -o out"_s, u"--type"_s);
        row(u"export a.carnet --type csv-comma"_s, u"-o"_s);
        row(u"export a.carnet --type csv -o out"_s, u"\"csv\""_s);
        row(u"man page"_s, u"\"page\""_s);
        row(u"man --html"_s, u"\"--html\""_s);
        row(u"file-format --json"_s, u"\"--json\""_s);
    }
    void wrongUsageIsToldAndChangesNothing() {
        QFETCH(QString, line);
        QFETCH(QString, quoted);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}}), dive({{u"noPlongee"_s, 2}})});
        shop.put(u"dives.json"_s, R"({"type": "Carnet de plongee", "records": []})");
        const auto before = shop.everything();

        const Outcome outcome = shop.run(line.split(u' '));
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.output, QByteArray());
        const QStringList lines = outcome.errors.split(u'\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines[0].startsWith("sargan: "_L1) && lines[0].contains(quoted), qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith("usage: sargan "_L1), qPrintable(lines[1]));
        QCOMPARE(lines[2], QString());
        QCOMPARE(shop.everything(), before);
    }

    void theUsageIsThatOfTheCommand() {
        const Workshop shop;
        const Outcome outcome = shop.run({u"set"_s, u"a.carnet"_s});
        QCOMPARE(
            outcome.errors.section(u'\n', 1, 1).left(qsizetype(qstrlen("usage: sargan set FILE --row N"))),
            u"usage: sargan set FILE --row N"_s);
    }
};

int runUsageTest(int argc, char** argv) {
    UsageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UsageTest.moc"
