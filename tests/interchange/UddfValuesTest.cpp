#include "interchange/UddfBook.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// How the numbers, dates and times of a UDDF file are read.
class UddfValuesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<UddfBook> _book;

    const Plongee& read(const QByteArray& content) { return _book->readDive(content); }
    QList<double> depthsOf(const QByteArray& waypoints) {
        return numbersOf(read("<samples>" + waypoints + "</samples>").profilProfondeur());
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<UddfBook>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

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
        row("-12.25", -12.25);
        row("0.1234567", double(0.1234567F));
        row("0.12345678", double(0.12345678F));
        row("123456789012345", double(123456789012345.F));
        row("1234567890123456", double(1234567890123456.F));
        row("1.50.5", 1.5);
        row("1.5 2", 1.5);
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
        QTEST(_book->read("uddf", UddfBook::file("<dive><time>" + time + "</time></dive>")).dives == 1
                  ? _book->last().heure().iso()
                  : QString(),
              "read");
    }
};

int runUddfValuesTest(int argc, char** argv) {
    UddfValuesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UddfValuesTest.moc"
