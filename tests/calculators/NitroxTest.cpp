#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"
#include "calculators/NitroxFormulas.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class NitroxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsDepthsInTheirFixedFormats_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("text");
        const auto mod = [](const char* name, const QString& values, const char* text) {
            QTest::newRow(name) << u"Nitrox Prof Max"_s << values << QString::fromLatin1(text);
        };
        mod("32 % to 1.4 bar, 33.75", u"fracO2Field=32 ppO2PopUp=2"_s, "MOD : 33.8 m");
        mod("chooser untouched", u"fracO2Field=32"_s, "MOD : 33.8 m");
        mod("nothing chosen", u"fracO2Field=32 ppO2PopUp=-1"_s, "MOD : 33.8 m");
        mod("an item that is not there", u"fracO2Field=32 ppO2PopUp=5"_s, "MOD : 33.8 m");
        mod("1.2 bar", u"fracO2Field=32 ppO2PopUp=0"_s, "MOD : 27.5 m");
        mod("1.3 bar, 30.625", u"fracO2Field=32 ppO2PopUp=1"_s, "MOD : 30.6 m");
        mod("1.5 bar, 36.875", u"fracO2Field=32 ppO2PopUp=3"_s, "MOD : 36.9 m");
        mod("1.6 bar", u"fracO2Field=32 ppO2PopUp=4"_s, "MOD : 40.0 m");
        mod("oxygen to 1.6 bar", u"fracO2Field=100 ppO2PopUp=4"_s, "MOD : 6.0 m");
        mod("a comma", u"fracO2Field=37,5 ppO2PopUp=4"_s, "MOD : 32.7 m");
        mod("no oxygen", u"fracO2Field=0"_s, "MOD : inf m");
        mod("an empty field", u"fracO2Field="_s, "MOD : inf m");
        mod("no number", u"fracO2Field=air"_s, "MOD : inf m");
        const auto ead = [](const char* name, const QString& values, const char* text) {
            QTest::newRow(name) << u"Nitrox Equivalent Depth"_s << values << QString::fromLatin1(text);
        };
        ead("air", u"fracO2Field=21 profondeurField=30"_s, "EAD : 30.0 m");
        ead("36 % at 30 m", u"fracO2Field=36 profondeurField=30"_s, "EAD : 22.4 m");
        ead("negative at the surface", u"fracO2Field=32 profondeurField=0"_s, "EAD : -1.4 m");
        ead("pure oxygen", u"fracO2Field=100 profondeurField=30"_s, "EAD : -10.0 m");
        ead("nothing filled in, 2.658", {}, "EAD : 2.7 m");
    }
    void showsDepthsInTheirFixedFormats() {
        QFETCH(QString, window);
        QFETCH(QString, values);
        QFETCH(QString, text);
        for (const auto language :
             {Strings::Language::English, Strings::Language::French, Strings::Language::Keys})
            QCOMPARE(Workbench(window.toLatin1(), language).press(values).text("resultatField"), text);
    }

    void passesItsNumbersInOrder_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<double>>("numbers");
        const auto row = [](const char* name, const QString& window, const QString& values,
                            const QString& key, const QList<double>& numbers) {
            QTest::newRow(name) << window << values << key << numbers;
        };
        row("best mix at 30 m", u"Nitrox Best Mix"_s, u"profondeurMaxField=30"_s, u"Best Mix"_s, {35});
        row("best mix at the surface", u"Nitrox Best Mix"_s, u"profondeurMaxField=0 ppO2PopUp=4"_s,
            u"Best Mix"_s, {160});
        row("best mix above the water", u"Nitrox Best Mix"_s, u"profondeurMaxField=-10"_s, u"Best Mix"_s,
            {INFINITY});
        // A is 0, so the usable depth is 0; B = 1.6/0.21, C = 0.5/0.21.
        row("oxygen window of air", u"Nitrox Oxygen Window"_s, u"winFO2=21 winMinPpO2=0.5"_s,
            u"Oxygen window"_s, {(160.0 / 21 - 1) * 10, (50.0 / 21 - 1) * 10, 0});
        // A = (0.79/0.2 - 1) x 10 = 29.5 is deeper than B = 10.
        row("oxygen is the limit", u"Nitrox Oxygen Window"_s, u"winFO2=80 winMinPpO2=0.8"_s,
            u"Oxygen window"_s, {10, 0, 10});
        // A is infinite, B = 6.
        row("pure oxygen", u"Nitrox Oxygen Window"_s, u"winFO2=100 winMinPpO2=0.5"_s, u"Oxygen window"_s,
            {6, -5, 6});
        // A = -2.1; B and C are infinite.
        row("no oxygen", u"Nitrox Oxygen Window"_s, u"winFO2=0 winMinPpO2=0.5"_s, u"Oxygen window"_s,
            {INFINITY, INFINITY, -2.1});
        row("no oxygen and none wanted", u"Nitrox Oxygen Window"_s, u"winFO2=0"_s, u"Oxygen window"_s,
            {INFINITY, NAN, -2.1});
        row("an empty cylinder to 200 bar of 32 %", u"Blend Nitrox"_s,
            u"pressionFinaleField=200 fracO2FinaleField=32"_s, u"Oxygen to transfer"_s,
            {200 - 200.0 * 68 / 79, 32});
        // Missing nitrogen: 200 x 64 - 50 x 79 = 8850, with 8850/79 bar of air; added oxygen: 7200 - 1050 =
        // 6150.
        row("topping up 50 bar of air", u"Blend Nitrox"_s,
            u"pressionInitialeField=50 fracO2InitialeField=21 pressionFinaleField=200 fracO2FinaleField=36"_s,
            u"Oxygen to transfer"_s, {150 - 8850.0 / 79, 41});
        // Missing nitrogen: 200 x 68 - 200 x 79 = -2200; 2200 of oxygen to be added with no gas at all.
        row("no room", u"Blend Nitrox"_s,
            u"pressionInitialeField=200 fracO2InitialeField=21 pressionFinaleField=200 fracO2FinaleField=32"_s,
            u"Oxygen to transfer"_s, {2200.0 / 79, INFINITY});
        row("nothing filled in", u"Blend Nitrox"_s, {}, u"Oxygen to transfer"_s, {0, NAN});
    }
    void passesItsNumbersInOrder() {
        QFETCH(QString, window);
        QFETCH(QString, values);
        QFETCH(QString, key);
        QFETCH(QList<double>, numbers);
        const char* result = window == u"Nitrox Oxygen Window"_s ? "winResult" : "resultatField";
        const QString text = Workbench(window.toLatin1()).press(values).text(result);
        const Spoken spoken(text);
        QCOMPARE(spoken.key, key);
        QVERIFY2(areClose(spoken.numbers, numbers), qPrintable(text));
    }

    void agreesWithLongDoubleEverywhere() {
        int seen = 0;
        for (long double percent = 0.5L; percent < 100; percent += 0.5L)
            for (long double x = -20; x <= 300; x += 4) {
                const long double limit = (x + 21) / 100;
                const double share = double(percent) / 100;
                // Each rearranged, so that a slip in the formula is not made twice.
                QVERIFY(
                    isClose(nitrox::depthAtPpO2(share, double(limit)), 1000 * limit / percent - 10, 1e-12L));
                QVERIFY(isClose(nitrox::equivalentAirDepth(double(percent), double(x)),
                                ((100 - percent) * (x + 10) - 790) / 79, 1e-12L));
                if (x != -10)
                    QVERIFY(isClose(nitrox::shareAtPpO2(double(x), double(limit)), 10 * limit / (x + 10),
                                    1e-12L));
                ++seen;
            }
        QCOMPARE(seen, 199 * 81);
    }

    void windowAgreesWithLongDoubleEverywhere() {
        for (long double percent = 0.25L; percent < 100; percent += 0.25L)
            for (long double least = 0; least < 2; least += 0.125L) {
                const auto window = nitrox::oxygenWindow(double(percent) / 100, double(least));
                const long double a = (7900 / (100 - percent) - 100) / 10;
                const long double b = 1600 / percent - 10;
                QVERIFY(isClose(window.deepest, b));
                QVERIFY(isClose(window.shallowest, 1000 * least / percent - 10));
                QVERIFY(isClose(window.usable, std::min(a, b)));
            }
    }

    /// A blend checked by filling the cylinder: oxygen, then air to the top, must give the mix wanted.
    void blendGivesTheMixWanted() {
        for (long double start = 0; start <= 100; start += 12.5L)
            for (long double startPercent = 0; startPercent <= 100; startPercent += 12.5L)
                for (long double endPercent = 21; endPercent <= 100; endPercent += 7.9L) {
                    const long double end = 232;
                    const auto blend =
                        nitrox::blend(double(start), double(startPercent), double(end), double(endPercent));
                    const long double air = end - start - blend.oxygen;
                    const long double oxygen = start * startPercent / 100 + blend.oxygen + air * 0.21L;
                    QVERIFY(isClose(double(oxygen / end * 100), endPercent, 1e-12L));
                    const long double added = (oxygen - start * startPercent / 100) / (end - start) * 100;
                    QVERIFY(isClose(blend.addedPercent, added, 1e-12L));
                }
    }
};

int runNitroxTest(int argc, char** argv) {
    NitroxTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "NitroxTest.moc"
