#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"
#include "calculators/TrimixController.h"
#include "calculators/TrimixFormulas.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class TrimixTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passesItsNumbersInOrder_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<double>>("numbers");
        const auto row = [](const char* name, const QString& window, const QString& values,
                            const QString& key, const QList<double>& numbers) {
            QTest::newRow(name) << window << values << key << numbers;
        };
        row("18/45 at 60 m", u"Trimix"_s, u"fracO2TxField=18 fracHeTxField=45 profondeurMaxField=60"_s,
            u"EAD END"_s, {37.0 * 70 / 79 - 10, 28.5});
        row("air at 30 m", u"Trimix"_s, u"fracO2TxField=21 profondeurMaxField=30"_s, u"EAD END"_s, {30, 30});
        // Nitrogen 5 % at 10 m is 0.1 bar, less than air has at the surface; END = 20 x 0.2 - 10.
        row("so much helium that both are above the surface", u"Trimix"_s,
            u"fracO2TxField=15 fracHeTxField=80 profondeurMaxField=10"_s, u"EAD END"_s, {0, -6});
        row("more than 100 %", u"Trimix"_s, u"fracO2TxField=80 fracHeTxField=40 profondeurMaxField=40"_s,
            u"EAD END"_s, {0, 20});
        row("10 %", u"Trimix Prof Min"_s, u"fracO2TxField=10"_s, u"Prof min"_s, {6});
        row("16 %, the richest", u"Trimix Prof Min"_s, u"fracO2TxField=16"_s, u"Prof min"_s, {0});
        row("1 %, the poorest", u"Trimix Prof Min"_s, u"fracO2TxField=1"_s, u"Prof min"_s, {150});
        row("with a comma", u"Trimix Prof Min"_s, u"fracO2TxField=12,5"_s, u"Prof min"_s, {2.8});
        row("17 %", u"Trimix Prof Min"_s, u"fracO2TxField=17"_s, u"No valid datas"_s, {});
        row("16.01 %", u"Trimix Prof Min"_s, u"fracO2TxField=16.01"_s, u"No valid datas"_s, {});
        row("0.99 %", u"Trimix Prof Min"_s, u"fracO2TxField=0.99"_s, u"No valid datas"_s, {});
        row("0.5 %", u"Trimix Prof Min"_s, u"fracO2TxField=0.5"_s, u"No valid datas"_s, {});
        row("0 %", u"Trimix Prof Min"_s, u"fracO2TxField=0"_s, u"No valid datas"_s, {});
        row("an empty field", u"Trimix Prof Min"_s, {}, u"No valid datas"_s, {});
        row("negative", u"Trimix Prof Min"_s, u"fracO2TxField=-5"_s, u"No valid datas"_s, {});
        row("60 m, END 30 m, 1.4 bar", u"Best Trimix"_s, u"depthTxField=60 ENDField=30 ppO2Field=1.4"_s,
            u"Best Tx"_s, {20, 80 - 79.0 * 4 / 7});
        row("a narcotic depth below the depth", u"Best Trimix"_s,
            u"depthTxField=30 ENDField=70 ppO2Field=1.2"_s, u"Best Tx"_s, {30, 70 - 158.0});
        row("above the water", u"Best Trimix"_s, u"depthTxField=-10 ENDField=30 ppO2Field=1.4"_s,
            u"Best Tx"_s, {INFINITY, -INFINITY});
        row("nothing filled in", u"Best Trimix"_s, {}, u"Best Tx"_s, {0, 21});
    }
    void passesItsNumbersInOrder() {
        QFETCH(QString, window);
        QFETCH(QString, values);
        QFETCH(QString, key);
        QFETCH(QList<double>, numbers);
        const QString text = Workbench(window.toLatin1()).press(values).text("resultatField");
        const Spoken spoken(text);
        QCOMPARE(spoken.key, key);
        QVERIFY2(areClose(spoken.numbers, numbers), qPrintable(text));
    }

    void saysInWordsThatAMixIsNotHypoxic() {
        QCOMPARE(Workbench("Trimix Prof Min", Strings::Language::English)
                     .press(u"fracO2TxField=17"_s)
                     .text("resultatField"),
                 u"No valid data: oxygen must be from 1 to 16 %."_s);
    }

    void aRefusedMixReplacesAnEarlierResult() {
        Workbench bench("Trimix Prof Min");
        QCOMPARE(bench.press(u"fracO2TxField=10"_s).text("resultatField").left(9), u"Prof min|"_s);
        QCOMPARE(bench.press(u"fracO2TxField=21"_s).text("resultatField"), u"No valid datas"_s);
    }

    void agreesWithLongDoubleEverywhere() {
        int clamped = 0;
        for (long double depth = 0; depth <= 200; depth += 5)
            for (long double oxygen = 2; oxygen <= 40; oxygen += 2)
                for (long double helium = 0; helium <= 96; helium += 8) {
                    const auto depths =
                        trimix::equivalentDepths(double(oxygen), double(helium), double(depth));
                    const long double air = (100 - oxygen - helium) * (depth + 10) / 79 - 10;
                    QVERIFY(isClose(depths.air, std::max(air, 0.0L), 1e-12L));
                    QVERIFY(isClose(depths.narcotic, depth - helium * (depth + 10) / 100, 1e-12L));
                    clamped += air < 0;
                    const auto mix = trimix::bestMix(double(depth), double(helium), double(oxygen) / 20);
                    const long double oxygenPercent = 50 * oxygen / (depth + 10);
                    QVERIFY(isClose(mix.oxygenPercent, oxygenPercent, 1e-12L));
                    QVERIFY(isClose(mix.heliumPercent,
                                    100 - oxygenPercent - 79 * (helium + 10) / (depth + 10), 1e-12L));
                }
        QVERIFY(clamped > 100);
        for (int tenths = 10; tenths <= 160; ++tenths)
            QVERIFY(isClose(trimix::leastDepth(tenths / 10.0), (1600.0L - 10 * tenths) / tenths, 1e-12L));
    }

    void showWinAsksForTheWindow() {
        Workbench bench("Best Trimix");
        auto& controller = dynamic_cast<TrimixController&>(bench.calculator().controller());
        controller.showWin();  // without a window there is nothing to show
        int shown = 0;
        controller.onShowWindow = [&shown] { ++shown; };
        controller.showWin();
        QCOMPARE(shown, 1);
    }
};

int runTrimixTest(int argc, char** argv) {
    TrimixTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TrimixTest.moc"
