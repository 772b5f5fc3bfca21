#include "interchange/UddfBook.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class UddfImportTest : public QObject {
    Q_OBJECT

    std::unique_ptr<UddfBook> _book;

    const Plongee& read(const QByteArray& content) { return _book->readDive(content); }

private Q_SLOTS:
    void init() { _book = std::make_unique<UddfBook>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void readsAWholeDive() {
        const Plongee& dive = read(
            "\n  <date><year>2015</year><month>8</month><day>23</day></date>\n"
            "  <time><hour>14</hour><minute>07</minute></time>\n"
            "  <airtemperature>300.15</airtemperature><lowesttemperature>283.15</lowesttemperature>\n"
            "  <greatestdepth>31.6</greatestdepth>\n"
            "  <notes><text>Deux congres</text></notes>\n"
            "  <samples><waypoint><depth>0.0</depth><divetime>0</divetime></waypoint>\n"
            "    <waypoint>\n      <depth>31.6</depth>\n      <divetime>1200.0</divetime></waypoint>\n"
            "    <waypoint><depth>5.25</depth><divetime>2999</divetime></waypoint></samples>\n");
        QCOMPARE(dive.noPlongee(), 1);
        QCOMPARE(dive.date().iso(), u"2015-08-23T00:00:00"_s);
        QCOMPARE(dive.heure().iso(), u"2001-01-01T14:07:00"_s);
        QCOMPARE(dive.tempAir(), 27);
        QCOMPARE(dive.tempEau(), 10);
        QCOMPARE(dive.profondeur(), 31.6f);
        QCOMPARE(dive.temps(), 49);
        QCOMPARE(dive.notes(), u"Deux congres"_s);
        QCOMPARE(numbersOf(dive.profilProfondeur()), QList<double>({0, double(31.6f), 5.25}));
        QCOMPARE(dive.meteo(), 7);
        QCOMPARE(dive.courant(), 6);
        QCOMPARE(dive.visibilite(), 8);
        QCOMPARE(dive.typePlongee(), 13);
    }

    void samplesReplaceTheBlankProfileButForThePressures() {
        const Plongee& dive = read(
            "<samples><waypoint><depth>3</depth></waypoint><waypoint><depth>4</depth></waypoint></samples>");
        QCOMPARE(dive.profilProfondeur().commonKind(), NumberKind::Float);
        for (auto list : {&Plongee::ASC_Flag, &Plongee::SLOW_Flag, &Plongee::CEIL_Flag, &Plongee::SURF_Flag,
                          &Plongee::GAZ_Flag}) {
            QCOMPARE(numbersOf((dive.*list)()), QList<double>({0, 0}));
            QCOMPARE((dive.*list)().commonKind(), NumberKind::Float);
        }
        QCOMPARE(numbersOf(dive.PRESS_Data()), QList<double>({0}));
        QCOMPARE(dive.PRESS_Data().commonKind(), NumberKind::Double);
    }

    void withoutWaypointsTheProfileStaysBlank() {
        const Plongee& dive = read("<samples></samples>");
        QCOMPARE(numbersOf(dive.profilProfondeur()), QList<double>({0}));
        QCOMPARE(dive.ASC_Flag().commonKind(), NumberKind::Int);
    }

    void whatIsMissingStaysBlank() {
        const Plongee& dive = read("");
        QCOMPARE(dive.date().iso(), u"2016-06-07T14:30:00"_s);
        QCOMPARE(dive.heure().iso(), u"2001-01-01T00:00:00"_s);
        QCOMPARE(dive.tempAir(), 0);
        QCOMPARE(dive.temps(), 0);
        QCOMPARE(dive.profondeur(), 0.f);
        QCOMPARE(dive.surface(), u"--:--"_s);
        QCOMPARE(dive.o2Mix(), 21);
        QCOMPARE(dive.typePlongee(), 13);
    }

    void theLastOfSeveralElementsCounts() {
        const Plongee& dive = read(
            "<greatestdepth>1</greatestdepth><greatestdepth>2</greatestdepth>"
            "<samples><waypoint><depth>9</depth></waypoint></samples>"
            "<samples><waypoint><depth>8</depth></waypoint></samples>"
            "<notes><text>a</text></notes><notes><text>b</text><text>c</text></notes>");
        QCOMPARE(dive.profondeur(), 2.f);
        QCOMPARE(numbersOf(dive.profilProfondeur()), QList<double>({8}));
        QCOMPARE(dive.notes(), u"c"_s);
    }

    void notesKeepAllTheirText() {
        QCOMPARE(read("<notes><text> a\r\nb &amp; &lt;c&gt; &#233; <![CDATA[<d>]]> </text></notes>").notes(),
                 u" a\nb & <c> é <d> "_s);
        QCOMPARE(read("<notes><text><p>a</p> <p>b</p></text></notes>").notes(), u"a b"_s);
        QCOMPARE(read("<notes><text>   </text></notes>").notes(), u"   "_s);
        QCOMPARE(read("<notes></notes>").notes(), QString());
    }

    void onlyTheLastGroupOfTheLastDataIsRead() {
        const auto group = [](const QByteArray& depth) {
            return "<repetitiongroup><dive><greatestdepth>" + depth +
                   "</greatestdepth></dive></repetitiongroup>";
        };
        const ImportResult result =
            _book->read("uddf", "<uddf><profiledata>" + group("1") + "</profiledata><profiledata>" +
                                    group("2") + group("3") + "</profiledata></uddf>");
        QCOMPARE(result.dives, 1);
        QCOMPARE(result.passedOver, 2);
        QCOMPARE(_book->carnet->count(), 1);
        QCOMPARE(_book->dive(0).profondeur(), 3.f);
    }

    void divesAreNumberedAfterTheLastOneOfTheList() {
        _book->put({plainDive(50), plainDive(7)});
        _book->read("uddf", UddfBook::file("<dive/><dive/>"));
        QCOMPARE(_book->carnet->count(), 4);
        QCOMPARE(_book->dive(2).noPlongee(), 8);
        QCOMPARE(_book->dive(3).noPlongee(), 9);
    }

    void oneDiveLeavesNothingInTheFormForTheNext() {
        _book->read(
            "uddf",
            UddfBook::file("<dive><greatestdepth>30</greatestdepth><notes><text>a</text></notes><samples>"
                           "<waypoint><depth>1</depth></waypoint><waypoint><depth>2</depth></waypoint>"
                           "</samples></dive><dive/>"));
        QCOMPARE(_book->dive(1).profondeur(), 0.f);
        QCOMPARE(_book->dive(1).notes(), QString());
        QCOMPARE(_book->dive(1).profilProfondeur().size(), 1);
    }

    void whatIsExportedHoldsNoDiveForIt() {
        _book->put({fullDive()});
        const ImportResult result = _book->read("uddf", _book->exported("uddf"));
        QCOMPARE(result.dives, 0);
        QCOMPARE(_book->carnet->count(), 1);
    }

    void recognisesItsFilesByTheRoot_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("format");
        const auto row = [](const QByteArray& bytes, const QString& format) {
            QTest::addRow("%.50s", bytes.constData()) << bytes << format;
        };
        row("<uddf/>", u"uddf"_s);
        row("<?xml version='1.0'?>\n<!DOCTYPE uddf [<!ENTITY a \"b\">]>\n<!-- <PROFILE> -->\n<uddf "
            "version='2'>",
            u"uddf"_s);
        row("\xEF\xBB\xBF<PROFILE UDCF=\"1\">", u"udcf"_s);
        row("<log><repgroup>", u"handheld"_s);
        row("<repgroup/>", u"handheld"_s);
        row("<html></html>", QString());
        row("<!-- never ends <uddf>", QString());
        row("uddf", QString());
        row("<", QString());
        row("", QString());
    }
    void recognisesItsFilesByTheRoot() {
        QFETCH(QByteArray, bytes);
        const DiveReader* reader = diveReaderFor(bytes);
        QTEST(reader ? QString::fromLatin1(reader->name()) : QString(), "format");
    }
};

int runUddfImportTest(int argc, char** argv) {
    UddfImportTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UddfImportTest.moc"
