#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class BlankDiveTest : public QObject {
    Q_OBJECT

    Workshop _shop;
    QJsonObject _dive;

private Q_SLOTS:
    void initTestCase() {
        _shop.settings().put(u"settings.json"_s, R"({"stop interval": "3", "low GF": "30", "high GF": "80",
            "tank volume": "15", "tank pressure": "232", "default weight": "6.5", "soda lime": "Sofnolime",
            "country code": "FR", "serie": "0042"})");
        _shop.putGolden(u"empty.carnet"_s, u"a.carnet"_s);
        const Outcome outcome = _shop.run({u"add"_s, u"a.carnet"_s, u"--now"_s, u"2016-06-07T14:30:00"_s});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.text(), u"row 0\n"_s);
        QCOMPARE(outcome.status, 0);
        _dive = _shop.record(u"a.carnet"_s, 0);
    }

    void theFieldsOfANewDive_data() {
        QTest::addColumn<QJsonValue>("value");
        const auto row = [](const char* field, const QJsonValue& value) { QTest::newRow(field) << value; };
        row("noPlongee", 1);
        row("date", u"2016-06-07T14:30:00"_s);
        row("heure", u"2001-01-01T00:00:00"_s);
        row("coeff", 0);
        row("lieu", u""_s);
        row("bateau", u""_s);
        row("gps", u"N __° __.___'  E ___° __.___'"_s);
        row("gpsSystem", 1);
        row("meteo", 7);
        row("ventSecteur", 0);
        row("courant", 6);
        row("visibilite", 7);
        row("typePlongee", 8);
        row("inoubliable", 0);
        row("nocturne", 0);
        row("surface", u"--:--"_s);
        row("profondeur", 0);
        row("temps", 0);
        row("decoSoftName", u"-"_s);
        row("decoAlgoType", u"-"_s);
        row("decoConservatism", u"-"_s);
        row("runtime", u""_s);
        row("o2Mix", 21);
        row("heMix", 0);
        row("o2Mix_2", 21);
        row("configuration", 1);
        row("notes", u""_s);
        row("profilProfondeur", QJsonArray{0});
        row("ASC_Flag", QJsonArray{0});
        row("GAZ_Flag", QJsonArray{0});
        row("PRESS_Data", QJsonArray{0});
        // from the settings
        row("decoDepth_Level_1", 3);
        row("decoDepth_Level_6", 18);
        row("lowGF", 30);
        row("highGF", 80);
        row("volumeBloc", 15);
        row("pressionBloc", 232);
        row("lestage", 6.5);
        row("sodaType", u"Sofnolime"_s);
        row("countryCode", u"FR"_s);
        row("serie", u"0042"_s);
    }
    void theFieldsOfANewDive() { QTEST(_dive.value(QLatin1String(QTest::currentDataTag())), "value"); }

    void theSettingsWereOnlyRead() { QCOMPARE(_shop.settings().names(), QStringList(u"settings.json"_s)); }

    void aTextOfTheNewDiveIsInTheChosenLanguage() {
        QCOMPARE(_shop.run({u"add"_s, u"a.carnet"_s, u"--lang"_s, u"keys"_s}).status, 0);
        const QJsonArray dives = _shop.records(u"a.carnet"_s);
        QCOMPARE(dives.last()["gps"_L1], QJsonValue(u"GPS template"_s));
    }

    void damagedSettingsAreToldAndSetAside() {
        const Workshop shop;
        shop.settings().put(u"settings.json"_s, R"({"low GF": )");
        shop.putGolden(u"empty.carnet"_s, u"a.carnet"_s);
        const Outcome outcome = shop.run({u"add"_s, u"a.carnet"_s});
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.errors.contains("settings.json"_L1), qPrintable(outcome.errors));
        QCOMPARE(shop.settings().content(u"settings.json.damaged"_s), QByteArray(R"({"low GF": )"));
    }
};

int runBlankDiveTest(int argc, char** argv) {
    BlankDiveTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "BlankDiveTest.moc"
