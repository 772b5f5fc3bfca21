#include <cmath>

#include "stats/StatsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

Plongee sampleDive(int minutes, float depth) {
    Plongee dive = quietDive();
    dive.setTypePlongee(1);
    dive.setRebreather(0);
    dive.setTemps(minutes);
    dive.setProfondeur(depth);
    dive.setTempEau(14);
    return dive;
}

void ignore(Statistics& statistics, bool yes) {
    statistics.panel().setTag(statcontrol::ignorePrevious, yes ? 1 : 0);
}

}  // namespace

class StatisticsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyDisplayFieldIsThereInItsOrder() {
        TestDesk desk;
        const auto carnet = logbookOf(desk, {});
        const Statistics statistics(*carnet);
        QStringList names;
        for (int i = 0; i < statistics.panel().count(); ++i)
            names << QLatin1String(statistics.panel().spec(i).name);
        QStringList expected{u"statStateField"_s};
        for (const char* name :
             {"Bio",    "Carriere", "Derivante", "Epaves", "Explo",   "Formation", "Nocturne", "Photo",
              "Recup",  "Glace",    "Speleo",    "Tek",    "Travail", "Video",     "Autre",    "CO",
              "SCR",    "CCR",      "Air",       "Nitrox", "Trimix",  "Heliox",    "Prof_1",   "Prof_2",
              "Prof_3", "Prof_4",   "Prof_5",    "Prof_6", "Prof_7"})
            expected << u"stat%1Field"_s.arg(QLatin1String(name))
                     << u"statP_%1Field"_s.arg(QLatin1String(name));
        for (const char* name : {"ProfMax", "ProfMoy", "TempsMax", "ProfTotal", "TempsTotal", "TempsMoy",
                                 "TempEauMin", "TempEauMax", "TempEauMoy"})
            expected << u"stat%1Field"_s.arg(QLatin1String(name));
        expected << u"previousDivesNoSwitch"_s;
        QCOMPARE(names, expected);
    }

    void anEmptyLogbookWithoutPreviousDivesShowsZerosAndTheSentinel() {
        TestDesk desk;
        const auto carnet = logbookOf(desk, {});
        Statistics statistics(*carnet);
        ignore(statistics, true);
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 0"_s);
        for (const CounterFields& fields : counterFields()) {
            QCOMPARE(field(statistics, fields.field), u"0"_s);
            QCOMPARE(field(statistics, fields.shareField), u"0.0 %"_s);
        }
        QCOMPARE(field(statistics, "statTempEauMinField"), u"10000 °C"_s);
        QCOMPARE(field(statistics, "statTempEauMoyField"), u"0 °C"_s);
        QCOMPARE(field(statistics, "statProfMaxField"), u"0 m"_s);
        QCOMPARE(field(statistics, "statTempsTotalField"), u"0 h 00 min.\r(0 min.)"_s);
        for (const float share : statistics.shares()) QVERIFY(std::isnan(share));
    }

    void countsSharesAndFiguresAreShown() {
        TestDesk desk;
        const auto carnet =
            logbookOf(desk, {sampleDive(50, 18.6F), sampleDive(45, 31), sampleDive(30, 9.9F)});
        Statistics statistics(*carnet);
        ignore(statistics, true);
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 3"_s);
        QCOMPARE(field(statistics, "statExploField"), u"3"_s);
        QCOMPARE(field(statistics, "statP_ExploField"), u"100.0 %"_s);
        QCOMPARE(field(statistics, "statProf_1Field"), u"1"_s);
        QCOMPARE(field(statistics, "statP_Prof_1Field"), u"33.3 %"_s);
        QCOMPARE(field(statistics, "statCOField"), u"3"_s);
        QCOMPARE(field(statistics, "statAirField"), u"3"_s);
        QCOMPARE(field(statistics, "statProfMaxField"), u"31 m"_s);
        QCOMPARE(field(statistics, "statProfTotalField"), u"58 m"_s);  // 18 + 31 + 9
        QCOMPARE(field(statistics, "statProfMoyField"), u"19 m"_s);
        QCOMPARE(field(statistics, "statTempsMaxField"), u"50 min."_s);
        QCOMPARE(field(statistics, "statTempsTotalField"), u"2 h 05 min.\r(125 min.)"_s);
        QCOMPARE(field(statistics, "statTempsMoyField"), u"41 min."_s);
        QCOMPARE(field(statistics, "statTempEauMinField"), u"14 °C"_s);
        QCOMPARE(field(statistics, "statTempEauMaxField"), u"14 °C"_s);
    }

    void percentagesDivideByThePreviousDivesToo() {
        TestDesk desk;
        desk.defaults.store(valuesKey, QJsonObject{{u"total plongees"_s, 5}, {u"explo"_s, 1}});
        const auto carnet = logbookOf(desk, {sampleDive(50, 18), sampleDive(45, 31), sampleDive(30, 9)});
        const Statistics statistics(*carnet);
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 8"_s);
        QCOMPARE(field(statistics, "statExploField"), u"4"_s);
        QCOMPARE(field(statistics, "statP_ExploField"), u"50.0 %"_s);
        QCOMPARE(field(statistics, "statP_Prof_1Field"), u"12.5 %"_s);
    }

    void totalTimeIsToldInHoursAndInMinutes_data() {
        QTest::addColumn<int>("total");
        QTest::addColumn<QString>("text");
        QTest::newRow("125") << 125 << u"2 h 05 min.\r(125 min.)"_s;
        QTest::newRow("59") << 59 << u"0 h 59 min.\r(59 min.)"_s;
        QTest::newRow("60") << 60 << u"1 h 00 min.\r(60 min.)"_s;
        QTest::newRow("6011") << 6011 << u"100 h 11 min.\r(6011 min.)"_s;
        QTest::newRow("negative") << -125 << u"-2 h -05 min.\r(-125 min.)"_s;
    }
    void totalTimeIsToldInHoursAndInMinutes() {
        QFETCH(int, total);
        QFETCH(QString, text);
        TestDesk desk;
        desk.defaults.store(valuesKey, QJsonObject{{u"total temps"_s, total}});
        const auto carnet = logbookOf(desk, {});
        QCOMPARE(field(Statistics(*carnet), "statTempsTotalField"), text);
    }

    void theLogbookAndTheSwitchAreFollowed() {
        TestDesk desk;
        desk.defaults.store(valuesKey, QJsonObject{{u"total plongees"_s, 10}});
        const auto carnet = logbookOf(desk, {sampleDive(50, 18)});
        Statistics statistics(*carnet);
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 11"_s);
        carnet->addDive();
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 12"_s);
        ignore(statistics, true);
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 2"_s);
        carnet->undo();
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 1"_s);
        ignore(statistics, false);
        QCOMPARE(field(statistics, "statStateField"), u"Total dives: 11"_s);
    }

    void theGraphGetsElevenShares() {
        TestDesk desk;
        desk.defaults.store(valuesKey,
                            QJsonObject{{u"total plongees"_s, 1}, {u"prof_7"_s, 1}, {u"trimix"_s, 1}});
        Plongee deep = sampleDive(20, 55);
        deep.setGaz(1);
        const auto carnet = logbookOf(desk, {sampleDive(50, 18), sampleDive(45, 12), deep});
        Statistics statistics(*carnet);
        const GraphesShares with{0, 50, 0, 0, 0, 25, 25, 50, 25, 25, 0};
        QVERIFY(statistics.shares() == with);
        ignore(statistics, true);
        const float third = 1.0F / 3.0F * 100, two = 2.0F / 3.0F * 100;
        const GraphesShares without{0, two, 0, 0, 0, third, 0, two, third, 0, 0};
        QVERIFY(statistics.shares() == without);
    }

    void everyShareOfTheGraphIsThatOfItsCount() {
        TestDesk desk;
        QJsonObject values{{u"total plongees"_s, 100}};
        int count = 0;
        for (const char* key : {"prof_1", "prof_2", "prof_3", "prof_4", "prof_5", "prof_6", "prof_7", "air",
                                "nitrox", "trimix", "heliox"})
            values.insert(QLatin1String(key), ++count);
        desk.defaults.store(valuesKey, values);
        const auto carnet = logbookOf(desk, {});
        const Statistics statistics(*carnet);
        for (std::size_t i = 0; i < 11; ++i) QCOMPARE(statistics.shares()[i], float(i + 1) / 100.0F * 100);
    }

    void withoutAnyDiveTheGraphDividesByZero() {
        TestDesk desk;
        desk.defaults.store(valuesKey, QJsonObject{{u"air"_s, 3}, {u"nitrox"_s, -3}});
        const auto carnet = logbookOf(desk, {});
        const Statistics statistics(*carnet);
        QVERIFY(std::isnan(statistics.shares()[0]));
        QCOMPARE(statistics.shares()[7], std::numeric_limits<float>::infinity());
        QCOMPARE(statistics.shares()[8], -std::numeric_limits<float>::infinity());
        // The panel divides by at least one.
        QCOMPARE(field(statistics, "statP_AirField"), u"300.0 %"_s);
    }
};

int runStatisticsTest(int argc, char** argv) {
    StatisticsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StatisticsTest.moc"
