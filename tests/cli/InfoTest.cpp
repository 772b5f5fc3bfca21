#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class InfoTest : public QObject {
    Q_OBJECT

    static void addFiles() {
        QTest::addColumn<QString>("golden");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QJsonObject>("about");
        const auto row = [](const char* golden, const char* name, const char* json) {
            QTest::newRow(qPrintable(QLatin1String(golden) + u" as "_s + QLatin1String(name)))
                << QString::fromLatin1(golden) << QString::fromLatin1(name)
                << QJsonDocument::fromJson(json).object();
        };
        row("plongee-v27.carnet", "a.carnet",
            R"({"type": "Carnet de plongee", "class": "Plongee", "version": 27, "records": 8, "size": 6874,
                "first": "2003-11-11T10:00:10", "last": "2016-06-07T14:30:00.25"})");
        row("plongee-v20.carnet", "an old one.carnet",
            R"({"type": "Carnet de plongee", "class": "Plongee", "version": 20, "records": 10, "size": 9333,
                "first": "2003-11-11T10:00:10", "last": "2016-06-07T14:30:00.25"})");
        row("plongee-v27-dates.carnet", "a.carnet",
            R"({"type": "Carnet de plongee", "class": "Plongee", "version": 27, "records": 12, "size": 3564,
                "first": "1900-01-01T00:00:00", "last": "2044-02-29T12:00:00.125"})");
        row("plongee-v27-long-text.carnet", "no date.carnet",
            R"({"type": "Carnet de plongee", "class": "Plongee", "version": 27, "records": 1, "size": 34358,
                "first": null, "last": null})");
        row("budget-v1.budget", "a.budget",
            R"({"type": "Budget", "class": "Budget", "version": 1, "records": 2, "size": 605,
                "first": null, "last": null})");
        row("documents-v1.documents", "named wrongly.carnet",
            R"({"type": "Divers documents", "class": "DiversDocs", "version": 1, "records": 2, "size": 569,
                "first": "2005-04-04T03:00:03", "last": "2006-04-04T03:07:03"})");
        row("empty.carnet", "a.carnet",
            R"({"type": "Carnet de plongee", "class": "Plongee", "version": 27, "records": 0, "size": 67,
                "first": null, "last": null})");
        row("empty.carnet", "a.materiel",
            R"({"type": "Materiel", "class": "Materiel", "version": 5, "records": 0, "size": 67,
                "first": null, "last": null})");
        row("empty.carnet", "a.other",
            R"({"type": "Carnet de plongee", "class": "Plongee", "version": 27, "records": 0, "size": 67,
                "first": null, "last": null})");
    }

private Q_SLOTS:
    void tellsWhatAFileIsAsJson_data() { addFiles(); }
    void tellsWhatAFileIsAsJson() {
        QFETCH(QString, golden);
        QFETCH(QString, name);
        const Workshop shop;
        shop.putGolden(golden, name);
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"info"_s, name, u"--json"_s});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        QTEST(outcome.json(), "about");
        QCOMPARE(shop.everything(), before);
    }

    void theTypeIsNeverLocalisedInJson() {
        const Workshop shop;
        shop.putGolden(u"rebreather-v4.rebreather"_s, u"a.rebreather"_s);
        for (const auto& language : {u"fr"_s, u"keys"_s})
            QCOMPARE(shop.run({u"info"_s, u"a.rebreather"_s, u"--json"_s, u"--lang"_s, language})
                         .json()
                         .value("type"_L1),
                     QJsonValue(u"Rebreather"_s));
    }

    void tellsItInLinesToo() {
        const Workshop shop;
        shop.putGolden(u"plongee-v27.carnet"_s, u"a.carnet"_s);
        shop.putGolden(u"empty.carnet"_s, u"b.epaves"_s);
        QCOMPARE(shop.run({u"info"_s, u"a.carnet"_s}).text(),
                 u"type:    Carnet de plongee\n"
                 "class:   Plongee, version 27\n"
                 "records: 8\n"
                 "size:    6874 bytes\n"
                 "from 2003-11-11T10:00:10 to 2016-06-07T14:30:00.25\n"_s);
        QCOMPARE(shop.run({u"info"_s, u"b.epaves"_s}).text(),
                 u"type:    Epaves\n"
                 "class:   Epaves, version 6\n"
                 "records: 0\n"
                 "size:    67 bytes\n"_s);
    }
};

int runInfoTest(int argc, char** argv) {
    InfoTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InfoTest.moc"
