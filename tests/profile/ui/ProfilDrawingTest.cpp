#include <QPainter>
#include <cmath>

#include "ProfileUiTests.h"
#include "platform/form/SystemColors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QColor white(255, 255, 255);
const QColor plot(255, 0, 255);
const QColor lines(0, 255, 255);

constexpr int top = 30;     ///< row of the surface
constexpr int right = 820;  ///< where the plot ends

double sampleX(int i) {
    return 30 + 197.5 * i;
}
double depthY(double depth) {
    return top + 20 * depth;
}

/// The depth of the plain profile under a column, between its samples.
double depthAt(double x) {
    const double depths[] = {0, 10, 19, 5};
    const double at = (x - 30) / 197.5;
    const int before = std::clamp(int(at), 0, 2);
    return depths[before] + (depths[before + 1] - depths[before]) * (at - before);
}

}  // namespace

class ProfilDrawingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everySampleIsOnTheCurve() {
        const QImage image = pictureOf(plainProfil());
        const double depths[] = {0, 10, 19, 5};
        for (int i = 1; i < 4; ++i)
            QVERIFY2(nearest(image, {sampleX(i), depthY(depths[i])}, plot) < 110,
                     qPrintable(u"sample %1"_s.arg(i)));
        for (int x = 40; x < 620; ++x)
            QVERIFY2(nearest(image, {double(x), depthY(depthAt(x + 0.5))}, plot) < 140,
                     qPrintable(u"x %1"_s.arg(x)));
        // Behind the last sample there is nothing.
        for (int y = 40; y < 425; ++y) QVERIFY(distance(image.pixel(700, y), white) < 8);
    }

    void theAreaUnderTheSurfaceIsFilled_data() {
        QTest::addColumn<bool>("fill");
        QTest::newRow("filled") << true;
        QTest::newRow("not filled") << false;
    }
    void theAreaUnderTheSurfaceIsFilled() {
        QFETCH(bool, fill);
        Profil profil = plainProfil();
        profil.style.fillPlot = fill;
        const QImage image = pictureOf(profil);
        const QColor inside = fill ? QColor(255, 127, 127) : white;
        // Each pixel of the plot by itself, but for two pixels at the lines and the labels at the left.
        for (int y = top + 10; y < 425; ++y)
            for (int x = 100; x < 815; ++x) {
                const bool isBehind = x > sampleX(3);
                const double edge = depthY(isBehind ? 0 : depthAt(x + 0.5));
                if (std::abs(y - edge) < 3 + 0.15 * 20 || std::abs(x - sampleX(3)) < 3) continue;
                const QColor& wanted = y < edge && !isBehind ? inside : white;
                QVERIFY2(distance(image.pixel(x, y), wanted) <= 2, qPrintable(u"at %1, %2"_s.arg(x).arg(y)));
            }
    }

    void theBackgroundHasItsOpacity() {
        Profil profil = plainProfil();
        profil.style.backgroundColor = QColor(128, 128, 128, 128);
        const QImage image = pictureOf(profil);
        for (const QPoint at : {QPoint(2, 2), QPoint(837, 447), QPoint(700, 300)})
            QVERIFY(distance(image.pixel(at), QColor(191, 191, 191)) <= 2);
    }

    void theGradientDarkensDownwardsAndSuitsTheLines_data() {
        QTest::addColumn<QColor>("lines");
        QTest::addColumn<bool>("dark");
        QTest::newRow("light lines") << QColor(179, 179, 179) << true;
        QTest::newRow("dark lines") << QColor(60, 60, 60) << false;
    }
    void theGradientDarkensDownwardsAndSuitsTheLines() {
        QFETCH(QColor, lines);
        QFETCH(bool, dark);
        Profil profil = plainProfil();
        profil.style.gradient = true;
        profil.style.linesColor = lines;
        profil.style.backgroundColor = QColor(218, 125, 38, 51);
        const QImage image = pictureOf(profil);
        const int high = qGray(image.pixel(830, 3)), low = qGray(image.pixel(830, 446));
        QVERIFY(low < high);
        QVERIFY(dark ? high < qGray(lines.rgb()) - 60 : low > qGray(lines.rgb()) + 60);
    }

    void theSurfaceIsGreenAndTheFrameBlack() {
        const QImage image = pictureOf(plainProfil());
        const int green = countInRow(image, top, 31, right, QColor(0, 255, 0));
        QVERIFY2(green >= right - 33, qPrintable(QString::number(green)));
        QVERIFY(nearest(image, {double(right), 200}, systemcolor::black) < 10);
        QVERIFY(nearest(image, {30, 200}, systemcolor::black) < 10);
        QVERIFY(countInRow(image, 430, 31, right, systemcolor::black) >= right - 40);
        QCOMPARE(countInRow(image, 200, right + 3, 840, white, 3), 840 - right - 3);
    }

    void dashedLinesStandAtEveryFiveMetres() {
        Profil profil = plainProfil();
        QCOMPARE(countInRow(pictureOf(profil), int(depthY(5)), 640, right, lines), 0);
        profil.style.dashedLines = true;
        const QImage image = pictureOf(profil);
        for (const int depth : {5, 10, 15}) {
            const int count = countInRow(image, int(depthY(depth)), 640, right, lines);
            QVERIFY2(count > 60 && count < 170, qPrintable(u"%1 m: %2"_s.arg(depth).arg(count)));
        }
        for (const int depth : {1, 3, 7, 12})
            QCOMPARE(countInRow(image, int(depthY(depth)), 640, right, lines), 0);
    }

    void aDashedLineNearTheSurfaceEndsEarlier() {
        // A scale of 80 m: 5 points a metre. 5 m is 25 points below the surface, 10 m is 50.
        Profil profil = plainProfil();
        profil.profilData = reals({0, 79, 79, 0});
        profil.style.dashedLines = true;
        const QImage image = pictureOf(profil);
        QCOMPARE(countInRow(image, top + 25, 735, right, lines), 0);
        QVERIFY(countInRow(image, top + 25, 640, 728, lines) > 20);
        QVERIFY(countInRow(image, top + 50, 735, right, lines) > 20);
    }

    void minorTicksAreAnOption_data() {
        QTest::addColumn<bool>("on");
        QTest::newRow("on") << true;
        QTest::newRow("off") << false;
    }
    void minorTicksAreAnOption() {
        QFETCH(bool, on);
        Profil profil = plainProfil();
        profil.samplingRate = 4;  // 2.5 samples a tick: (800 - 60) / 4 * 2.5 = 462.5 points
        profil.style.xMinorTicks = profil.style.yMinorTicks = on;
        const QImage image = pictureOf(profil);
        // Half a point wide: they take half of the colour.
        const auto isTick = [&](double x, double y) { return nearest(image, {x, y}, lines) < 140; };
        // Major ones always: 5 m at the left axis, 5 minutes at both time axes.
        QVERIFY(isTick(36, depthY(5)));
        QVERIFY(isTick(492.5, 425));
        QVERIFY(isTick(492.5, top + 4));
        QCOMPARE(isTick(34, depthY(7)), on);
        for (int minute = 1; minute <= 4; ++minute) QCOMPARE(isTick(30 + 92.5 * minute, 427), on);
        QVERIFY(!isTick(30 + 46, 425));
    }

    void thePpO2LineIsDrawnWhereTheScaleReachesIt_data() {
        QTest::addColumn<bool>("on");
        QTest::addColumn<float>("o2");
        QTest::addColumn<double>("depth");
        QTest::newRow("at 15 m") << true << 60.0F << 15.0;  // 1.5 / 0.6 - 1 = 1.5
        QTest::newRow("off") << false << 60.0F << -1.0;
        QTest::newRow("deeper than the scale") << true << 21.0F << -1.0;
        QTest::newRow("no oxygen") << true << 0.0F << -1.0;
    }
    void thePpO2LineIsDrawnWhereTheScaleReachesIt() {
        QFETCH(bool, on);
        QFETCH(float, o2);
        QFETCH(double, depth);
        Profil profil = plainProfil();
        profil.style.ppO2Line = on;
        profil.fracO2 = o2;
        profil.ppO2 = 1.5F;
        const QImage image = pictureOf(profil);
        int found = -1;
        for (int y = top + 5; y < 425; ++y)
            if (countInRow(image, y, 640, right, systemcolor::blue) > 60) found = y;
        QCOMPARE(found, depth < 0 ? -1 : int(depthY(depth)));
    }

    void theGasCurveLeavesOutSamplesWithoutPressure() {
        Profil profil = plainProfil();
        profil.profilData = reals({0, 1, 1, 1});
        profil.pressDepart = 200;
        profil.pressData = reals({200, 0, 100, -5});
        const QImage image = pictureOf(profil);
        // From (30, 80) over the third sample's (425, 50); the second and fourth are passed over.
        QVERIFY(nearest(image, {31, 450 - 80}, systemcolor::blue) < 130);
        QVERIFY(nearest(image, {227.5, 450 - 65}, systemcolor::blue) < 130);
        QVERIFY(nearest(image, {424, 450 - 50}, systemcolor::blue) < 130);
        QVERIFY(nearest(image, {600, 450 - 20}, systemcolor::blue, 3) > 130);
    }

    void withoutAStartPressureThereIsNoGasCurve() {
        Profil profil = plainProfil();
        profil.pressData = reals({200, 150, 100, 50});
        const QImage image = pictureOf(profil);
        int blue = 0;
        for (int y = 35; y < 425; ++y) blue += countInRow(image, y, 90, right, systemcolor::blue);
        QCOMPARE(blue, 0);
    }

    void surfaceFlagsAreRed() {
        Profil profil = plainProfil();
        profil.surfaceFlag = flags({0, 0, 1, 2, 1});
        const QImage image = pictureOf(profil);
        QVERIFY(nearest(image, {sampleX(2), top - 4}, systemcolor::red) < 60);
        QVERIFY(nearest(image, {sampleX(3), top - 4}, systemcolor::red, 3) > 60);
    }

    void markersAreShownWhenTheirSettingIsOn_data() {
        QTest::addColumn<int>("which");
        for (int which = 0; which < 5; ++which) QTest::addRow("%d", which) << which;
    }
    void markersAreShownWhenTheirSettingIsOn() {
        QFETCH(int, which);
        bool ProfilStyle::*settings[] = {&ProfilStyle::alarmeASC, &ProfilStyle::alarmeSLOW,
                                         &ProfilStyle::alarmeCEIL, &ProfilStyle::alarmeGAZ,
                                         &ProfilStyle::alarmeGAZO2};
        NumberArray Profil::*lists[] = {&Profil::palierFlag, &Profil::vitesseFlag, &Profil::ceilingFlag,
                                        &Profil::gazFlag, &Profil::gazFlag};
        const QColor colors[] = {QColor(250, 200, 10), QColor(10, 120, 60), systemcolor::red,
                                 systemcolor::blue, systemcolor::green};
        Profil profil = plainProfil();
        profil.*lists[which] = which == 4 ? flags({0, 5, 0, 0}) : flags({0, 1, 0, 0});
        const QPointF place(sampleX(1), depthY(10));
        QVERIFY(nearest(pictureOf(profil), place, colors[which], 3) > 40);
        profil.style.*settings[which] = true;
        QVERIFY(nearest(pictureOf(profil), place, colors[which], 3) <= 40);
        // The other gas setting does not show it.
        if (which < 3) return;
        profil.style.*settings[which] = false;
        profil.style.*settings[7 - which] = true;
        QVERIFY(nearest(pictureOf(profil), place, colors[which], 3) > 40);
    }

    void onlyAFlagOfOneMarks() {
        Profil profil = plainProfil();
        profil.style.alarmeCEIL = true;
        profil.ceilingFlag = flags({0, 2, -1, 0});
        QVERIFY(nearest(pictureOf(profil), {sampleX(1), depthY(10)}, systemcolor::red, 3) > 40);
    }

    void aDenseProfileShowsEveryExtreme() {
        // A spike of one sample among 100,000 must not get lost.
        std::vector<double> depths(100'000, 10);
        depths[50'000] = 18;
        Profil profil = plainProfil();
        profil.profilData = NumberArray::ofDoubles(depths);
        const QImage image = pictureOf(profil);
        // The scale is 19 m on 400 points.
        const double x = 30 + 790 * 0.5;
        QVERIFY(nearest(image, {x, 30 + 18 * 400 / 19.0 - 3}, plot, 2) < 160);
        QVERIFY(nearest(image, {x + 4, 30 + 18 * 400 / 19.0 - 3}, plot, 2) > 160);
        QVERIFY(countInRow(image, int(30 + 10 * 400 / 19.0), 60, 400, white, 60) < 10);
    }

    void aDenseCurveWithGapsIsDrawnAcrossThem() {
        std::vector<double> depths(5'000, 1), pressures(5'000, 0);
        for (int i = 0; i < 5'000; i += 100) pressures[std::size_t(i)] = 100;
        Profil profil = plainProfil();
        profil.profilData = NumberArray::ofDoubles(depths);
        profil.pressData = NumberArray::ofDoubles(pressures);
        profil.pressDepart = 200;
        // Half the pressure: 50 above the lower edge.
        const int count = countInRow(pictureOf(profil), 450 - 50, 40, 790, systemcolor::blue, 140);
        QVERIFY2(count > 740, qPrintable(QString::number(count)));
    }

    void aFinerScreenGetsTheSamePicture() {
        const QImage once = pictureOf(plainProfil());
        const QImage twice = pictureOf(plainProfil(), plainSize, 2);
        QCOMPARE(twice.size(), plainSize * 2);
        for (const QPoint at : {QPoint(700, 300), QPoint(300, 40), QPoint(100, 400)})
            QCOMPARE(twice.pixel(at * 2), once.pixel(at));
    }

    void theSamePictureComesOutTwice() { QCOMPARE(pictureOf(plainProfil()), pictureOf(plainProfil())); }

    void whatCannotBeDrawnIsLeftOut_data() {
        QTest::addColumn<NumberArray>("depths");
        QTest::newRow("absent") << NumberArray();
        QTest::newRow("empty") << NumberArray::empty();
        QTest::newRow("one") << reals({0});
        QTest::newRow("no numbers") << reals({qQNaN(), qInf(), -qInf(), qQNaN()});
        QTest::newRow("huge") << reals({0, 1e300, 5});
        QTest::newRow("largest") << reals({0, std::numeric_limits<double>::max()});
        QTest::newRow("tiny") << reals({0, 1e-300, 5e-324});
        QTest::newRow("negative") << reals({-1, -1e9, -3});
    }
    void whatCannotBeDrawnIsLeftOut() {
        QFETCH(NumberArray, depths);
        Profil profil = plainProfil();
        profil.profilData = depths;
        profil.palierFlag = profil.vitesseFlag = profil.ceilingFlag = profil.surfaceFlag =
            flags({1, 1, 1, 1, 1, 1});
        profil.gazFlag = flags({1, 2, 3, 4, 5, 6});
        profil.pressData = reals({1e300, -1e300, qQNaN(), qInf(), 5});
        profil.pressDepart = 1;
        ProfilStyle& style = profil.style;
        for (bool* on : {&style.fillPlot, &style.gradient, &style.xMinorTicks, &style.yMinorTicks,
                         &style.dashedLines, &style.ppO2Line, &style.shadow, &style.alarmeASC,
                         &style.alarmeSLOW, &style.alarmeCEIL, &style.alarmeGAZ, &style.alarmeGAZO2})
            *on = true;
        for (const int code : {-5, 0, 4, 6, 99}) {
            profil.samplingRate = code;
            for (const QSize size : {plainSize, QSize(1, 1), QSize(30, 30), QSize(45, 60), QSize(2000, 80)})
                QVERIFY(!pictureOf(profil, size).isNull());
        }
    }
};

int runProfilDrawingTest(int argc, char** argv) {
    ProfilDrawingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ProfilDrawingTest.moc"
