#include "settings/RegisteredDefaults.h"

#include <QJsonArray>
#include <QTest>

#include "SettingsTests.h"
#include "settings/Colors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class RegisteredDefaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everySettingHasItsFirstValue_data() {
        QTest::addColumn<QJsonValue>("value");
        const auto row = [](const char* key, const QJsonValue& value) { QTest::newRow(key) << value; };
        row("depth time in color", true);
        row("color item", false);
        row("coloured text", u""_s);
        row("coloured theme", false);
        row("display units", true);
        row("low temperature in color", false);
        row("low temperature value", u""_s);
        row("fill plot", true);
        row("alpha fill color", u"0.5"_s);
        row("alpha background color", u"0.5"_s);
        row("x minor ticks", true);
        row("y minor ticks", true);
        row("stop_interval", u"3"_s);
        for (const char* key : {"low temperature color", "depth color", "time color", "plot color",
                                "fill color", "background color", "ASC color", "SLOW color"})
            row(key, QJsonObject{{u"undecoded"_s, u"keyed archive"_s}});
        for (const char* key : {"lieux", "sites", "pays", "countryCode", "partenaires", "epaves",
                                "structures", "ordinateurs", "type epave", "cause naufrage", "type materiel",
                                "fabricants", "tankMakers", "magasins", "prestations", "activite"})
            row(key, QJsonArray());
        for (const char* key :
             {"sac de plongee", "stop interval", "us units", "mix in color", "foreign color", "pense bete",
              "column numero", "gradient lines color", "cell life"})
            row(key, QJsonValue::Undefined);
    }
    void everySettingHasItsFirstValue() {
        QFETCH(QJsonValue, value);
        UserDefaults defaults;
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        const QString key = QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(defaults.value(key), value);
        QVERIFY(defaults.stored(key).isUndefined());
    }

    void nothingElseIsRegistered() {
        UserDefaults defaults;
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        QCOMPARE(defaults.keys().size(), 21 + 16);
    }

    void whatThePersonStoredWins() {
        UserDefaults defaults;
        defaults.store(u"display units"_s, 0);
        defaults.store(u"lieux"_s, QJsonArray({u"Brest"_s}));
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        QCOMPARE(defaults.value(u"display units"_s), QJsonValue(0));
        QCOMPARE(pickLists.list(u"lieux"_s), QStringList({u"Brest"_s}));
        QCOMPARE(defaults.registered(u"lieux"_s), QJsonValue(QJsonArray({u"Brest"_s})));
    }

    void registeredColoursAreNotDecoded() {
        UserDefaults defaults;
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        QCOMPARE(storedColor(defaults, u"depth color"_s, Qt::magenta), QColor(Qt::magenta));
    }

    void theActivitiesBeginAsTheServices() {
        UserDefaults defaults;
        defaults.store(u"prestations"_s, QJsonArray({u"Gonflage"_s, u"Location"_s}));
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        QCOMPARE(defaults.list(u"activite"_s), QStringList({u"Gonflage"_s, u"Location"_s}));
        QCOMPARE(pickLists.list(u"activite"_s), QStringList());
    }

    void storedActivitiesStayButAreNotLoaded() {
        UserDefaults defaults;
        defaults.store(u"prestations"_s, QJsonArray({u"Gonflage"_s}));
        defaults.store(u"activite"_s, QJsonArray({u"Vente"_s}));
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        QCOMPARE(defaults.list(u"activite"_s), QStringList({u"Vente"_s}));
        QCOMPARE(pickLists.list(u"activite"_s), QStringList());
    }

    void theDiveBagIsLoadedButNotRegistered() {
        UserDefaults defaults;
        defaults.store(u"sac de plongee"_s, QJsonArray({u"Palmes"_s}));
        PickLists pickLists(defaults);
        registerDefaults(defaults, pickLists);
        QCOMPARE(pickLists.list(u"sac de plongee"_s), QStringList({u"Palmes"_s}));
        QVERIFY(defaults.registered(u"sac de plongee"_s).isUndefined());
    }
};

int runRegisteredDefaultsTest(int argc, char** argv) {
    RegisteredDefaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisteredDefaultsTest.moc"
