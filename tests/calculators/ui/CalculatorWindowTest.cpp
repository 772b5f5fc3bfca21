#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "CalculatorUiTests.h"
#include "WindowBench.h"
#include "platform/ui/FormView.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class CalculatorWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Each window filled by keys, computed by Return, its result read from the label.
    void eachWindowIsWorkedByKeys_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* window, const char* values, const char* label, const QString& text) {
            QTest::newRow(window) << QString::fromLatin1(window) << QString::fromLatin1(values)
                                  << QString::fromLatin1(label) << text;
        };
        row("Nitrox Prof Max", "fracO2Field=32", "resultatField", u"MOD : 33.8 m"_s);
        row("Nitrox Best Mix", "profondeurMaxField=30", "resultatField", u"Best mix: 35.0 % O₂"_s);
        row("Nitrox Equivalent Depth", "fracO2Field=36 profondeurField=30", "resultatField",
            u"EAD : 22.4 m"_s);
        row("Nitrox Oxygen Window", "winFO2=80 winMinPpO2=0,8", "winResult",
            u"1.6 bar of O₂ at 10.0 m, minimum ppO₂ at 0.0 m, usable down to 10.0 m"_s);
        row("Blend Nitrox", "pressionFinaleField=200 fracO2FinaleField=32", "resultatField",
            u"Oxygen to transfer: 27.8 bar, oxygen of all that is added: 32.0 %"_s);
        row("Trimix", "profondeurMaxField=60 fracO2TxField=18 fracHeTxField=45", "resultatField",
            u"EAD: 22.8 m, END: 28.5 m"_s);
        row("Trimix Prof Min", "fracO2TxField=10", "resultatField", u"Minimum depth: 6.0 m"_s);
        row("Best Trimix", "depthTxField=60 ENDField=30 ppO2Field=1,4", "resultatField",
            u"Oxygen: 20.0 %, helium: 34.9 %"_s);
        row("Soda Time", "sodaWeightField=2,5 sodaCapacityField=120 metabolicProductionField=1.6",
            "sodaTimeField", u"3 h 7 min"_s);
        row("Loop Flush", "loopMaxDepthField=6 loopPpO2Field=1.6", "loopFracO2Field",
            u"Oxygen of the flush gas: 100.0 %"_s);
        row("CCR Best Trimix", "depthCCR_TxField=60 ENDCCR_TxField=30", "CCR_BestTxField",
            u"Oxygen: 14 %, helium: 41 %"_s);
        row("SCR Breathed Frac O2", "brEanxField=40 brFlowField=10 brMetabolicField=1", "c18Field",
            u"1.8 l/min: 26.8 %"_s);
        row("SCR Flow Calc", "idEanxField=50 idMetabolicField=1 idRealFracO2Field=30", "idealFlowField",
            u"Ideal flow: 3.50 l/min"_s);
        row("Gps",
            "latitude_in_degreeField=43 latitude_in_minutesField=15 longitude_in_degreeField=5 "
            "longitude_in_minutesField=30",
            "longitude_outField", u"WGS84 5° 29' 57.118''"_s);
    }
    void eachWindowIsWorkedByKeys() {
        QFETCH(QString, window);
        QFETCH(QString, values);
        QFETCH(QString, label);
        WindowBench bench;
        bench.open(window.toLatin1());
        for (const QString& pair : values.split(u' '))
            bench.type(pair.section(u'=', 0, 0).toLatin1(), pair.section(u'=', 1));
        QCOMPARE(bench.shown(label.toLatin1()), QString());
        bench.press(Qt::Key_Return);
        QTEST(bench.shown(label.toLatin1()), "text");
    }

    void theButtonDoesTheSame() {
        WindowBench bench;
        bench.open("Nitrox Prof Max");
        bench.type("fracO2Field", u"32"_s);
        bench.choose("ppO2PopUp", 4);
        QTest::mouseClick(bench.find<QPushButton>("profMax"), Qt::LeftButton);
        QCOMPARE(bench.shown("resultatField"), u"MOD : 40.0 m"_s);
        QVERIFY(bench.find<QPushButton>("profMax")->isDefault());
    }

    void enterOnTheKeypadDoesTheSame() {
        WindowBench bench;
        bench.open("Nitrox Prof Max");
        bench.type("fracO2Field", u"32"_s);
        QTest::keyClick(bench.window, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(bench.shown("resultatField"), u"MOD : 33.8 m"_s);
    }

    void unitsConvertOnTheTabInView_data() {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QString>("chooser");
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("into");
        QTest::addColumn<QString>("text");
        QTest::newRow("pressure") << 0 << u"choixPressionMatrix"_s << 0 << u"barField"_s << u"200"_s
                                  << u"psiField"_s << u"2900.754"_s;
        QTest::newRow("volume") << 1 << u"choixVolumeMatrix"_s << 1 << u"cubicFeetUSField"_s << u"1"_s
                                << u"litresField"_s << u"28.317"_s;
        QTest::newRow("length") << 2 << u"choixLongueurMatrix"_s << 1 << u"feetField"_s << u"100"_s
                                << u"metresField"_s << u"30.48006"_s;
        QTest::newRow("mass") << 3 << u"choixMasseMatrix"_s << 1 << u"livreUSField"_s << u"10"_s
                              << u"kilogrammeField"_s << u"4.535924"_s;
        QTest::newRow("temperature") << 4 << u"choixTemperatureMatrix"_s << 2 << u"kelvinField"_s << u"0"_s
                                     << u"farenheitField"_s << u"-459.67"_s;
    }
    void unitsConvertOnTheTabInView() {
        QFETCH(int, tab);
        QFETCH(QString, chooser);
        QFETCH(int, item);
        QFETCH(QString, from);
        QFETCH(QString, typed);
        QFETCH(QString, into);
        WindowBench bench;
        bench.open("Physique");
        auto* tabs = bench.find<QTabBar>("conversionsTabView");
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
        QCOMPARE(bench.window->view().currentPane(), tab);
        bench.choose(chooser.toLatin1(), item);
        bench.type(from.toLatin1(), typed);
        bench.press(Qt::Key_Return);
        QTEST(bench.typed(into.toLatin1()), "text");
        int filled = 0;
        for (const char* field : bench.window->calculator().spec().results)
            filled += !bench.typed(field).isEmpty();
        QCOMPARE(filled, tab == 1 || tab == 4 ? 3 : 2);
    }

    void theFormTurnsTheTabs() {
        WindowBench bench;
        CalculatorWindow& window = bench.open("Physique");
        window.calculator().form().setText(ControlName{"conversionsTabView"}, u"masse"_s);
        QCOMPARE(bench.find<QTabBar>("conversionsTabView")->currentIndex(), 3);
        QCOMPARE(window.view().currentPane(), 3);
        window.calculator().form().setText(ControlName{"conversionsTabView"}, u"vitesse"_s);
        QCOMPARE(window.view().currentPane(), 3);
    }

    void returnPressesTheButtonBehindTheField() {
        WindowBench bench;
        bench.open("Gps");
        bench.type("latitude_inField", u"43.25"_s);
        bench.type("longitude_inField", u"5.5"_s);
        bench.press(Qt::Key_Return);
        QCOMPARE(bench.shown("longitude_outField"), u"5.498902"_s);
        bench.choose("geodesiePopUp", 1);
        bench.press(Qt::Key_Return);
        QCOMPARE(bench.shown("longitude_outField"), u"5.501098"_s);
        bench.type("longitude_in_degreeField", u"5"_s);
        bench.press(Qt::Key_Return);
        QVERIFY(bench.shown("longitude_outField").startsWith(u"WGS84 4°"_s));
        bench.find<QPushButton>("convertGPS2")->setFocus();
        bench.press(Qt::Key_Return);
        QCOMPARE(bench.shown("longitude_outField"), u"5.501098"_s);
    }

    void oneKeyCopiesTheResults() {
        WindowBench bench;
        bench.open("Nitrox Prof Max");
        QGuiApplication::clipboard()->setText(u"before"_s);
        bench.press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        bench.type("fracO2Field", u"32"_s);
        bench.press(Qt::Key_Return);
        bench.press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"MOD : 33.8 m"_s);
    }

    void copiedNumbersHaveTheirUnits() {
        WindowBench bench;
        bench.open("Physique");
        bench.type("barField", u"200"_s);
        bench.press(Qt::Key_Return);
        QTest::mouseClick(bench.find<QPushButton>("copyResults"), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"200 bar\n2900.754 psi"_s);
    }

    void closingKeepsWhatIsInTheWindow() {
        WindowBench bench;
        CalculatorWindow& window = bench.open("Nitrox Prof Max");
        bench.type("fracO2Field", u"32"_s);
        bench.press(Qt::Key_Return);
        bench.press(Qt::Key_Escape);
        QVERIFY(!window.isVisible());
        QCOMPARE(&bench.open("displayProfMaxWindow"), &window);
        QVERIFY(window.isVisible());
        QCOMPARE(bench.typed("fracO2Field"), u"32"_s);
        QCOMPARE(bench.shown("resultatField"), u"MOD : 33.8 m"_s);
    }

    void anotherLanguageKeepsWhatIsInTheWindow() {
        WindowBench bench;
        CalculatorWindow& window = bench.open("Nitrox Best Mix");
        bench.type("profondeurMaxField", u"30"_s);
        bench.strings.setLanguage(Strings::Language::French);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&window, &change);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(window.windowTitle(), u"Meilleur nitrox pour une profondeur – Nitrox"_s);
        QCOMPARE(bench.find<QPushButton>("bestMix")->text(), u"Calculer"_s);
        QCOMPARE(bench.typed("profondeurMaxField"), u"30"_s);
        QTest::mouseClick(bench.find<QPushButton>("bestMix"), Qt::LeftButton);
        QCOMPARE(bench.shown("resultatField"), u"Meilleur mélange : 35.0 % O₂"_s);
    }
};

int runCalculatorWindowTest(int argc, char** argv) {
    CalculatorWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CalculatorWindowTest.moc"
