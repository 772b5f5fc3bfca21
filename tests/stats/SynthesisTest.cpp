#include "stats/SynthesisReport.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class SynthesisTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDiveIsReportedInOrder() {
        const QStringList expected{u"Dive number : 12"_s,
                                   u""_s,
                                   u"General"_s,
                                   u"Date : 07/06/2016"_s,
                                   u"Location : Brest"_s,
                                   u"Site : La Vandrée"_s,
                                   u"Pays : France"_s,
                                   u"GPS (WGS84) : N 48 W 004"_s,
                                   u"Tide coefficient : 95 (Pleine mer)"_s,
                                   u"Wrecks : Emmy"_s,
                                   u"Buddies : Ann, Bob"_s,
                                   u"Structure : Club"_s,
                                   u"Boat : Albatros"_s,
                                   u""_s,
                                   u"Conditions"_s,
                                   u"Weather : Cloudy"_s,
                                   u"Wind : Wind sector North-west, Wind force 4"_s,
                                   u"Current : Moderate"_s,
                                   u"Visibility : Exceptional"_s,
                                   u"Water temperature : 14 °C"_s,
                                   u"Air temperature : -3 °C"_s,
                                   u"Dive type : Wreck"_s,
                                   u"Night"_s,
                                   u"Difficulty level : Cotation 3"_s,
                                   u""_s,
                                   u"Parameters"_s,
                                   u"Depth : 38.5 m"_s,
                                   u"Time : 47 min."_s,
                                   u"Surface : 02:30"_s,
                                   u"Start time : 23:40"_s,
                                   u"End time : 00:27"_s,
                                   u"Altitude : 250 m"_s,
                                   u"PAtm : 1013 hPa"_s,
                                   u""_s,
                                   u"Decompression"_s,
                                   u"Computer : Deep One"_s,
                                   u"GF : 30/85"_s,
                                   u"Nitrox tables"_s,
                                   u" Run Time"_s,
                                   u"Deco soft name : Planner"_s,
                                   u"Deco algorythm type : ZHL16-C"_s,
                                   u"Deco conservatism : +2"_s,
                                   u"Detail runtime : RT 52"_s,
                                   u"TTS : 9 min."_s,
                                   u""_s,
                                   u"Gas"_s,
                                   u"Scaphander : Open circuit"_s,
                                   u"Tank_1"_s,
                                   u"   - Steel"_s,
                                   u"Tank pressure : 0 litres At 0 bar"_s,
                                   u"Start pressure : 0 bar"_s,
                                   u"End pressure : 0 bar"_s,
                                   u"Used pressure : 0 bar"_s,
                                   u"Available gas : 0 litres"_s,
                                   u"Breathed gas : 0 litres"_s,
                                   u"   - Air"_s,
                                   u""_s,
                                   u"Equipment"_s,
                                   u"Configuration : Tek configuration"_s,
                                   u"   - Dry suit"_s,
                                   u"   - Lamp"_s,
                                   u"   - Reel"_s,
                                   u"Weight : 4.5 kg"_s,
                                   u""_s,
                                   u"Notes"_s,
                                   u"Calm sea."_s,
                                   u"Two seals."_s,
                                   u""_s,
                                   QString(60, u'•'),
                                   u""_s,
                                   u""_s};
        QCOMPARE(linesOf(fullDive()).join(u'\n'), expected.join(u'\n'));
    }

    void unitsChangeWithTheSettingAndNumbersDoNot() {
        Plongee dive = fullDive();
        dive.setDecoDepth_Level_2(6);
        dive.setDecoTime_Level_2(5);
        QCOMPARE(line(dive, u"Depth"_s, true), u"Depth : 38.5 ft"_s);
        QCOMPARE(line(dive, u"Altitude"_s, true), u"Altitude : 250 ft"_s);
        QCOMPARE(line(dive, u"Water"_s, true), u"Water temperature : 14 °F"_s);
        QCOMPARE(line(dive, u"Air temp"_s, true), u"Air temperature : -3 °F"_s);
        QCOMPARE(line(dive, u"   - 6"_s, true), u"   - 6.0 ft : 5 min. - (Air)"_s);
        QCOMPARE(line(dive, u"   - 6"_s, false), u"   - 6.0 m : 5 min. - (Air)"_s);
        const QString metric = linesOf(dive, false).join(u'\n'), other = linesOf(dive, true).join(u'\n');
        QString converted = metric;
        converted.replace(u" m\n"_s, u" ft\n"_s).replace(u" m : "_s, u" ft : "_s).replace(u" °C"_s, u" °F"_s);
        QCOMPARE(other, converted);
    }

    void temperaturesThatWereNotMeasuredHaveNoLine() {
        Plongee dive = fullDive();
        dive.setTempEau(-50);
        QVERIFY(line(dive, u"Water temperature"_s).isNull());
        QVERIFY(!line(dive, u"Air temperature"_s).isNull());
        dive.setTempAir(-50);
        QVERIFY(line(dive, u"Air temperature"_s).isNull());
    }

    void absentValuesLeaveTheirLabels() {
        const Plongee dive;
        QVERIFY(hasLine(dive, u"Location : "_s));
        QVERIFY(hasLine(dive, u"Date : "_s));
        QVERIFY(hasLine(dive, u"End time : "_s));
        QVERIFY(!hasLine(dive, u"GF : 0/0"_s));
        QVERIFY(!hasLine(dive, u" Run Time"_s));
        QVERIFY(hasLine(dive, u"Air tables"_s));
    }

    void stylesAreRedBlueBlackAndUnderlined() {
        const StyledText report = diveReport(fullDive(), keyed, false);
        const auto styleOf = [&](const QString& text) {
            for (const StyledText::Run& run : report.runs())
                if (run.text.contains(text)) return run.style;
            return TextStyle{.size = 0};
        };
        QVERIFY(styleOf(u"General"_s) == (TextStyle{.color = inkcolor::red, .underline = true}));
        QVERIFY(styleOf(u"Location"_s) == TextStyle{.color = inkcolor::black});
        QVERIFY(styleOf(u"Brest"_s) == TextStyle{.color = inkcolor::blue});
        for (const char* named : {"Weather", "GPS (WGS84) : ", "GF : ", "Tank_1"})
            QVERIFY2(styleOf(QLatin1String(named)) == TextStyle{.color = inkcolor::black}, named);
        for (const char* told : {"Cloudy", "N 48 W 004", "30/85", "Nitrox tables", "- Steel"})
            QVERIFY2(styleOf(QLatin1String(told)) == TextStyle{.color = inkcolor::blue}, told);
        QVERIFY(styleOf(u"••"_s) == TextStyle{.color = inkcolor::black});
    }

    void theSelectedDiveOrAllOfThemAreCovered() {
        TestDesk desk;
        QList<Plongee> dives;
        for (int number : {5, 3, 9}) {
            Plongee dive = fullDive();
            dive.setNoPlongee(number);
            dives << dive;
        }
        const auto carnet = logbookOf(desk, dives);
        Synthesis synthesis(*carnet);
        const auto numbers = [&] {
            QStringList found;
            const auto report = synthesis.fillSynthesisWindow();
            if (!report) return u"none"_s;
            for (const QString& text : report->plainText().split(u'\n'))
                if (text.startsWith(u"Dive number : "_s)) found << text.mid(14);
            return found.join(u',');
        };
        synthesis.chooser().setTag(synthesiscontrol::selectedDives, 0);
        carnet->select({});
        QCOMPARE(numbers(), u"none"_s);
        QVERIFY(!synthesis.canFill());
        carnet->select({1});
        QCOMPARE(numbers(), u"3"_s);
        carnet->select({1, 2});
        QCOMPARE(numbers(), u"3"_s);
        for (const int anyOther : {1, 7, -1}) {
            synthesis.chooser().setTag(synthesiscontrol::selectedDives, anyOther);
            QCOMPARE(numbers(), u"5,3,9"_s);
        }
    }

    void withoutASelectedDiveTheChooserStaysAndBeeps() {
        TestDesk desk;
        const auto carnet = logbookOf(desk, {fullDive()});
        Synthesis synthesis(*carnet);
        QStringList happened;
        synthesis.onShowChooser = [&] { happened << u"chooser"_s; };
        synthesis.onCloseChooser = [&] { happened << u"closed"_s; };
        synthesis.onShowReport = [&](const StyledText&) { happened << u"report"_s; };
        carnet->select({});
        synthesis.divesForSynthesisWindow();
        synthesis.chooser().setTag(synthesiscontrol::selectedDives, 0);
        desk.prompt.expectBeep();
        synthesis.chooser().press(u"syntheseWindow"_s);
        QCOMPARE(happened, QStringList{u"chooser"_s});
        carnet->select({0});
        synthesis.chooser().press(u"syntheseWindow"_s);
        QCOMPARE(happened, QStringList({u"chooser"_s, u"closed"_s, u"report"_s}));
        QCOMPARE(desk.prompt.finish(), QStringList());
    }
};

int runSynthesisTest(int argc, char** argv) {
    SynthesisTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SynthesisTest.moc"
