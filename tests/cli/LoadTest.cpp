#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray twoDives = R"({"type": "Carnet de plongee", "class": "Plongee", "version": 20, "records": [
    {"noPlongee": 1, "bateau": "Suroît", "profondeur": 12.3, "PRESS_Data": [200, 180.5], "ASC_Flag": [0, 1]},
    {"noPlongee": 2, "notes": "", "date": "2016-06-07T14:30:00.25", "etranger": 5, "volPony1": 12}]})";

}  // namespace

class LoadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aValueThatDoesNotFitIsNamedByItsPath_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("path");
        const auto document = [](const char* name, const QByteArray& json, const char* path) {
            QTest::newRow(name) << json << QString::fromLatin1(path);
        };
        document("a field that documents lack", R"({"type": "Budget", "kind": 1, "records": []})", "kind");
        document("no type", R"({"records": []})", "type");
        document("an unknown type", R"({"type": "Carnet", "records": []})", "type");
        document("a number for the type", R"({"type": 1, "records": []})", "type");
        document("a class that contradicts the type",
                 R"({"type": "Epaves", "class": "Plongee", "records": []})", "class");
        document("null for the class", R"({"type": "Epaves", "class": null, "records": []})", "class");
        document("a text for the version", R"({"type": "Epaves", "version": "6", "records": []})", "version");
        document("no records", R"({"type": "Epaves"})", "records");
        document("an object for the records", R"({"type": "Epaves", "records": {}})", "records");

        const auto row = [](const char* name, const char* secondDive, const char* path) {
            const QByteArray json = R"({"type": "Carnet de plongee", "records": [{"lieu": "Brest"}, )" +
                                    QByteArray(secondDive) + "]}";
            QTest::newRow(name) << json << QString::fromLatin1(path);
        };
        row("a number for a dive", "7", "records[1]");
        row("null for a dive", "null", "records[1]");
        row("a field that dives lack", R"({"lieux": "Brest"})", "records[1].lieux");
        row("a field in other letters", R"({"Lieu": "Brest"})", "records[1].Lieu");
        row("a number for a text", R"({"lieu": 7})", "records[1].lieu");
        row("a list for a text", R"({"lieu": ["Brest"]})", "records[1].lieu");
        row("a text for a whole number", R"({"temps": "45"})", "records[1].temps");
        row("null for a whole number", R"({"temps": null})", "records[1].temps");
        row("a truth for a whole number", R"({"nocturne": true})", "records[1].nocturne");
        row("a fraction for a whole number", R"({"temps": 45.5})", "records[1].temps");
        row("one more than 32 bits hold", R"({"temps": 2147483648})", "records[1].temps");
        row("one less than 32 bits hold", R"({"temps": -2147483649})", "records[1].temps");
        row("a text for a number", R"({"profondeur": "12"})", "records[1].profondeur");
        row("more than a float holds", R"({"profondeur": 1e39})", "records[1].profondeur");
        row("no date", R"({"date": "yesterday"})", "records[1].date");
        row("a day that February lacks", R"({"date": "2015-02-29T00:00:00"})", "records[1].date");
        row("a number for a date", R"({"date": 0})", "records[1].date");
        row("a number for a profile", R"({"profilProfondeur": 3})", "records[1].profilProfondeur");
        row("a text in a profile", R"({"PRESS_Data": [200, "x"]})", "records[1].PRESS_Data[1]");
        row("null in a profile", R"({"ASC_Flag": [null]})", "records[1].ASC_Flag[0]");
        row("a wrong value that is not archived", R"({"etranger": "x"})", "records[1].etranger");
    }
    void aValueThatDoesNotFitIsNamedByItsPath() {
        QFETCH(QByteArray, json);
        QFETCH(QString, path);
        const Workshop shop;
        shop.put(u"in.json"_s, json);
        shop.put(u"old.carnet"_s, "as it was");
        const auto before = shop.everything();
        for (const auto& output : {u"new.carnet"_s, u"old.carnet"_s, u"-"_s}) {
            const Outcome outcome = shop.run({u"load"_s, u"in.json"_s, u"-o"_s, output});
            QCOMPARE(outcome.status, 1);
            QCOMPARE(outcome.output, QByteArray());
            QVERIFY2(isOneSentence(outcome.errors), qPrintable(outcome.errors));
            QVERIFY2(outcome.errors.startsWith(u"sargan: in.json: "_s + path + u": "_s),
                     qPrintable(outcome.errors));
            QCOMPARE(shop.everything(), before);
        }
    }

    void whatIsNoJsonObjectIsRefused_data() {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("an array") << QByteArray("[]");
        QTest::newRow("cut off") << twoDives.left(twoDives.size() / 2);
        QTest::newRow("something behind it") << twoDives + "x";
        QTest::newRow("an archive") << golden::bytes(u"plongee-v27.carnet"_s);
        QTest::newRow("nested too deeply") << QByteArray(100000, '[');
    }
    void whatIsNoJsonObjectIsRefused() {
        QFETCH(QByteArray, json);
        const Workshop shop;
        const QString name = u"100%1 %2.json"_s;
        shop.put(name, json);
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"load"_s, name, u"-o"_s, u"out.carnet"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains(name), qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }

    void missingFieldsAreZeroOrAbsentAndOthersDropped() {
        const Workshop shop;
        shop.put(u"in.json"_s, twoDives);
        QCOMPARE(shop.run({u"load"_s, u"in.json"_s, u"-o"_s, u"a.carnet"_s}).status, 0);
        const QJsonObject dump = shop.run({u"dump"_s, u"a.carnet"_s}).json();
        QCOMPARE(dump.value("version"_L1), QJsonValue(27));
        const QJsonArray dives = dump.value("records"_L1).toArray();
        QCOMPARE(dives.size(), 2);
        QCOMPARE(dives[0]["bateau"_L1], QJsonValue(u"Suroît"_s));
        QCOMPARE(dives[0]["profondeur"_L1], QJsonValue(12.3));
        QCOMPARE(dives[0]["PRESS_Data"_L1], QJsonValue(QJsonArray{200, 180.5}));
        QCOMPARE(dives[0]["ASC_Flag"_L1], QJsonValue(QJsonArray{0, 1}));
        QCOMPARE(dives[0]["SLOW_Flag"_L1], QJsonValue(QJsonValue::Null));
        QCOMPARE(dives[0]["date"_L1], QJsonValue(QJsonValue::Null));
        QCOMPARE(dives[0]["o2Mix"_L1], QJsonValue(0));
        QCOMPARE(dives[1]["bateau"_L1], QJsonValue(QJsonValue::Null));
        QCOMPARE(dives[1]["notes"_L1], QJsonValue(u""_s));
        QCOMPARE(dives[1]["date"_L1], QJsonValue(u"2016-06-07T14:30:00.25"_s));
        QCOMPARE(dives[1]["etranger"_L1], QJsonValue(0));
        QCOMPARE(dives[1]["volPony1"_L1], QJsonValue(0));
        QCOMPARE(dives[1]["volBailout1"_L1], QJsonValue(0));
    }

    void numbersComeBackAsTheyWere_data() {
        QTest::addColumn<QJsonValue>("number");
        for (const double number : {0.0, 0.1, 12.3, -40.7, 16777216.0, 3.4028235e38, 1.1754944e-38})
            QTest::newRow(qPrintable(QString::number(number))) << QJsonValue(number);
        for (const auto& word : {u"inf"_s, u"-inf"_s, u"nan"_s})
            QTest::newRow(qPrintable(word)) << QJsonValue(word);
    }
    void numbersComeBackAsTheyWere() {
        QFETCH(QJsonValue, number);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {QJsonObject{{u"profondeur"_s, number}}});
        QCOMPARE(shop.record(u"a.carnet"_s, 0).value("profondeur"_L1), number);
    }

    void aDashIsStandardOutput() {
        const Workshop shop;
        shop.put(u"in.json"_s, twoDives);
        QCOMPARE(shop.run({u"load"_s, u"in.json"_s, u"-o"_s, u"a.carnet"_s}).output, QByteArray());
        const Outcome outcome = shop.run({u"load"_s, u"-o"_s, u"-"_s, u"in.json"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, shop.folder().content(u"a.carnet"_s));
        QCOMPARE(shop.folder().names(), QStringList({u"a.carnet"_s, u"in.json"_s}));
        QCOMPARE(shop.run({u"load"_s, u"in.json"_s, u"-o"_s, u"-"_s}, u"/dev/full"_s).status, 1);
    }

    void theOutputIsReplaced() {
        const Workshop shop;
        shop.put(u"in.json"_s, twoDives);
        shop.put(u"a.carnet"_s, "anything else");
        const Outcome outcome = shop.run({u"load"_s, u"in.json"_s, u"-o"_s, u"a.carnet"_s});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(shop.records(u"a.carnet"_s).size(), 2);
    }

    void anOutputThatCannotBeIsAFailure_data() {
        QTest::addColumn<QString>("output");
        QTest::newRow("a folder") << u"folder"_s;
        QTest::newRow("in no folder") << u"nowhere/b.carnet"_s;
        QTest::newRow("below a file") << u"in.json/b.carnet"_s;
    }
    void anOutputThatCannotBeIsAFailure() {
        QFETCH(QString, output);
        const Workshop shop;
        shop.put(u"in.json"_s, twoDives);
        QVERIFY(QDir(shop.folder().path()).mkdir(u"folder"_s));
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"load"_s, u"in.json"_s, u"-o"_s, output});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains(output.section(u'/', -1)),
                 qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }
};

int runLoadTest(int argc, char** argv) {
    LoadTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LoadTest.moc"
