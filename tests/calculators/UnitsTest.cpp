#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"
#include "calculators/UnitConversions.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class UnitsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void converts_data() {
        QTest::addColumn<QString>("pane");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("results");
        const auto row = [](const char* name, const char* pane, const char* values, const char* results) {
            QTest::newRow(name) << QString::fromLatin1(pane) << QString::fromLatin1(values)
                                << QString::fromLatin1(results);
        };
        row("200 bar", "pression", "choixPressionMatrix=1 barField=200", "barField=200 psiField=2900.754");
        row("3000 psi", "pression", "choixPressionMatrix=2 psiField=3000",
            "barField=206.8427726 psiField=3000");
        row("any other tag is psi", "pression", "choixPressionMatrix=9 psiField=14.50377", "barField=1");
        row("one litre", "volume", "choixVolumeMatrix=1 litresField=1",
            "litresField=1 cubicFeetUSField=0.0353144754 cubicInchesUSField=61.024");
        row("one cubic foot", "volume", "choixVolumeMatrix=2 cubicFeetUSField=1",
            "litresField=28.317 cubicFeetUSField=1 cubicInchesUSField=1727.972");
        row("one cubic inch", "volume", "choixVolumeMatrix=3 cubicInchesUSField=1",
            "litresField=0.01638696843 cubicFeetUSField=0.000578713081 cubicInchesUSField=1");
        row("any other tag is inches", "volume", "choixVolumeMatrix=0 cubicInchesUSField=61.0241",
            "litresField=1");
        row("10 m", "longueur", "choixLongueurMatrix=1 metresField=10",
            "feetField=32.80833437 metresField=10");
        row("100 ft", "longueur", "choixLongueurMatrix=2 feetField=100",
            "metresField=30.48006 feetField=100");
        row("1 kg", "masse", "choixMasseMatrix=1 kilogrammeField=1",
            "livreUSField=2.204622476 kilogrammeField=1");
        row("10 lb", "masse", "choixMasseMatrix=2 livreUSField=10",
            "kilogrammeField=4.535924 livreUSField=10");
        row("boiling water", "temperature", "choixTemperatureMatrix=1 celsiusField=100",
            "farenheitField=212 kelvinField=373.15 celsiusField=100");
        row("where the scales meet", "temperature", "choixTemperatureMatrix=2 farenheitField=-40",
            "celsiusField=-40 kelvinField=233.15");
        row("absolute zero", "temperature", "choixTemperatureMatrix=3 kelvinField=0",
            "celsiusField=-273.15 farenheitField=-459.67 kelvinField=0");
        row("below absolute zero", "temperature", "choixTemperatureMatrix=3 kelvinField=-10",
            "celsiusField=-283.15 farenheitField=-477.67");
        row("an empty field is 0", "temperature", "choixTemperatureMatrix=1",
            "farenheitField=32 kelvinField=273.15");
        row("a comma", "pression", "barField=1,5", "psiField=21.755655");
        row("beyond doubles", "pression", "barField=1e308", "psiField=inf");
        row("no minus before a zero", "temperature", "choixTemperatureMatrix=2 farenheitField=32",
            "celsiusField=0");
    }
    void converts() {
        QFETCH(QString, pane);
        QFETCH(QString, values);
        QFETCH(QString, results);
        Workbench bench("Physique");
        bench.press(u"conversionsTabView=%1 "_s.arg(pane) + values);
        for (const QString& result : results.split(u' '))
            QCOMPARE(bench.text(result.section(u'=', 0, 0).toLatin1()), result.section(u'=', 1));
    }

    void aPaneOfAnotherNameConvertsNothing() {
        Workbench bench("Physique");
        bench.press(u"barField=200 litresField=3 conversionsTabView=vitesse"_s);
        for (const char* field : bench.calculator().spec().results) {
            const QString expected = qstrcmp(field, "barField") == 0      ? u"200"_s
                                     : qstrcmp(field, "litresField") == 0 ? u"3"_s
                                                                          : QString();
            QCOMPARE(bench.text(field), expected);
        }
    }

    void onlyThePaneInViewConverts() {
        Workbench bench("Physique");
        bench.press(u"barField=200 metresField=10 conversionsTabView=longueur"_s);
        QCOMPARE(bench.text("psiField"), QString());
        QCOMPARE(bench.text("feetField"), u"32.80833437"_s);
    }

    void litresToInchesAndBackIsNotTheWayBack() {
        Workbench bench("Physique");
        bench.press(u"conversionsTabView=volume litresField=1"_s);
        bench.press(u"choixVolumeMatrix=3"_s);
        QCOMPARE(bench.text("cubicInchesUSField"), u"61.024"_s);
        QCOMPARE(bench.text("litresField"), u"0.9999983613"_s);  // 61.024/61.0241
    }

    /// The same factors as whole numbers over powers of ten.
    void agreesWithLongDoubleEverywhere() {
        for (long double x = -1000; x <= 5000; x += 7.75L) {
            const double value = double(x);
            QVERIFY(isClose(units::barToPsi(value), x * 1450377 / 100000, 1e-14L));
            QVERIFY(isClose(units::psiToBar(value), x * 100000 / 1450377, 1e-14L));
            const auto litres = units::volumeFromLitres(value);
            QVERIFY(isClose(litres.cubicFeet, x * 1000 / 28317, 1e-14L));
            QVERIFY(isClose(litres.cubicInches, x * 61024 / 1000, 1e-14L));
            const auto feet = units::volumeFromCubicFeet(value);
            QVERIFY(isClose(feet.litres, x * 28317 / 1000, 1e-14L));
            QVERIFY(isClose(feet.cubicInches, x * 1727972 / 1000, 1e-14L));
            const auto inches = units::volumeFromCubicInches(value);
            QVERIFY(isClose(inches.litres, x * 10000 / 610241, 1e-14L));
            QVERIFY(isClose(inches.cubicFeet, x * 1000 / 1727972, 1e-14L));
            QVERIFY(isClose(units::metresToFeet(value), x * 10000000 / 3048006, 1e-14L));
            QVERIFY(isClose(units::feetToMetres(value), x * 3048006 / 10000000, 1e-14L));
            QVERIFY(isClose(units::kilogramsToPounds(value), x * 10000000 / 4535924, 1e-14L));
            QVERIFY(isClose(units::poundsToKilograms(value), x * 4535924 / 10000000, 1e-14L));
            const auto celsius = units::temperatureFromCelsius(value);
            QVERIFY(isClose(celsius.fahrenheit, x * 9 / 5 + 32, 1e-14L));
            QVERIFY(isClose(celsius.kelvin, x + 273.15L, 1e-14L));
            const auto fahrenheit = units::temperatureFromFahrenheit(value);
            QVERIFY(isClose(fahrenheit.celsius, (x - 32) * 5 / 9, 1e-13L));
            QVERIFY(isClose(fahrenheit.kelvin, (x - 32) * 5 / 9 + 273.15L, 1e-13L));
            const auto kelvin = units::temperatureFromKelvin(value);
            QVERIFY(isClose(kelvin.celsius, x - 273.15L, 1e-13L));
            QVERIFY(isClose(kelvin.fahrenheit, (x - 273.15L) * 9 / 5 + 32, 1e-13L));
        }
    }
};

int runUnitsTest(int argc, char** argv) {
    UnitsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UnitsTest.moc"
