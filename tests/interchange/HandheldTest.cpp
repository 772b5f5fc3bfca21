#include "interchange/InterchangeTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class HandheldTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Book> _book;

    static QByteArray fileWith(const QByteArray& content) {
        return "<logbook><repgroup><dive>" + content + "</dive></repgroup></logbook>";
    }
    const Plongee& read(const QByteArray& content) {
        _book->read("handheld", fileWith(content));
        return _book->last();
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Book>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void readsAWholeDive() {
        const Plongee& dive = read(
            "<place>Brest</place><site>Swansea Vale</site>"
            "<date><YEAR>2012</YEAR><MONTH>2</MONTH><DAY>29</DAY></date><time><HOUR>10</HOUR><MINUTE>40</"
            "MINUTE></time>"
            "<weather>3</weather><current>0</current><visibility>8</visibility><divetype>5</divetype>"
            "<maxdepth>27.9</maxdepth><divetime>52</divetime><watertemperature>9</watertemperature>"
            "<airrtemperature>-4</airrtemperature><altitude>1200</altitude>"
            "<surfaceinterval>infinity</surfaceinterval>"
            "<gases><mix><o2>0.32</o2><he>0</he></mix></gases>"
            "<tank><tankvolume>15</tankvolume><pstart>200</pstart><pend>50</pend></tank>");
        QCOMPARE(dive.lieu(), u"Brest"_s);
        QCOMPARE(dive.site(), u"Swansea Vale"_s);
        QCOMPARE(dive.date().iso(), u"2012-02-29T00:00:00"_s);
        QCOMPARE(dive.heure().iso(), u"2001-01-01T10:40:00"_s);
        QCOMPARE(dive.meteo(), 3);
        QCOMPARE(dive.courant(), 0);
        QCOMPARE(dive.visibilite(), 8);
        QCOMPARE(dive.typePlongee(), 5);
        QCOMPARE(dive.profondeur(), 27.f);
        QCOMPARE(dive.temps(), 52);
        QCOMPARE(dive.tempEau(), 9);
        QCOMPARE(dive.tempAir(), -4);
        QCOMPARE(dive.altitude(), 1200);
        QCOMPARE(dive.surface(), u"--:--"_s);
        QCOMPARE(dive.gaz(), 1);
        QCOMPARE(dive.o2Mix(), 32);
        QCOMPARE(dive.volumeBloc(), 15);
        QCOMPARE(dive.pressionDepart(), 200);
        QCOMPARE(dive.pressionFin(), 50);
        QCOMPARE(numbersOf(dive.profilProfondeur()), QList<double>({0}));
        QCOMPARE(dive.profilProfondeur().commonKind(), NumberKind::Double);
    }

    void whatIsMissingStaysBlank() {
        const Plongee& dive = read("");
        QCOMPARE(dive.site(), QString());
        QCOMPARE(dive.meteo(), 7);
        QCOMPARE(dive.courant(), 6);
        QCOMPARE(dive.visibilite(), 7);
        QCOMPARE(dive.typePlongee(), 8);
        QCOMPARE(dive.date().iso(), u"2016-06-07T14:30:00"_s);
        QCOMPARE(dive.gaz(), 0);
    }

    void anAirTemperatureSpeltWithOneRIsNotRead() {
        QCOMPARE(read("<airtemperature>25</airtemperature>").tempAir(), 0);
        QCOMPARE(read("<airrtemperature>25</airrtemperature>").tempAir(), 25);
    }

    void dateElementsInLowerCaseAreNotRead() {
        QCOMPARE(read("<date><year>2012</year><month>2</month><day>1</day></date>").date().iso(),
                 u"2016-06-07T14:30:00"_s);
    }

    void textThatIsNoNumberIsItemZero() {
        QCOMPARE(read("<weather>rain</weather>").meteo(), 0);
        QCOMPARE(read("<maxdepth>deep</maxdepth>").profondeur(), 0.f);
    }

    void anItemThatTheMenuLacksLeavesTheChoice_data() {
        QTest::addColumn<QByteArray>("index");
        for (const char* index : {"8", "99", "-1", "99999999999"}) QTest::newRow(index) << QByteArray(index);
    }
    void anItemThatTheMenuLacksLeavesTheChoice() {
        QFETCH(QByteArray, index);
        QCOMPARE(read("<weather>" + index + "</weather>").meteo(), 7);
    }

    void anotherSurfaceIntervalIsTakenAsItStands() {
        QCOMPARE(read("<surfaceinterval>01:45</surfaceinterval>").surface(), u"01:45"_s);
    }

    void gasesFollowTheRulesOfUdcf_data() {
        QTest::addColumn<QByteArray>("mix");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("oxygen");
        QTest::addColumn<int>("helium");
        QTest::newRow("air") << QByteArray("<o2>0.21</o2><he>0</he>") << 0 << 21 << 0;
        QTest::newRow("nitrox") << QByteArray("<o2>0.36</o2><he>0</he>") << 1 << 36 << 0;
        QTest::newRow("trimix") << QByteArray("<o2>0.21</o2><he>0.20</he>") << 2 << 21 << 20;
        QTest::newRow("heliox") << QByteArray("<o2>0.20</o2><he>0.80</he>") << 3 << 20 << 80;
        QTest::newRow("poor") << QByteArray("<o2>0.10</o2><he>0</he>") << 0 << 10 << 0;
    }
    void gasesFollowTheRulesOfUdcf() {
        QFETCH(QByteArray, mix);
        const Plongee& dive = read("<gases><mix>" + mix + "</mix></gases>");
        QTEST(dive.gaz(), "kind");
        QTEST(dive.o2Mix(), "oxygen");
        QTEST(dive.heMix(), "helium");
    }

    void theTankMayStandInTheMix() {
        const Plongee& dive = read("<gases><mix><tank><tankvolume>18</tankvolume></tank></mix></gases>");
        QCOMPARE(dive.volumeBloc(), 18);
        QCOMPARE(dive.pressionDepart(), 0);
    }

    void theLastOfSeveralElementsCounts() {
        QCOMPARE(read("<place>a</place><place>b</place>").lieu(), u"b"_s);
    }

    void onlyTheLastGroupIsReadWhateverTheRootIsCalled() {
        const ImportResult result =
            _book->read("handheld",
                        "<anything><repgroup><dive/><dive/></repgroup><repgroup><dive><place>z</place></"
                        "dive></repgroup></anything>");
        QCOMPARE(result.dives, 1);
        QCOMPARE(result.passedOver, 2);
        QCOMPARE(_book->dive(0).lieu(), u"z"_s);
    }

    void theSameFileTwiceIsItsDivesTwice() {
        const QByteArray file = fileWith("<place>a</place>");
        _book->read("handheld", file);
        _book->read("handheld", file);
        QCOMPARE(_book->carnet->count(), 2);
        QCOMPARE(_book->dive(0).noPlongee(), 1);
        QCOMPARE(_book->dive(1).noPlongee(), 2);
        QCOMPARE(_book->dive(1).lieu(), u"a"_s);
    }
};

int runHandheldTest(int argc, char** argv) {
    HandheldTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HandheldTest.moc"
