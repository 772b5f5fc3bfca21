#include "profile/ProfilGeometry.h"

#include <QtTest>

#include "profile/Profil.h"
#include "profile/ProfileTests.h"

using namespace sargan;

namespace {

NumberArray depths(std::initializer_list<double> values) {
    return NumberArray::ofDoubles(std::vector<double>(values));
}

NumberArray descending(int samples) {
    std::vector<double> values;
    for (int i = 0; i < samples; ++i) values.push_back(i);
    return NumberArray::ofDoubles(values);
}

const QString noValue = QStringLiteral("Depth no value");

}  // namespace

class ProfilGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theScaleGoesAMetreBelowTheDeepestSample_data() {
        QTest::addColumn<NumberArray>("samples");
        QTest::addColumn<double>("greatest");
        QTest::newRow("none") << NumberArray() << 1.0;
        QTest::newRow("empty") << NumberArray::empty() << 1.0;
        QTest::newRow("at the surface") << depths({0}) << 1.0;
        QTest::newRow("a dive") << depths({0, 12.5, 29, 3}) << 30.0;
        QTest::newRow("above the water") << depths({-0.5, -0.25}) << 0.75;
        QTest::newRow("far above the water") << depths({-8, -1}) << 1.0;
        QTest::newRow("no numbers") << depths({qQNaN(), 9, qInf()}) << 10.0;
    }
    void theScaleGoesAMetreBelowTheDeepestSample() {
        QFETCH(NumberArray, samples);
        QTEST(ProfilGeometry({800, 450}, samples).greatestDepth(), "greatest");
    }

    void samplesStandWhereTheyAreExpected() {
        // 840 x 450: W = 800, H = 430, the surface at 420; four samples are (800 - 10) / 4 = 197.5 apart,
        // and 20 m of scale take 430 - 30 = 400 points.
        const ProfilGeometry geometry({840, 450}, depths({0, 10, 19, 5}));
        QCOMPARE(geometry.width(), 800.0);
        QCOMPARE(geometry.height(), 430.0);
        QCOMPARE(geometry.surface(), 420.0);
        QCOMPARE(geometry.right(), 820.0);
        QCOMPARE(geometry.x(0), 30.0);
        QCOMPARE(geometry.x(1), 227.5);
        QCOMPARE(geometry.x(3), 622.5);
        QCOMPARE(geometry.y(0), 420.0);
        QCOMPARE(geometry.y(10), 220.0);
        QCOMPARE(geometry.y(20), 20.0);
        QCOMPARE(geometry.toPainter(227.5, 220), QPointF(227.5, 230));
    }

    void pressuresStandAboveTheLowerAxis() {
        const ProfilGeometry geometry({840, 450}, depths({0}));
        QCOMPARE(geometry.gasY(0, 200), 20.0);
        QCOMPARE(geometry.gasY(50, 200), 35.0);
        QCOMPARE(geometry.gasY(200, 200), 80.0);
        QCOMPARE(geometry.gasY(220, 200), 86.0);
    }

    void labelledTicksAreFiveMinutesApart_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<double>("samples");
        QTest::addColumn<double>("seconds");
        const std::pair<double, double> table[] = {{30, 10},   {15, 20}, {10, 30},  {5, 60},
                                                   {2.5, 120}, {75, 4},  {300, 1},  {60, 5},
                                                   {150, 2},   {100, 3}, {120, 2.5}};
        for (int code = 0; code <= 10; ++code)
            QTest::addRow("code %d", code) << code << table[code].first << table[code].second;
        QTest::newRow("11") << 11 << 30.0 << 10.0;
        QTest::newRow("-1") << -1 << 30.0 << 10.0;
    }
    void labelledTicksAreFiveMinutesApart() {
        QFETCH(int, code);
        QTEST(ProfilGeometry::samplesPerTick(code), "samples");
        QTEST(ProfilGeometry::secondsPerSample(code), "seconds");
    }

    void theTimeAxisIsNarrowerThanTheSamples() {
        // W = 800: 100 samples, 15 of them between two ticks: (800 - 60) / 100 * 15.
        const ProfilGeometry geometry({840, 450}, descending(100));
        QCOMPARE(geometry.timeSpacing(1), 111.0);
        QCOMPARE(ProfilGeometry({840, 450}, NumberArray()).timeSpacing(1), 0.0);
    }

    void thePointerFindsItsSample_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<int>("sample");
        QTest::newRow("on the first") << 30.0 << 0;
        QTest::newRow("on the second") << 227.5 << 1;
        QTest::newRow("nearer the second") << 130.0 << 1;
        QTest::newRow("nearer the first") << 128.0 << 0;
        QTest::newRow("on the last") << 622.5 << 3;
        QTest::newRow("behind the last") << 722.0 << -1;
        QTest::newRow("left of the axis") << -80.0 << -1;
        QTest::newRow("nowhere") << qQNaN() << -1;
    }
    void thePointerFindsItsSample() {
        QFETCH(double, x);
        QFETCH(int, sample);
        const ProfilGeometry geometry({840, 450}, depths({0, 10, 19, 5}));
        const auto found = geometry.sampleAt({x, 100});
        QCOMPARE(found ? int(*found) : -1, sample);
    }

    void thereIsNoSampleWithoutAProfile() {
        QVERIFY(!ProfilGeometry({840, 450}, NumberArray()).sampleAt({30, 10}));
        QVERIFY(!ProfilGeometry({20, 20}, depths({0, 1})).sampleAt({30, 10}));
    }

    void thePointersPlaceIsToldInDepthAndTime() {
        Profil profil;
        profil.profilData = depths({0, 10, 19.25, 5});
        profil.samplingRate = 1;
        const Strings keys(Strings::Language::Keys);
        const QSizeF size(840, 450);
        QCOMPARE(profil.readOut({30, 10}, size, keys), QStringLiteral("Depth time|0|0:00"));
        QCOMPARE(profil.readOut({425, 10}, size, keys), QStringLiteral("Depth time|19.25|0:40"));
        QCOMPARE(profil.readOut({800, 10}, size, keys), noValue);
        const Strings words(Strings::Language::English);
        profil.samplingRate = 4;
        QCOMPARE(profil.readOut({622.5, 10}, size, words), QStringLiteral("5.0 m at 6:00"));
    }

    void thePpO2DepthComesFromTheMix_data() {
        QTest::addColumn<float>("o2");
        QTest::addColumn<float>("ppO2");
        QTest::addColumn<double>("depth");
        QTest::newRow("oxygen at 1.6") << 100.0F << 1.6F << 6.0;
        QTest::newRow("half at 1.5") << 50.0F << 1.5F << 20.0;
        QTest::newRow("a quarter at 1.5") << 25.0F << 1.5F << 50.0;
    }
    void thePpO2DepthComesFromTheMix() {
        QFETCH(float, o2);
        QFETCH(float, ppO2);
        QFETCH(double, depth);
        Profil profil;
        profil.fracO2 = o2;
        profil.ppO2 = ppO2;
        QVERIFY(std::abs(profil.ppO2Depth() - depth) < 1e-5);
    }
    void aMixWithoutOxygenHasNoPpO2Depth() {
        Profil profil;
        profil.ppO2 = 1.4F;
        QVERIFY(std::isinf(profil.ppO2Depth()));
    }

    void switchesAreNamedAfterTheirGas_data() {
        QTest::addColumn<int>("flag");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("oxygen");
        QTest::newRow("none") << 0 << QString() << false;
        QTest::newRow("bottom") << 1 << QStringLiteral("Bottom gas") << false;
        QTest::newRow("nitrox") << 2 << QStringLiteral("EAN 50") << false;
        QTest::newRow("trimix") << 3 << QStringLiteral("Tx 18/45") << false;
        QTest::newRow("oxygen bail-out") << 4 << QStringLiteral("Oxygen") << true;
        QTest::newRow("oxygen") << 5 << QStringLiteral("Oxygen") << true;
        QTest::newRow("unknown") << 6 << QString() << false;
        QTest::newRow("negative") << -1 << QString() << false;
    }
    void switchesAreNamedAfterTheirGas() {
        QFETCH(int, flag);
        Profil profil;
        profil.bailouts = {{{50, 0}, {18, 45}, {98, 0}}};
        QTEST(profil.gasName(flag, Strings(Strings::Language::English)), "name");
        QTEST(profil.isOxygen(flag), "oxygen");
    }
};

int runProfilGeometryTest(int argc, char** argv) {
    ProfilGeometryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ProfilGeometryTest.moc"
