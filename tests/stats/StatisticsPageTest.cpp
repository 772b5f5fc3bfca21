#include "stats/StatsTests.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The page in the language of keys, where every label stands as its key.
struct KeyedPage {
    TestDesk desk;
    std::unique_ptr<Carnet> carnet;
    std::unique_ptr<Statistics> statistics;

    explicit KeyedPage(bool ignore) {
        desk.strings.setLanguage(Strings::Language::Keys);
        Plongee dive = quietDive();
        dive.setTypePlongee(12);
        dive.setRebreather(0);
        dive.setProfondeur(12);
        dive.setTemps(61);
        dive.setTempEau(9);
        carnet = logbookOf(desk, {dive});
        statistics = std::make_unique<Statistics>(*carnet);
        statistics->panel().setTag(statcontrol::ignorePrevious, ignore ? 1 : 0);
    }
    StyledText page() const { return statistics->fillStatisticsField(); }
};

QString withCount(const char* label, const char* count) {
    return u"Statistics %1%2\t\t(%3)"_s.arg(QLatin1String(label), QLatin1String(count),
                                            QLatin1String(qstrcmp(count, "1") == 0 ? "100.0 %" : "0.0 %"));
}

QString expectedPage(bool ignore) {
    QString text = u"Statistics header\n\nTotal dives|1"_s;
    if (ignore) text += u"Statistics no prev dives"_s;
    text += u"Statistics dive type"_s + withCount("bio", "1");
    for (const char* label : {"quarry", "drift", "wrecks", "recreational", "training", "night", "photo",
                              "recuperation", "ice", "cave", "tek", "work", "video", "other"})
        text += withCount(label, "0");
    text += u"Statistics gas"_s + withCount("air", "1");
    for (const char* label : {"nitrox", "trimix", "heliox"}) text += withCount(label, "0");
    text += u"Statistics depth"_s + withCount("prof_1", "0") + withCount("prof_2", "1");
    for (const char* label : {"prof_3", "prof_4", "prof_5", "prof_6", "prof_7"})
        text += withCount(label, "0");
    text +=
        u"Statistics min maxStatistics prof max12 mStatistics temps max61 min.Statistics somme prof12 m"
        "Statistics somme temps1 h 01 min.\n(61 min.)Statistics prof moy12 mStatistics temps moy61 min."
        "Statistics temp minCelsius|%1Statistics temp maxCelsius|9Statistics temp moyCelsius|9"_s.arg(
            ignore ? 9 : 0);
    return text + u"Statistics current\nFile dir : \n\nEdition date : 07/06/2016 14:30"_s;
}

}  // namespace

class StatisticsPageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePageHasItsPiecesInOrder() { QCOMPARE(KeyedPage(false).page().plainText(), expectedPage(false)); }

    void leavingOutPreviousDivesIsSaid() { QCOMPARE(KeyedPage(true).page().plainText(), expectedPage(true)); }

    void piecesHaveTheirColours() {
        const StyledText page = KeyedPage(true).page();
        const auto styleOf = [&](const QString& text) {
            for (const StyledText::Run& run : page.runs())
                if (run.text.contains(text)) return run.style;
            return TextStyle{.size = 0};
        };
        const TextStyle title{.color = inkcolor::red, .underline = true};
        QVERIFY(styleOf(u"Statistics header"_s) == TextStyle{.color = inkcolor::green});
        QVERIFY(styleOf(u"Total dives"_s) == TextStyle{.color = inkcolor::blue});
        QVERIFY(styleOf(u"no prev dives"_s) == TextStyle{.color = inkcolor::black});
        for (const char* section : {"dive type", "gas", "depth", "min max"})
            QVERIFY(styleOf(u"Statistics "_s + QLatin1String(section)) == title);
        QVERIFY(styleOf(u"Statistics bio"_s) == TextStyle{.color = inkcolor::black});
        QVERIFY(styleOf(u"(100.0 %)"_s) == TextStyle{.color = inkcolor::blue});
        QVERIFY2(styleOf(u"(61 min.)"_s) == (TextStyle{.color = inkcolor::blue, .hanging = true}),
                 "the total in minutes stands below the one in hours");
        QVERIFY(styleOf(u"Statistics current"_s) == TextStyle{.color = inkcolor::black});
        QVERIFY(styleOf(u"File dir"_s) == TextStyle{.color = inkcolor::green});
    }

    void thePrintedPageIsReadBack() {
        TestDesk desk;
        Plongee dive = quietDive();
        dive.setTypePlongee(0);
        dive.setProfondeur(33);
        const auto carnet = logbookOf(desk, {dive});
        const QByteArray pdf = bytesOf(Statistics(*carnet).fillStatisticsField(), u"Statistics"_s, u"pdf"_s);
        const QString words = pdf::words(pdf);
        QCOMPARE(pdf::info(pdf, u"Page size"_s), u"595 x 842 pts (A4)"_s);
        QCOMPARE(pdf::pages(pdf).size(), 1);
        QVERIFY2(words.startsWith(u"Logbook statistics Total dives: 1 Activities"_s), qPrintable(words));
        QVERIFY(words.contains(u"Wrecks : 1 (100.0 %)"_s));
        QVERIFY(words.contains(u"30 to 39 m : 1 (100.0 %)"_s));
        QVERIFY(words.contains(u"Deepest dive : 33 m"_s));
        QVERIFY(words.endsWith(u"Edition date : 07/06/2016 14:30"_s));
    }
};

int runStatisticsPageTest(int argc, char** argv) {
    StatisticsPageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StatisticsPageTest.moc"
