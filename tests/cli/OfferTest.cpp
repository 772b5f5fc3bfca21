#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

/// What the dive form asks and tells while the command line fills it.
class OfferTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Workshop> _shop;

    Outcome run(const QStringList& words) const { return _shop->run(words); }
    QJsonArray places() const {
        const QByteArray settings = _shop->settings().names().contains(u"settings.json"_s)
                                        ? _shop->settings().content(u"settings.json"_s)
                                        : QByteArray("{}");
        return QJsonDocument::fromJson(settings).object()["lieux"_L1].toArray();
    }

private Q_SLOTS:
    void init() {
        _shop = std::make_unique<Workshop>();
        _shop->settings().put(u"settings.json"_s, R"({"lieux": ["b", "a"]})");
        _shop->putGolden(u"empty.carnet"_s, u"a.carnet"_s);
    }

    void aNewWordIsAskedFor_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QJsonArray>("stored");
        QTest::newRow("yes") << u"--yes"_s << QJsonArray{u"C "_s, u"a"_s, u"b"_s};
        QTest::newRow("no") << u"--no"_s << QJsonArray{u"a"_s, u"b"_s};
    }
    void aNewWordIsAskedFor() {
        QFETCH(QString, answer);
        const Outcome outcome = run({answer, u"--lang"_s, u"keys"_s, u"add"_s, u"a.carnet"_s, u"lieu=C "_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, u"beep\nquestion: Add item to ComboBox|C \n"_s);
        QCOMPARE(outcome.text(), u"row 0\n"_s);
        QTEST(places(), "stored");
        QCOMPARE(_shop->record(u"a.carnet"_s, 0)["lieu"_L1], QJsonValue(u"C "_s));
    }

    void aKnownWordAndBlanksAreNot() {
        for (const auto& place : {u"lieu=a"_s, u"lieu=  "_s, u"lieu="_s})
            QCOMPARE(run({u"--yes"_s, u"add"_s, u"a.carnet"_s, place}).errors, QString());
        QCOMPARE(places(), (QJsonArray{u"b"_s, u"a"_s}));
    }

    void questionsAndAlertsComeInOrder() {
        const Outcome outcome = run({u"--lang"_s, u"keys"_s, u"add"_s, u"a.carnet"_s, u"site=S"_s, u"fin=9"_s,
                                     u"heMix=87"_s, u"lieu=L"_s});
        // "fin" is no control, the field is pressionFin: told before anything is asked.
        QCOMPARE(outcome.status, 2);
        QVERIFY(!outcome.errors.contains(u"question"_s));
        const Outcome filled = run({u"--lang"_s, u"keys"_s, u"add"_s, u"a.carnet"_s, u"site=S"_s,
                                    u"finField=9"_s, u"heMix=87"_s, u"lieu=L"_s});
        QCOMPARE(filled.errors,
                 u"beep\nquestion: Add item to ComboBox|S\nbeep\n"
                 "question: Add item to ComboBox|L\nalert: Pressure in out\n"
                 "alert: Helium percent\n"_s);
        QCOMPARE(_shop->record(u"a.carnet"_s, 0)["pressionFin"_L1], QJsonValue(9));
        QCOMPARE(_shop->record(u"a.carnet"_s, 0)["heMix"_L1], QJsonValue(0));
    }
};

int runOfferTest(int argc, char** argv) {
    OfferTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "OfferTest.moc"
