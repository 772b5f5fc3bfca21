#include "stats/StatsTests.h"
#include "stats/Synthesis.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const Strings keyed{Strings::Language::Keys};

QStringList linesOf(const Plongee& dive, bool usUnits = false) {
    return diveReport(dive, keyed, usUnits).plainText().split(u'\n');
}

/// The line that begins with this label; null when there is none.
QString line(const Plongee& dive, const QString& label, bool usUnits = false) {
    for (const QString& found : linesOf(dive, usUnits))
        if (found.startsWith(label)) return found;
    return {};
}

bool hasLine(const Plongee& dive, const QString& text) {
    return linesOf(dive).contains(text);
}

Plongee fullDive() {
    Plongee dive;
    dive.setNoPlongee(12);
    dive.setDate(Moment::fromIso(u"2016-06-07"_s));
    dive.setLieu(u"Brest"_s);
    dive.setSite(u"La Vandrée"_s);
    dive.setPays(u"France"_s);
    dive.setGps(u"N 48 W 004"_s);
    dive.setGpsSystem(1);
    dive.setCoeff(95);
    dive.setPmBm(1);
    dive.setEpaves(u"Emmy"_s);
    dive.setPartenaires(u"Ann, Bob"_s);
    dive.setStructure(u"Club"_s);
    dive.setBateau(u"Albatros"_s);
    dive.setMeteo(1);
    dive.setVentSecteur(8);
    dive.setVentForce(5);
    dive.setCourant(2);
    dive.setVisibilite(8);
    dive.setTempEau(14);
    dive.setTempAir(-3);
    dive.setTypePlongee(0);
    dive.setNocturne(1);
    dive.setDifficulte(3);
    dive.setProfondeur(38.5F);
    dive.setTemps(47);
    dive.setSurface(u"02:30"_s);
    dive.setHeure(Moment::fromIso(u"2001-01-01T23:40:00"_s));
    dive.setAltitude(250);
    dive.setPAtm(1013);
    dive.setOrdinateur(u"Deep One"_s);
    dive.setLowGF(30);
    dive.setHighGF(85);
    dive.setDeco(1);
    dive.setDecoSoftName(u"Planner"_s);
    dive.setDecoAlgoType(u"ZHL16-C"_s);
    dive.setDecoConservatism(u"+2"_s);
    dive.setRuntime(u"RT 52"_s);
    dive.setDeco_TTS(9);
    dive.setConfiguration(1);
    dive.setCombinaison(1);
    dive.setEquip_1(u"Lamp"_s);
    dive.setEquip_12(u"Reel"_s);
    dive.setLestage(4.5F);
    dive.setNotes(u"Calm sea.\nTwo seals."_s);
    return dive;
}

void addCodes(std::initializer_list<const char*> words, int first = 0) {
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("word");
    int code = first;
    for (const char* word : words) {
        QTest::addRow("%d %s", code, word) << code << QString::fromLatin1(word);
        ++code;
    }
    QTest::newRow("beyond") << code << QString();
    QTest::newRow("negative") << -1 << QString();
}

}  // namespace

class SynthesisTest : public QObject {
    Q_OBJECT

    template <class Setter>
    void checkCode(Setter setter, const QString& label) {
        QFETCH(int, code);
        QFETCH(QString, word);
        Plongee dive = fullDive();
        (dive.*setter)(code);
        QCOMPARE(line(dive, label), word.isNull() ? QString() : label + word);
    }

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

    void weatherHasItsWords_data() {
        addCodes({"Clear", "Cloudy", "Foggy", "Rainy", "Hail", "Snowy", "Thundery", "N/A"});
    }
    void weatherHasItsWords() { checkCode(&Plongee::setMeteo, u"Weather : "_s); }

    void currentHasItsWords_data() {
        addCodes({"None", "Weak", "Moderate", "Strong", "Very strong", "Violent", "N/A"});
    }
    void currentHasItsWords() { checkCode(&Plongee::setCourant, u"Current : "_s); }

    void visibilityHasItsWords_data() {
        addCodes({"Excellent", "Very good", "Good", "Medium", "Bad", "Very bad", "Execrable", "N/A",
                  "Exceptional"});
    }
    void visibilityHasItsWords() { checkCode(&Plongee::setVisibilite, u"Visibility : "_s); }

    void typesHaveTheirWords_data() {
        addCodes({"Wreck", "Recreational", "NA", "Photo dive", "Tek", "Cave", "Movies", "Work", "Other",
                  "Drift", "Under ice", "Training", "Biology", "Quarry", "Recuperation"});
    }
    void typesHaveTheirWords() { checkCode(&Plongee::setTypePlongee, u"Dive type : "_s); }

    void windForceIsOneBelowItsCode() {
        Plongee dive = fullDive();
        dive.setVentForce(1);
        QCOMPARE(line(dive, u"Wind :"_s), u"Wind : Wind sector North-west, Wind force 0"_s);
        dive.setVentForce(0);
        QCOMPARE(line(dive, u"Wind :"_s), u"Wind : No wind"_s);
    }

    void positionsNameTheirDatum() {
        Plongee dive = fullDive();
        dive.setGpsSystem(2);
        QVERIFY(hasLine(dive, u"GPS (ED50) : N 48 W 004"_s));
        dive.setGpsSystem(0);
        QVERIFY(hasLine(dive, u"GPS (...) : N 48 W 004"_s));
        dive.setGps(u"GPS template"_s);
        QVERIFY(hasLine(dive, u"GPS (...) : "_s));
    }

    void tidesHaveTheirState() {
        Plongee dive = fullDive();
        dive.setPmBm(2);
        QVERIFY(hasLine(dive, u"Tide coefficient : 95 (Basse mer)"_s));
        dive.setPmBm(0);
        QVERIFY(hasLine(dive, u"Tide coefficient : 95 (...)"_s));
    }

    void nightIsSaidOnlyOfNightDives() {
        Plongee dive = fullDive();
        dive.setNocturne(0);
        QVERIFY(!hasLine(dive, u"Night"_s));
    }

    void difficultyStaysWithinItsFamily() {
        Plongee dive = fullDive();
        for (const auto& [level, word] :
             {std::pair(0, "0"), std::pair(5, "5"), std::pair(9, "5"), std::pair(-2, "0")}) {
            dive.setDifficulte(level);
            QCOMPARE(line(dive, u"Difficulty"_s), u"Difficulty level : Cotation "_s + QLatin1String(word));
        }
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

    void otherMethodsThanTablesNameNone() {
        Plongee dive = fullDive();
        dive.setDeco(2);
        QVERIFY(!hasLine(dive, u"Air tables"_s) && !hasLine(dive, u"Nitrox tables"_s));
    }

    void suitsHaveTheirWords_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("word");
        const char* words[] = {"Wet suit",      "Dry suit", "Shorty",       "No suit",
                               "Semi-dry suit", "T-shirt",  "Tropical suit"};
        for (int code = 0; code < 7; ++code)
            QTest::newRow(words[code]) << code << QString::fromLatin1(words[code]);
    }
    void suitsHaveTheirWords() {
        QFETCH(int, code);
        QFETCH(QString, word);
        Plongee dive = fullDive();
        dive.setCombinaison(code);
        const QStringList lines = linesOf(dive);
        QCOMPARE(lines.value(lines.indexOf(u"Configuration : Tek configuration"_s) + 1), u"   - "_s + word);
    }

    void aDiveThatIsNotTechnicalIsSaidToBeNone() {
        Plongee dive = fullDive();
        dive.setConfiguration(0);
        QVERIFY(hasLine(dive, u"Configuration : No Tek"_s));
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
