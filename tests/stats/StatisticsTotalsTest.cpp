#include "stats/StatsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class StatisticsTotalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
