#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// Everything that stands in a window's rows.
QList<LayoutItem> itemsOf(const CalculatorSpec& spec) {
    QList<LayoutItem> items;
    for (const LayoutPane& pane : spec.layout.panes)
        for (const LayoutSection& section : pane.sections)
            for (const LayoutRow& row : section.rows) items += row.items;
    return items;
}

QStringList names(const QList<const char*>& list) {
    QStringList texts;
    for (const char* name : list) texts << QLatin1String(name);
    return texts;
}

void everyWindow() {
    QTest::addColumn<int>("index");
    int index = 0;
    for (const CalculatorSpec& spec : calculatorSpecs()) QTest::newRow(spec.layout.name) << index++;
}

const CalculatorSpec& window(int index) {
    return calculatorSpecs()[std::size_t(index)];
}

}  // namespace

class CalculatorWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thereAreFifteen_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("controller");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("controls");
        const auto row = [](const char* action, const char* controller, const char* name, const char* actions,
                            const char* controls) {
            QTest::newRow(action) << QString::fromLatin1(action) << QString::fromLatin1(controller)
                                  << QString::fromLatin1(name) << QString::fromLatin1(actions)
                                  << QString::fromLatin1(controls);
        };
        row("displayConversionsWindow", "PhysiqueController", "Physique", "convertir",
            "barField celsiusField choixLongueurMatrix choixMasseMatrix choixPressionMatrix "
            "choixTemperatureMatrix "
            "choixVolumeMatrix conversionsTabView cubicFeetUSField cubicInchesUSField farenheitField "
            "feetField "
            "kelvinField kilogrammeField litresField livreUSField metresField psiField");
        row("displayConversionsGPSWindow", "GpsController", "Gps", "convertGPS convertGPS2",
            "altitude_inField altitude_outField geodesiePopUp gpsDataField latitude_inField "
            "latitude_in_degreeField latitude_in_minutesField latitude_in_secondsField latitude_outField "
            "longitude_inField longitude_in_degreeField longitude_in_minutesField longitude_in_secondsField "
            "longitude_outField resultatField");
        row("displayProfMaxWindow", "NitroxController", "Nitrox Prof Max", "profMax",
            "fracO2Field ppO2PopUp resultatField");
        row("displayBestMixWindow", "NitroxController", "Nitrox Best Mix", "bestMix",
            "ppO2PopUp profondeurMaxField resultatField");
        row("displayEquivalentDepthWindow", "NitroxController", "Nitrox Equivalent Depth", "profEquivalente",
            "fracO2Field profondeurField resultatField");
        row("displayOxygenWindow", "NitroxController", "Nitrox Oxygen Window", "oxygenWindow",
            "winFO2 winMinPpO2 winResult");
        row("displayBlendNitroxWindow", "NitroxController", "Blend Nitrox", "blendNitrox",
            "fracO2FinaleField fracO2InitialeField pressionFinaleField pressionInitialeField resultatField");
        row("displayTrimixEAD_ENDWindow", "TrimixController", "Trimix", "calcEAD_END",
            "fracHeTxField fracO2TxField profondeurMaxField resultatField");
        row("displayTrimixProfMinWindow", "TrimixController", "Trimix Prof Min", "profMin",
            "fracO2TxField resultatField");
        row("displayBestTrimix", "TrimixController", "Best Trimix", "calcBestTx",
            "ENDField depthTxField ppO2Field resultatField");
        row("displaySodaTimeWindow", "SCRCCRController", "Soda Time", "calcSodaTime",
            "metabolicProductionField sodaCapacityField sodaTimeField sodaWeightField");
        row("displayLoopFlushWindow", "SCRCCRController", "Loop Flush", "calcLoopFlush",
            "loopFracO2Field loopMaxDepthField loopPpO2Field");
        row("displayCCRBestTrimixWindow", "SCRCCRController", "CCR Best Trimix", "calcCCRBestTx",
            "CCR_BestTxField ENDCCR_TxField PpO2FlushCCR_TxField depthCCR_TxField");
        row("displaySCRBreathedFracO2Window", "SCRCCRController", "SCR Breathed Frac O2",
            "calcBreathedFracO2",
            "brEanxField brFlowField brMetabolicField breathedFracO2Field c08Field c09Field c10Field "
            "c11Field "
            "c12Field c13Field c14Field c15Field c16Field c17Field c18Field");
        row("displaySCRIdealFlowWindow", "SCRCCRController", "SCR Flow Calc", "calcIdealFlow",
            "d08Field d09Field d10Field d11Field d12Field d13Field d14Field d15Field d16Field d17Field "
            "d18Field "
            "idEanxField idMetabolicField idRealFracO2Field idealFlowField");
    }
    void thereAreFifteen() {
        QFETCH(QString, action);
        QFETCH(QString, controller);
        QFETCH(QString, name);
        QFETCH(QString, actions);
        QFETCH(QString, controls);
        QCOMPARE(int(calculatorSpecs().size()), 15);
        const CalculatorSpec* spec = findCalculator(action);
        QVERIFY(spec);
        QCOMPARE(findCalculator(name), spec);
        QCOMPARE(QString::fromLatin1(spec->controllerClass), controller);
        QCOMPARE(names(spec->actions).join(u' '), actions);
        QStringList found;
        for (const ControlSpec& control : spec->controls) found << QLatin1String(control.name);
        found.sort();
        QCOMPARE(found.join(u' '), controls);
    }

    void anUnknownNameFindsNothing() {
        QVERIFY(!findCalculator(u"Heliox"));
        QVERIFY(!findCalculator(u""));
    }

    void everyControlStandsInItsWindowOnce_data() { everyWindow(); }
    void everyControlStandsInItsWindowOnce() {
        QFETCH(int, index);
        const CalculatorSpec& spec = window(index);
        QStringList shown, buttons;
        for (const LayoutItem& item : itemsOf(spec)) {
            if (item.control) shown << QLatin1String(item.control);
            if (item.action) buttons << QLatin1String(item.action);
        }
        for (const ControlSpec& control : spec.controls) {
            const bool isPane = spec.paneControl && qstrcmp(control.name, spec.paneControl) == 0;
            QCOMPARE(shown.count(QLatin1String(control.name)), isPane ? 0 : 1);
        }
        QCOMPARE(shown.size() + (spec.paneControl ? 1 : 0), spec.controls.size());
        buttons.removeDuplicates();
        QCOMPARE(buttons, names(spec.actions));
    }

    void everyPaneHasAButton_data() { everyWindow(); }
    void everyPaneHasAButton() {
        QFETCH(int, index);
        for (const LayoutPane& pane : window(index).layout.panes) {
            bool found = false;
            for (const LayoutSection& section : pane.sections)
                for (const LayoutRow& row : section.rows) found = found || row.items.first().action;
            QVERIFY2(found, pane.id);
        }
    }

    void everyNumberHasAUnitBesideIt_data() { everyWindow(); }
    void everyNumberHasAUnitBesideIt() {
        QFETCH(int, index);
        const CalculatorSpec& spec = window(index);
        const Form form(spec.controls);
        for (const LayoutItem& item : itemsOf(spec)) {
            if (!item.control) continue;
            if (form.spec(form[ControlName{item.control}]).kind != ControlKind::Number) continue;
            QVERIFY2(item.unit.key, item.control);
        }
    }

    void everyActionOfAFreshWindowEndsWithAResult_data() { everyWindow(); }
    void everyActionOfAFreshWindowEndsWithAResult() {
        QFETCH(int, index);
        const CalculatorSpec& spec = window(index);
        for (const char* action : spec.actions) {
            Workbench bench(spec.layout.name);
            QCOMPARE(bench.calculator().resultText(), QString());
            bench.press({}, QLatin1String(action));
            QVERIFY2(!bench.calculator().resultText().isEmpty(), action);
        }
    }

    void whatIsCopiedMarksTheRedRowsInWords() {
        Workbench bench("SCR Flow Calc", Strings::Language::English);
        bench.press(u"idEanxField=50 idRealFracO2Field=30 idMetabolicField=1"_s);
        const QStringList lines = bench.calculator().resultText().split(u'\n');
        QCOMPARE(lines.size(), 12);
        QCOMPARE(lines.first(3), QStringList({u"Ideal flow: 3.50 l/min"_s,
                                              u"0.8 l/min: flow 2.80 l/min ⚠ outside the limits"_s,
                                              u"0.9 l/min: flow 3.15 l/min"_s}));
    }

    void whatIsCopiedHasItsLabels() {
        const auto copied = [](Strings::Language language) {
            Workbench bench("Gps", language);
            bench.press(u"longitude_inField=5.5 latitude_inField=43.25"_s, u"convertGPS2"_s);
            return bench.calculator().resultText();
        };
        QCOMPARE(copied(Strings::Language::English),
                 u"Latitude: 43.248893\nLongitude: 5.498902\nHeight: Altitude : 2871.74 m"_s);
        QVERIFY(copied(Strings::Language::French).startsWith(u"Latitude : 43.248893\n"_s));
    }

    void anActionOfAnotherWindowIsUnknown() {
        Workbench bench("Nitrox Prof Max");
        QVERIFY_THROWS_EXCEPTION(UnknownControlError, bench.form().press(u"bestMix"_s));
    }

    void choosersStartWithTheirUsualItem() {
        Workbench units("Physique");
        QCOMPARE(units.text("conversionsTabView"), u"pression"_s);
        for (const char* chooser : {"choixPressionMatrix", "choixVolumeMatrix", "choixLongueurMatrix",
                                    "choixMasseMatrix", "choixTemperatureMatrix"})
            QCOMPARE(units.form().tag(ControlName{chooser}), 1);
        QCOMPARE(Workbench("Nitrox Prof Max").form().tag(ControlName{"ppO2PopUp"}), 2);
        QCOMPARE(Workbench("Gps").form().tag(ControlName{"geodesiePopUp"}), 0);
    }

    void onlyTheTwoDirectionsAreOffered() {
        Workbench bench("Gps");
        const auto menu = bench.form().spec(bench.form()[ControlName{"geodesiePopUp"}]).menu;
        QCOMPARE(int(menu.size()), 2);
        QCOMPARE(menu[0].tag, 0);
        QCOMPARE(menu[1].tag, 1);
    }

    void paneIdsAreThoseThatTheControllerKnows() {
        QStringList ids;
        for (const LayoutPane& pane : findCalculator(u"Physique")->layout.panes)
            ids << QLatin1String(pane.id);
        QCOMPARE(ids, QStringList({u"pression"_s, u"volume"_s, u"longueur"_s, u"masse"_s, u"temperature"_s}));
    }

    void twoWindowsOfOneClassDoNotShareTheirFields() {
        Workbench one("Nitrox Prof Max"), other("Nitrox Equivalent Depth");
        one.press(u"fracO2Field=32"_s);
        QCOMPARE(other.text("fracO2Field"), QString());
        QCOMPARE(other.text("resultatField"), QString());
    }
};

int runCalculatorWindowsTest(int argc, char** argv) {
    CalculatorWindowsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CalculatorWindowsTest.moc"
