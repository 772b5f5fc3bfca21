#include "interchange/InterchangeTests.h"
#include "interchange/XmlDiveReader.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class UdcfTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Book> _book;

    const Plongee& read(const QByteArray& content) {
        _book->read("udcf", "<PROFILE><REPGROUP><DIVE>" + content + "</DIVE></REPGROUP></PROFILE>");
        return _book->last();
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Book>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void readsAWholeDive() {
        const Plongee& dive = read(
            "<PLACE>Brest - Swansea Vale</PLACE>"
            "<DATE><YEAR>2016</YEAR><MONTH>06</MONTH><DAY>07</DAY></DATE>"
            "<TIME><HOUR>09</HOUR><MINUTE>05</MINUTE></TIME>"
            "<MAXDEPTH>99</MAXDEPTH><DIVETIME>45</DIVETIME><SURFACEINTERVAL>02:15</SURFACEINTERVAL>"
            "<TEMPERATURE>14</TEMPERATURE><ALTITUDE>300</ALTITUDE>"
            "<GASES><MIX><MIXNAME>Trimix</MIXNAME><TANK><TANKVOLUME>24</TANKVOLUME><PSTART>232</PSTART>"
            "<PEND>70</PEND></TANK><O2>0.18</O2><N2>0.37</N2><HE>0.45</HE></MIX></GASES>"
            "<SAMPLES><DELTA>20.0</DELTA><SWITCH>1</SWITCH><D>0.0</D><D>12.2</D><ALARM>deco</ALARM><D>30.8</"
            "D>"
            "<D>0.0</D></SAMPLES>");
        QCOMPARE(dive.noPlongee(), 1);
        QCOMPARE(dive.lieu(), u"Brest - Swansea Vale"_s);
        QCOMPARE(dive.site(), QString());
        QCOMPARE(dive.date().iso(), u"2016-06-07T00:00:00"_s);
        QCOMPARE(dive.heure().iso(), u"2001-01-01T09:05:00"_s);
        QCOMPARE(dive.temps(), 20);
        QCOMPARE(dive.profondeur(), 30.f);
        QCOMPARE(dive.surface(), u"02:15"_s);
        QCOMPARE(dive.tempEau(), 14);
        QCOMPARE(dive.altitude(), 300);
        QCOMPARE(dive.volumeBloc(), 24);
        QCOMPARE(dive.pressionDepart(), 232);
        QCOMPARE(dive.pressionFin(), 70);
        QCOMPARE(dive.gaz(), 4);
        QCOMPARE(dive.o2Mix(), 18);
        QCOMPARE(dive.heMix(), 45);
        QCOMPARE(dive.samplingRate(), 1);
        QCOMPARE(numbersOf(dive.profilProfondeur()), QList<double>({0, double(12.2f), double(30.8f), 0}));
        QCOMPARE(numbersOf(dive.ASC_Flag()), QList<double>({0, 0, 0, 0}));
        QCOMPARE(dive.ASC_Flag().commonKind(), NumberKind::Float);
        QCOMPARE(dive.PRESS_Data().size(), 1);
        QCOMPARE(dive.meteo(), 7);
        QCOMPARE(dive.courant(), 6);
        QCOMPARE(dive.visibilite(), 8);
        QCOMPARE(dive.typePlongee(), 13);
    }

    void whatIsMissingStaysBlank() {
        const Plongee& dive = read("");
        QCOMPARE(dive.lieu(), QString());
        QCOMPARE(dive.date().iso(), u"2016-06-07T14:30:00"_s);
        QCOMPARE(dive.surface(), u"--:--"_s);
        QCOMPARE(dive.temps(), 0);
        QCOMPARE(dive.gaz(), 0);
        QCOMPARE(dive.o2Mix(), 21);
        QCOMPARE(dive.samplingRate(), 0);
        QCOMPARE(dive.profilProfondeur().size(), 1);
    }

    void anEndlessSurfaceIntervalIsNone_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("infinity") << QByteArray("infinity") << u"--:--"_s;
        QTest::newRow("on a line of its own") << QByteArray("\n  infinity\n") << u"--:--"_s;
        QTest::newRow("a time") << QByteArray("01:30") << u"01:30"_s;
        QTest::newRow("upper case") << QByteArray("Infinity") << u"Infinity"_s;
    }
    void anEndlessSurfaceIntervalIsNone() {
        QFETCH(QByteArray, text);
        QTEST(read("<SURFACEINTERVAL>" + text + "</SURFACEINTERVAL>").surface(), "shown");
    }

    void theIntervalIsTheCodeAndTheTime_data() {
        QTest::addColumn<QByteArray>("delta");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("time");
        const auto row = [](const QByteArray& delta, int code, int time) {
            QTest::newRow(delta.constData()) << delta << code << time;
        };
        row("10", 0, 10);
        row("20.0", 1, 20);
        row("30", 2, 30);
        row("60", 3, 60);
        row("120", 4, 120);
        row("4", 5, 4);
        row("1", 6, 1);
        row("5.0", 7, 5);
        row("15", 0, 15);
        row("0.0", 0, 0);
        row("-20", 0, -20);
        row("10</DELTA><DELTA>30", 2, 30);
        row("x", 0, 0);
    }
    void theIntervalIsTheCodeAndTheTime() {
        QFETCH(QByteArray, delta);
        const Plongee& dive = read("<SAMPLES><DELTA>" + delta + "</DELTA></SAMPLES>");
        QTEST(dive.samplingRate(), "code");
        QTEST(dive.temps(), "time");
        QCOMPARE(dive.profilProfondeur().size(), 1);
    }

    void theGreatestDepthLosesItsFraction_data() {
        QTest::addColumn<QByteArray>("depths");
        QTest::addColumn<float>("greatest");
        QTest::newRow("cut off") << QByteArray("<D>1</D><D>39.99</D><D>2</D>") << 39.f;
        QTest::newRow("negative") << QByteArray("<D>-2.5</D><D>-7</D>") << -2.f;
        QTest::newRow("infinite") << QByteArray("<D>1e999</D>") << 2147483648.f;
        QTest::newRow("no number") << QByteArray("<D>nan</D><D/>") << 0.f;
    }
    void theGreatestDepthLosesItsFraction() {
        QFETCH(QByteArray, depths);
        QTEST(read("<SAMPLES>" + depths + "</SAMPLES>").profondeur(), "greatest");
    }

    void theKindOfGasIsTheLastTestThatHolds_data() {
        QTest::addColumn<double>("oxygen");
        QTest::addColumn<double>("helium");
        QTest::addColumn<int>("kind");
        const auto row = [](const char* name, double oxygen, double helium, int kind) {
            QTest::newRow(name) << oxygen << helium << kind;
        };
        row("air", 21, 0, 0);
        row("nitrox", 32, 0, 1);
        row("oxygen", 100, 0, 1);
        row("barely nitrox", 21.5, 0, 1);
        row("trimix", 18, 20, 2);
        row("trimix at 21 helium", 18, 21, 2);
        row("helitrox from there on", 18, 21.5, 4);
        row("heliox", 21, 79, 3);
        row("little helium, no nitrogen", 90, 10, 3);
        row("poor in oxygen, no helium", 16, 0, -1);
        row("more than everything", 60, 60, -1);
        row("negative helium", 21, -1, -1);
        row("none", 0, 0, -1);
    }
    void theKindOfGasIsTheLastTestThatHolds() {
        QFETCH(double, oxygen);
        QFETCH(double, helium);
        QTEST(diveimport::gasKind(oxygen, helium).value_or(-1), "kind");
    }

    void sharesAreHundredthsWithoutTheirFraction_data() {
        QTest::addColumn<QByteArray>("mix");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("oxygen");
        QTest::addColumn<int>("helium");
        const auto row = [](const QByteArray& mix, int kind, int oxygen, int helium) {
            QTest::newRow(mix.constData()) << mix << kind << oxygen << helium;
        };
        row("<O2>0.21</O2><HE>0.00</HE>", 0, 21, 0);
        row("<O2>0.329</O2><HE>0</HE>", 1, 32, 0);
        row("<O2>0.32</O2>", 1, 32, 0);
        row("<HE>0.30</HE>", 4, 21, 30);
        row("<O2>0.16</O2><HE>0</HE>", 0, 16, 0);
        row("<O2>0,5</O2>", 1, 50, 0);
        // As doubles, 0.29 times a hundred is 28.999999999999996.
        row("<O2>0.29</O2>", 1, 28, 0);
        row("<N2>0.5</N2>", 0, 21, 0);
        row("<O2>0.1</O2></MIX><MIX><O2>0.4</O2>", 1, 40, 0);
    }
    void sharesAreHundredthsWithoutTheirFraction() {
        QFETCH(QByteArray, mix);
        const Plongee& dive = read("<GASES><MIX>" + mix + "</MIX></GASES>");
        QTEST(dive.gaz(), "kind");
        QTEST(dive.o2Mix(), "oxygen");
        QTEST(dive.heMix(), "helium");
    }

    void theFormsOwnRulesApply() {
        _book->desk.prompt.expectAlert(
            u"Check the pressures: the end pressure is above the start pressure, or one of them is negative."_s);
        _book->desk.prompt.expectAlert(u"The helium percentage was out of range and has been set to 0."_s);
        const Plongee& dive = read(
            "<GASES><MIX><O2>0</O2><HE>0.9</HE><TANK><PSTART>200</PSTART><PEND>210</PEND></TANK></MIX></"
            "GASES>");
        QCOMPARE(dive.o2Mix(), 21);
        QCOMPARE(dive.heMix(), 0);
        QCOMPARE(dive.pressionFin(), 210);
    }

    void allGroupsAreRead() {
        const ImportResult result = _book->read(
            "udcf",
            "<PROFILE><REPGROUP><DIVE><PLACE>a</PLACE></DIVE></REPGROUP><REPGROUP/>"
            "<REPGROUP><DIVE><PLACE>b</PLACE></DIVE><DIVE><PLACE>c</PLACE></DIVE></REPGROUP></PROFILE>");
        QCOMPARE(result.dives, 3);
        QCOMPARE(result.passedOver, 0);
        QCOMPARE(_book->dive(0).lieu(), u"a"_s);
        QCOMPARE(_book->dive(2).lieu(), u"c"_s);
        QCOMPARE(_book->dive(2).noPlongee(), 3);
    }

    void textsAndNumbersAreTakenAsTheyStand() {
        const Plongee& dive = read(
            "<PLACE>  l&apos;île &amp; co  </PLACE><TEMPERATURE>12,9 C</TEMPERATURE><ALTITUDE>high</ALTITUDE>"
            "<GASES><MIX><TANK><TANKVOLUME>12.7</TANKVOLUME></TANK></MIX></GASES>");
        QCOMPARE(dive.lieu(), u"  l'île & co  "_s);
        QCOMPARE(dive.tempEau(), 12);
        QCOMPARE(dive.altitude(), 0);
        QCOMPARE(dive.volumeBloc(), 12);
    }

    void aRoundTripAddsTwoPointsAndLosesTheTime() {
        _book->put({fullDive()});
        Book other;
        QCOMPARE(other.read("udcf", _book->exported("udcf")).dives, 1);
        const Plongee& dive = other.last();
        QCOMPARE(dive.lieu(), u"Brest - Swansea Vale"_s);
        QCOMPARE(dive.date().iso(), u"2016-06-07T00:00:00"_s);
        QCOMPARE(dive.heure().iso(), u"2001-01-01T09:05:00"_s);
        QCOMPARE(dive.profondeur(), 30.f);
        QCOMPARE(dive.temps(), 20);
        QCOMPARE(dive.tempEau(), 14);
        QCOMPARE(dive.altitude(), 3);
        QCOMPARE(dive.surface(), u"--:--"_s);
        QCOMPARE(dive.gaz(), 1);
        QCOMPARE(dive.volumeBloc(), 15);
        QCOMPARE(dive.pressionDepart(), 207);
        QCOMPARE(dive.pressionFin(), 60);
        QCOMPARE(numbersOf(dive.profilProfondeur()),
                 QList<double>({0, 0, double(12.2f), double(30.8f), 5, 0}));
        QCOMPARE(numbersOf(dive.SLOW_Flag()), QList<double>({0, 0, 0, 0, 0, 0}));
    }
};

int runUdcfTest(int argc, char** argv) {
    UdcfTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UdcfTest.moc"
