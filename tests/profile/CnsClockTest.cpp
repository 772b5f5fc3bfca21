#include <QTest>
#include <cmath>

#include "profile/GasAndCns.h"
#include "profile/ProfileTests.h"

using namespace sargan::profile;

namespace {

struct Band {
    double above, upTo, rate;
};

/// The bands between the first, up to 0.62 bar, and the last, above 1.58 bar.
constexpr Band bands[] = {
    {0.62, 0.64, 0.15}, {0.64, 0.66, 0.16}, {0.66, 0.68, 0.17}, {0.68, 0.72, 0.18}, {0.72, 0.74, 0.19},
    {0.74, 0.76, 0.20}, {0.76, 0.78, 0.21}, {0.78, 0.80, 0.22}, {0.80, 0.82, 0.23}, {0.82, 0.84, 0.24},
    {0.84, 0.86, 0.25}, {0.86, 0.88, 0.26}, {0.88, 0.90, 0.28}, {0.90, 0.92, 0.29}, {0.92, 0.94, 0.30},
    {0.94, 0.96, 0.31}, {0.96, 0.98, 0.32}, {0.98, 1.00, 0.33}, {1.00, 1.02, 0.35}, {1.02, 1.04, 0.36},
    {1.04, 1.06, 0.38}, {1.06, 1.08, 0.40}, {1.08, 1.10, 0.42}, {1.10, 1.14, 0.43}, {1.14, 1.16, 0.44},
    {1.16, 1.18, 0.46}, {1.18, 1.20, 0.47}, {1.20, 1.22, 0.48}, {1.22, 1.24, 0.51}, {1.24, 1.26, 0.52},
    {1.26, 1.28, 0.54}, {1.28, 1.30, 0.56}, {1.30, 1.32, 0.57}, {1.32, 1.34, 0.60}, {1.34, 1.36, 0.62},
    {1.36, 1.38, 0.63}, {1.38, 1.40, 0.65}, {1.40, 1.42, 0.68}, {1.42, 1.44, 0.71}, {1.44, 1.46, 0.74},
    {1.46, 1.48, 0.78}, {1.48, 1.50, 0.83}, {1.50, 1.52, 0.93}, {1.52, 1.54, 1.04}, {1.54, 1.56, 1.19},
    {1.56, 1.58, 1.47},
};

constexpr double lowest = -1e300;
constexpr double highest = 1e300;

}  // namespace

class CnsClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTableHasNoGap() {
        double reached = 0.62;
        for (const Band& band : bands) {
            QCOMPARE(band.above, reached);
            reached = band.upTo;
        }
        QCOMPARE(reached, 1.58);
    }

    void aBandEndsWithItsUpperBound() {
        for (const Band& band : bands) {
            QCOMPARE(calculSncClock(band.upTo, 1), band.rate);
            QCOMPARE(calculSncClock(std::nextafter(band.upTo, lowest), 1), band.rate);
            QCOMPARE(calculSncClock(std::nextafter(band.above, highest), 1), band.rate);
            QVERIFY(calculSncClock(std::nextafter(band.upTo, highest), 1) > band.rate);
        }
    }

    void pressuresAndMinutes_data() {
        QTest::addColumn<double>("ppO2");
        QTest::addColumn<double>("minutes");
        QTest::addColumn<double>("percent");
        const auto row = [](const char* name, double ppO2, double minutes, double percent) {
            QTest::newRow(name) << ppO2 << minutes << percent;
        };
        row("surface air", 0.21, 100, 14);
        row("none", 0, 10, 1.4);
        row("negative", -1, 10, 1.4);
        row("the first bound", 0.62, 10, 1.4);
        row("just above it", std::nextafter(0.62, highest), 10, 1.5);
        row("1.40 exactly", 1.40, 10, 6.5);
        row("1.4000001", 1.4000001, 10, 6.8);
        row("the last bound", 1.58, 10, 14.7);
        row("just above the last", std::nextafter(1.58, highest), 10, 22.2);
        row("1.6", 1.6, 45, 99.9);
        row("3.0", 3.0, 45, 99.9);
        row("beyond everything", highest, 45, 99.9);
        row("infinite", INFINITY, 1, 2.22);
        row("no time", 1.4, 0, 0);
        row("no time, far above", 3, 0, 0);
        row("half a minute", 1.4, 0.5, 0.325);
        row("time backwards", 1.4, -2, -1.3);
    }
    void pressuresAndMinutes() {
        QFETCH(double, ppO2);
        QFETCH(double, minutes);
        QFETCH(double, percent);
        const double clock = calculSncClock(ppO2, minutes);
        QVERIFY2(std::abs(clock - percent) < 1e-12 * (1 + std::abs(percent)),
                 qPrintable(QString::number(clock, 'g', 17)));
    }

    void theSampleIsReckonedInSinglePrecision() {
        // 32 % at 30 m: 0.32 * 4 = 1.28, which a float holds as a little less.
        QCOMPARE(ppO2AtSample(32, 30.0F), 1.28F);
        QCOMPARE(ppO2AtDepth(32, 30.0), 1.28F);
        QVERIFY(double(ppO2AtDepth(32, 30.0)) < 1.28);
        QCOMPARE(calculSncClock(double(ppO2AtDepth(32, 30.0)), 100), 54.0);
        // The factor of 12.3 m: 2.23 as a double; the nearest floats of 1.23 and 2.23 in single precision.
        const float factor = 12.3F / 10.0F + 1.0F;
        QCOMPARE(ppO2AtSample(100, 12.3F), factor);
        QCOMPARE(ppO2AtDepth(21, 0), 0.21F);
        QCOMPARE(ppO2AtDepth(0, 40), 0.0F);
    }
};

int runCnsClockTest(int argc, char** argv) {
    CnsClockTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CnsClockTest.moc"
