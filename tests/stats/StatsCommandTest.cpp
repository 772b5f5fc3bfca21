#include <QImage>

#include "cli/Workshop.h"
#include "stats/StatsTests.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QJsonArray twoDives() {
    return {dive({{u"noPlongee"_s, 7},
                  {u"lieu"_s, u"Brest"_s},
                  {u"profondeur"_s, 9.9},
                  {u"temps"_s, 65},
                  {u"typePlongee"_s, 12},
                  {u"tempEau"_s, 13}}),
            dive({{u"noPlongee"_s, 8},
                  {u"lieu"_s, u"Toulon"_s},
                  {u"profondeur"_s, 60},
                  {u"temps"_s, 60},
                  {u"rebreather"_s, 1},
                  {u"tempEau"_s, -50}})};
}

struct Logbook : Workshop {
    Logbook() { putLogbook(u"a.carnet"_s, twoDives()); }
    QByteArray content(const QString& name) const { return folder().content(name); }
};

}  // namespace

class StatsCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void statsArePrintedFieldByField() {
        const Logbook shop;
        const Outcome outcome = shop.run({u"stats"_s, u"a.carnet"_s, u"--ignore-previous"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QString());
        const QStringList lines = outcome.text().split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 1 + 29 * 2 + 9);
        QCOMPARE(lines.first(), u"statStateField: Total dives: 2"_s);
        QVERIFY(lines.contains(u"statBioField: 1"_s));
        QVERIFY(lines.contains(u"statP_BioField: 50.0 %"_s));
        QVERIFY(lines.contains(u"statHelioxField: 1"_s));
        QVERIFY(lines.contains(u"statTempsTotalField: 2 h 05 min. (125 min.)"_s));
        QVERIFY(lines.contains(u"statTempEauMinField: 13 °C"_s));
        QCOMPARE(lines.last(), u"statTempEauMoyField: 13 °C"_s);
    }

    void statsAsJsonHaveTheGraph() {
        const Logbook shop;
        const QJsonObject json = shop.run({u"stats"_s, u"a.carnet"_s, u"--json"_s}).json();
        QCOMPARE(json.size(), 1 + 29 * 2 + 9 + 1);
        QCOMPARE(json[u"statTempsTotalField"_s], QJsonValue(u"2 h 05 min.\r(125 min.)"_s));
        const QJsonObject graph = json[u"graph"_s].toObject();
        const QJsonObject expected{{u"depth_level_1"_s, 50}, {u"depth_level_2"_s, 0}, {u"depth_level_3"_s, 0},
                                   {u"depth_level_4"_s, 0},  {u"depth_level_5"_s, 0}, {u"depth_level_6"_s, 0},
                                   {u"depth_level_7"_s, 50}, {u"air"_s, 50},          {u"nitrox"_s, 0},
                                   {u"trimix"_s, 0},         {u"heliox"_s, 50}};
        QCOMPARE(graph, expected);
    }

    void previousDivesAreTakenFromTheSettings() {
        const Logbook shop;
        const QString values = uR"({"total plongees": 4, "bio": 2, "air": 1})"_s;
        QCOMPARE(shop.run({u"defaults"_s, u"write"_s, u"statistics values"_s, values}).status, 0);
        QJsonObject json = shop.run({u"stats"_s, u"a.carnet"_s, u"--json"_s}).json();
        QCOMPARE(json[u"statStateField"_s], QJsonValue(u"Total dives: 6"_s));
        QCOMPARE(json[u"statBioField"_s], QJsonValue(u"3"_s));
        QCOMPARE(json[u"graph"_s][u"air"_s], QJsonValue(33.333336));  // 2 / 6 in single precision
        json = shop.run({u"stats"_s, u"a.carnet"_s, u"--json"_s, u"--ignore-previous"_s}).json();
        QCOMPARE(json[u"statStateField"_s], QJsonValue(u"Total dives: 2"_s));
    }

    void anEmptyLogbooksGraphIsNoNumbers() {
        const Workshop shop;
        QCOMPARE(shop.run({u"new"_s, u"Carnet de plongee"_s, u"e.carnet"_s}).status, 0);
        const QJsonObject json =
            shop.run({u"stats"_s, u"e.carnet"_s, u"--json"_s, u"--ignore-previous"_s}).json();
        QCOMPARE(json[u"statTempEauMinField"_s], QJsonValue(u"10000 °C"_s));
        for (const QJsonValue& share : json[u"graph"_s].toObject()) QCOMPARE(share, QJsonValue(u"nan"_s));
        QCOMPARE(shop.run({u"graphs"_s, u"e.carnet"_s, u"-o"_s, u"e.png"_s}).status, 0);
    }

    void pagesAreWrittenInTheFormatOfTheirName() {
        const Logbook shop;
        for (const char* name : {"s.txt", "s.html", "s.pdf", "S.PDF"}) {
            const Outcome outcome = shop.run({u"stats"_s, u"a.carnet"_s, u"-o"_s, QLatin1String(name)});
            QCOMPARE(outcome.status, 0);
            QCOMPARE(outcome.errors, QString());
            QCOMPARE(outcome.output, QByteArray());
        }
        QVERIFY(shop.content(u"s.txt"_s).startsWith("Logbook statistics\n\nTotal dives: 2\n\nActivities\n"));
        QVERIFY(shop.content(u"s.html"_s).startsWith("<!DOCTYPE html>"));
        QVERIFY(pdf::words(shop.content(u"s.pdf"_s)).contains(u"Biology : 1 (50.0 %)"_s));
        QVERIFY(pdf::words(shop.content(u"S.PDF"_s)).contains(u"Biology : 1 (50.0 %)"_s));
    }

    void pagesGoToStandardOutputAsText() {
        const Logbook shop;
        const Outcome outcome = shop.run({u"stats"_s, u"a.carnet"_s, u"-o"_s, u"-"_s});
        QVERIFY(outcome.text().startsWith(u"Logbook statistics\n"_s));
        QVERIFY(outcome.text().endsWith(u'\n'));
    }

    void synthesisCoversOneDiveOrAll() {
        const Logbook shop;
        const QString all = shop.run({u"synthesis"_s, u"a.carnet"_s, u"-o"_s, u"-"_s}).text();
        QVERIFY(all.indexOf(u"Dive number : 7"_s) >= 0);
        QVERIFY(all.indexOf(u"Dive number : 8"_s) > all.indexOf(u"Dive number : 7"_s));
        const QString one =
            shop.run({u"synthesis"_s, u"a.carnet"_s, u"--row"_s, u"1"_s, u"-o"_s, u"-"_s}).text();
        QVERIFY(one.startsWith(u"Dive number : 8\n"_s));
        QVERIFY(!one.contains(u"Brest"_s));
        QVERIFY(one.contains(u"Depth : 60 m\n"_s));
        QCOMPARE(shop.run({u"defaults"_s, u"write"_s, u"us units"_s, u"1"_s}).status, 0);
        QVERIFY(shop.run({u"synthesis"_s, u"a.carnet"_s, u"--row"_s, u"1"_s, u"-o"_s, u"-"_s})
                    .text()
                    .contains(u"Depth : 60 ft\n"_s));
    }

    void theSynthesisIsPrintedUpright() {
        const Logbook shop;
        QCOMPARE(shop.run({u"synthesis"_s, u"a.carnet"_s, u"-o"_s, u"s.pdf"_s}).status, 0);
        const QByteArray bytes = shop.content(u"s.pdf"_s);
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"595 x 842 pts (A4)"_s);
        const QString words = pdf::words(bytes);
        QVERIFY(words.contains(u"Dive number : 7"_s) && words.contains(u"Dive number : 8"_s));
    }

    void graphsAreWrittenInTheFormatOfTheirName() {
        const Logbook shop;
        for (const char* name : {"g.png", "g.svg", "g.pdf"}) {
            const Outcome outcome = shop.run({u"graphs"_s, u"a.carnet"_s, u"-o"_s, QLatin1String(name)});
            QCOMPARE(outcome.status, 0);
            QCOMPARE(outcome.errors, QString());
        }
        const QImage image = QImage::fromData(shop.content(u"g.png"_s));
        QCOMPARE(image.size(), QSize(900, 500));
        QCOMPARE(image.pixelColor(83, 500 - 60), QColor(0, 0, 255));
        QVERIFY(shop.content(u"g.svg"_s).contains("60 m et +"));
        QVERIFY(pdf::words(shop.content(u"g.pdf"_s)).contains(u"60 m et +"_s));
        QVERIFY(shop.run({u"graphs"_s, u"a.carnet"_s, u"-o"_s, u"-"_s}).output.startsWith("\x89PNG"));
    }

    void wrongUsageWritesNothing_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        const auto row = [](const char* name, const QString& words, int status) {
            QTest::newRow(name) << words.split(u' ') << status;
        };
        row("no output", u"synthesis a.carnet"_s, 2);
        row("no output of graphs", u"graphs a.carnet"_s, 2);
        row("unknown text format", u"stats a.carnet -o s.doc"_s, 2);
        row("no ending", u"stats a.carnet -o s"_s, 2);
        row("unknown picture format", u"graphs a.carnet -o g.gif"_s, 2);
        row("picture of a text", u"synthesis a.carnet -o s.png"_s, 2);
        row("no such row", u"synthesis a.carnet --row 2 -o s.txt"_s, 1);
        row("negative row", u"synthesis a.carnet --row -1 -o s.txt"_s, 1);
        row("no such file", u"stats b.carnet -o s.txt"_s, 1);
        row("two files", u"stats a.carnet b.carnet"_s, 2);
    }
    void wrongUsageWritesNothing() {
        QFETCH(QStringList, words);
        QFETCH(int, status);
        const Logbook shop;
        const auto before = shop.everything();
        const Outcome outcome = shop.run(words);
        QCOMPARE(outcome.status, status);
        QVERIFY2(outcome.errors.startsWith(u"sargan: "_s), qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }

    void onlyLogbooksHaveStatistics() {
        const Workshop shop;
        QCOMPARE(shop.run({u"new"_s, u"Budget"_s, u"b.budget"_s}).status, 0);
        for (const char* command : {"stats", "synthesis", "graphs"}) {
            const QString output = qstrcmp(command, "graphs") == 0 ? u"o.png"_s : u"o.txt"_s;
            const Outcome outcome = shop.run({QLatin1String(command), u"b.budget"_s, u"-o"_s, output});
            QCOMPARE(outcome.status, 1);
            QVERIFY(isOneSentence(outcome.errors));
        }
    }
};

int runStatsCommandTest(int argc, char** argv) {
    StatsCommandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StatsCommandTest.moc"
