#include <QTest>

#include "SettingsBench.h"
#include "SettingsTests.h"
#include "settings/Colors.h"
#include "settings/Preferences.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The names that an action posts, in order.
QStringList postsOf(SettingsBench& bench, Preferences& window, const QString& action) {
    QStringList posts;
    bench.notifications.onPost = [&posts](const QString& name) { posts << name; };
    window.form().press(action);
    bench.notifications.onPost = nullptr;
    return posts;
}

}  // namespace

class PreferencesSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsSavedUnderItsKey_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("filled");
        QTest::addColumn<QJsonValue>("stored");
        const auto number = [](const char* control, const char* key) {
            QTest::newRow(control) << QString::fromLatin1(key) << u"7"_s << QJsonValue(7);
        };
        const auto text = [](const char* control, const char* key) {
            QTest::newRow(control) << QString::fromLatin1(key) << u"7"_s << QJsonValue(u"7"_s);
        };
        const auto onOff = [](const char* control, const char* key) {
            QTest::newRow(control) << QString::fromLatin1(key) << u"1"_s << QJsonValue(1);
        };
        const auto color = [](const char* control, const char* key) {
            QTest::newRow(control) << QString::fromLatin1(key) << u"rgba(0, 1, 0, 0.5)"_s
                                   << colorValue(ColorComponents{0, 1, 0, 0.5F});
        };
        number("volumeBlocField", "tank volume");
        number("pressionBlocField", "tank pressure");
        number("defaultWeightField", "default weight");
        onOff("usUnitsSwitch", "us units");
        onOff("displayUnitsSwitch", "display units");
        onOff("tableColorSwitch", "depth time in color");
        color("profondeurWell", "depth color");
        color("dureeWell", "time color");
        onOff("itemColorSwitch", "color item");
        text("textInColorField", "coloured text");
        QTest::newRow("themeInColorPopUp") << u"coloured theme"_s << u"2"_s << QJsonValue(2);
        onOff("lowTemperatureSwitch", "low temperature in color");
        text("tempValueField", "low temperature value");
        color("lowTemperatureWell", "low temperature color");
        onOff("mixInColorSwitch", "mix in color");
        onOff("foreignInColorSwitch", "foreign in color");
        color("foreignWell", "foreign color");
        text("countryCodeField", "country code");
        onOff("numeroColumnSwitch", "column numero");
        onOff("dateColumnSwitch", "column date");
        onOff("lieuColumnSwitch", "column lieu");
        onOff("siteColumnSwitch", "column site");
        onOff("heureColumnSwitch", "column heure");
        onOff("profondeurColumnSwitch", "column profondeur");
        onOff("tempsColumnSwitch", "column temps");
        onOff("temperatureColumnSwitch", "column temp eau");
        onOff("decoColumnSwitch", "column deco");
        onOff("coeffColumnSwitch", "column coeff");
        onOff("visibiliteColumnSwitch", "column visibilite");
        onOff("inoubliableColumnSwitch", "column inoubliable");
        onOff("gazColumnSwitch", "column gaz");
        onOff("scaphColumnSwitch", "column scaph");
        color("plotColorWell", "plot color");
        color("backgroundColorWell", "background color");
        number("alphaBackgroundField", "alpha background color");
        onOff("fillSwitch", "fill plot");
        color("fillColorWell", "fill color");
        number("alphaFillField", "alpha fill color");
        onOff("gradientYesSwitch", "gradient yes");
        color("gradientLinesColorWell", "gradient lines color");
        onOff("xMinorTicksSwitch", "x minor ticks");
        onOff("yMinorTicksSwitch", "y minor ticks");
        onOff("dashedLinesSwitch", "dashed lines");
        onOff("ppO2Switch", "ppO2 line");
        number("stopIntervalField", "stop interval");
        number("lowGFField", "low GF");
        number("highGFField", "high GF");
        number("sodaLimeField", "soda lime");
        number("cellLifeField", "cell life");
    }
    void everyControlIsSavedUnderItsKey() {
        QFETCH(QString, key);
        QFETCH(QString, filled);
        SettingsBench bench;
        Preferences window(bench.desk);
        window.form().fill(window.form().find(QString::fromUtf8(QTest::currentDataTag())), filled);
        QVERIFY(bench.defaults.stored(key).isUndefined());
        window.form().press(u"savePrefs"_s);
        QTEST(bench.defaults.stored(key), "stored");
    }

    void savingStoresEveryKeyOfTheTableAndNoOther() {
        SettingsBench bench;
        const QStringList registered = bench.defaults.keys();
        Preferences window(bench.desk);
        window.savePrefs();
        int stored = 0;
        const QStringList keys = bench.defaults.keys();
        for (const QString& key : keys) stored += bench.defaults.stored(key).isUndefined() ? 0 : 1;
        QCOMPARE(stored, 49);
        for (const char* key :
             {"stop_interval", "ASC color", "SLOW color", "pense bete", "column_epave", "language"})
            QVERIFY2(bench.defaults.stored(QLatin1String(key)).isUndefined(), key);
    }

    void savingTellsNobody() {
        SettingsBench bench;
        Preferences window(bench.desk);
        QCOMPARE(postsOf(bench, window, u"savePrefs"_s), QStringList());
        QCOMPARE(postsOf(bench, window, u"resetPreferences"_s), QStringList());
    }

    void fieldsAreStoredAsWhatTheyHold_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QJsonValue>("stored");
        QTest::newRow("whole") << u"15"_s << QJsonValue(15);
        QTest::newRow("fraction") << u"0.25"_s << QJsonValue(0.25);
        QTest::newRow("negative") << u"-3"_s << QJsonValue(-3);
        QTest::newRow("comma") << u"12,5"_s << QJsonValue(u"12,5"_s);
        QTest::newRow("empty") << u""_s << QJsonValue(u""_s);
        QTest::newRow("words") << u"two tens"_s << QJsonValue(u"two tens"_s);
        QTest::newRow("exponent") << u"1e3"_s << QJsonValue(u"1e3"_s);
        QTest::newRow("more digits than a real holds")
            << u"12345678901234567890"_s << QJsonValue(u"12345678901234567890"_s);
    }
    void fieldsAreStoredAsWhatTheyHold() {
        QFETCH(QString, typed);
        SettingsBench bench;
        Preferences window(bench.desk);
        window.form().setText(ControlName{"volumeBlocField"}, typed);
        window.savePrefs();
        QTEST(bench.defaults.stored(u"tank volume"_s), "stored");
        QCOMPARE(Preferences(bench.desk).form().text(ControlName{"volumeBlocField"}), typed);
    }

    void registeredColoursTakeEffectOnceSaved() {
        SettingsBench bench;
        QCOMPARE(storedColor(bench.defaults, u"fill color"_s, Qt::magenta), QColor(Qt::magenta));
        Preferences window(bench.desk);
        window.savePrefs();
        QCOMPARE(storedColor(bench.defaults, u"fill color"_s, Qt::magenta), QColor(255, 0, 0));
    }

    void everyOperationPostsItsNotification_data() {
        QTest::addColumn<QStringList>("posts");
        const auto row = [](const char* action, const QStringList& posts) { QTest::newRow(action) << posts; };
        row("updateTableViewNotification", {u"updateTableView"_s});
        row("updateColumnsTableViewNotification", {u"updateColumnsTableView"_s});
        row("updateEditDiveNotification", {u"updateEditDive"_s});
        row("updateProfileNotification", {u"profile"_s});
        row("updateDecoNotification", {u"updateDeco"_s});
        row("updateRebreatherNotification", {u"updateRebreather"_s});
        row("updateInterface", {u"updateTableView"_s, u"profile"_s, u"updateEditDive"_s, u"updateDeco"_s,
                                u"updateRebreather"_s});
        row("updateUI", {});
    }
    void everyOperationPostsItsNotification() {
        SettingsBench bench;
        Preferences window(bench.desk);
        QTEST(postsOf(bench, window, QString::fromUtf8(QTest::currentDataTag())), "posts");
    }

    void theSenderGoesWithTheNotification() {
        SettingsBench bench;
        Preferences window(bench.desk);
        const void* heard = nullptr;
        const auto observation =
            bench.notifications.observe(u"updateDeco"_s, [&heard](const void* sender) { heard = sender; });
        window.updateDecoNotification(&bench);
        QCOMPARE(heard, static_cast<const void*>(&bench));
    }

    void aPostingOperationShowsTheStoredValuesAfterwards() {
        SettingsBench bench;
        bench.defaults.store(u"cell life"_s, 18);
        Preferences window(bench.desk);
        window.form().setText(ControlName{"cellLifeField"}, u"24"_s);
        window.updateTableViewNotification(&window);
        QCOMPARE(window.form().text(ControlName{"cellLifeField"}), u"18"_s);
    }

    void decoIsToldBeforeItIsStored() {
        SettingsBench bench;
        bench.defaults.store(u"stop interval"_s, 3);
        Preferences window(bench.desk);
        QString seen;
        const auto observation = bench.notifications.observe(
            u"updateDeco"_s, [&](const void*) { seen = bench.defaults.text(u"stop interval"_s); });
        for (const auto& [control, value] :
             {std::pair("stopIntervalField", u"5"_s), std::pair("lowGFField", u"30"_s),
              std::pair("highGFField", u"85"_s), std::pair("defaultWeightField", u"6"_s),
              std::pair("cellLifeField", u"12"_s)})
            window.form().setText(ControlName{control}, value);
        window.updateDecoNotification(&window);
        QCOMPARE(seen, u"3"_s);
        QCOMPARE(bench.defaults.stored(u"stop interval"_s), QJsonValue(5));
        QCOMPARE(bench.defaults.stored(u"low GF"_s), QJsonValue(30));
        QCOMPARE(bench.defaults.stored(u"high GF"_s), QJsonValue(85));
        QCOMPARE(bench.defaults.stored(u"default weight"_s), QJsonValue(6));
        QVERIFY(bench.defaults.stored(u"cell life"_s).isUndefined());
        QCOMPARE(window.form().text(ControlName{"stopIntervalField"}), u"5"_s);
    }

    void theRebreatherIsToldBeforeItIsStored() {
        SettingsBench bench;
        Preferences window(bench.desk);
        QJsonValue seen = 0;
        const auto observation = bench.notifications.observe(
            u"updateRebreather"_s, [&](const void*) { seen = bench.defaults.value(u"cell life"_s); });
        window.form().setText(ControlName{"cellLifeField"}, u"12"_s);
        window.form().setText(ControlName{"sodaLimeField"}, u"2.5"_s);
        window.updateRebreatherNotification(&window);
        QVERIFY(seen.isUndefined());
        QCOMPARE(bench.defaults.stored(u"cell life"_s), QJsonValue(12));
        QCOMPARE(bench.defaults.stored(u"soda lime"_s), QJsonValue(2.5));
        QVERIFY(bench.defaults.stored(u"stop interval"_s).isUndefined());
    }

    void theOldSpellingOfTheStopIntervalIsReadByNobody() {
        SettingsBench bench;
        QCOMPARE(bench.defaults.text(u"stop_interval"_s), u"3"_s);
        Preferences window(bench.desk);
        QCOMPARE(window.form().text(ControlName{"stopIntervalField"}), u""_s);
        window.form().setText(ControlName{"stopIntervalField"}, u"6"_s);
        window.savePrefs();
        QCOMPARE(bench.defaults.text(u"stop_interval"_s), u"3"_s);
    }

    void panesAreWhatTheToolbarOffers() {
        QStringList panes;
        for (const LayoutPane& pane : preferencesLayout().panes)
            panes << QStringLiteral("%1 %2 %3")
                         .arg(QLatin1String(pane.id), QLatin1String(pane.label.key),
                              QLatin1String(pane.icon));
        QCOMPARE(panes, QStringList({u"general General GeneralPreferences"_s, u"carnet Logbook carnet"_s,
                                     u"affichage Display colonnes"_s, u"profil Profile profil"_s,
                                     u"deco Deco deco"_s, u"rebreather Rebreather rebreather"_s}));
    }

    void everyControlStandsOnAPane() {
        SettingsBench bench;
        const Preferences window(bench.desk);
        QStringList placed;
        for (const LayoutPane& pane : preferencesLayout().panes)
            for (const LayoutSection& section : pane.sections)
                for (const LayoutRow& row : section.rows)
                    for (const LayoutItem& item : row.items) placed << QLatin1String(item.control);
        placed.sort();
        QStringList all;
        for (int control = 0; control < window.form().count(); ++control)
            all << QLatin1String(window.form().spec(control).name);
        all.sort();
        QCOMPARE(placed, all);
    }
};

int runPreferencesSavingTest(int argc, char** argv) {
    PreferencesSavingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PreferencesSavingTest.moc"
