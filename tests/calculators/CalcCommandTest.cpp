#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include "CalculatorTests.h"

using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int status;
    QString output;
    QString errors;
    QJsonValue json() const {
        const QJsonDocument document = QJsonDocument::fromJson(output.toUtf8());
        return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    }
};

Outcome calc(const QStringList& words) {
    QProcess core;
    core.start(
        QStringLiteral(SARGAN_CORE_PROGRAM),
        QStringList{u"calc"_s, u"--settings"_s, QStringLiteral(SARGAN_BINARY_DIR "/test-settings")} + words);
    core.waitForFinished();
    return {core.exitCode(), QString::fromUtf8(core.readAllStandardOutput()),
            QString::fromUtf8(core.readAllStandardError())};
}

}  // namespace

class CalcCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void printsEachResultOnALine_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("output");
        QTest::newRow("by window name")
            << QStringList{u"Nitrox Prof Max"_s, u"fracO2Field=32"_s} << u"resultatField: MOD : 33.8 m\n"_s;
        QTest::newRow("by opening action") << QStringList{u"displayProfMaxWindow"_s, u"fracO2Field=32"_s}
                                           << u"resultatField: MOD : 33.8 m\n"_s;
        QTest::newRow("nothing selected")
            << QStringList{u"Nitrox Prof Max"_s, u"fracO2Field=32"_s, u"ppO2PopUp=-1"_s}
            << u"resultatField: MOD : 33.8 m\n"_s;
        QTest::newRow("keys") << QStringList{u"Soda Time"_s,
                                             u"sodaWeightField=2.5"_s,
                                             u"sodaCapacityField=120"_s,
                                             u"metabolicProductionField=1.6"_s,
                                             u"--lang"_s,
                                             u"keys"_s}
                              << u"sodaTimeField: Soda time|3|7\n"_s;
        QTest::newRow("French") << QStringList{u"--lang"_s, u"fr"_s, u"Trimix Prof Min"_s,
                                               u"fracO2TxField=10"_s}
                                << u"resultatField: Profondeur minimale : 6.0 m\n"_s;
        QTest::newRow("then") << QStringList{u"Nitrox Prof Max"_s, u"fracO2Field=32"_s, u"--then"_s,
                                             u"ppO2PopUp=4"_s,     u"--then"_s,         u"fracO2Field=40"_s}
                              << u"resultatField: MOD : 30.0 m\n"_s;
        QTest::newRow("another action")
            << QStringList{u"Gps"_s, u"--action"_s, u"convertGPS2"_s, u"longitude_inField=5.5"_s,
                           u"latitude_inField=43.25"_s}
            << u"latitude_outField: 43.248893\nlongitude_outField: 5.498902\naltitude_outField: Altitude : "
               u"2871.74 m\n"
               "resultatField: \ngpsDataField: \n"_s;
    }
    void printsEachResultOnALine() {
        QFETCH(QStringList, words);
        QStringList all = words;
        if (!all.contains(u"--lang"_s)) all << u"--lang"_s << u"en"_s;
        const Outcome outcome = calc(all);
        QCOMPARE(outcome.errors, QString());
        QTEST(outcome.output, "output");
        QCOMPARE(outcome.status, 0);
    }

    void givesTextAndColourAsJson() {
        const QJsonValue json = calc({u"SCR Flow Calc"_s, u"idEanxField=5"_s, u"idRealFracO2Field=0"_s,
                                      u"--json"_s, u"--lang"_s, u"keys"_s})
                                    .json();
        QCOMPARE(json[u"d10Field"],
                 QJsonObject({{u"text"_s, u"Table flow|1|20"_s}, {u"color"_s, QJsonValue()}}));
        QCOMPARE(json[u"d09Field"][u"color"], QJsonValue(u"black"_s));
        QCOMPARE(json[u"d11Field"][u"color"], QJsonValue(u"red"_s));
        QCOMPARE(json.toObject().size(), 12);
    }

    void thenPressesInTheSameWindow() {
        const QJsonValue json =
            calc({u"SCR Flow Calc"_s, u"idEanxField=4"_s, u"--json"_s, u"--then"_s, u"idEanxField=5"_s})
                .json();
        QCOMPARE(json[u"d10Field"][u"color"], QJsonValue(u"red"_s));
    }

    void printsTheLogWhenAsked() {
        const QStringList words{u"Gps"_s, u"--action"_s, u"convertGPS2"_s, u"longitude_inField=5.5"_s};
        const Outcome logged = calc(words + QStringList{u"--log"_s});
        QVERIFY(logged.output.startsWith(
            u"d2r = 0.017453292519943\nr2d = 57.295779513082323\nlng ED -> WGS = 5.500000\n"_s));
        QVERIFY(logged.output.contains(u"zs = -121.000000\r\r\nnout = 6378137.000000\n"_s));
        QCOMPARE(logged.output.count(u"nout"_s), 5);
        const Outcome json = calc(words + QStringList{u"--log"_s, u"--json"_s});
        QVERIFY(json.json()[u"longitude_outField"].isObject());
        QCOMPARE(json.errors.count(u"nout"_s), 5);
        QVERIFY(!calc(words).output.contains(u"nout"_s));
    }

    void listsTheWindows() {
        const Outcome text = calc({u"--lang"_s, u"en"_s});
        QVERIFY(text.output.contains(
            u"\nSCR Flow Calc: Flow of a semi-closed circuit\n  --action calcIdealFlow\n"_s));
        QVERIFY(text.output.contains(
            u"  geodesiePopUp               pop-up    0: ED50 → WGS84, 1: WGS84 → ED50\n"_s));
        const QJsonArray windows = calc({u"--json"_s}).json().toArray();
        QCOMPARE(windows.size(), 15);
        QCOMPARE(windows[0][u"window"], QJsonValue(u"Nitrox Prof Max"_s));
        QCOMPARE(windows[0][u"opens"], QJsonValue(u"displayProfMaxWindow"_s));
        QCOMPARE(windows[0][u"controller"], QJsonValue(u"NitroxController"_s));
        QCOMPARE(windows[0][u"actions"], QJsonArray({u"profMax"_s}));
        QCOMPARE(windows[0][u"controls"].toArray().size(), 3);
        QCOMPARE(windows[0][u"controls"][0][u"unit"], QJsonValue(u"%"_s));
    }

    void refusesWrongUsage_data() {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("unknown window") << QStringList{u"Heliox"_s};
        QTest::newRow("unknown control") << QStringList{u"Trimix"_s, u"fracHe=1"_s};
        QTest::newRow("control of another window") << QStringList{u"Trimix"_s, u"depthTxField=1"_s};
        QTest::newRow("unknown action") << QStringList{u"Trimix"_s, u"--action"_s, u"bestMix"_s};
        QTest::newRow("action with a colon") << QStringList{u"Trimix"_s, u"--action"_s, u"calcEAD_END:"_s};
        QTest::newRow("a result") << QStringList{u"Trimix"_s, u"resultatField=1"_s};
        QTest::newRow("a pop-up by its words") << QStringList{u"Nitrox Prof Max"_s, u"ppO2PopUp=1.4 bar"_s};
        QTest::newRow("a direction that is not offered")
            << QStringList{u"Gps"_s, u"--action"_s, u"convertGPS2"_s, u"geodesiePopUp=2"_s};
        QTest::newRow("no assignment") << QStringList{u"Trimix"_s, u"18"_s};
        QTest::newRow("no assignment then") << QStringList{u"Trimix"_s, u"--then"_s, u"18"_s};
    }
    void refusesWrongUsage() {
        QFETCH(QStringList, words);
        const Outcome outcome = calc(words);
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.output, QString());
        QVERIFY(outcome.errors.startsWith(u"sargan: "_s));
    }
};

int runCalcCommandTest(int argc, char** argv) {
    CalcCommandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CalcCommandTest.moc"
