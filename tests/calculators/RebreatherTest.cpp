#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"
#include "calculators/RebreatherFormulas.h"
#include "platform/form/SystemColors.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using rebreather::Verdict;

namespace {

const char* const breathedRows[] = {"c08Field", "c09Field", "c10Field", "c11Field", "c12Field", "c13Field",
                                    "c14Field", "c15Field", "c16Field", "c17Field", "c18Field"};
const char* const flowRows[] = {"d08Field", "d09Field", "d10Field", "d11Field", "d12Field", "d13Field",
                                "d14Field", "d15Field", "d16Field", "d17Field", "d18Field"};

}  // namespace

class RebreatherTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cutsTimeOffToWholeMinutes_data() {
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* weight, const char* capacity,
                            const char* production, const char* text) {
            QTest::newRow(name) << QStringLiteral(
                                       "sodaWeightField=%1 sodaCapacityField=%2 metabolicProductionField=%3")
                                       .arg(QLatin1String(weight), QLatin1String(capacity),
                                            QLatin1String(production))
                                << QString::fromLatin1(text);
        };
        row("187.5 min", "2.5", "120", "1.6", "Soda time|3|7");
        row("59.9 min", "0.599", "100", "1", "Soda time|0|59");
        row("one hour", "1", "60", "1", "Soda time|1|0");
        row("negative", "-1", "61", "1", "Soda time|-1|-1");
        row("nothing filled in", "", "", "", "Soda time|nan|nan");
        row("nothing produced", "2.5", "120", "0", "Soda time|inf|nan");
    }
    void cutsTimeOffToWholeMinutes() {
        QFETCH(QString, values);
        QFETCH(QString, text);
        const QString shown = Workbench("Soda Time").press(values).text("sodaTimeField");
        QCOMPARE(shown, text);
    }

    void hoursBeyondWholeNumbersAreShownAsTheyAre() {
        const Spoken spoken(
            Workbench("Soda Time")
                .press(u"sodaWeightField=1e300 sodaCapacityField=6 metabolicProductionField=1"_s)
                .text("sodaTimeField"));
        QVERIFY(isClose(spoken.numbers[0], 1e299L));
    }

    void wholeMinutesAgreeWithIntegers() {
        for (int minutes = -2000; minutes <= 5000; ++minutes)
            for (const double rest : {0.0, 0.25, 0.5, 0.96875}) {
                const auto time = rebreather::endurance(minutes < 0 ? minutes - rest : minutes + rest);
                QCOMPARE(int(time.hours), minutes / 60);
                QCOMPARE(int(time.minutes), minutes % 60);
            }
    }

    void showsTimeInWords() {
        QCOMPARE(Workbench("Soda Time", Strings::Language::English)
                     .press(u"sodaWeightField=2,5 sodaCapacityField=120 metabolicProductionField=1,6"_s)
                     .text("sodaTimeField"),
                 u"3 h 7 min"_s);
    }

    void findsTheFlushGas_data() {
        QTest::addColumn<QString>("values");
        QTest::addColumn<double>("percent");
        QTest::newRow("1.6 bar at 6 m") << u"loopPpO2Field=1.6 loopMaxDepthField=6"_s << 100.0;
        QTest::newRow("1.4 bar at 30 m") << u"loopPpO2Field=1.4 loopMaxDepthField=30"_s << 35.0;
        QTest::newRow("impossible") << u"loopPpO2Field=1.6 loopMaxDepthField=0"_s << 160.0;
        QTest::newRow("above the water") << u"loopPpO2Field=1.6 loopMaxDepthField=-10"_s << double(INFINITY);
    }
    void findsTheFlushGas() {
        QFETCH(QString, values);
        QFETCH(double, percent);
        const Spoken spoken(Workbench("Loop Flush").press(values).text("loopFracO2Field"));
        QCOMPARE(spoken.key, u"FracO2 loop flush"_s);
        QVERIFY(areClose(spoken.numbers, {percent}));
    }

    void findsTheDiluentInWholePercents_data() {
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* values, const char* text) {
            QTest::newRow(name) << QString::fromLatin1(values) << QString::fromLatin1(text);
        };
        // 14.28 and 45.14 are cut off.
        row("60 m, END 30 m", "depthCCR_TxField=60 ENDCCR_TxField=30", "Best CCR Trimix|14|41");
        row("the flush pressure does not count",
            "depthCCR_TxField=60 ENDCCR_TxField=30 PpO2FlushCCR_TxField=0.4", "Best CCR Trimix|14|41");
        // 100/5 = 20; 0.79 x 4/5 = 63.2 %.
        row("40 m, END 30 m", "depthCCR_TxField=40 ENDCCR_TxField=30", "Best CCR Trimix|20|17");
        // 100 %, and 79 % of nitrogen: helium would have to be negative.
        row("the surface", "depthCCR_TxField=0 ENDCCR_TxField=0", "Best CCR Trimix|100|-79");
        row("narcotic depth below the depth", "depthCCR_TxField=30 ENDCCR_TxField=70",
            "Best CCR Trimix|25|-83");
        row("less than one percent", "depthCCR_TxField=2000 ENDCCR_TxField=0", "Best CCR Trimix|0|100");
        row("above the water", "depthCCR_TxField=-10 ENDCCR_TxField=0", "Best CCR Trimix|inf|-inf");
        // -100/99.9 is cut off to -0.
        row("no minus before a zero", "depthCCR_TxField=-2010 ENDCCR_TxField=-10", "Best CCR Trimix|0|100");
    }
    void findsTheDiluentInWholePercents() {
        QFETCH(QString, values);
        QFETCH(QString, text);
        QCOMPARE(Workbench("CCR Best Trimix").press(values).text("CCR_BestTxField"), text);
    }

    void diluentAgreesWithRationals() {
        int compared = 0;
        for (int depth = 0; depth <= 200; ++depth)
            for (int narcotic = 0; narcotic <= 60; ++narcotic) {
                // 100/(d/10 + 1) = 1000/(d + 10) and 79 (e/10 + 1)/(d/10 + 1) = 79 (e + 10)/(d + 10).
                const auto mix = rebreather::bestDiluent(depth, narcotic);
                QCOMPARE(mix.oxygenPercent, double(1000 / (depth + 10)));
                const int nitrogen = 79 * (narcotic + 10) / (depth + 10);
                const double cut = 100 - mix.oxygenPercent - mix.heliumPercent;
                // Where the quotient is a whole number, doubles may fall just below it.
                if (79 * (narcotic + 10) % (depth + 10) == 0) {
                    QVERIFY(cut == nitrogen || cut == nitrogen - 1);
                    continue;
                }
                QCOMPARE(cut, double(nitrogen));
                ++compared;
            }
        QVERIFY(compared > 11000);
    }

    void tabulatesWhatIsBreathed() {
        Workbench bench("SCR Breathed Frac O2");
        bench.press(u"brEanxField=40 brFlowField=10 brMetabolicField=1.2"_s);
        const Spoken own(bench.text("breathedFracO2Field"));
        QCOMPARE(own.key, u"Breathed frac"_s);
        QVERIFY(areClose(own.numbers, {280 / 8.8}));  // (4 - 1.2)/(10 - 1.2)
        for (int i = 0; i < 11; ++i) {
            const Spoken row(bench.text(breathedRows[i]));
            QCOMPARE(row.key, u"Table breathed frac"_s);
            const double tenths = 8 + i;  // (40 - t)/(100 - t) in tenths of a litre
            QVERIFY(areClose(row.numbers, {tenths / 10, 100 * (40 - tenths) / (100 - tenths)}));
            QCOMPARE(bench.color(breathedRows[i]), systemcolor::black);
        }
    }

    void marksTooPoorALoop() {
        Workbench bench("SCR Breathed Frac O2");
        bench.press(u"brEanxField=32 brFlowField=8"_s);
        // (2.56 - v)/(8 - v): 21.2 % at 1.1, 20.0 % at 1.2, 12.3 % at 1.8.
        const QStringList colors = [&] {
            QStringList list;
            for (const char* row : breathedRows) list << systemColorName(bench.color(row));
            return list;
        }();
        QCOMPARE(colors, QStringList(4, u"black"_s) + QStringList(7, u"red"_s));
        QVERIFY(areClose(Spoken(bench.text("c18Field")).numbers, {1.8, 76 / 6.2}));
        // A richer supply puts the colour back.
        bench.press(u"brEanxField=50"_s);
        QCOMPARE(bench.color("c18Field"), systemcolor::black);
    }

    void tabulatesTheIdealFlow() {
        Workbench bench("SCR Flow Calc");
        bench.press(u"idEanxField=50 idRealFracO2Field=30 idMetabolicField=1,2"_s);
        const Spoken own(bench.text("idealFlowField"));
        QCOMPARE(own.key, u"Ideal flow"_s);
        QVERIFY(areClose(own.numbers, {4.2}));  // 1.2 x 0.7/0.2
        for (int i = 0; i < 11; ++i) {
            const Spoken row(bench.text(flowRows[i]));
            QCOMPARE(row.key, u"Table flow"_s);
            QVERIFY(areClose(row.numbers, {(8 + i) / 10.0, (8 + i) * 0.35}));
            QCOMPARE(bench.color(flowRows[i]), i == 0 ? systemcolor::red : systemcolor::black);
        }
    }

    void aFlowOfExactlyTwentyKeepsTheRowsColour() {
        // A loop without oxygen and a supply of 5 %: 1.0/0.05 is 20 on the spot.
        const QString twenty = u"idEanxField=5 idRealFracO2Field=0"_s;
        Workbench bench("SCR Flow Calc");
        QVERIFY(!bench.color("d10Field").isValid());
        bench.press(twenty);
        QCOMPARE(bench.text("d10Field"), u"Table flow|1|20"_s);
        QVERIFY2(!bench.color("d10Field").isValid(), "a row that had no colour still has none");
        QCOMPARE(bench.color("d09Field"), systemcolor::black);
        QCOMPARE(bench.color("d11Field"), systemcolor::red);
        QCOMPARE(bench.press(u"idEanxField=4"_s).color("d10Field"), systemcolor::red);  // 25
        QCOMPARE(bench.press(twenty).color("d10Field"), systemcolor::red);
        QCOMPARE(bench.press(u"idEanxField=10"_s).color("d10Field"), systemcolor::black);  // 10
        QCOMPARE(bench.press(twenty).color("d10Field"), systemcolor::black);
    }

    void noNumberKeepsTheRowsColour() {
        Workbench bench("SCR Flow Calc");
        bench.press(u"idEanxField=50 idRealFracO2Field=30"_s);
        bench.press(u"idEanxField=100 idRealFracO2Field=100"_s);  // 0/0
        QCOMPARE(bench.text("d08Field"), u"Table flow|0.8|nan"_s);
        QCOMPARE(bench.color("d08Field"), systemcolor::red);
        QCOMPARE(bench.color("d10Field"), systemcolor::black);
    }

    void infiniteFlowsAreRed() {
        Workbench bench("SCR Flow Calc");
        bench.press(u"idEanxField=30 idRealFracO2Field=30 idMetabolicField=1"_s);
        QCOMPARE(bench.text("idealFlowField"), u"Ideal flow|inf"_s);
        QCOMPARE(bench.color("d08Field"), systemcolor::red);
    }

    void coloursTurnAtTheirBounds_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("breathed");
        QTest::addColumn<int>("flow");
        const auto row = [](const char* name, double value, Verdict breathed, Verdict flow) {
            QTest::newRow(name) << value << int(breathed) << int(flow);
        };
        row("below 3", std::nextafter(3.0, 0.0), Verdict::Dangerous, Verdict::Dangerous);
        row("3", 3.0, Verdict::Dangerous, Verdict::Fine);
        row("below 20", std::nextafter(20.0, 0.0), Verdict::Dangerous, Verdict::Fine);
        row("20", 20.0, Verdict::Dangerous, Verdict::Same);
        row("above 20", std::nextafter(20.0, 30.0), Verdict::Dangerous, Verdict::Dangerous);
        row("below 20.9", std::nextafter(20.9, 0.0), Verdict::Dangerous, Verdict::Dangerous);
        row("20.9", 20.9, Verdict::Fine, Verdict::Dangerous);
        row("nan", NAN, Verdict::Same, Verdict::Same);
        row("inf", INFINITY, Verdict::Fine, Verdict::Dangerous);
        row("-inf", -INFINITY, Verdict::Dangerous, Verdict::Dangerous);
    }
    void coloursTurnAtTheirBounds() {
        QFETCH(double, value);
        QFETCH(int, breathed);
        QFETCH(int, flow);
        QCOMPARE(int(rebreather::breathedVerdict(value)), breathed);
        QCOMPARE(int(rebreather::flowVerdict(value)), flow);
    }

    void agreesWithLongDoubleEverywhere() {
        for (int supply = 22; supply <= 100; ++supply)
            for (int flow = 20; flow <= 200; flow += 4)
                for (int used = 5; used < 20; ++used) {
                    const double breathed =
                        rebreather::breathedShare(supply / 100.0, flow / 10.0, used / 10.0);
                    const long double exact = (supply * flow / 100.0L - used) / (flow - used);
                    if (flow != used) QVERIFY(isClose(breathed, exact));
                    const int loop = flow / 2;
                    if (loop == supply) continue;
                    QVERIFY(isClose(rebreather::idealFlow(supply / 100.0, loop / 100.0, used / 10.0),
                                    used * (100.0L - loop) / (10.0L * (supply - loop))));
                }
    }

    /// The flow that the one calculator finds must give the loop that the other then shows.
    void theTwoSemiClosedCalculatorsAgree() {
        for (const double supply : {0.32, 0.4, 0.5, 0.6})
            for (const double loop : {0.21, 0.25, 0.3})
                for (const double used : rebreather::consumptions) {
                    const double flow = rebreather::idealFlow(supply, loop, used);
                    QVERIFY(isClose(rebreather::breathedShare(supply, flow, used), loop));
                }
    }
};

int runRebreatherTest(int argc, char** argv) {
    RebreatherTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RebreatherTest.moc"
