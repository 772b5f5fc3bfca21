#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

/// What would be a beep, an alert or a question on the desktop, on standard error.
class PromptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aQuestionAnsweredNoChangesNothing_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("errors");
        const QString english = u"beep\nquestion: Erase the selected dives?\n"_s;
        QTest::newRow("--no") << QStringList(u"--no"_s) << english;
        QTest::newRow("neither") << QStringList() << english;
        QTest::newRow("French") << QStringList({u"--lang"_s, u"fr"_s})
                                << u"beep\nquestion: Effacer les plongées sélectionnées ?\n"_s;
        QTest::newRow("keys") << QStringList({u"--lang"_s, u"keys"_s}) << u"beep\nquestion: Erase dive\n"_s;
    }
    void aQuestionAnsweredNoChangesNothing() {
        QFETCH(QStringList, words);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}}), dive({{u"noPlongee"_s, 2}})});
        const auto before = shop.everything();
        const Outcome outcome = shop.run(QStringList{u"delete"_s, u"a.carnet"_s, u"--row"_s, u"0"_s} + words);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QByteArray());
        QTEST(outcome.errors, "errors");
        QCOMPARE(shop.everything(), before);
    }

    void alertsComeInTheOrderOfTheChecks_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("keys");
        const QString pressure = u"Pressure in out"_s;
        const QString helium = u"Helium percent"_s;
        const auto row = [](const QString& line, const QStringList& keys) {
            QTest::newRow(qPrintable(line)) << line << keys;
        };
        row(u"departField=200 finField=200"_s, {});
        row(u"departField=200 finField=210"_s, {pressure});
        row(u"departField=-1 finField=-2"_s, {pressure});
        row(u"depart_2Field=100 fin_2Field=101 finField=1"_s, {pressure});
        row(u"heMix=86 heMix_2=86"_s, {});
        row(u"heMix=87"_s, {helium});
        row(u"heMix_2=-1"_s, {helium});
        row(u"heMix=87 heMix_2=90"_s, {helium, helium});
        row(u"heMix_2=87 heMix=90 finField=1"_s, {pressure, helium, helium});
        row(u"o2Mix=10 --press razHeliox"_s, {helium});
        row(u"o2Mix=0"_s, {});
    }
    void alertsComeInTheOrderOfTheChecks() {
        QFETCH(QString, line);
        QFETCH(QStringList, keys);
        QString errors;
        for (const QString& key : keys) errors += u"alert: "_s + key + u'\n';
        const Workshop shop;
        shop.putGolden(u"empty.carnet"_s, u"a.carnet"_s);
        const Outcome outcome =
            shop.run(QStringList{u"--lang"_s, u"keys"_s, u"add"_s, u"a.carnet"_s} + line.split(u' '));
        QCOMPARE(outcome.errors, errors);
        QCOMPARE(outcome.text(), u"row 0\n"_s);
        QCOMPARE(outcome.status, 0);
    }

    void whatAnAlertWasAboutIsStoredAsItSays() {
        const Workshop shop;
        shop.putGolden(u"empty.carnet"_s, u"a.carnet"_s);
        const Outcome outcome = shop.run({u"add"_s, u"a.carnet"_s, u"departField=200"_s, u"finField=210"_s,
                                          u"heMix=87"_s, u"heMix_2=86"_s, u"o2Mix=0"_s, u"o2Mix_2=-4"_s});
        QCOMPARE(
            outcome.errors,
            u"alert: Check the pressures: the end pressure is above the start pressure, or one of them is "
            "negative.\n"
            "alert: The helium percentage was out of range and has been set to 0.\n"_s);
        const QJsonObject added = shop.record(u"a.carnet"_s, 0);
        QCOMPARE(added.value("pressionDepart"_L1), QJsonValue(200));
        QCOMPARE(added.value("pressionFin"_L1), QJsonValue(210));
        QCOMPARE(added.value("heMix"_L1), QJsonValue(0));
        QCOMPARE(added.value("heMix_2"_L1), QJsonValue(86));
        QCOMPARE(added.value("o2Mix"_L1), QJsonValue(21));
        QCOMPARE(added.value("o2Mix_2"_L1), QJsonValue(21));
    }
};

int runPromptTest(int argc, char** argv) {
    PromptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PromptTest.moc"
