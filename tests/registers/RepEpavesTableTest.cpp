#include "platform/form/SystemColors.h"
#include "registers/RegisterBench.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

Epaves wreckWith(void (Epaves::*set)(Float), float value) {
    Epaves wreck;
    (wreck.*set)(value);
    return wreck;
}

Epaves wreckWith(void (Epaves::*set)(Int), int value) {
    Epaves wreck;
    (wreck.*set)(value);
    return wreck;
}

/// The cell of a register that holds this wreck alone.
TableCell cellOf(const Epaves& wreck, const char* column) {
    RegisterBench bench("Epaves");
    bench.load<Epaves>({wreck}, epavesClass());
    return bench.cell(0, QLatin1String(column));
}

const QColor red = QColor::fromRgbF(1.0F, 0.502F, 0.455F);

}  // namespace

class RepEpavesTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewWreckShowsADashForItsLengthAndTwoKindsOfNoDepth() {
        RegisterBench bench("Epaves");
        bench.add();
        QCOMPARE(bench.cell(0, u"longueur"_s).text, u"-"_s);
        QCOMPARE(bench.cell(0, u"pointHaut"_s).text, u"0 m"_s);
        QCOMPARE(bench.cell(0, u"pointBas"_s).text, u"0"_s);
    }

    void propulsionIsShownByItsCode_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        const char* words[] = {"essence", "diesel", "kerosene", "nucleaire",  "rames",
                               "vapeur",  "voile",  "remorque", "diesel elec"};
        for (int i = 0; i < 9; ++i)
            QTest::newRow(words[i]) << i + 1 << u"TableView "_s + QLatin1String(words[i]);
        QTest::newRow("none") << 0 << u"N/A"_s;
        QTest::newRow("ten") << 10 << u"N/A"_s;
        QTest::newRow("negative") << -1 << u"N/A"_s;
        QTest::newRow("least") << INT_MIN << u"N/A"_s;
    }
    void propulsionIsShownByItsCode() {
        QFETCH(int, code);
        QTEST(cellOf(wreckWith(&Epaves::setPropulsion, code), "propulsion").text, "text");
    }

    void measuresAreShownByTheirIntegerParts_data() {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("top");
        QTest::addColumn<QString>("bottom");
        QTest::newRow("-2.5") << -2.5F << u"-"_s << u"-2.5"_s << u"-2.5"_s;
        QTest::newRow("-1") << -1.0F << u"-"_s << u"-"_s << u"-"_s;
        QTest::newRow("-0.5") << -0.5F << u"-"_s << u"-0.5 m"_s << u"-0.5"_s;
        QTest::newRow("0") << 0.0F << u"-"_s << u"0 m"_s << u"0"_s;
        QTest::newRow("0.9") << 0.9F << u"-"_s << u"0.9 m"_s << u"0.9"_s;
        QTest::newRow("1") << 1.0F << u"1.0 m"_s << u"1 m"_s << u"1 m"_s;
        QTest::newRow("97.25") << 97.25F << u"97.2 m"_s << u"97.25 m"_s << u"97.25 m"_s;
        QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << u"inf m"_s << u"inf m"_s
                                  << u"inf m"_s;
        QTest::newRow("none") << std::numeric_limits<float>::quiet_NaN() << u"-"_s << u"nan"_s << u"nan"_s;
    }
    void measuresAreShownByTheirIntegerParts() {
        QFETCH(float, value);
        QTEST(cellOf(wreckWith(&Epaves::setLongueur, value), "longueur").text, "length");
        QTEST(cellOf(wreckWith(&Epaves::setPointHaut, value), "pointHaut").text, "top");
        QTEST(cellOf(wreckWith(&Epaves::setPointBas, value), "pointBas").text, "bottom");
    }

    void ratingsAreShownAsStars() {
        for (int rating = 0; rating <= 5; ++rating) {
            const QString expected = u"Cotation %1"_s.arg(rating);
            QCOMPARE(cellOf(wreckWith(&Epaves::setInteret, rating), "interet").text, expected);
            QCOMPARE(cellOf(wreckWith(&Epaves::setTechnicite, rating), "technicite").text, expected);
        }
        for (const int rating : {-1, 6, INT_MAX})
            QCOMPARE(cellOf(wreckWith(&Epaves::setInteret, rating), "interet").text, u""_s);
    }

    void theNameIsRedWhileTheWreckIsToBeVisited() {
        QCOMPARE(cellOf(wreckWith(&Epaves::setAVisiter, 1), "nom").color, red);
        QCOMPARE(cellOf(wreckWith(&Epaves::setAVisiter, 0), "nom").color, systemcolor::brown);
        QCOMPARE(cellOf(wreckWith(&Epaves::setAVisiter, 2), "nom").color, systemcolor::brown);
    }

    void theInterestTakesItsColourFromTheDifficulty() {
        QCOMPARE(cellOf(wreckWith(&Epaves::setTechnicite, 3), "interet").color, systemcolor::brown);
        QCOMPARE(cellOf(wreckWith(&Epaves::setTechnicite, -1), "interet").color, systemcolor::brown);
        QCOMPARE(cellOf(wreckWith(&Epaves::setInteret, 5), "interet").color, systemcolor::gray);
    }

    void theDifficultyHasOneColourALevel_data() {
        QTest::addColumn<int>("level");
        QTest::addColumn<QColor>("color");
        QTest::newRow("0") << 0 << systemcolor::gray;
        QTest::newRow("1") << 1 << systemcolor::green;
        QTest::newRow("2") << 2 << systemcolor::blue;
        QTest::newRow("3") << 3 << systemcolor::red;
        QTest::newRow("4") << 4 << systemcolor::purple;
        QTest::newRow("5") << 5 << systemcolor::gray;
        QTest::newRow("-1") << -1 << systemcolor::gray;
    }
    void theDifficultyHasOneColourALevel() {
        QFETCH(int, level);
        QTEST(cellOf(wreckWith(&Epaves::setTechnicite, level), "technicite").color, "color");
    }

    void otherColumnsHaveTheUsualColour() {
        for (const char* column : {"type", "longueur", "pointHaut", "pointBas", "propulsion"})
            QVERIFY2(!cellOf(Epaves(), column).color.isValid(), column);
    }
};

int runRepEpavesTableTest(int argc, char** argv) {
    RepEpavesTableTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RepEpavesTableTest.moc"
