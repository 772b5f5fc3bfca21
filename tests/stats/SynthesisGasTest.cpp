#include "stats/StatsTests.h"
#include "stats/Synthesis.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The lines of the section on gas, without its title.
QStringList gasLinesOf(const Plongee& dive) {
    const Strings keyed{Strings::Language::Keys};
    const QStringList lines = diveReport(dive, keyed, false).plainText().split(u'\n');
    const qsizetype first = lines.indexOf(u"Gas"_s) + 1;
    return lines.mid(first, lines.indexOf(u"Equipment"_s) - 1 - first);
}

QStringList stopsOf(const Plongee& dive) {
    const Strings keyed{Strings::Language::Keys};
    return diveReport(dive, keyed, false).plainText().split(u'\n').filter(u" min. - "_s);
}

Plongee twinDive(int rebreather) {
    Plongee dive;
    dive.setRebreather(rebreather);
    dive.setAlliageBloc(1);
    dive.setVolumeBloc(15);
    dive.setPressionBloc(232);
    dive.setPressionDepart(210);
    dive.setPressionFin(65);
    dive.setGaz(1);
    dive.setO2Mix(32);
    dive.setAlliageBloc_2(0);
    dive.setVolumeBloc_2(7);
    dive.setPressionBloc_2(300);
    dive.setPressionDepart_2(200);
    dive.setPressionFin_2(150);
    dive.setGaz_2(2);
    dive.setO2Mix_2(18);
    dive.setHeMix_2(45);
    return dive;
}

QStringList tank(const QString& name, const char* consumed) {
    return {name,
            u"   - Aluminum"_s,
            u"Tank pressure : 15 litres At 232 bar"_s,
            u"Start pressure : 210 bar"_s,
            u"End pressure : 65 bar"_s,
            u"Used pressure : 145 bar"_s,
            u"Available gas : 3150 litres"_s,
            QLatin1String(consumed) + u" : 2175 litres"_s};
}

QStringList secondTank(const QString& name, const char* consumed) {
    return {name,
            u"   - Steel"_s,
            u"Tank pressure : 7 litres At 300 bar"_s,
            u"Start pressure : 200 bar"_s,
            u"End pressure : 150 bar"_s,
            u"Used pressure : 50 bar"_s,
            u"Available gas : 1400 litres"_s,
            QLatin1String(consumed) + u" : 350 litres"_s,
            u"   - Trimix 18/45"_s};
}

}  // namespace

class SynthesisGasTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openCircuitHasTanksWhoseGasIsBreathed() {
        const QStringList expected = QStringList{u"Scaphander : Open circuit"_s} +
                                     tank(u"Tank_1"_s, "Breathed gas") + QStringList{u"   - Nitrox 32"_s} +
                                     secondTank(u"Tank_2"_s, "Breathed gas");
        QCOMPARE(gasLinesOf(twinDive(0)).join(u'\n'), expected.join(u'\n'));
    }

    void aSemiClosedRebreatherHasADiluentAndAFlow() {
        Plongee dive = twinDive(1);
        dive.setFlow(10.5F);
        const QStringList expected =
            QStringList{u"Scaphander : SCR rebreather"_s} + tank(u"Tank_1"_s, "Used gas") +
            QStringList{u"   - Nitrox 32"_s, u"Flow : 10.5 L/min."_s} + secondTank(u"Diluent"_s, "Used gas");
        QCOMPARE(gasLinesOf(dive).join(u'\n'), expected.join(u'\n'));
    }

    void aClosedRebreatherHasOxygenAndADiluent() {
        for (const int rebreather : {2, 3, 4, 7, -1}) {
            const QStringList expected = QStringList{u"Scaphander : CCR rebreather"_s} +
                                         tank(u"Oxygen"_s, "Used gas") +
                                         QStringList{u"   - Oxygen gas"_s, u"Flow : 0 L/min."_s} +
                                         secondTank(u"Diluent"_s, "Used gas");
            QCOMPARE(gasLinesOf(twinDive(rebreather)).join(u'\n'), expected.join(u'\n'));
        }
    }

    void aSecondTankThatIsNotThereHasNoLines() {
        Plongee dive = twinDive(0);
        dive.setVolumeBloc_2(0);
        dive.setPressionDepart_2(0);
        dive.setPressionFin_2(0);
        QVERIFY(!gasLinesOf(dive).contains(u"Tank_2"_s));
        QCOMPARE(gasLinesOf(dive).filter(u"Start pressure"_s).size(), 1);
    }

    void alloysBeyondTheSecondAreCarbon() {
        Plongee dive = twinDive(0);
        for (const int alloy : {2, 3, -1}) {
            dive.setAlliageBloc(alloy);
            QCOMPARE(gasLinesOf(dive).value(2), u"   - Carbon"_s);
        }
    }

    void mixesHaveTheirWords_data() {
        QTest::addColumn<int>("gas");
        QTest::addColumn<QString>("word");
        QTest::newRow("air") << 0 << u"   - Air"_s;
        QTest::newRow("nitrox") << 1 << u"   - Nitrox 21"_s;
        QTest::newRow("trimix") << 2 << u"   - Trimix 21/35"_s;
        QTest::newRow("heliox") << 3 << u"   - Heliox 21"_s;
        QTest::newRow("helitrox") << 4 << u"   - Helitrox 21/35"_s;
        QTest::newRow("heliair") << 5 << u"   - Heliair 21/35"_s;
        QTest::newRow("unknown") << 6 << u"Tank_2"_s;
    }
    void mixesHaveTheirWords() {
        QFETCH(int, gas);
        QFETCH(QString, word);
        Plongee dive = twinDive(0);
        dive.setGaz(gas);
        dive.setO2Mix(21);
        dive.setHeMix(35);
        QCOMPARE(gasLinesOf(dive).value(9), word);
    }

    void pressuresThatRiseGiveNegativeConsumption() {
        Plongee dive = twinDive(0);
        dive.setPressionFin(220);
        QVERIFY(gasLinesOf(dive).contains(u"Used pressure : -10 bar"_s));
        QVERIFY(gasLinesOf(dive).contains(u"Breathed gas : -150 litres"_s));
    }

    void stopsNameTheirGas_data() {
        QTest::addColumn<int>("oxygen");
        QTest::addColumn<int>("helium");
        QTest::addColumn<QString>("gas");
        QTest::newRow("nothing recorded") << 0 << 0 << u"(Air)"_s;
        QTest::newRow("air") << 21 << 0 << u"(Air)"_s;
        QTest::newRow("nitrox") << 22 << 0 << u"(Nitrox 22)"_s;
        QTest::newRow("oxygen") << 100 << 0 << u"(Nitrox 100)"_s;
        QTest::newRow("trimix") << 21 << 35 << u"(Trimix 21/35)"_s;
        QTest::newRow("lean trimix") << 10 << 70 << u"(Trimix 10/70)"_s;
        QTest::newRow("helitrox") << 26 << 17 << u"(Helitrox 26/17)"_s;
    }
    void stopsNameTheirGas() {
        QFETCH(int, oxygen);
        QFETCH(int, helium);
        QFETCH(QString, gas);
        Plongee dive;
        dive.setDecoDepth_Level_4(12.5F);
        dive.setDecoTime_Level_4(3);
        dive.setDecoO2_Level_4(oxygen);
        dive.setDecoHe_Level_4(helium);
        QCOMPARE(stopsOf(dive), QStringList{u"   - 12.5 m : 3 min. - "_s + gas});
    }

    void everyLevelHasItsOwnStopAndTimelessOnesNone() {
        Plongee dive;
        dive.setDecoDepth_Level_1(3);
        dive.setDecoTime_Level_1(11);
        dive.setDecoDepth_Level_2(6);
        dive.setDecoDepth_Level_3(9);
        dive.setDecoTime_Level_3(13);
        dive.setDecoDepth_Level_4(12);
        dive.setDecoTime_Level_4(14);
        dive.setDecoDepth_Level_5(15);
        dive.setDecoTime_Level_5(15);
        dive.setDecoDepth_Level_6(18);
        dive.setDecoTime_Level_6(16);
        dive.setDecoO2_Level_6(32);
        QCOMPARE(stopsOf(dive),
                 QStringList({u"   - 3.0 m : 11 min. - (Air)"_s, u"   - 9.0 m : 13 min. - (Air)"_s,
                              u"   - 12.0 m : 14 min. - (Air)"_s, u"   - 15.0 m : 15 min. - (Air)"_s,
                              u"   - 18.0 m : 16 min. - (Nitrox 32)"_s}));
    }

    void poniesHaveTheirFormats() {
        Plongee dive;
        dive.setDecoO2_Level_1(50);
        dive.setPressDepartPony1(200);
        dive.setPressFinPony1(120);
        dive.setPressDepartPony2(190);
        dive.setPressFinPony2(110);
        dive.setVolPony3(7);
        const QStringList lines = gasLinesOf(dive);
        QCOMPARE(lines.mid(lines.indexOf(u"Ponies"_s)),
                 QStringList({u"Ponies"_s, u"   - Deco 1 : 50 % O₂ (200-120 bar)"_s,
                              u"   - Deco 2 : % O₂ (190-110 bar)"_s, u"   - Deco 3 : % O₂ (0-0 bar)"_s}));
        QVERIFY(!gasLinesOf(Plongee()).contains(u"Ponies"_s));
    }

    void bailOutsAreNitroxOrTrimix() {
        Plongee dive;
        dive.setO2Bailout1(32);
        dive.setPressDepartBailout1(200);
        dive.setPressFinBailout1(180);
        dive.setO2Bailout2(18);
        dive.setHeBailout2(45);
        dive.setPressDepartBailout2(210);
        dive.setPressFinBailout2(205);
        dive.setO2Bailout3(50);
        const QStringList expected{u"Bail-out :"_s, u"   - Bail-out 1 : Nx 32 (200-180 bar)"_s,
                                   u"   - Bail-out 2 : Tx 18/45 (210-205 bar)"_s};
        const QStringList lines = gasLinesOf(dive);
        QCOMPARE(lines.mid(lines.indexOf(u"Bail-out :"_s)), expected);
        dive.setVolBailout3(5);
        QVERIFY(gasLinesOf(dive).contains(u"   - Bail-out 3 : Nx 50 (0-0 bar)"_s));
        QVERIFY(!gasLinesOf(Plongee()).contains(u"Bail-out :"_s));
    }
};

int runSynthesisGasTest(int argc, char** argv) {
    SynthesisGasTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SynthesisGasTest.moc"
