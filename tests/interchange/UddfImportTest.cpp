#include "interchange/InterchangeTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QByteArray fileWith(const QByteArray& dives) {
    return "<uddf version=\"2.2.0\"><profiledata><repetitiongroup>" + dives +
           "</repetitiongroup></profiledata></uddf>";
}

}  // namespace

class UddfImportTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Book> _book;

    /// The one dive of a file with this content of the dive's element.
    const Plongee& read(const QByteArray& content) {
        _book->read("uddf", fileWith("<dive>" + content + "</dive>"));
        return _book->last();
    }
    QList<double> depthsOf(const QByteArray& waypoints) {
        return numbersOf(read("<samples>" + waypoints + "</samples>").profilProfondeur());
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Book>(); }
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

    void kelvinLoseTheirFraction_data() {
        QTest::addColumn<QByteArray>("kelvin");
        QTest::addColumn<int>("degrees");
        QTest::newRow("27.05") << QByteArray("300.15") << 27;
        QTest::newRow("-0.1") << QByteArray("273.0") << 0;
        QTest::newRow("10.05") << QByteArray("283.15") << 10;
        QTest::newRow("0.05") << QByteArray("273.15") << 0;
        QTest::newRow("a little above -1: 272.1 as a float is 272.100006") << QByteArray("272.1") << 0;
        QTest::newRow("-0.95") << QByteArray("272.15") << 0;
        QTest::newRow("-9.95") << QByteArray("263.15") << -9;
        QTest::newRow("comma") << QByteArray("300,15") << 27;
        QTest::newRow("a unit behind") << QByteArray(" 300.15 K") << 27;
        QTest::newRow("no number") << QByteArray("warm") << -273;
        QTest::newRow("infinite") << QByteArray("1e999") << INT_MAX;
        QTest::newRow("far too cold") << QByteArray("-1e999") << INT_MIN;
    }
    void kelvinLoseTheirFraction() {
        QFETCH(QByteArray, kelvin);
        QFETCH(int, degrees);
        QCOMPARE(read("<lowesttemperature>" + kelvin + "</lowesttemperature>").tempEau(), degrees);
        QCOMPARE(read("<airtemperature>" + kelvin + "</airtemperature>").tempAir(), degrees);
    }

    void secondsBecomeWholeMinutesOfTheLastWaypointThatHasThem_data() {
        QTest::addColumn<QByteArray>("waypoints");
        QTest::addColumn<int>("minutes");
        const auto row = [](const QByteArray& waypoints, int minutes) {
            QTest::newRow(waypoints.constData()) << waypoints << minutes;
        };
        row("<waypoint><divetime>2999</divetime></waypoint>", 49);
        row("<waypoint><divetime>59</divetime></waypoint>", 0);
        row("<waypoint><divetime>-119</divetime></waypoint>", -1);
        row("<waypoint><divetime>600</divetime></waypoint><waypoint><divetime>120</divetime></waypoint>", 2);
        row("<waypoint><divetime>600</divetime></waypoint><waypoint><depth>3</depth></waypoint>", 10);
        row("<waypoint><divetime>60</divetime><divetime>180</divetime></waypoint>", 3);
        row("<waypoint><divetime>1e3</divetime></waypoint>", 0);
    }
    void secondsBecomeWholeMinutesOfTheLastWaypointThatHasThem() {
        QFETCH(QByteArray, waypoints);
        QTEST(read("<samples>" + waypoints + "</samples>").temps(), "minutes");
    }

    void aWaypointsDepth_data() {
        QTest::addColumn<QByteArray>("waypoint");
        QTest::addColumn<double>("depth");
        const auto row = [](const char* name, const QByteArray& waypoint, double depth) {
            QTest::newRow(name) << waypoint << depth;
        };
        row("first child", "<depth>12.5</depth><divetime>60</divetime>", 12.5);
        row("first child after white space", "\n  <depth>12.5</depth>\n  <divetime>60</divetime>\n", 12.5);
        row("a comment before it", "<!-- x --><depth>12.5</depth><divetime>60</divetime>", 12.5);
        row("the texts run together", "<divetime>60</divetime><depth>5.5</depth>", 605.5);
        row("white space keeps them apart", "<divetime>60</divetime> <depth>5.5</depth>", 60);
        row("white space in front", "\n <divetime>60</divetime>\n <depth>5.5</depth>", 60);
        row("text alone", " 7.25 ", 7.25);
        row("text before the depth", "2<depth>5</depth>", 25);
        row("CDATA", "<![CDATA[8.5]]>", 8.5);
        row("text in two pieces", "<depth>1<!-- x -->2</depth>", 12);
        row("an alarm first", "<alarm>ascent</alarm><depth>5</depth>", 0);
        row("nothing", "", 0);
        row("nested", "<depth><m>9</m></depth><divetime>1</divetime>", 9);
        row("upper case is another name", "<DEPTH>9</DEPTH><divetime>1</divetime>", 91);
    }
    void aWaypointsDepth() {
        QFETCH(QByteArray, waypoint);
        QFETCH(double, depth);
        QCOMPARE(depthsOf("<waypoint>" + waypoint + "</waypoint>"), QList<double>({depth}));
    }

    void aDepthIsItsLeadingNumber_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("depth");
        const auto row = [](const QByteArray& text, double depth) {
            QTest::newRow(text.constData()) << text << depth;
        };
        row("1e1", 10);
        row("1e999", std::numeric_limits<double>::infinity());
        row("-1e999", -std::numeric_limits<double>::infinity());
        row("1e-999", 0);
        row("-0", -0.0);
        row("12,5", 12.5);
        row("12.5m", 12.5);
        row("+3", 3);
        row(".5", 0.5);
        row("5.", 5);
        row("nan", 0);
        row("inf", 0);
        row("-", 0);
        row("--5", 0);
        row("0x10", 0);
        row("&#49;2", 12);
        row("\xC2\xA0"
            "4",
            4);
        row("000000000000000000000000000000000000000000000000012", 12);
    }
    void aDepthIsItsLeadingNumber() {
        QFETCH(QByteArray, text);
        QFETCH(double, depth);
        QCOMPARE(depthsOf("<waypoint><depth>" + text + "</depth></waypoint>"), QList<double>({depth}));
    }

    void datesAreReadAsACalendarCounts_data() {
        QTest::addColumn<QByteArray>("date");
        QTest::addColumn<QString>("day");
        const auto row = [](const char* name, const QByteArray& date, const QString& day) {
            QTest::newRow(name) << date << day;
        };
        const QString blank = u"2016-06-07T14:30:00"_s;
        row("plain", "<year>1999</year><month>12</month><day>31</day>", u"1999-12-31T00:00:00"_s);
        row("any order, white space", "<day> 1 </day><year>\n2001</year><month>02</month>",
            u"2001-02-01T00:00:00"_s);
        row("month 13", "<year>1999</year><month>13</month><day>1</day>", u"2000-01-01T00:00:00"_s);
        row("day 32", "<year>1999</year><month>12</month><day>32</day>", u"2000-01-01T00:00:00"_s);
        row("29 February", "<year>2015</year><month>2</month><day>29</day>", u"2015-03-01T00:00:00"_s);
        row("day 0", "<year>2015</year><month>3</month><day>0</day>", u"2015-02-28T00:00:00"_s);
        row("year alone", "<year>2015</year>", u"2015-01-01T00:00:00"_s);
        row("the last of each", "<year>1</year><year>2015</year><month>6</month><day>7</day>",
            u"2015-06-07T00:00:00"_s);
        row("empty", "", blank);
        row("upper case", "<YEAR>2015</YEAR>", blank);
        row("year 0", "<year>0</year><month>1</month><day>1</day>", blank);
        row("year too far", "<year>99999999999</year><month>1</month><day>1</day>", blank);
        row("day too far", "<year>2015</year><month>1</month><day>99999999999</day>",
            u"4752-11-27T00:00:00"_s);
    }
    void datesAreReadAsACalendarCounts() {
        QFETCH(QByteArray, date);
        QTEST(read("<date>" + date + "</date>").date().iso(), "day");
    }

    void timesStayWithinTheDay_data() {
        QTest::addColumn<QByteArray>("time");
        QTest::addColumn<QString>("read");
        const auto row = [](const QByteArray& time, const QString& read) {
            QTest::newRow(time.constData()) << time << u"2001-01-01T%1:00"_s.arg(read);
        };
        row("<hour>9</hour><minute>5</minute>", u"09:05"_s);
        row("<hour>9</hour>", u"09:00"_s);
        row("<minute>75</minute>", u"01:15"_s);
        row("<hour>25</hour><minute>0</minute>", u"01:00"_s);
        row("<hour>-1</hour><minute>0</minute>", u"23:00"_s);
        row("<hour>2147483647</hour><minute>2147483647</minute>", u"09:07"_s);
        row("", u"00:00"_s);
    }
    void timesStayWithinTheDay() {
        QFETCH(QByteArray, time);
        QTEST(_book->read("uddf", fileWith("<dive><time>" + time + "</time></dive>")).dives == 1
                  ? _book->last().heure().iso()
                  : QString(),
              "read");
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
        _book->read("uddf", fileWith("<dive/><dive/>"));
        QCOMPARE(_book->carnet->count(), 4);
        QCOMPARE(_book->dive(2).noPlongee(), 8);
        QCOMPARE(_book->dive(3).noPlongee(), 9);
    }

    void oneDiveLeavesNothingInTheFormForTheNext() {
        _book->read("uddf",
                    fileWith("<dive><greatestdepth>30</greatestdepth><notes><text>a</text></notes><samples>"
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
