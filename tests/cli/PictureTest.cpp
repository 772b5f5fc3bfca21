#include <QImage>
#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

namespace {

/// The mean difference of two pictures' channels, 0 to 255.
double difference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor left = a.pixelColor(x, y);
            const QColor right = b.pixelColor(x, y);
            sum += std::abs(left.red() - right.red()) + std::abs(left.green() - right.green()) +
                   std::abs(left.blue() - right.blue());
        }
    return sum / (3.0 * a.width() * a.height());
}

class PictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPictureLooksAsItDidWhenItWasLookedAt_data() {
        QTest::addColumn<QString>("command");
        QTest::newRow("profile") << u"profile a.carnet --row 36 --size 900x480"_s;
        QTest::newRow("graphs") << u"graphs a.carnet"_s;
    }
    /// Both are made small before they are compared: another font moves letters, not curves and bars.
    void aPictureLooksAsItDidWhenItWasLookedAt() {
        QFETCH(QString, command);
        const Workshop shop;
        QFile demo(QStringLiteral(SARGAN_SOURCE_DIR "/resources/demo/logbook.carnet"));
        QVERIFY(demo.open(QIODevice::ReadOnly));
        shop.put(u"a.carnet"_s, demo.readAll());
        QCOMPARE(
            shop.run({u"preferences"_s, u"--press"_s, u"resetPreferences"_s, u"--press"_s, u"savePrefs"_s})
                .status,
            0);
        QCOMPARE(shop.run(command.split(u' ') + QStringList{u"-o"_s, u"a.png"_s}).status, 0);
        const QImage drawn = QImage::fromData(shop.folder().content(u"a.png"_s));
        const QImage golden(QStringLiteral(SARGAN_SOURCE_DIR "/tests/data/pictures/") +
                            QString::fromLatin1(QTest::currentDataTag()) + u".png"_s);
        QVERIFY(!golden.isNull());
        QCOMPARE(drawn.size(), golden.size() * 5);
        const QImage small = drawn.scaled(golden.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const double found = difference(small, golden);
        QVERIFY2(found < 0.5, qPrintable(QString::number(found)));
        // A picture that is upside down must not pass.
        QVERIFY(difference(small.mirrored(), golden) > 10);
    }
};

}  // namespace

int runPictureTest(int argc, char** argv) {
    PictureTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PictureTest.moc"
