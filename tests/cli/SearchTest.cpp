#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class SearchTest : public QObject {
    Q_OBJECT

    Workshop _shop;

private Q_SLOTS:
    void initTestCase() {
        _shop.putLogbook(
            u"a.carnet"_s,
            {QJsonObject{{u"bateau"_s, u"Le Suroît"_s},
                         {u"epaves"_s, u"Magdeburg"_s},
                         {u"notes"_s, u"--yes"_s},
                         {u"partenaires"_s, u"Zoé, Luc"_s}},
             QJsonObject{{u"epaves"_s, u""_s}, {u"notes"_s, u""_s}, {u"partenaires"_s, u"Luc"_s}},
             QJsonObject{{u"bateau"_s, u"SUROÎT II"_s},
                         {u"epaves"_s, u"Swansea Vale"_s},
                         {u"notes"_s, u"a*b 100%1"_s},
                         {u"partenaires"_s, u""_s}}});
    }

    void printsTheRowsThenTheCount_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("output");
        const auto row = [](const char* name, const QStringList& words, const QString& output) {
            QTest::newRow(name) << words << output;
        };
        row("upper and lower case alike; a dive without a value matches",
            {u"--in"_s, u"bateau"_s, u"suroît"_s}, u"row 0\nrow 1\nrow 2\n3 dives found\n"_s);
        row("a blank value is a value", {u"--in"_s, u"epaves"_s, u"e"_s}, u"row 0\nrow 2\n2 dives found\n"_s);
        row("one", {u"--in"_s, u"epaves"_s, u"SWAN"_s}, u"row 2\nOne dive found\n"_s);
        row("none", {u"--in"_s, u"partenaires"_s, u"Max"_s}, u"0 dives found\n"_s);
        row("accents count", {u"--in"_s, u"partenaires"_s, u"Zoe"_s}, u"0 dives found\n"_s);
        row("an empty text is everywhere", {u"--in"_s, u"notes"_s, u""_s},
            u"row 0\nrow 1\nrow 2\n3 dives found\n"_s);
        row("no wild cards", {u"--in"_s, u"notes"_s, u"a*b"_s}, u"row 2\nOne dive found\n"_s);
        row("a per cent sign", {u"--in"_s, u"notes"_s, u"%1"_s}, u"row 2\nOne dive found\n"_s);
        row("a text like an option", {u"--in"_s, u"notes"_s, u"--"_s, u"--yes"_s},
            u"row 0\nOne dive found\n"_s);
        row("the option last", {u"luc"_s, u"--in"_s, u"partenaires"_s}, u"row 0\nrow 1\n2 dives found\n"_s);
        row("French", {u"--in"_s, u"partenaires"_s, u"luc"_s, u"--lang"_s, u"fr"_s},
            u"row 0\nrow 1\n2 plongées trouvées\n"_s);
        row("French, one", {u"--in"_s, u"partenaires"_s, u"zoé"_s, u"--lang"_s, u"fr"_s},
            u"row 0\nUne plongée trouvée\n"_s);
        row("keys", {u"--lang"_s, u"keys"_s, u"--in"_s, u"bateau"_s, u"suroît"_s},
            u"row 0\nrow 1\nrow 2\nFound dives|3\n"_s);
        row("keys, one", {u"--lang"_s, u"keys"_s, u"--in"_s, u"epaves"_s, u"swan"_s},
            u"row 2\nOne dive found\n"_s);
    }
    void printsTheRowsThenTheCount() {
        QFETCH(QStringList, words);
        const auto before = _shop.everything();
        const Outcome outcome = _shop.run(QStringList{u"find"_s, u"a.carnet"_s} + words);
        QCOMPARE(outcome.errors, QString());
        QTEST(outcome.text(), "output");
        QCOMPARE(outcome.status, 0);
        QCOMPARE(_shop.everything(), before);
    }

    void aFieldThatDivesLackFailsOnTheFirstDive() {
        const auto before = _shop.everything();
        const Outcome outcome = _shop.run({u"find"_s, u"a.carnet"_s, u"--in"_s, u"ordi"_s, u"x"_s});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains("a.carnet"_L1) &&
                     outcome.errors.contains("\"ordi\""_L1),
                 qPrintable(outcome.errors));
        QCOMPARE(_shop.everything(), before);

        const Workshop shop;
        shop.putGolden(u"empty.carnet"_s, u"b.carnet"_s);
        const Outcome none = shop.run({u"find"_s, u"b.carnet"_s, u"--in"_s, u"ordi"_s, u"x"_s});
        QCOMPARE(none.text(), u"0 dives found\n"_s);
        QCOMPARE(none.status, 0);
    }
};

int runSearchTest(int argc, char** argv) {
    SearchTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SearchTest.moc"
