#include "stats/SynthesisReport.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

void addCodes(std::initializer_list<const char*> words, int first = 0) {
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("word");
    int code = first;
    for (const char* word : words) {
        QTest::addRow("%d %s", code, word) << code << QString::fromLatin1(word);
        ++code;
    }
    QTest::newRow("beyond") << code << QString();
    QTest::newRow("negative") << -1 << QString();
}

}  // namespace

class SynthesisWordsTest : public QObject {
    Q_OBJECT

    template <class Setter>
    void checkCode(Setter setter, const QString& label) {
        QFETCH(int, code);
        QFETCH(QString, word);
        Plongee dive = fullDive();
        (dive.*setter)(code);
        QCOMPARE(line(dive, label), word.isNull() ? QString() : label + word);
    }

private Q_SLOTS:
    void weatherHasItsWords_data() {
        addCodes({"Clear", "Cloudy", "Foggy", "Rainy", "Hail", "Snowy", "Thundery", "N/A"});
    }
    void weatherHasItsWords() { checkCode(&Plongee::setMeteo, u"Weather : "_s); }

    void currentHasItsWords_data() {
        addCodes({"None", "Weak", "Moderate", "Strong", "Very strong", "Violent", "N/A"});
    }
    void currentHasItsWords() { checkCode(&Plongee::setCourant, u"Current : "_s); }

    void visibilityHasItsWords_data() {
        addCodes({"Excellent", "Very good", "Good", "Medium", "Bad", "Very bad", "Execrable", "N/A",
                  "Exceptional"});
    }
    void visibilityHasItsWords() { checkCode(&Plongee::setVisibilite, u"Visibility : "_s); }

    void typesHaveTheirWords_data() {
        addCodes({"Wreck", "Recreational", "NA", "Photo dive", "Tek", "Cave", "Movies", "Work", "Other",
                  "Drift", "Under ice", "Training", "Biology", "Quarry", "Recuperation"});
    }
    void typesHaveTheirWords() { checkCode(&Plongee::setTypePlongee, u"Dive type : "_s); }

    void windForceIsOneBelowItsCode() {
        Plongee dive = fullDive();
        dive.setVentForce(1);
        QCOMPARE(line(dive, u"Wind :"_s), u"Wind : Wind sector North-west, Wind force 0"_s);
        dive.setVentForce(0);
        QCOMPARE(line(dive, u"Wind :"_s), u"Wind : No wind"_s);
    }

    void positionsNameTheirDatum() {
        Plongee dive = fullDive();
        dive.setGpsSystem(2);
        QVERIFY(hasLine(dive, u"GPS (ED50) : N 48 W 004"_s));
        dive.setGpsSystem(0);
        QVERIFY(hasLine(dive, u"GPS (...) : N 48 W 004"_s));
        dive.setGps(u"GPS template"_s);
        QVERIFY(hasLine(dive, u"GPS (...) : "_s));
    }

    void tidesHaveTheirState() {
        Plongee dive = fullDive();
        dive.setPmBm(2);
        QVERIFY(hasLine(dive, u"Tide coefficient : 95 (Basse mer)"_s));
        dive.setPmBm(0);
        QVERIFY(hasLine(dive, u"Tide coefficient : 95 (...)"_s));
    }

    void nightIsSaidOnlyOfNightDives() {
        Plongee dive = fullDive();
        dive.setNocturne(0);
        QVERIFY(!hasLine(dive, u"Night"_s));
    }

    void difficultyStaysWithinItsFamily() {
        Plongee dive = fullDive();
        for (const auto& [level, word] :
             {std::pair(0, "0"), std::pair(5, "5"), std::pair(9, "5"), std::pair(-2, "0")}) {
            dive.setDifficulte(level);
            QCOMPARE(line(dive, u"Difficulty"_s), u"Difficulty level : Cotation "_s + QLatin1String(word));
        }
    }

    void otherMethodsThanTablesNameNone() {
        Plongee dive = fullDive();
        dive.setDeco(2);
        QVERIFY(!hasLine(dive, u"Air tables"_s) && !hasLine(dive, u"Nitrox tables"_s));
    }

    void suitsHaveTheirWords_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("word");
        const char* words[] = {"Wet suit",      "Dry suit", "Shorty",       "No suit",
                               "Semi-dry suit", "T-shirt",  "Tropical suit"};
        for (int code = 0; code < 7; ++code)
            QTest::newRow(words[code]) << code << QString::fromLatin1(words[code]);
    }
    void suitsHaveTheirWords() {
        QFETCH(int, code);
        QFETCH(QString, word);
        Plongee dive = fullDive();
        dive.setCombinaison(code);
        const QStringList lines = linesOf(dive);
        QCOMPARE(lines.value(lines.indexOf(u"Configuration : Tek configuration"_s) + 1), u"   - "_s + word);
    }

    void everyPieceOfEquipmentThatIsSetHasItsLine() {
        Plongee dive = fullDive();
        QStringList expected;
        int place = 0;
        for (auto set :
             {&Plongee::setEquip_1, &Plongee::setEquip_2, &Plongee::setEquip_3, &Plongee::setEquip_4,
              &Plongee::setEquip_5, &Plongee::setEquip_6, &Plongee::setEquip_7, &Plongee::setEquip_8,
              &Plongee::setEquip_9, &Plongee::setEquip_10, &Plongee::setEquip_11, &Plongee::setEquip_12}) {
            const QString piece = ++place == 5 ? u""_s : u"Piece %1"_s.arg(place);
            (dive.*set)(piece);
            if (!piece.isEmpty()) expected << u"   - "_s + piece;
        }
        QCOMPARE(linesOf(dive).filter(u"   - Piece"_s), expected);
        QVERIFY(!hasLine(dive, u"   - "_s));
    }

    void aDiveThatIsNotTechnicalIsSaidToBeNone() {
        Plongee dive = fullDive();
        dive.setConfiguration(0);
        QVERIFY(hasLine(dive, u"Configuration : No Tek"_s));
    }
};

int runSynthesisWordsTest(int argc, char** argv) {
    SynthesisWordsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SynthesisWordsTest.moc"
