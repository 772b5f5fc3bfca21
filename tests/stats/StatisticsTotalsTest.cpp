#include <cmath>
#include <limits>

#include "stats/StatsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

StatisticsTotals totals(const QList<Plongee>& dives, const QJsonObject& previous = {}, bool ignore = true) {
    Records<Plongee> records;
    for (const Plongee& dive : dives) records.append(std::make_shared<const Plongee>(dive));
    return totalsOf(records, PreviousDives(previous), ignore);
}

/// The keys of the counters within a range that are 1, the others being 0.
QString counted(const StatisticsTotals& totals, StatisticsCounter first, StatisticsCounter last) {
    QStringList keys;
    for (int i = first; i <= last; ++i)
        for (int n = 0; n < totals.counts[std::size_t(i)]; ++n)
            keys << QLatin1String(keyOf(StatisticsCounter(i)));
    return keys.join(u',');
}

}  // namespace

class StatisticsTotalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void activitiesGoByTheTypeOfDive_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("key");
        const char* keys[] = {"epaves", "explo",     "",        "photo",    "",
                              "speleo", "video",     "travail", "autre",    "derivante",
                              "glace",  "formation", "bio",     "carriere", "recuperation"};
        for (int type = 0; type < 15; ++type)
            QTest::addRow("type %d", type) << type << QString::fromLatin1(keys[type]);
        QTest::newRow("beyond") << 15 << QString();
        QTest::newRow("far beyond") << 1000000 << QString();
        QTest::newRow("negative") << -1 << QString();
    }
    void activitiesGoByTheTypeOfDive() {
        QFETCH(int, type);
        QFETCH(QString, key);
        Plongee dive = quietDive();
        dive.setTypePlongee(type);
        QCOMPARE(counted(totals({dive}), Bio, Autre), key);
    }

    void nightAndTechnicalCountBesideTheActivity() {
        Plongee dive = quietDive();
        dive.setTypePlongee(12);
        dive.setNocturne(1);
        dive.setConfiguration(1);
        QCOMPARE(counted(totals({dive}), Bio, Autre), u"bio,nocturne,tek"_s);
        dive.setNocturne(2);
        dive.setConfiguration(2);
        QCOMPARE(counted(totals({dive}), Bio, Autre), u"bio"_s);
    }

    void apparatusGoesByTheRebreather_data() {
        QTest::addColumn<int>("rebreather");
        QTest::addColumn<QString>("key");
        QTest::newRow("open circuit") << 0 << u"co"_s;
        QTest::newRow("semi-closed") << 1 << u"scr"_s;
        QTest::newRow("manual") << 2 << u"ccr"_s;
        QTest::newRow("electronic") << 3 << u"ccr"_s;
        QTest::newRow("hybrid") << 4 << u"ccr"_s;
        QTest::newRow("beyond") << 5 << u""_s;
        QTest::newRow("negative") << -1 << u""_s;
    }
    void apparatusGoesByTheRebreather() {
        QFETCH(int, rebreather);
        QFETCH(QString, key);
        Plongee dive = quietDive();
        dive.setRebreather(rebreather);
        QCOMPARE(counted(totals({dive}), OpenCircuit, ClosedCircuit), key);
    }

    void gasGoesByGasAndApparatus_data() {
        QTest::addColumn<int>("gas");
        QTest::addColumn<int>("rebreather");
        QTest::addColumn<QString>("key");
        // Columns: open circuit, semi-closed, closed 2, closed 3, closed 4, unknown apparatus 5 and -1.
        const int apparatus[] = {0, 1, 2, 3, 4, 5, -1};
        const struct {
            int gas;
            const char* families[7];
        } rows[] = {
            {0, {"air", "heliox", "nitrox", "nitrox", "nitrox", "air", "air"}},
            {1, {"nitrox", "nitrox", "nitrox", "nitrox", "nitrox", "nitrox", "nitrox"}},
            {2, {"trimix", "trimix", "trimix", "trimix", "trimix", "trimix", "trimix"}},
            {3, {"heliox", "heliox", "nitrox", "nitrox", "nitrox", "heliox", "heliox"}},
            {4, {"trimix", "trimix", "trimix", "trimix", "trimix", "trimix", "trimix"}},
            {5, {"trimix", "trimix", "trimix", "trimix", "trimix", "trimix", "trimix"}},
            {6, {"heliox", "heliox", "nitrox", "nitrox", "nitrox", "heliox", "heliox"}},
            {-1, {"heliox", "heliox", "nitrox", "nitrox", "nitrox", "heliox", "heliox"}},
        };
        for (const auto& row : rows)
            for (int i = 0; i < 7; ++i)
                QTest::addRow("gas %d on %d", row.gas, apparatus[i])
                    << row.gas << apparatus[i] << QString::fromLatin1(row.families[i]);
    }
    void gasGoesByGasAndApparatus() {
        QFETCH(int, gas);
        QFETCH(int, rebreather);
        QFETCH(QString, key);
        Plongee dive = quietDive();
        dive.setGaz(gas);
        dive.setRebreather(rebreather);
        QCOMPARE(counted(totals({dive}), AirCount, HelioxCount), key);
    }

    void depthsAreCutToWholeMetresAndFallIntoClasses_data() {
        QTest::addColumn<float>("depth");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("metres");
        QTest::newRow("0") << 0.0F << u"prof_1"_s << 0;
        QTest::newRow("negative") << -3.7F << u"prof_1"_s << -3;
        QTest::newRow("9") << 9.0F << u"prof_1"_s << 9;
        QTest::newRow("9.9") << 9.9F << u"prof_1"_s << 9;
        QTest::newRow("10") << 10.0F << u"prof_2"_s << 10;
        QTest::newRow("19.9") << 19.9F << u"prof_2"_s << 19;
        QTest::newRow("20") << 20.0F << u"prof_3"_s << 20;
        QTest::newRow("29.9") << 29.9F << u"prof_3"_s << 29;
        QTest::newRow("30") << 30.0F << u"prof_4"_s << 30;
        QTest::newRow("39.9") << 39.9F << u"prof_4"_s << 39;
        QTest::newRow("40") << 40.0F << u"prof_5"_s << 40;
        QTest::newRow("49.9") << 49.9F << u"prof_5"_s << 49;
        QTest::newRow("50") << 50.0F << u"prof_6"_s << 50;
        QTest::newRow("59") << 59.0F << u"prof_6"_s << 59;
        QTest::newRow("59.9") << 59.9F << u"prof_6"_s << 59;
        QTest::newRow("60") << 60.0F << u"prof_7"_s << 60;
        QTest::newRow("330") << 330.5F << u"prof_7"_s << 330;
        QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << u"prof_1"_s << 0;
    }
    void depthsAreCutToWholeMetresAndFallIntoClasses() {
        QFETCH(float, depth);
        QFETCH(QString, key);
        QFETCH(int, metres);
        Plongee dive = quietDive();
        dive.setProfondeur(depth);
        const StatisticsTotals sums = totals({dive});
        QCOMPARE(counted(sums, Prof_1, Prof_7), key);
        QCOMPARE(sums.totalDepth, metres);
        QCOMPARE(sums.deepest, std::max(metres, 0));
    }

    void depthsBeyondAnyWholeNumberStopAtItsEnds() {
        Plongee dive = quietDive();
        dive.setProfondeur(std::numeric_limits<float>::infinity());
        QCOMPARE(totals({dive}).deepest, INT32_MAX);
        dive.setProfondeur(-1e20F);
        QCOMPARE(totals({dive}).totalDepth, INT32_MIN);
    }

    void timesAreAddedAndTheLongestKept() {
        Plongee dive = quietDive();
        QList<Plongee> dives;
        for (const int minutes : {45, 62, 18}) {
            dive.setTemps(minutes);
            dives << dive;
        }
        const StatisticsTotals sums = totals(dives);
        QCOMPARE(sums.totalTime, 125);
        QCOMPARE(sums.longest, 62);
        QCOMPARE(sums.meanTime(), 41);  // 125 / 3 = 41.67
    }

    void waterThatWasNotMeasuredCountsNowhere() {
        Plongee cold = quietDive(), warm = quietDive(), unknown = quietDive();
        cold.setTempEau(4);
        warm.setTempEau(27);
        const StatisticsTotals sums = totals({warm, unknown, cold, unknown});
        QCOMPARE(sums.coldest, 4);
        QCOMPARE(sums.warmest, 27);
        QCOMPARE(sums.measured, 2);
        QCOMPARE(sums.meanTemperature(), 15);  // 31 / 2
    }

    void temperaturesBelowZeroAreMeanedTowardsZero() {
        Plongee ice = quietDive(), colder = quietDive();
        ice.setTempEau(-1);
        colder.setTempEau(-2);
        const StatisticsTotals sums = totals({ice, colder});
        QCOMPARE(sums.coldest, -2);
        QCOMPARE(sums.warmest, 0);             // the start wins
        QCOMPARE(sums.meanTemperature(), -1);  // -3 / 2 = -1.5
    }

    void aTemperatureBelowMinusFiftyIsMeasured() {
        Plongee dive = quietDive();
        dive.setTempEau(-51);
        QCOMPARE(totals({dive}).coldest, -51);
        QCOMPARE(totals({dive}).measured, 1);
    }

    void anEmptyLogbookAloneIsAllZeroAndItsColdestTheSentinel() {
        StatisticsTotals expected;
        expected.coldest = 10000;
        QVERIFY(totals({}) == expected);
        QCOMPARE(totals({}).divisor(), 1);
        QCOMPARE(totals({}).meanDepth(), 0);
        QCOMPARE(totals({}).meanTemperature(), 0);
        QCOMPARE(totals({}).share(AirCount), 0.0F);
    }

    void previousDivesAreWhereCountingStarts() {
        QJsonObject previous;
        for (int i = 0; i < counterCount; ++i)
            previous.insert(QLatin1String(keyOf(StatisticsCounter(i))), 100 + i);
        previous.insert(u"prof max"_s, 40);
        previous.insert(u"temps max"_s, 50);
        previous.insert(u"temperature min"_s, 8);
        previous.insert(u"temperature max"_s, 20);
        previous.insert(u"total profondeur"_s, 1000);
        previous.insert(u"total temps"_s, 2000);
        previous.insert(u"total plongees"_s, 70);
        Plongee dive = quietDive();
        dive.setTypePlongee(12);
        dive.setProfondeur(45);
        dive.setTemps(30);
        dive.setTempEau(10);
        const StatisticsTotals sums = totals({dive}, previous, false);
        QCOMPARE(sums.dives, 71);
        QCOMPARE(sums.counts[Bio], 101);
        QCOMPARE(sums.counts[Carriere], 101);
        QCOMPARE(sums.counts[Prof_7], 128);
        QCOMPARE(sums.counts[Prof_5], 127);  // 126 and this dive
        QCOMPARE(sums.deepest, 45);
        QCOMPARE(sums.longest, 50);
        QCOMPARE(sums.coldest, 8);
        QCOMPARE(sums.warmest, 20);
        QCOMPARE(sums.totalDepth, 1045);
        QCOMPARE(sums.totalTime, 2030);
        QCOMPARE(sums.meanDepth(), 14);        // 1045 / 71 = 14.7
        QCOMPARE(sums.meanTime(), 28);         // 2030 / 71 = 28.6
        QCOMPARE(sums.meanTemperature(), 10);  // the logbook's own dives only
        QCOMPARE(totals({dive}, previous, true).counts[Bio], 1);
        QCOMPARE(totals({dive}, previous, true).dives, 1);
    }

    void withPreviousDivesButNoneStoredTheColdestStartsAtZero() {
        Plongee dive = quietDive();
        dive.setTempEau(12);
        QCOMPARE(totals({dive}, {}, false).coldest, 0);
        QCOMPARE(totals({dive}, {}, true).coldest, 12);
    }

    void storedValuesAreReadAsWholeNumbers_data() {
        QTest::addColumn<QJsonValue>("stored");
        QTest::addColumn<int>("read");
        QTest::newRow("number") << QJsonValue(12) << 12;
        QTest::newRow("fraction") << QJsonValue(12.9) << 12;
        QTest::newRow("negative fraction") << QJsonValue(-12.9) << -12;
        QTest::newRow("text") << QJsonValue(u"34"_s) << 34;
        QTest::newRow("text with more") << QJsonValue(u"34,5 m"_s) << 34;
        QTest::newRow("no number") << QJsonValue(u"many"_s) << 0;
        QTest::newRow("empty") << QJsonValue(u""_s) << 0;
        QTest::newRow("null") << QJsonValue() << 0;
        QTest::newRow("list") << QJsonValue(QJsonArray{1, 2}) << 0;
        QTest::newRow("too large") << QJsonValue(1e12) << INT32_MAX;
        QTest::newRow("too small") << QJsonValue(-1e12) << INT32_MIN;
    }
    void storedValuesAreReadAsWholeNumbers() {
        QFETCH(QJsonValue, stored);
        QFETCH(int, read);
        QCOMPARE(PreviousDives(QJsonObject{{u"bio"_s, stored}}).value("bio"), read);
    }

    void sharesDivideByAllDives() {
        Plongee dive = quietDive();
        dive.setTypePlongee(12);
        const QJsonObject previous{{u"total plongees"_s, 7}, {u"bio"_s, 2}};
        QCOMPARE(totals({dive}, previous, false).share(Bio), 3.0F / 8.0F * 100);  // 37.5
        QCOMPARE(totals({dive}, previous, true).share(Bio), 100.0F);
    }

    void aNegativeNumberOfDivesDividesAsItStands() {
        // As an unsigned number it is more than one.
        const QJsonObject previous{{u"total plongees"_s, -4}, {u"bio"_s, 2}, {u"total profondeur"_s, 9}};
        const StatisticsTotals sums = totals({}, previous, false);
        QCOMPARE(sums.divisor(), -4);
        QCOMPARE(sums.share(Bio), -50.0F);
        QCOMPARE(sums.meanDepth(), -2);
    }

    void hugeTotalsTurnOverWithoutHarm() {
        const QJsonObject previous{{u"total temps"_s, INT32_MAX}, {u"bio"_s, INT32_MAX}};
        Plongee dive = quietDive();
        dive.setTypePlongee(12);
        dive.setTemps(1);
        const StatisticsTotals sums = totals({dive}, previous, false);
        QCOMPARE(sums.totalTime, INT32_MIN);
        QCOMPARE(sums.counts[Bio], INT32_MIN);
        const QJsonObject smallest{{u"total plongees"_s, -1}, {u"total temps"_s, INT32_MIN}};
        QCOMPARE(totals({}, smallest, false).meanTime(), INT32_MIN);
    }
};

int runStatisticsTotalsTest(int argc, char** argv) {
    StatisticsTotalsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StatisticsTotalsTest.moc"
