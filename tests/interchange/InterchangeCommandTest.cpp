#include "cli/Workshop.h"
#include "interchange/InterchangeTests.h"

using namespace Qt::StringLiterals;

class InterchangeCommandTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Workshop> _shop;

    Outcome import(const QStringList& words) const { return _shop->run(QStringList{u"import"_s} + words); }
    Outcome exported(const QString& type, const QString& to = u"-"_s) const {
        return _shop->run({u"export"_s, u"a.carnet"_s, u"--type"_s, type, u"-o"_s, to});
    }

private Q_SLOTS:
    void init() {
        _shop = std::make_unique<Workshop>();
        _shop->put(
            u"dives.xml"_s,
            "<P><REPGROUP><DIVE><PLACE>Brest</PLACE></DIVE><DIVE><PLACE>Sète</PLACE></DIVE></REPGROUP></P>");
    }

    void makesTheLogbookThatIsNotThere() {
        const Outcome outcome = import({u"a.carnet"_s, u"dives.xml"_s, u"--format"_s, u"udcf"_s});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.text(), u"2 dives were read from “dives.xml”.\n"_s);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(_shop->record(u"a.carnet"_s, 1)[u"lieu"_s].toString(), u"Sète"_s);
        QCOMPARE(_shop->record(u"a.carnet"_s, 1)[u"noPlongee"_s].toInt(), 2);
    }

    void appendsToTheLogbookThatIsThere() {
        _shop->putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 41}})});
        QCOMPARE(import({u"a.carnet"_s, u"dives.xml"_s, u"dives.xml"_s, u"--format"_s, u"udcf"_s}).text(),
                 u"4 dives were read from 2 files.\n"_s);
        QCOMPARE(_shop->records(u"a.carnet"_s).size(), 5);
        QCOMPARE(_shop->record(u"a.carnet"_s, 4)[u"noPlongee"_s].toInt(), 45);
    }

    void findingNothingIsNoFailure() {
        const Outcome outcome = import({u"a.carnet"_s, u"dives.xml"_s, u"--format"_s, u"uddf"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.text(), u"No dive was read from “dives.xml”.\n"_s);
        QCOMPARE(_shop->records(u"a.carnet"_s).size(), 0);
    }

    void whatCannotBeReadLeavesEverythingAsItWas() {
        _shop->putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 41}})});
        _shop->put(u"bad.xml"_s, "<P>\n<Q>");
        const auto before = _shop->everything();
        for (const QStringList& files : {QStringList{u"dives.xml"_s, u"bad.xml"_s}, QStringList{u"bad.xml"_s},
                                         QStringList{u"none.xml"_s}}) {
            for (const QString& logbook : {u"a.carnet"_s, u"new.carnet"_s}) {
                const Outcome outcome =
                    import(QStringList{logbook} + files + QStringList{u"--format"_s, u"udcf"_s});
                QCOMPARE(outcome.status, 1);
                QVERIFY2(isOneSentence(outcome.errors), qPrintable(outcome.errors));
                QVERIFY(outcome.output.isEmpty());
            }
        }
        QCOMPARE(_shop->everything(), before);
        QCOMPARE(import({u"a.carnet"_s, u"bad.xml"_s, u"--format"_s, u"udcf"_s}).errors,
                 u"sargan: bad.xml: line 2, column 3: an element does not end as it began\n"_s);
    }

    void alertsArePrintedAsTheyHappen() {
        _shop->put(u"p.xml"_s,
                   "<P><REPGROUP><DIVE><GASES><MIX><HE>0.95</HE><TANK><PSTART>1</PSTART><PEND>2</PEND>"
                   "</TANK></MIX></GASES></DIVE></REPGROUP></P>");
        QCOMPARE(import({u"a.carnet"_s, u"p.xml"_s, u"--format"_s, u"udcf"_s, u"--lang"_s, u"keys"_s}).errors,
                 u"alert: Pressure in out\nalert: Helium percent\n"_s);
    }

    void wrongUsageIsToldApart_data() {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("no format") << QStringList{u"a.carnet"_s, u"dives.xml"_s};
        QTest::newRow("unknown format")
            << QStringList{u"a.carnet"_s, u"dives.xml"_s, u"--format"_s, u"UDCF"_s};
        QTest::newRow("no input") << QStringList{u"a.carnet"_s, u"--format"_s, u"udcf"_s};
        QTest::newRow("nothing") << QStringList{u"--format"_s, u"udcf"_s};
    }
    void wrongUsageIsToldApart() {
        QFETCH(QStringList, words);
        QCOMPARE(import(words).status, 2);
        QVERIFY(!_shop->everything().contains(u"a.carnet"_s));
    }

    void aRegisterTakesNoDives() {
        _shop->run({u"new"_s, u"Epaves"_s, u"e.epaves"_s});
        const Outcome outcome = import({u"e.epaves"_s, u"dives.xml"_s, u"--format"_s, u"udcf"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY(isOneSentence(outcome.errors));
    }

    void exportsByShortNameAndByTypeName_data() {
        QTest::addColumn<QString>("shortName");
        QTest::addColumn<QString>("typeName");
        QTest::addColumn<QByteArray>("beginning");
        const auto row = [](const char* shortName, const QString& typeName, const QByteArray& beginning) {
            QTest::newRow(shortName) << QString::fromLatin1(shortName) << typeName << beginning;
        };
        row("csv-semicolon", u"Export Carnet CSV (Point-virgule)"_s, "\"Dive #\";\"Date\";");
        row("csv-comma", u"Export Carnet CSV (Virgule)"_s, "Dive #,Date,");
        row("txt-tab", u"Export Carnet TXT (Tabulation)"_s, "Dive #\tDate\t");
        row("profiles-csv", u"Export Profils CSV (Virgule)"_s, "Dive #,Point,");
        row("udcf", u"Export UDCF (Universal Dive Computer Format)"_s,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PROFILE UDCF=\"1\">\n");
        row("uddf", u"Export UDDF (Universal Dive Data Format)"_s,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<uddf version=\"2.2.0\">\n");
    }
    void exportsByShortNameAndByTypeName() {
        QFETCH(QString, shortName);
        QFETCH(QString, typeName);
        QFETCH(QByteArray, beginning);
        import({u"a.carnet"_s, u"dives.xml"_s, u"--format"_s, u"udcf"_s});
        const QStringList now{u"--now"_s, u"2016-06-07T14:30:00"_s};
        const QStringList words{u"export"_s, u"a.carnet"_s, u"-o"_s, u"-"_s, u"--type"_s};
        const Outcome byShortName = _shop->run(words + QStringList{shortName} + now);
        QCOMPARE(byShortName.status, 0);
        QCOMPARE(byShortName.output.first(beginning.size()), beginning);
        QCOMPARE(_shop->run(words + QStringList{typeName} + now).output, byShortName.output);
    }

    void exportReplacesAFileAndLeavesTheLogbook() {
        import({u"a.carnet"_s, u"dives.xml"_s, u"--format"_s, u"udcf"_s});
        const QByteArray logbook = _shop->folder().content(u"a.carnet"_s);
        _shop->put(u"out.csv"_s, "old");
        QCOMPARE(exported(u"csv-semicolon"_s, u"out.csv"_s).status, 0);
        QVERIFY(_shop->folder().content(u"out.csv"_s).contains("\"S\xC3\xA8te\""));
        QCOMPARE(_shop->folder().content(u"a.carnet"_s), logbook);
    }

    void exportTellsOfReplacedCharacters() {
        _shop->putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 3}, {u"lieu"_s, u"Győr"_s}}),
                                          dive({{u"noPlongee"_s, 4}, {u"lieu"_s, u"Sète"_s}})});
        const Outcome outcome = exported(u"csv-comma"_s);
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.output.contains(",Gyor,"));
        QVERIFY(outcome.output.contains(",S\x8Fte,"));
        QVERIFY2(outcome.errors.startsWith(u"alert: "_s) && outcome.errors.endsWith(u": 3.\n"_s),
                 qPrintable(outcome.errors));
    }

    void anEmptyLogbookIsNoUddf() {
        _shop->run({u"new"_s, u"Carnet de plongee"_s, u"a.carnet"_s});
        const Outcome outcome = exported(u"uddf"_s, u"out.uddf"_s);
        QCOMPARE(outcome.status, 1);
        QVERIFY(isOneSentence(outcome.errors));
        QVERIFY(outcome.errors.contains(u"a.carnet: "_s));
        QVERIFY(!_shop->everything().contains(u"out.uddf"_s));
        QCOMPARE(exported(u"udcf"_s, u"out.udcf"_s).status, 0);
    }

    void anUnknownTypeIsWrongUsage() {
        import({u"a.carnet"_s, u"dives.xml"_s, u"--format"_s, u"udcf"_s});
        QCOMPARE(exported(u"csv"_s).status, 2);
    }
};

int runInterchangeCommandTest(int argc, char** argv) {
    InterchangeCommandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InterchangeCommandTest.moc"
