#include <limits>

#include "stats/StatsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The keys of the counters within a range that are 1, the others being 0.
QString counted(const StatisticsTotals& totals, StatisticsCounter first, StatisticsCounter last) {
    QStringList keys;
    for (int i = first; i <= last; ++i)
        for (int n = 0; n < totals.counts[std::size_t(i)]; ++n)
            keys << QLatin1String(keyOf(StatisticsCounter(i)));
    return keys.join(u',');
}

}  // namespace

class StatisticsCountersTest : public QObject {
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
};

int runStatisticsCountersTest(int argc, char** argv) {
    StatisticsCountersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StatisticsCountersTest.moc"
