#include <QImage>
#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"
#include "support/PdfText.h"

using namespace Qt::StringLiterals;

namespace {

/// Three dives: at night on trimix, a plain one, one abroad.
void putThree(const Workshop& shop) {
    shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1},
                                          {u"lieu"_s, u"Brest"_s},
                                          {u"temps"_s, 40},
                                          {u"profondeur"_s, 62.5},
                                          {u"gaz"_s, 2},
                                          {u"o2Mix"_s, 18},
                                          {u"heMix"_s, 45},
                                          {u"countryCode"_s, u"FRA"_s}}),
                                    dive({{u"noPlongee"_s, 2},
                                          {u"lieu"_s, u"Agde"_s},
                                          {u"temps"_s, 55},
                                          {u"profondeur"_s, 12},
                                          {u"countryCode"_s, u"FRA"_s},
                                          {u"profilProfondeur"_s, QJsonArray{0, 5, 12, 6, 0}}}),
                                    dive({{u"noPlongee"_s, 3},
                                          {u"lieu"_s, u"Hurghada"_s},
                                          {u"temps"_s, 40},
                                          {u"profondeur"_s, 22.25},
                                          {u"countryCode"_s, u"EGY"_s}})});
}

QList<int> numbers(const Workshop& shop) {
    QList<int> list;
    for (const QJsonValue& dive : shop.records(u"a.carnet"_s)) list << dive[u"noPlongee"_s].toInt();
    return list;
}

QJsonObject tableOf(const Workshop& shop) {
    return shop.run({u"table"_s, u"a.carnet"_s, u"--json"_s}).json();
}

QJsonObject cell(const QJsonObject& table, int row, const QString& column) {
    const QJsonArray columns = table[u"columns"_s].toArray();
    for (int at = 0; at < columns.size(); ++at)
        if (columns[at] == column) return table[u"rows"_s][row][at].toObject();
    return {};
}

QJsonObject wanted(const QString& text, const QJsonValue& color, const QJsonValue& background, bool bold) {
    return {{u"text"_s, text}, {u"color"_s, color}, {u"background"_s, background}, {u"bold"_s, bold}};
}

}  // namespace

class TableCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sortClicksTheHeadersInOrder_data() {
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<QList<int>>("order");
        const auto row = [](const QStringList& columns, const QList<int>& order) {
            QTest::newRow(qPrintable(columns.join(u' '))) << columns << order;
        };
        row({u"lieu"_s}, {3, 1, 2});
        row({u"lieu"_s, u"lieu"_s}, {2, 1, 3});
        row({u"lieu"_s, u"lieu"_s, u"lieu"_s}, {3, 1, 2});
        row({u"noPlongee"_s, u"temps"_s}, {2, 3, 1});
        row({u"lieu"_s, u"lieu"_s, u"temps"_s, u"lieu"_s}, {2, 1, 3});
        row({u"gaz"_s}, {1, 2, 3});
    }
    void sortClicksTheHeadersInOrder() {
        QFETCH(QStringList, columns);
        const Workshop shop;
        putThree(shop);
        const Outcome outcome = shop.run(QStringList{u"sort"_s, u"a.carnet"_s, u"--column"_s} + columns);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 0);
        QTEST(numbers(shop), "order");
    }

    void aColumnThatThereIsNotIsWrongUsage() {
        const Workshop shop;
        putThree(shop);
        const auto before = shop.everything();
        for (const QString& column : {u"partenaires"_s, u"nothing"_s}) {
            const Outcome outcome = shop.run({u"sort"_s, u"a.carnet"_s, u"--column"_s, u"lieu"_s, column});
            QCOMPARE(outcome.status, 2);
            QVERIFY(outcome.errors.contains(column));
            QCOMPARE(shop.everything(), before);
        }
        QCOMPARE(shop.run({u"sort"_s, u"a.carnet"_s}).status, 2);
    }

    void theTableIsShownAsItIsDisplayed() {
        const Workshop shop;
        putThree(shop);
        const QJsonObject table = tableOf(shop);
        QCOMPARE(
            table[u"columns"_s].toArray(),
            (QJsonArray{u"noPlongee"_s, u"date"_s, u"lieu"_s, u"site"_s, u"heure"_s, u"profondeur"_s,
                        u"temps"_s, u"tempEau"_s, u"deco"_s, u"coeff"_s, u"visibilite"_s, u"inoubliable"_s}));
        QCOMPARE(table[u"count"_s].toString(), u"3 dives"_s);
        QCOMPARE(table[u"rows"_s].toArray().size(), 3);
        const QJsonValue none;
        QCOMPARE(cell(table, 0, u"noPlongee"_s), wanted(u"1"_s, u"black"_s, none, false));
        QCOMPARE(cell(table, 0, u"lieu"_s), wanted(u"Brest"_s, none, none, false));
        QCOMPARE(cell(table, 2, u"profondeur"_s), wanted(u"22.25 m"_s, u"blue"_s, none, false));
        QCOMPARE(cell(table, 2, u"tempEau"_s), wanted(u"-"_s, u"black"_s, none, false));
    }

    void theTableHasTheSettingsColours() {
        const Workshop shop;
        putThree(shop);
        const QList<std::pair<QString, QString>> settings{
            {u"mix in color"_s, u"1"_s},       {u"foreign in color"_s, u"1"_s},
            {u"country code"_s, u"\"FRA\""_s}, {u"foreign color"_s, u"\"rgba(0.725, 1, 0.674, 1)\""_s},
            {u"column gaz"_s, u"true"_s},      {u"column date"_s, u"0"_s},
            {u"us units"_s, u"true"_s}};
        for (const auto& [key, value] : settings)
            QCOMPARE(shop.run({u"defaults"_s, u"write"_s, key, value}).status, 0);
        const QJsonObject table = tableOf(shop);
        const QJsonValue none;
        QVERIFY(!table[u"columns"_s].toArray().contains(u"date"_s));
        QCOMPARE(cell(table, 0, u"noPlongee"_s), wanted(u"1"_s, u"white"_s, u"brown"_s, true));
        QCOMPARE(cell(table, 0, u"gaz"_s), wanted(u"Tx 18/45"_s, u"white"_s, u"brown"_s, true));
        QCOMPARE(cell(table, 1, u"noPlongee"_s), wanted(u"2"_s, u"gray"_s, none, true));
        QCOMPARE(cell(table, 1, u"lieu"_s)[u"background"_s], none);
        QCOMPARE(cell(table, 2, u"lieu"_s)[u"background"_s].toString(), u"rgba(0.725, 1, 0.674, 1)"_s);
        QCOMPARE(cell(table, 0, u"profondeur"_s)[u"text"_s].toString(), u"62.5 ft"_s);
    }

    void withoutJsonTheTableIsLinesOfTexts() {
        const Workshop shop;
        putThree(shop);
        const QStringList lines = shop.run({u"table"_s, u"a.carnet"_s}).text().split(u'\n');
        QCOMPARE(lines.size(), 6);
        QVERIFY(lines[0].startsWith(u"No.\tDate\tPlace\t"_s));
        QVERIFY(lines[2].startsWith(u"2\t--/--/----\tAgde\t"_s));
        QCOMPARE(lines[4], u"3 dives"_s);
    }

    void keysShowTheirArguments() {
        const Workshop shop;
        putThree(shop);
        const QJsonObject table =
            shop.run({u"--lang"_s, u"keys"_s, u"table"_s, u"a.carnet"_s, u"--json"_s}).json();
        QCOMPARE(cell(table, 0, u"profondeur"_s)[u"text"_s].toString(), u"%@ m|62.5"_s);
        QCOMPARE(cell(table, 0, u"temps"_s)[u"text"_s].toString(), u"%@ '|40"_s);
        QCOMPARE(cell(table, 0, u"visibilite"_s)[u"text"_s].toString(), u"TableView excellent"_s);
        QCOMPARE(cell(table, 0, u"coeff"_s)[u"text"_s].toString(), u"N/A"_s);
    }

    void theListIsPrintedLandscape() {
        const Workshop shop;
        putThree(shop);
        const Outcome outcome = shop.run({u"print"_s, u"a.carnet"_s, u"-o"_s, u"list.pdf"_s});
        QCOMPARE(outcome.status, 0);
        const QByteArray pdf = shop.folder().content(u"list.pdf"_s);
        QVERIFY(pdf.startsWith("%PDF"));
        QVERIFY(pdf.contains("/MediaBox [0 0 842"));
    }

    void theListIsPrintedInTheOrderOfItsWindow() {
        const Workshop shop;
        putThree(shop);
        const QString columns = u"{\"order\": [\"lieu\", \"temps\", \"noPlongee\"]}"_s;
        QCOMPARE(shop.run({u"defaults"_s, u"write"_s, u"table Carnet"_s, columns}).status, 0);
        for (const QString& hidden : {u"column date"_s, u"column site"_s})
            QCOMPARE(shop.run({u"defaults"_s, u"write"_s, hidden, u"0"_s}).status, 0);
        QCOMPARE(shop.run({u"print"_s, u"a.carnet"_s, u"-o"_s, u"list.pdf"_s}).status, 0);
        // Time is the third of the columns that are shown, water the sixth; both are not named.
        const QString words = pdf::words(shop.folder().content(u"list.pdf"_s));
        QVERIFY2(words.startsWith(u"Place Duration Time Depth"_s), qPrintable(words));
    }

    void theProfileIsDrawn_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("begins");
        QTest::newRow("png") << u"p.png"_s << QByteArray("\x89PNG");
        QTest::newRow("svg") << u"p.svg"_s << QByteArray("<?xml");
        QTest::newRow("pdf") << u"p.pdf"_s << QByteArray("%PDF");
    }
    void theProfileIsDrawn() {
        QFETCH(QString, file);
        QFETCH(QByteArray, begins);
        const Workshop shop;
        putThree(shop);
        const QStringList words{u"profile"_s, u"a.carnet"_s, u"--row"_s, u"1"_s, u"-o"_s, file};
        const Outcome outcome = shop.run(words);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QByteArray());
        const QByteArray first = shop.folder().content(file);
        QVERIFY(first.startsWith(begins));
        if (file == u"p.pdf"_s) return;
        shop.run(words);
        QCOMPARE(shop.folder().content(file), first);
    }

    void thePictureHasTheSizeThatWasAsked() {
        const Workshop shop;
        putThree(shop);
        shop.run({u"profile"_s, u"a.carnet"_s, u"--row"_s, u"1"_s, u"-o"_s, u"p.png"_s, u"--size"_s,
                  u"840x450"_s});
        const QImage image = QImage::fromData(shop.folder().content(u"p.png"_s));
        QCOMPARE(image.size(), QSize(840, 450));
        // Five samples 158 apart on a scale of 13 m and 400 points: the third stands at 346, 30 + 12 * 400
        // / 13.
        int nearest = 255;
        for (int dy = -2; dy <= 2; ++dy) {
            const QColor at = image.pixelColor(346, 30 + 369 + dy);
            nearest = std::min(nearest, std::max({at.red(), at.green(), 255 - at.blue()}));
        }
        QVERIFY2(nearest < 110, qPrintable(QString::number(nearest)));
    }

    void theSvgHasTheLabels() {
        const Workshop shop;
        putThree(shop);
        shop.run(
            {u"--lang"_s, u"keys"_s, u"profile"_s, u"a.carnet"_s, u"--row"_s, u"1"_s, u"-o"_s, u"p.svg"_s});
        const QByteArray svg = shop.folder().content(u"p.svg"_s);
        for (const char* label : {">Time min<", ">Depth m<", ">Gas bar<", ">10<"})
            QVERIFY2(svg.contains(label), label);
    }

    void wrongWordsWriteNothing_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("status");
        QTest::newRow("no such row") << u"profile a.carnet --row 3 -o p.png"_s << 1;
        QTest::newRow("negative row") << u"profile a.carnet --row -1 -o p.png"_s << 1;
        QTest::newRow("no row") << u"profile a.carnet -o p.png"_s << 2;
        QTest::newRow("no output") << u"profile a.carnet --row 0"_s << 2;
        QTest::newRow("another format") << u"profile a.carnet --row 0 -o p.gif"_s << 2;
        QTest::newRow("a bad size") << u"profile a.carnet --row 0 -o p.png --size 800"_s << 2;
        QTest::newRow("a huge size") << u"profile a.carnet --row 0 -o p.png --size 99999x99999"_s << 2;
        QTest::newRow("no folder") << u"profile a.carnet --row 0 -o nowhere/p.png"_s << 1;
        QTest::newRow("print without output") << u"print a.carnet"_s << 2;
        QTest::newRow("no file") << u"table b.carnet"_s << 1;
    }
    void wrongWordsWriteNothing() {
        QFETCH(QString, line);
        const Workshop shop;
        putThree(shop);
        const auto before = shop.everything();
        QTEST(shop.run(line.split(u' ')).status, "status");
        QCOMPARE(shop.everything(), before);
    }

    void toolbarsShowWhatCanBeUsedWithNothingSelected() {
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {});
        QCOMPARE(shop.run({u"tool-bars"_s, u"a.carnet"_s}).text(),
                 u"tableViewToolbar\n"
                 "  addDive: Add\n"
                 "  deleteDive: Delete (disabled)\n"
                 "  profil: Profile (disabled)\n"
                 "  profilData: Profile data (disabled)\n"
                 "  importUDCF: Import UDCF\n"
                 "  importUDDF: Import UDDF\n"
                 "  synthese: Synthesis (disabled)\n"
                 "  statistics: Statistics\n"
                 "  rechercher: Find\n"
                 "editWindowToolbar\n"
                 "  profil: Profile (disabled)\n"
                 "  profilData: Profile data (disabled)\n"
                 "  blankFields: Erase\n"
                 "  addDiveToList: Store\n"_s);
        putThree(shop);
        const QString filled = shop.run({u"tool-bars"_s, u"a.carnet"_s}).text();
        QVERIFY2(filled.contains(u"  synthese: Synthesis\n"_s), qPrintable(filled));
        QCOMPARE(filled.count(u"(disabled)"_s), 5);
    }
};

int runTableCommandTest(int argc, char** argv) {
    TableCommandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TableCommandTest.moc"
