#include <QTest>

#include "profile/GasAndCns.h"
#include "profile/ProfileTests.h"

using sargan::profile::gasUsed;

class GasUsedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pressureAndVolume_data() {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::addColumn<int>("tank");
        QTest::addColumn<int>("delta");
        QTest::addColumn<int>("volume");
        QTest::newRow("a dive") << 200 << 50 << 12 << 150 << 1800;
        QTest::newRow("nothing") << 0 << 0 << 0 << 0 << 0;
        QTest::newRow("end above start") << 50 << 60 << 15 << -10 << -150;
        QTest::newRow("no tank") << 200 << 50 << 0 << 150 << 0;
        QTest::newRow("negative tank") << 200 << 50 << -2 << 150 << -300;
        // 32 bits: 2147483647 + 1 is -2147483648; twice that is 0.
        QTest::newRow("beyond 32 bits") << INT_MAX << -1 << 1 << INT_MIN << INT_MIN;
        QTest::newRow("volume beyond 32 bits") << INT_MAX << -1 << 2 << INT_MIN << 0;
        QTest::newRow("65536 * 65536") << 65536 << 0 << 65536 << 65536 << 0;
    }
    void pressureAndVolume() {
        QFETCH(int, start);
        QFETCH(int, end);
        QFETCH(int, tank);
        QTEST(gasUsed(start, end, tank).delta, "delta");
        QTEST(gasUsed(start, end, tank).volume, "volume");
    }
};

int runGasUsedTest(int argc, char** argv) {
    GasUsedTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GasUsedTest.moc"
