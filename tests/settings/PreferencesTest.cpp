#include "settings/Preferences.h"

#include <QTest>

#include "SettingsBench.h"
#include "SettingsTests.h"
#include "platform/form/ColorText.h"
#include "settings/Colors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QString shown(const Preferences& window, const QString& control) {
    const Form& form = window.form();
    const int index = form.find(control);
    switch (form.spec(index).kind) {
        case ControlKind::Color:
            return colorText(componentsOf(form.state(index).color));
        case ControlKind::Switch:
        case ControlKind::PopUp:
            return QString::number(form.tag(index));
        default:
            return form.text(index);
    }
}

/// Every control with another value than Reset gives.
void spoil(Form& form) {
    for (int control = 0; control < form.count(); ++control) {
        const ControlKind kind = form.spec(control).kind;
        if (kind == ControlKind::Color)
            form.setColor(control, QColor(1, 2, 3));
        else if (kind == ControlKind::Switch || kind == ControlKind::PopUp)
            form.setTag(control, form.tag(control) == 0 ? 1 : 2);
        else
            form.setText(control, u"spoiled"_s);
    }
}

}  // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void resetSetsTheControls_data() {
        QTest::addColumn<QString>("value");
        const auto row = [](const char* control, const QString& value) { QTest::newRow(control) << value; };
        const QString blue = u"rgba(0, 0, 1, 1)"_s;
        row("volumeBlocField", u"15"_s);
        row("pressionBlocField", u"230"_s);
        row("defaultWeightField", u""_s);
        row("usUnitsSwitch", u"0"_s);
        row("displayUnitsSwitch", u"1"_s);
        row("tableColorSwitch", u"1"_s);
        row("itemColorSwitch", u"0"_s);
        row("textInColorField", u""_s);
        row("themeInColorPopUp", u"0"_s);
        row("lowTemperatureSwitch", u"0"_s);
        row("tempValueField", u""_s);
        row("lowTemperatureWell", blue);
        row("profondeurWell", u"rgba(0.50196, 0, 0.50196, 1)"_s);
        row("dureeWell", u"rgba(0, 0, 0.6, 1)"_s);
        row("mixInColorSwitch", u"1"_s);
        row("foreignInColorSwitch", u"1"_s);
        row("foreignWell", u"rgba(0.725, 1, 0.674, 1)"_s);
        row("countryCodeField", u"FRA"_s);
        for (const char* column : {"numero", "date", "lieu", "site", "heure", "profondeur", "temps",
                                   "temperature", "deco", "coeff", "visibilite", "inoubliable"})
            QTest::newRow(qPrintable(QLatin1String(column) + u"ColumnSwitch"_s)) << u"1"_s;
        row("gazColumnSwitch", u"0"_s);
        row("scaphColumnSwitch", u"0"_s);
        row("plotColorWell", u"rgba(1, 0.50196, 0, 1)"_s);
        row("backgroundColorWell", u"rgba(0.855, 0.49, 0.149, 1)"_s);
        row("alphaBackgroundField", u"0.2"_s);
        row("fillSwitch", u"1"_s);
        row("fillColorWell", u"rgba(0.1, 0.1, 1, 1)"_s);
        row("alphaFillField", u"0.4"_s);
        row("gradientYesSwitch", u"1"_s);
        row("gradientLinesColorWell", u"rgba(0.702, 0.702, 0.702, 1)"_s);
        row("xMinorTicksSwitch", u"1"_s);
        row("yMinorTicksSwitch", u"1"_s);
        row("dashedLinesSwitch", u"1"_s);
        row("ppO2Switch", u"0"_s);
        row("stopIntervalField", u"3"_s);
        row("lowGFField", u"0"_s);
        row("highGFField", u"0"_s);
        row("cellLifeField", u"18"_s);
        row("sodaLimeField", u""_s);
    }
    void resetSetsTheControls() {
        QFETCH(QString, value);
        SettingsBench bench;
        Preferences window(bench.desk);
        spoil(window.form());
        window.form().press(u"resetPreferences"_s);
        QCOMPARE(shown(window, QString::fromUtf8(QTest::currentDataTag())), value);
    }

    void resetLeavesTheStoreAlone() {
        SettingsBench bench;
        bench.defaults.store(u"tank volume"_s, 12);
        const quint64 before = bench.defaults.version();
        {
            Preferences window(bench.desk);
            window.resetPreferences();
            QCOMPARE(window.form().text(ControlName{"volumeBlocField"}), u"15"_s);
        }
        QCOMPARE(bench.defaults.version(), before);
        QCOMPARE(Preferences(bench.desk).form().text(ControlName{"volumeBlocField"}), u"12"_s);
    }

    void resetLeavesLanguageAndAppearance() {
        SettingsBench bench;
        bench.defaults.store(u"language"_s, u"fr"_s);
        bench.defaults.store(u"appearance"_s, u"dark"_s);
        Preferences window(bench.desk);
        window.resetPreferences();
        QCOMPARE(window.form().tag(ControlName{"languagePopUp"}), 2);
        QCOMPARE(window.form().tag(ControlName{"appearancePopUp"}), 2);
    }

    void opensWithWhatIsStored_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("stored");
        QTest::addColumn<QString>("value");
        QTest::newRow("volumeBlocField") << u"tank volume"_s << QJsonValue(10) << u"10"_s;
        QTest::newRow("pressionBlocField") << u"tank pressure"_s << QJsonValue(u"2x"_s) << u"2x"_s;
        QTest::newRow("usUnitsSwitch") << u"us units"_s << QJsonValue(1) << u"1"_s;
        QTest::newRow("displayUnitsSwitch") << u"display units"_s << QJsonValue(0) << u"0"_s;
        QTest::newRow("themeInColorPopUp") << u"coloured theme"_s << QJsonValue(2) << u"2"_s;
        QTest::newRow("profondeurWell")
            << u"depth color"_s << colorValue(QColor(255, 0, 0)) << u"rgba(1, 0, 0, 1)"_s;
        QTest::newRow("gazColumnSwitch") << u"column gaz"_s << QJsonValue(1) << u"1"_s;
        QTest::newRow("siteColumnSwitch") << u"column site"_s << QJsonValue(false) << u"0"_s;
        QTest::newRow("cellLifeField") << u"cell life"_s << QJsonValue(24) << u"24"_s;
        QTest::newRow("languagePopUp") << u"language"_s << QJsonValue(u"en"_s) << u"1"_s;
    }
    void opensWithWhatIsStored() {
        QFETCH(QString, key);
        QFETCH(QJsonValue, stored);
        SettingsBench bench;
        bench.defaults.store(key, stored);
        const Preferences window(bench.desk);
        QTEST(shown(window, QString::fromUtf8(QTest::currentDataTag())), "value");
    }

    void opensOnAFreshStoreWithTheRegisteredValues_data() {
        QTest::addColumn<QString>("value");
        const auto row = [](const char* control, const QString& value) { QTest::newRow(control) << value; };
        row("volumeBlocField", u""_s);
        row("displayUnitsSwitch", u"1"_s);
        row("tableColorSwitch", u"1"_s);
        row("mixInColorSwitch", u"0"_s);
        row("themeInColorPopUp", u"0"_s);
        row("alphaFillField", u"0.5"_s);
        row("stopIntervalField", u""_s);
        row("profondeurWell", u"rgba(0, 0, 1, 1)"_s);
        row("fillColorWell", u"rgba(1, 0, 0, 1)"_s);
        row("numeroColumnSwitch", u"1"_s);
        row("gazColumnSwitch", u"0"_s);
        row("scaphColumnSwitch", u"0"_s);
    }
    void opensOnAFreshStoreWithTheRegisteredValues() {
        SettingsBench bench;
        const Preferences window(bench.desk);
        QTEST(shown(window, QString::fromUtf8(QTest::currentDataTag())), "value");
        QVERIFY(!window.isEdited());
    }

    void awakeningSetsTheColumnsAlone() {
        SettingsBench bench;
        Preferences window(bench.desk);
        spoil(window.form());
        bench.defaults.store(u"column date"_s, 1);
        bench.defaults.store(u"column lieu"_s, 0);
        window.awakeFromNib();
        QCOMPARE(shown(window, u"dateColumnSwitch"_s), u"1"_s);
        QCOMPARE(shown(window, u"lieuColumnSwitch"_s), u"0"_s);
        QCOMPARE(shown(window, u"volumeBlocField"_s), u"spoiled"_s);
        QCOMPARE(shown(window, u"ppO2Switch"_s), u"1"_s);
    }

    void updatingShowsSevenSettingsAndTheUnitOfTemperatures() {
        SettingsBench bench;
        Preferences window(bench.desk);
        QCOMPARE(shown(window, u"temperatureCaption"_s), u"Degree Celsius"_s);
        spoil(window.form());
        int value = 31;
        for (const char* key :
             {"default weight", "stop interval", "low GF", "high GF", "soda lime", "cell life"})
            bench.defaults.store(QLatin1String(key), value++);
        bench.defaults.store(u"us units"_s, 1);
        bench.defaults.store(u"tank volume"_s, 99);
        window.updateUI();
        QStringList texts;
        for (const char* control : {"defaultWeightField", "stopIntervalField", "lowGFField", "highGFField",
                                    "sodaLimeField", "cellLifeField", "usUnitsSwitch", "temperatureCaption"})
            texts << shown(window, QLatin1String(control));
        QCOMPARE(texts, QStringList({u"31"_s, u"32"_s, u"33"_s, u"34"_s, u"35"_s, u"36"_s, u"1"_s,
                                     u"Degree Farenheit"_s}));
        QCOMPARE(shown(window, u"volumeBlocField"_s), u"spoiled"_s);
    }

    void knowsWhetherThereIsSomethingToSave() {
        SettingsBench bench;
        Preferences window(bench.desk);
        QVERIFY(!window.isEdited());
        window.form().setText(ControlName{"volumeBlocField"}, u"12.0"_s);
        QVERIFY(window.isEdited());
        window.savePrefs();
        QVERIFY(!window.isEdited());
        window.form().setColor(window.form().find(u"foreignWell"), QColor(9, 9, 9));
        QVERIFY(window.isEdited());
        window.showSettings();
        QVERIFY(!window.isEdited());
    }

    void aChosenLanguageIsStoredAndToldAtOnce() {
        SettingsBench bench;
        Preferences window(bench.desk);
        QStringList posts;
        bench.notifications.onPost = [&posts](const QString& name) { posts << name; };
        window.form().fill(window.form().find(u"languagePopUp"), u"2"_s);
        window.form().fill(window.form().find(u"appearancePopUp"), u"1"_s);
        QCOMPARE(posts, QStringList({u"updateLanguage"_s, u"updateAppearance"_s}));
        QCOMPARE(bench.defaults.text(u"language"_s), u"fr"_s);
        QCOMPARE(bench.defaults.text(u"appearance"_s), u"light"_s);
    }
};

int runPreferencesTest(int argc, char** argv) {
    PreferencesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PreferencesTest.moc"
