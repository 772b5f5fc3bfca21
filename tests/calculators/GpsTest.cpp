#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"
#include "platform/form/SystemColors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QString anglesOff =
    u"longitude_in_degreeField=5 longitude_in_minutesField=30 latitude_in_degreeField=43 "
    "latitude_in_minutesField=15"_s;

}  // namespace

class GpsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Expected values from the formulas in 40-digit arithmetic, with an iterated latitude in place of
    // Bowring's.
    void showsAnglesOnWgs84_data() {
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("longitude");
        QTest::addColumn<QString>("latitude");
        QTest::addColumn<QString>("altitude");
        QTest::newRow("off Marseille")
            << anglesOff << u"WGS84 5° 29' 57.118''"_s << u"WGS84 43° 14' 56.236''"_s << u"63.8 m"_s;
        QTest::newRow("by decimal degrees")
            << u"longitude_in_degreeField=5,5 latitude_in_degreeField=43,25"_s << u"WGS84 5° 29' 57.118''"_s
            << u"WGS84 43° 14' 56.236''"_s << u"63.8 m"_s;
        QTest::newRow("negative degrees are not mirrored")
            << u"longitude_in_degreeField=-5 longitude_in_minutesField=30 latitude_in_degreeField=48 altitude_inField=100"_s
            << u"WGS84 -5° 29' 56.061''"_s << u"WGS84 47° 59' 56.309''"_s << u"166.6 m"_s;
        QTest::newRow("nothing filled in")
            << QString() << u"WGS84 -1° 59' 57.624''"_s << u"WGS84 -1° 59' 55.906''"_s << u"173.4 m"_s;
    }
    void showsAnglesOnWgs84() {
        QFETCH(QString, values);
        Workbench bench("Gps");
        bench.press(values);
        QTEST(bench.text("longitude_outField"), "longitude");
        QTEST(bench.text("latitude_outField"), "latitude");
        QTEST(bench.text("altitude_outField"), "altitude");
        QCOMPARE(bench.text("resultatField"), QString());
        QVERIFY2(bench.log().isEmpty(), "the precise conversion has its own log");
    }

    void writesTheCalculationDown() {
        Workbench bench("Gps");
        bench.press(u"latitude_in_minutesField=0"_s);
        // The equator at Greenwich: no rounding on ED50; the rest from 40-digit arithmetic.
        const QStringList lines = bench.text("gpsDataField").split(u'\n');
        const QStringList expected{
            u"----- ED50 -----"_s,
            u"  latitude : 0 ° 0 ' 0.000 ''"_s,
            u"  longitude : 0 ° 0 ' 0.000 ''"_s,
            u"  altitude : 0.00 m"_s,
            u"  lat (deg.) : 0.0000000000"_s,
            u"  lng (deg.) : 0.0000000000"_s,
            u"  lat (rad.) : 0.0000000000"_s,
            u"  lng (rad.) : 0.0000000000"_s,
            u"  sin(lat) : 0.0000000000"_s,
            u"  cos(lat) : 1.0000000000"_s,
            u"  sin(lng) : 0.0000000000"_s,
            u"  cos(lng) : 1.0000000000"_s,
            u"  n : 6378388.0000000000"_s,
            u"  x : 6378388.0000000000"_s,
            u"  y : 0.0000000000"_s,
            u"  z : 0.0000000000"_s,
            u"----- WGS84 -----"_s,
            u"  p : 6378310.35392899"_s,
            u"  theta : -0.0000197836"_s,
            u"  phi : -0.0000198502"_s,
            u"  n : 6378137.00000841"_s,
            u"  lambda : -0.0000115212"_s,
        };
        QCOMPARE(lines.size(), expected.size());
        for (qsizetype i = 0; i < lines.size(); ++i)  // the last digits of a large number are noise
            QVERIFY2(i == 17 || i == 20 ? lines[i].startsWith(expected[i]) : lines[i] == expected[i],
                     qPrintable(lines[i] + u" / "_s + expected[i]));
    }

    void theCalculationIsStyled() {
        Workbench bench("Gps");
        bench.press(anglesOff);
        const Form& form = bench.form();
        const ControlState& state = form.state(form[ControlName{"gpsDataField"}]);
        QString text, headings;
        for (const TextRun& run : state.runs) {
            text += run.text;
            if (run.color == systemcolor::blue) headings += run.text;
        }
        QCOMPARE(text, state.text);
        QCOMPARE(headings, u"----- ED50 ---------- WGS84 -----"_s);
    }

    void aNewCalculationReplacesTheOldOne() {
        Workbench bench("Gps");
        const QString first = bench.press(anglesOff).text("gpsDataField");
        const QString second = bench.press(u"altitude_inField=10"_s).text("gpsDataField");
        QVERIFY(second != first);
        QCOMPARE(second.count(u"ED50"_s), 1);
        QCOMPARE(bench.press(u"altitude_inField=0"_s).text("gpsDataField"), first);
    }

    void showsDecimalDegrees_data() {
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("longitude");
        QTest::addColumn<QString>("latitude");
        QTest::addColumn<QString>("altitude");
        const QString marseille = u"longitude_inField=5,5 latitude_inField=43.25"_s;
        const QString ushant = u"longitude_inField=-4.5 latitude_inField=48 altitude_inField=100"_s;
        QTest::newRow("ED50 to WGS84")
            << marseille << u"5.498902"_s << u"43.248893"_s << u"Altitude : 2871.74 m"_s;
        QTest::newRow("WGS84 to ED50") << marseille + u" geodesiePopUp=1"_s << u"5.501098"_s << u"43.250928"_s
                                       << u"Altitude : 3054.10 m"_s;
        QTest::newRow("west, high") << ushant + u" geodesiePopUp=0"_s << u"-4.501400"_s << u"47.998952"_s
                                    << u"Altitude : 1195.08 m"_s;
        QTest::newRow("west, high, back") << ushant + u" geodesiePopUp=1"_s << u"-4.498600"_s
                                          << u"48.000977"_s << u"Altitude : 1379.94 m"_s;
        QTest::newRow("nothing filled in")
            << QString() << u"-0.000879"_s << u"-0.001092"_s << u"Altitude : 13078.70 m"_s;
    }
    void showsDecimalDegrees() {
        QFETCH(QString, values);
        Workbench bench("Gps");
        bench.press(values, u"convertGPS2"_s);
        QTEST(bench.text("longitude_outField"), "longitude");
        QTEST(bench.text("latitude_outField"), "latitude");
        QTEST(bench.text("altitude_outField"), "altitude");
        QCOMPARE(bench.text("gpsDataField"), QString());
    }

    void logsTheShift() {
        Workbench bench("Gps");
        bench.press(u"longitude_inField=5.5 latitude_inField=43.25"_s, u"convertGPS2"_s);
        const QStringList expected{
            u"d2r = 0.017453292519943"_s,   u"r2d = 57.295779513082323"_s, u"lng ED -> WGS = 5.500000"_s,
            u"lat ED -> WGS = 43.250000"_s, u"alt ED -> WGS = 0.000000"_s, u"lng = 0.095993108859688"_s,
            u"lat = 0.754854901487548"_s,   u"nin = 6391302.701251"_s,     u"xe = 4633807.548814"_s,
            u"ye = 446184.918406"_s,        u"xs = 4633720.548814"_s,      u"ys = 446086.918406"_s,
            u"zs = 4349650.900481\r\r"_s,   u"nout = 6378137.000000"_s,
        };
        QCOMPARE(bench.log().first(14), expected);
        QCOMPARE(bench.log().size(), 18);
        QVERIFY(bench.log().last().startsWith(u"nout = 6388183.03"_s));
    }

    void logsTheOtherDirection() {
        Workbench bench("Gps");
        bench.press(u"longitude_inField=5.5 altitude_inField=-3 geodesiePopUp=1"_s, u"convertGPS2"_s);
        QCOMPARE(bench.log().mid(2, 3),
                 QStringList({u"lng WGS -> ED = 5.500000"_s, u"lat WGS -> ED = 0.000000"_s,
                              u"alt WGS -> ED = -3.000000"_s}));
        QCOMPARE(bench.log()[13], u"nout = 6378388.000000"_s);
    }

    void aDirectionThatIsNotOfferedIsRefused() {
        Workbench bench("Gps");
        for (const QString& tag : {u"-1"_s, u"2"_s}) {
            QVERIFY_THROWS_EXCEPTION(
                ControlValueError,
                bench.press(u"longitude_inField=5 geodesiePopUp="_s + tag, u"convertGPS2"_s));
            QCOMPARE(bench.text("longitude_outField"), QString());
        }
        QVERIFY(bench.log().isEmpty());
    }
};

int runGpsTest(int argc, char** argv) {
    GpsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GpsTest.moc"
