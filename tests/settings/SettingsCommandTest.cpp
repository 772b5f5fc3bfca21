#include <QTest>

#include "SettingsTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

namespace {

const QString blueArchive =
    u"BAtzdHJlYW10eXBlZIHoA4QBQISEhAdOU0NvbG9yAISECE5TT2JqZWN0AIWEAWMBhARmZmZmAAABAYY="_s;

}  // namespace

class SettingsCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesAndReadsValues_data() {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("read");
        QTest::newRow("number") << u"15"_s << u"15"_s;
        QTest::newRow("fraction") << u"0.5"_s << u"0.5"_s;
        QTest::newRow("on") << u"true"_s << u"true"_s;
        QTest::newRow("text in quotes") << u"\"15\""_s << u"\"15\""_s;
        QTest::newRow("text") << u"Île d'Yeu"_s << u"\"Île d'Yeu\""_s;
        QTest::newRow("empty") << u""_s << u"\"\""_s;
        QTest::newRow("list") << u"[\"a\", 2]"_s << u"[\n    \"a\",\n    2\n]"_s;
        QTest::newRow("colour of no colour setting") << u"rgba(0, 0, 1, 1)"_s << u"\"rgba(0, 0, 1, 1)\""_s;
    }
    void writesAndReadsValues() {
        QFETCH(QString, written);
        QFETCH(QString, read);
        const Workshop shop;
        const Outcome stored = shop.run({u"defaults"_s, u"write"_s, u"some key"_s, written});
        QCOMPARE(stored.errors, QString());
        QCOMPARE(stored.status, 0);
        QCOMPARE(stored.text(), QString());
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"some key"_s}).text(), read + u'\n');
    }

    void readsTheEffectiveValue() {
        const Workshop shop;
        const auto read = [&shop](const QString& key) {
            return shop.run({u"defaults"_s, u"read"_s, key}).text();
        };
        QCOMPARE(read(u"display units"_s), u"true\n"_s);
        QCOMPARE(read(u"stop_interval"_s), u"\"3\"\n"_s);
        QCOMPARE(read(u"stop interval"_s), u"null\n"_s);
        QCOMPARE(read(u"depth color"_s), u"{\n    \"undecoded\": \"keyed archive\"\n}\n"_s);
        shop.run({u"defaults"_s, u"write"_s, u"display units"_s, u"0"_s});
        QCOMPARE(read(u"display units"_s), u"0\n"_s);
        const Outcome gone = shop.run({u"defaults"_s, u"delete"_s, u"display units"_s});
        QCOMPARE(gone.status, 0);
        QCOMPARE(read(u"display units"_s), u"true\n"_s);
        QCOMPARE(shop.run({u"defaults"_s, u"delete"_s, u"display units"_s}).status, 0);
    }

    void aColourIsStoredAsItsArchive() {
        const Workshop shop;
        QCOMPARE(shop.run({u"defaults"_s, u"write"_s, u"depth color"_s, u"rgba(0, 0, 1, 1)"_s}).status, 0);
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"depth color"_s}).text(), u"\"rgba(0, 0, 1, 1)\"\n"_s);
        const QJsonObject file =
            QJsonDocument::fromJson(shop.settings().content(u"settings.json"_s)).object();
        QCOMPARE(file[u"depth color"_s], QJsonValue(QJsonObject{{u"archive"_s, blueArchive}}));
        QCOMPARE(shop.run({u"defaults"_s, u"write"_s, u"plot color"_s, u"\"rgba(0.725, 1, 0.674, 0.1)\""_s})
                     .status,
                 0);
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"plot color"_s}).text(),
                 u"\"rgba(0.725, 1, 0.674, 0.1)\"\n"_s);
    }

    void listsEveryKey() {
        const Workshop shop;
        shop.run({u"defaults"_s, u"write"_s, u"fill color"_s, u"red"_s});
        shop.run({u"defaults"_s, u"write"_s, u"own"_s, u"1"_s});
        const QJsonObject all = shop.run({u"defaults"_s, u"list"_s}).json();
        QCOMPARE(all.size(), 21 + 16 + 1);
        QCOMPARE(all[u"fill color"_s], QJsonValue(u"rgba(1, 0, 0, 1)"_s));
        QCOMPARE(all[u"plot color"_s], QJsonValue(QJsonObject{{u"undecoded"_s, u"keyed archive"_s}}));
        QCOMPARE(all[u"own"_s], QJsonValue(1));
        QCOMPARE(all[u"lieux"_s], QJsonValue(QJsonArray()));
    }

    void refusesWrongUsage_data() {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("nothing to do") << QStringList{u"defaults"_s};
        QTest::newRow("unknown verb") << QStringList{u"defaults"_s, u"show"_s, u"x"_s};
        QTest::newRow("no key") << QStringList{u"defaults"_s, u"read"_s};
        QTest::newRow("no value") << QStringList{u"defaults"_s, u"write"_s, u"x"_s};
        QTest::newRow("too much") << QStringList{u"defaults"_s, u"write"_s, u"x"_s, u"1"_s, u"2"_s};
        QTest::newRow("null") << QStringList{u"defaults"_s, u"write"_s, u"x"_s, u"null"_s};
        QTest::newRow("broken JSON") << QStringList{u"defaults"_s, u"write"_s, u"x"_s, u"[1, 2"_s};
        QTest::newRow("no colour") << QStringList{u"defaults"_s, u"write"_s, u"plot color"_s, u"deep"_s};
        QTest::newRow("no list") << QStringList{u"picklist"_s};
        QTest::newRow("unknown list") << QStringList{u"picklist"_s, u"Lieux"_s};
        QTest::newRow("unknown list verb") << QStringList{u"picklist"_s, u"lieux"_s, u"sort"_s};
        QTest::newRow("nothing to add") << QStringList{u"picklist"_s, u"lieux"_s, u"add"_s};
        QTest::newRow("two to add") << QStringList{u"picklist"_s, u"lieux"_s, u"add"_s, u"a"_s, u"b"_s};
        QTest::newRow("nothing to delete") << QStringList{u"picklist"_s, u"lieux"_s, u"delete"_s};
        QTest::newRow("unknown control") << QStringList{u"preferences"_s, u"depthField=1"_s};
        QTest::newRow("no assignment") << QStringList{u"preferences"_s, u"savePrefs"_s};
        QTest::newRow("unknown action")
            << QStringList{u"preferences"_s, u"--press"_s, u"savePrefs"_s, u"--press"_s, u"save"_s};
        QTest::newRow("bad value behind a language")
            << QStringList{u"preferences"_s, u"languagePopUp=2"_s, u"usUnitsSwitch=7"_s};
    }
    void refusesWrongUsage() {
        QFETCH(QStringList, words);
        const Workshop shop;
        const Outcome outcome = shop.run(words);
        QCOMPARE(outcome.status, 2);
        QVERIFY2(outcome.errors.startsWith(u"sargan: "_s), qPrintable(outcome.errors));
        QVERIFY(shop.settings().names().isEmpty());
    }

    void picksListsAreKeptInOrder() {
        const Workshop shop;
        for (const auto& place : {u"alpha"_s, u"Zeta"_s, u"alpha"_s})
            QCOMPARE(shop.run({u"picklist"_s, u"lieux"_s, u"add"_s, place}).status, 0);
        QCOMPARE(shop.run({u"picklist"_s, u"lieux"_s}).text(), u"Zeta\nalpha\nalpha\nEntries: 3\n"_s);
        QCOMPARE(shop.run({u"picklist"_s, u"lieux"_s, u"--json"_s}).output,
                 "[\n    \"Zeta\",\n    \"alpha\",\n    \"alpha\"\n]\n");
        QCOMPARE(shop.run({u"picklist"_s, u"countryCode"_s, u"add"_s, u"FRA"_s}).text(),
                 u"FRA\nEntries: 1\n"_s);
        QCOMPARE(shop.run({u"picklist"_s, u"pays"_s}).text(), u"Entries: 0\n"_s);
    }

    void deletingAsks() {
        const Workshop shop;
        for (const auto& place : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
            shop.run({u"picklist"_s, u"sites"_s, u"add"_s, place});
        const QString asked = u"beep\nquestion: Delete the selected entries?\n"_s;
        const Outcome no = shop.run({u"picklist"_s, u"sites"_s, u"delete"_s, u"a"_s});
        QCOMPARE(no.errors, asked);
        QCOMPARE(no.text(), u"a\nb\nc\nd\nEntries: 4\n"_s);
        QCOMPARE(no.status, 0);
        const Outcome yes =
            shop.run({u"--yes"_s, u"picklist"_s, u"sites"_s, u"delete"_s, u"a"_s, u"d"_s, u"c"_s});
        QCOMPARE(yes.errors, asked);
        QCOMPARE(yes.text(), u"b\nEntries: 1\n"_s);
        const Outcome nobody = shop.run({u"--yes"_s, u"picklist"_s, u"sites"_s, u"delete"_s, u"x"_s});
        QCOMPARE(nobody.errors, QString());
        QCOMPARE(nobody.text(), u"b\nEntries: 1\n"_s);
        QCOMPARE(nobody.status, 0);
    }

    void theActivitiesBeginAsTheServices() {
        const Workshop shop;
        shop.run({u"picklist"_s, u"prestations"_s, u"add"_s, u"Gonflage"_s});
        QCOMPARE(shop.run({u"picklist"_s, u"activite"_s}).text(), u"Gonflage\nEntries: 1\n"_s);
        shop.run({u"picklist"_s, u"activite"_s, u"add"_s, u"Vente"_s});
        QCOMPARE(shop.run({u"picklist"_s, u"activite"_s}).text(), u"Gonflage\nVente\nEntries: 2\n"_s);
        QCOMPARE(shop.run({u"picklist"_s, u"prestations"_s}).text(), u"Gonflage\nEntries: 1\n"_s);
    }

    void preferencesAreSavedWhenPressed() {
        const Workshop shop;
        const Outcome filled = shop.run({u"preferences"_s, u"volumeBlocField=12"_s, u"usUnitsSwitch=1"_s});
        QCOMPARE(filled.errors, QString());
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"tank volume"_s}).text(), u"null\n"_s);
        shop.run({u"preferences"_s, u"volumeBlocField=12"_s, u"foreignWell=rgba(0.725, 1, 0.674, 1)"_s,
                  u"--press"_s, u"savePrefs"_s});
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"tank volume"_s}).text(), u"12\n"_s);
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"foreign color"_s}).text(),
                 u"\"rgba(0.725, 1, 0.674, 1)\"\n"_s);
    }

    void resetIsNotSaved() {
        const Workshop shop;
        const Outcome reset = shop.run({u"preferences"_s, u"--press"_s, u"resetPreferences"_s, u"--json"_s});
        const QJsonObject controls = reset.json()[u"controls"_s].toObject();
        QCOMPARE(controls[u"cellLifeField"_s][u"value"_s], QJsonValue(u"18"_s));
        QCOMPARE(controls[u"foreignWell"_s][u"value"_s], QJsonValue(u"rgba(0.725, 1, 0.674, 1)"_s));
        QCOMPARE(controls[u"scaphColumnSwitch"_s][u"value"_s], QJsonValue(0));
        QCOMPARE(controls[u"temperatureCaption"_s][u"text"_s], QJsonValue(u"°C"_s));
        QVERIFY(shop.settings().names().isEmpty());
    }

    void postsArePrintedInOrder() {
        const Workshop shop;
        const Outcome all = shop.run({u"preferences"_s, u"--press"_s, u"updateInterface"_s, u"--press"_s,
                                      u"updateColumnsTableViewNotification"_s});
        QCOMPARE(all.errors,
                 u"post updateTableView\npost profile\npost updateEditDive\npost updateDeco\n"
                 "post updateRebreather\npost updateColumnsTableView\n"_s);
        QCOMPARE(all.status, 0);
        QVERIFY(all.text().startsWith(u"volumeBlocField: \n"_s));
        QVERIFY(all.text().contains(u"\nprofondeurWell: rgba(0, 0, 1, 1)\n"_s));
    }

    void aChosenLanguageHolds() {
        const Workshop shop;
        shop.run({u"preferences"_s, u"languagePopUp=2"_s});
        QProcess core;
        core.start(QStringLiteral(SARGAN_CORE_PROGRAM),
                   {u"--settings"_s, shop.settings().path(), u"picklist"_s, u"lieux"_s});
        QVERIFY(core.waitForFinished());
        QCOMPARE(QString::fromUtf8(core.readAllStandardOutput()), u"Éléments : 0\n"_s);
    }

    void aDamagedStoreIsSetAside() {
        const Workshop shop;
        shop.settings().put(u"settings.json"_s, "{\"tank volume\": 12");
        const Outcome outcome = shop.run({u"defaults"_s, u"read"_s, u"display units"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.text(), u"true\n"_s);
        QVERIFY2(outcome.errors.contains(u"set aside"_s), qPrintable(outcome.errors));
        QCOMPARE(shop.settings().content(u"settings.json.damaged"_s), "{\"tank volume\": 12");
        QCOMPARE(shop.run({u"defaults"_s, u"write"_s, u"tank volume"_s, u"10"_s}).errors, QString());
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"tank volume"_s}).text(), u"10\n"_s);
    }

    void aStoreThatCannotBeWrittenIsTold() {
        const Workshop shop;
        // What stands in the file's place can be neither read nor replaced.
        QVERIFY(QDir(shop.settings().path()).mkdir(u"settings.json"_s));
        const Outcome outcome = shop.run({u"defaults"_s, u"write"_s, u"tank volume"_s, u"10"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(u"settings.json"_s), qPrintable(outcome.errors));
        QCOMPARE(shop.run({u"defaults"_s, u"read"_s, u"display units"_s}).text(), u"true\n"_s);
    }
};

int runSettingsCommandTest(int argc, char** argv) {
    SettingsCommandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SettingsCommandTest.moc"
