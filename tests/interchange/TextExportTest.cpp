#include <cstdio>
#include <random>

#include "interchange/InterchangeTests.h"
#include "interchange/TextExport.h"
#include "interchange/XmlWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QByteArray commaHeader =
    "Dive #,Date,Location,Site,Country,Tide coeff,Surface time,Start time,Depth,Dive time,Pressure in,"
    "Pressure out,O2 mix,He mix,Weather,Current,Visibility,Water temp.,Air temp.,Buddies\r";
const QByteArray profileHeader = "Dive #,Point,Depth,ASC,SLOW,CEIL,SURF,GAS,PRESS\n";

}  // namespace

class TextExportTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Book> _book;

    QByteArrayList cellsOf(const Plongee& dive) {
        _book->put({dive});
        return _book->exported("txt-tab").split('\r')[1].chopped(1).split('\t');
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Book>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void aLogbookWithoutDivesIsTheTitlesAlone() {
        QCOMPARE(_book->exported("csv-comma"), commaHeader);
        QCOMPARE(_book->exported("txt-tab"), QByteArray(commaHeader).replace(',', '\t'));
        QCOMPARE(_book->exported("profiles-csv"), profileHeader);
        QCOMPARE(_book->exported("csv-semicolon"),
                 '"' + QByteArray(commaHeader).replace(",", "\";\"").replace("\r", "\"\r"));
    }

    void aDiveIsOneLine() {
        _book->put({fullDive()});
        const QByteArray line =
            "12,07/06/2016,Brest,Swansea Vale,France,71,12:30,09:05,30.75,45,207,60,32,0,Cloudy,Moderate,"
            "Exceptional,14,18,Zo\x8E, Luc\n";
        QCOMPARE(_book->exported("csv-comma"), commaHeader + line);
    }

    void theSemicolonTableIsQuotedAndUtf8() {
        _book->put({fullDive()});
        const QByteArray text = _book->exported("csv-semicolon");
        QCOMPARE(text.mid(text.indexOf('\r') + 1),
                 QByteArray("\"12\";\"07/06/2016\";\"Brest\";\"Swansea Vale\";\"France\";\"71\";\"12:30\";"
                            "\"09:05\";\"30.75\";\"45\";\"207\";\"60\";\"32\";\"0\";\"Cloudy\";\"Moderate\";"
                            "\"Exceptional\";\"14\";\"18\";\"Zo\xC3\xA9, Luc\"\n"));
    }

    void onlyTheTitlesEndInCarriageReturn() {
        _book->put({plainDive(1), plainDive(2)});
        const QByteArray text = _book->exported("txt-tab");
        QCOMPARE(text.count('\r'), 1);
        QCOMPARE(text.count('\n'), 2);
        QVERIFY(text.endsWith('\n'));
    }

    void anAccentIsTwoBytesInOneTableAndOneInTheOthers() {
        Plongee dive = plainDive(1);
        dive.setLieu(u"é"_s);
        _book->put({dive});
        QVERIFY(_book->exported("csv-semicolon").contains("\"\xC3\xA9\""));
        QVERIFY(_book->exported("csv-comma").contains(",\x8E,"));
        QVERIFY(_book->exported("txt-tab").contains("\t\x8E\t"));
    }

    void codesBecomeWords_data() {
        QTest::addColumn<int>("cell");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("word");
        const auto words = [](const char* what, int cell, const QByteArrayList& list) {
            for (int code = 0; code < list.size(); ++code)
                QTest::addRow("%s %d", what, code) << cell << code << list[code];
        };
        words("weather", 14,
              {"Clear", "Cloudy", "Foggy", "Rainy", "Hail", "Snowy", "Thundery", "N/A", "", ""});
        words("current", 15, {"None", "Weak", "Moderate", "Strong", "Very strong", "Violent", "N/A", "", ""});
        words("visibility", 16,
              {"Excellent", "Very good", "Good", "Medium", "Bad", "Very bad", "Execrable", "N/A",
               "Exceptional", ""});
        QTest::newRow("negative weather") << 14 << -1 << QByteArray();
        QTest::newRow("negative visibility") << 16 << INT_MIN << QByteArray();
    }
    void codesBecomeWords() {
        QFETCH(int, cell);
        QFETCH(int, code);
        QFETCH(QByteArray, word);
        _book->desk.strings.setLanguage(Strings::Language::Keys);
        Plongee dive = plainDive(1);
        dive.setMeteo(cell == 14 ? code : 0);
        dive.setCourant(cell == 15 ? code : 0);
        dive.setVisibilite(cell == 16 ? code : 0);
        const QByteArrayList cells = cellsOf(dive);
        QCOMPARE(cells.size(), 20);
        QCOMPARE(cells[cell], word);
    }

    void numbersAreWrittenPlain() {
        Plongee dive = plainDive(-3);
        dive.setProfondeur(12.3f);
        dive.setTempEau(-50);
        const QByteArrayList cells = cellsOf(dive);
        QCOMPARE(cells[0], QByteArray("-3"));
        QCOMPARE(cells[8], QByteArray("12.3"));
        QCOMPARE(cells[17], QByteArray("-50"));
        dive.setProfondeur(20);
        QCOMPARE(cellsOf(dive)[8], QByteArray("20"));
    }

    void absentTextsAndDatesAreEmptyCells() {
        const QByteArrayList cells = cellsOf(plainDive(1));
        for (const int cell : {1, 2, 3, 4, 6, 7, 19}) QCOMPARE(cells[cell], QByteArray());
    }

    void nothingInAFieldIsEscaped() {
        Plongee dive = plainDive(1);
        dive.setLieu(u"Nice, port; \"vieux\""_s);
        _book->put({dive});
        QVERIFY(_book->exported("csv-comma").contains("1,,Nice, port; \"vieux\",,"));
        QVERIFY(_book->exported("csv-semicolon").contains("\"1\";\"\";\"Nice, port; \"vieux\"\";\"\""));
    }

    void charactersThatTheEncodingLacksAreReplacedAndToldOnce() {
        QList<Plongee> dives;
        for (int number = 1; number <= 6; ++number) dives << plainDive(number);
        for (const int row : {0, 2, 3, 4}) dives[row].setPays(u"Győr – 東"_s);
        _book->put(dives);
        _book->desk.prompt.expectAlert(
            u"Some characters do not exist in this format and were written as the nearest ones that do. "
            "Dives concerned: 1, 3–5."_s);
        QVERIFY(_book->exported("csv-comma").contains(",Gyor \xD0 ?,"));
        _book->exported("csv-semicolon");
        _book->exported("profiles-csv");
    }

    void savingLeavesItsLineInTheLog() {
        for (const char* type : {"csv-semicolon", "csv-comma", "txt-tab", "profiles-csv", "udcf"})
            _book->exported(type);
        QCOMPARE(_book->log, QStringList({u"CSV ;"_s, u"CSV ,"_s, u"TXT"_s}));
    }

    void aProfileIsOneLineASampleWithTwoColumnsCrossed() {
        _book->put({fullDive()});
        QCOMPARE(_book->exported("profiles-csv"), profileHeader +
                                                      "12,1,0.0,0,0,0,0,0,207.0\n"
                                                      "12,2,12.2,1,1,1,1,0,150.5\n"
                                                      "12,3,30.8,0,0,0,2,3,90.2\n"
                                                      "12,4,5.0,0,1,0,0,0,60.0\n");
    }

    void theSurfaceMarksStandUnderCeiling() {
        Plongee dive = plainDive(7);
        static constexpr qint32 marked[] = {1};
        dive.setSURF_Flag(NumberArray::ofInts(marked));
        _book->put({dive});
        QCOMPARE(_book->exported("profiles-csv"), profileHeader + "7,1,0.0,0,0,1,0,0,0.0\n");
    }

    void aListOfAnotherLengthLeavesItsCellsEmpty() {
        Plongee dive = fullDive();
        static constexpr double one[] = {200}, three[] = {1, 2, 3};
        static constexpr qint32 five[] = {1, 1, 1, 1, 1};
        dive.setProfilProfondeur(NumberArray::ofDoubles(three));
        for (auto set : {&Plongee::setASC_Flag, &Plongee::setSLOW_Flag, &Plongee::setCEIL_Flag})
            (dive.*set)(NumberArray::ofInts(five));
        dive.setSURF_Flag({});
        dive.setGAZ_Flag(NumberArray::empty());
        dive.setPRESS_Data(NumberArray::ofDoubles(one));
        _book->put({dive});
        QCOMPARE(_book->exported("profiles-csv"),
                 profileHeader + "12,1,1.0,,,,,,\n12,2,2.0,,,,,,\n12,3,3.0,,,,,,\n");
    }

    void aDiveWithoutDepthsWritesNoLine() {
        Plongee none = plainDive(1), empty = plainDive(2);
        none.setProfilProfondeur({});
        empty.setProfilProfondeur(NumberArray::empty());
        _book->put({none, empty, plainDive(3)});
        QCOMPARE(_book->exported("profiles-csv"), profileHeader + "3,1,0.0,0,0,0,0,0,0.0\n");
    }

    void anySeparatorCanBeAskedFor() {
        _book->put({plainDive(3)});
        QCOMPARE(exportProfileCSVFormat(*_book->carnet, u" é "_s).section(u'\n', 1, 1),
                 u"3 é 1 é 0.0 é 0 é 0 é 0 é 0 é 0 é 0.0"_s);
        QVERIFY(exportTextCSVFormat(*_book->carnet, u"|"_s, u"<>"_s).startsWith(u"<>Dive #|Date|"_s));
        QVERIFY(exportTextCSVFormat(*_book->carnet, u"|"_s, u"<>"_s).contains(u"Buddies<>\r<>3|"_s));
    }

    void tenthsAreRoundedAsPrintfRoundsThem() {
        std::mt19937_64 random(7);
        QList<double> numbers{0,
                              -0.0,
                              0.05,
                              0.25,
                              0.35,
                              12.25,
                              30.75,
                              99.95,
                              1e8,
                              1e300,
                              -3.14,
                              -0.04,
                              std::numeric_limits<double>::infinity(),
                              5e-324,
                              99999999.95};
        for (int i = 0; i < 20000; ++i) numbers << double(random() % 4000000) / 20000.0;
        for (int i = 0; i < 20000; ++i) numbers << double(float(random() % 30000) / 100.0f);
        for (const double number : numbers) {
            char expected[512];
            std::snprintf(expected, sizeof expected, "%.1f", number);
            QByteArray written;
            appendFixed(written, number, 1);
            QCOMPARE(written, QByteArray(expected));
        }
    }

    void anUnknownTypeHasNoBytes() {
        QVERIFY(_book->carnet->dataRepresentationOfType(u"Export Carnet CSV"_s).isNull());
        QVERIFY(_book->carnet->dataRepresentationOfType(u"export udcf (universal dive computer format)"_s)
                    .isNull());
        QCOMPARE(exportFormats().size(), std::size_t(6));
    }
};

int runTextExportTest(int argc, char** argv) {
    TextExportTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TextExportTest.moc"
