#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>
#include <limits>

#include "platform/form/SystemColors.h"
#include "settings/Colors.h"
#include "stats/StatsTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const GraphesStyle plain{.background = Qt::white, .labels = Qt::black};

QImage drawn(const GraphesShares& shares, const GraphesStyle& style = plain) {
    QImage image(900, 500, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    Graphes(shares, style).drawRect(painter);
    painter.end();
    return image;
}

/// The colour at a place that counts heights from below.
QColor at(const QImage& image, int x, int y) {
    return image.pixelColor(x, 500 - y);
}

/// The words of the graph with their places, heights counted from below.
struct Word {
    QString text;
    QPointF place;
};
QList<Word> wordsOf(const GraphesShares& shares, const GraphesStyle& style = plain) {
    QList<Word> words;
    QXmlStreamReader svg(bytesOf(Graphes::drawing(shares, style), u"t"_s, u"svg"_s));
    while (!svg.atEnd()) {
        svg.readNext();
        if (!svg.isStartElement() || svg.name() != "text"_L1) continue;
        const auto place = svg.attributes();
        const QPointF at(place.value("x"_L1).toDouble(), 500 - place.value("y"_L1).toDouble());
        words.append({svg.readElementText().trimmed(), at});
    }
    return words;
}

QPointF placeOf(const QList<Word>& words, const QString& text) {
    for (const Word& word : words)
        if (word.text == text) return word.place;
    return {-1, -1};
}

const GraphesShares steps{5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 55};

}  // namespace

class GraphesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void barsStandInTheirPlacesAndColours_data() {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("left");
        QTest::addColumn<QColor>("fill");
        const int lefts[] = {80, 145, 210, 275, 340, 405, 470, 600, 665, 730, 795};
        const QColor blue(0, 0, 255), white(255, 255, 255), green(0, 255, 0), brown(153, 102, 51);
        const QColor fills[] = {blue, blue, blue, blue, blue, blue, blue, white, green, brown, brown};
        for (int i = 0; i < 11; ++i)
            QTest::newRow(graphesValues[std::size_t(i)].name) << i << lefts[i] << fills[i];
    }
    void barsStandInTheirPlacesAndColours() {
        QFETCH(int, value);
        QFETCH(int, left);
        QFETCH(QColor, fill);
        // A bar of v per cent ends at 400 x v / 100 + 50.
        const GraphesStyle grey{.background = QColor(200, 200, 200), .labels = Qt::black};
        const QImage image = drawn(steps, grey);
        const int top = 4 * (5 * value + 5) + 50;
        QCOMPARE(at(image, left + 3, top - 4), fill);
        QCOMPARE(at(image, left + 57, top - 4), fill);
        QCOMPARE(at(image, left + 3, 54), fill);
        QCOMPARE(at(image, left + 3, top + 3), QColor(200, 200, 200));
        QCOMPARE(at(image, left - 3, top - 4), QColor(200, 200, 200));
        // The outline is black, a unit wide, half of it on either side.
        QVERIFY(at(image, left, (top + 50) / 2).lightness() < 140);
        QVERIFY(at(image, left + 20, top).lightness() < 140);
    }

    void zeroIsAFlatBarAndAHundredReachesTheTop() {
        GraphesShares shares{};
        shares[0] = 100;
        const QImage image = drawn(shares);
        QCOMPARE(at(image, 83, 447), QColor(0, 0, 255));
        QCOMPARE(at(image, 83, 453), QColor(255, 255, 255));
        QCOMPARE(at(image, 150, 53), QColor(255, 255, 255));
        const auto words = wordsOf(shares);
        const QPointF full = placeOf(words, u"100.0 %"_s), zero = placeOf(words, u"0.0 %"_s);
        QCOMPARE(full.x(), 95.0);
        QVERIFY(full.y() > 450 && full.y() < 456);
        QCOMPARE(zero.x(), 160.0);
        QVERIFY(zero.y() > 50 && zero.y() < 56);
    }

    void everyValueIsPrintedAboveItsBar() {
        const int labels[] = {95, 160, 225, 290, 355, 420, 485, 615, 680, 745, 810};
        const auto words = wordsOf(steps);
        for (int i = 0; i < 11; ++i) {
            const QPointF place = placeOf(words, u"%1.0 %"_s.arg(5 * i + 5));
            QCOMPARE(place.x(), double(labels[i]));
            const double above = place.y() - (4 * (5 * i + 5) + 50);
            QVERIFY2(above > 0 && above < 6, qPrintable(QString::number(above)));
        }
    }

    void categoriesAndTicksHaveTheirWords() {
        GraphesShares shares{};
        shares.fill(33.3F);
        const auto words = wordsOf(shares);
        const std::pair<const char*, double> categories[] = {
            {"0 - 9 m", 90},    {"10 - 19 m", 148}, {"20 - 29 m", 215}, {"30 - 39 m", 278},
            {"40 - 49 m", 345}, {"50 - 59 m", 410}, {"60 m et +", 475}, {"Air", 620},
            {"Nitrox", 679},    {"Trimix", 744},    {"Heliox", 807}};
        for (const auto& [text, x] : categories) {
            const QPointF place = placeOf(words, QLatin1String(text));
            QCOMPARE(place.x(), x);
            QVERIFY(place.y() > 23 && place.y() < 29);
        }
        for (int k = 0; k <= 10; ++k) {
            const QPointF place = placeOf(words, u"%1 %"_s.arg(10 * k));
            QCOMPARE(place.x(), 6.0);
            QVERIFY(place.y() > 43 + 40 * k && place.y() < 49 + 40 * k);
        }
        QCOMPARE(words.size(), 11 + 11 + 11);
    }

    void axesAndTicksAreBlack() {
        const QImage image = drawn(GraphesShares{});
        QVERIFY(at(image, 700, 50).lightness() < 140);
        QVERIFY(at(image, 50, 300).lightness() < 140);
        QCOMPARE(at(image, 50, 460), QColor(255, 255, 255));
        for (int k = 1; k <= 10; ++k) {
            QVERIFY(at(image, 56, 50 + 40 * k).lightness() < 140);
            QCOMPARE(at(image, 61, 50 + 40 * k), QColor(255, 255, 255));
        }
    }

    void theGridNeedsBothSettings_data() {
        QTest::addColumn<bool>("dashed");
        QTest::addColumn<bool>("gradient");
        QTest::newRow("none") << false << false;
        QTest::newRow("dashed lines only") << true << false;
        QTest::newRow("gradient only") << false << true;
        QTest::newRow("both") << true << true;
    }
    void theGridNeedsBothSettings() {
        QFETCH(bool, dashed);
        QFETCH(bool, gradient);
        GraphesStyle style = plain;
        style.dashedLines = dashed;
        style.gradient = gradient;
        const QByteArray svg = bytesOf(Graphes::drawing(GraphesShares{}, style), u"t"_s, u"svg"_s);
        QCOMPARE(svg.contains("stroke-dasharray"), dashed && gradient);
        // On paper: five on, three off, from x = 50 on, at every tick.
        const QImage image = drawn(GraphesShares{}, style);
        int marked = 0;
        for (int x = 560; x < 600; ++x) marked += at(image, x, 250) != QColor(255, 255, 255);
        QCOMPARE(marked > 0, dashed && gradient);
        QVERIFY(marked < 40);
    }

    void settingsMakeTheStyle() {
        UserDefaults defaults;
        GraphesStyle style = GraphesStyle::of(defaults);
        QCOMPARE(style.labels, systemcolor::black);
        QVERIFY(!style.dashedLines && !style.gradient);
        defaults.store(u"dashed lines"_s, 1);
        defaults.store(u"alpha background color"_s, u"0.5"_s);
        defaults.store(u"background color"_s, colorValue(QColor(255, 0, 0)));
        defaults.store(u"gradient lines color"_s, colorValue(QColor(0, 255, 0)));
        style = GraphesStyle::of(defaults);
        QVERIFY(style.dashedLines);
        QCOMPARE(style.labels, systemcolor::black);
        QCOMPARE(style.background.rgb(), QColor(255, 0, 0).rgb());
        QVERIFY(std::abs(style.background.alphaF() - 0.5F) < 0.01F);
        defaults.store(u"gradient yes"_s, 1);
        QCOMPARE(GraphesStyle::of(defaults).labels.rgb(), QColor(0, 255, 0).rgb());
        defaults.store(u"alpha background color"_s, 7);
        QCOMPARE(GraphesStyle::of(defaults).background.alpha(), 255);
        defaults.store(u"background color"_s, undecodedColor());
        QCOMPARE(GraphesStyle::of(defaults).background.rgb(), systemcolor::gray.rgb());
    }

    void theBackgroundFillsTheViewWithItsOpacity() {
        GraphesStyle style = plain;
        style.background = QColor(255, 0, 0, 128);
        const QImage image = drawn(GraphesShares{}, style);
        for (const QPoint corner : {QPoint(0, 0), QPoint(899, 0), QPoint(0, 499), QPoint(899, 499)})
            QCOMPARE(image.pixelColor(corner), QColor(255, 127, 127));
    }

    void labelsHaveTheirColour() {
        GraphesStyle style = plain;
        style.labels = QColor(255, 0, 255);
        const QByteArray svg = bytesOf(Graphes::drawing(GraphesShares{}, style), u"t"_s, u"svg"_s);
        QVERIFY(svg.contains("#ff00ff"));
        QVERIFY(!bytesOf(Graphes::drawing(GraphesShares{}, plain), u"t"_s, u"svg"_s).contains("#ff00ff"));
    }

    void valuesThatAreNoNumbersAreDrawnAsTheyCome() {
        GraphesShares shares{};
        shares[0] = std::numeric_limits<float>::quiet_NaN();
        shares[7] = std::numeric_limits<float>::infinity();
        shares[8] = -std::numeric_limits<float>::infinity();
        shares[9] = 3e38F;
        const QImage image = drawn(shares);
        QCOMPARE(at(image, 83, 60), QColor(255, 255, 255));
        QCOMPARE(at(image, 668, 20), QColor(0, 255, 0));      // downwards
        QCOMPARE(at(image, 733, 495), QColor(153, 102, 51));  // beyond the upper edge
        const auto words = wordsOf(shares);
        QCOMPARE(placeOf(words, u"nan %"_s).x(), 95.0);
        QCOMPARE(placeOf(words, u"inf %"_s).x(), 615.0);
        QCOMPARE(placeOf(words, u"-inf %"_s).x(), 680.0);
    }
};

int runGraphesTest(int argc, char** argv) {
    GraphesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GraphesTest.moc"
