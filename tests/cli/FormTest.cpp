#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class FormTest : public QObject {
    Q_OBJECT

    Workshop _shop;

    QJsonObject controls(const QStringList& words) const {
        const Outcome outcome = _shop.run(QStringList{u"form"_s, u"a.carnet"_s, u"--json"_s} + words);
        return outcome.status == 0 && outcome.json().size() == 1
                   ? outcome.json().value("controls"_L1).toObject()
                   : QJsonObject();
    }

private Q_SLOTS:
    void initTestCase() {
        _shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 41},
                                               {u"date"_s, u"2016-06-07T14:30:00"_s},
                                               {u"heure"_s, u"2001-01-01T09:05:00"_s},
                                               {u"bateau"_s, u"Suroît"_s},
                                               {u"meteo"_s, 3},
                                               {u"nocturne"_s, 1},
                                               {u"difficulte"_s, 4},
                                               {u"profondeur"_s, 12.3},
                                               {u"o2Mix"_s, 32},
                                               {u"heMix"_s, 10}})});
    }

    void showsEachControl_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](const QString& words, const char* control, const QJsonValue& value,
                            const QString& text) {
            QTest::newRow(qPrintable(words + u' ' + QLatin1String(control)))
                << words.split(u' ', Qt::SkipEmptyParts) << QString::fromLatin1(control) << value << text;
        };
        const QString first = u"--row 0"_s;
        row(first, "plongeeNoField", u"41"_s, u"41"_s);
        row(first, "dateField", u"2016-06-07T14:30:00"_s, u"07/06/2016"_s);
        row(first, "heureField", u"2001-01-01T09:05:00"_s, u"09:05"_s);
        row(first, "bateauField", u"Suroît"_s, u"Suroît"_s);
        row(first, "meteoPopUp", 3, u"Rainy"_s);
        row(first + u" --lang fr"_s, "meteoPopUp", 3, u"Pluvieux"_s);
        row(first + u" --lang keys"_s, "meteoPopUp", 3, u"Rainy"_s);
        row(first, "nocturneSwitch", 1, u"1"_s);
        row(first, "difficulteSlider", 4, u"4"_s);
        row(first, "difficulteField", u"Very hard"_s, u"Very hard"_s);
        row(first + u" --lang fr"_s, "difficulteField", u"Très difficile"_s, u"Très difficile"_s);
        row(first, "profondeurField", u"12.3"_s, u"12.3"_s);
        row(first, "n2MixField", u"58"_s, u"58"_s);
        row(first, "n2Mix_2Field", u"79"_s, u"79"_s);
        row({}, "plongeeNoField", u""_s, u""_s);
        row(u"--now 2015-01-02T03:04:05"_s, "dateField", u"2015-01-02T03:04:05"_s, u"02/01/2015"_s);
        row({}, "heureField", u"2001-01-01T00:00:00"_s, u"00:00"_s);
        row({}, "coeffField", u"-"_s, u"-"_s);
        row({}, "meteoPopUp", 7, u"N/A"_s);
        row({}, "difficulteField", u"Very easy"_s, u"Very easy"_s);
        row({}, "n2MixField", u"79"_s, u"79"_s);
    }
    void showsEachControl() {
        QFETCH(QStringList, words);
        QFETCH(QString, control);
        QFETCH(QJsonValue, value);
        QFETCH(QString, text);
        const QJsonObject shown = controls(words).value(control).toObject();
        QCOMPARE(shown.value("value"_L1), value);
        QCOMPARE(shown.value("text"_L1), QJsonValue(text));
        // Nitrogen follows from the other two gases, so nobody types it.
        const bool isTyped = !control.startsWith("n2Mix"_L1);
        QCOMPARE(shown.value("enabled"_L1), QJsonValue(isTyped));
        QCOMPARE(shown.value("hidden"_L1), QJsonValue(false));
        QVERIFY(shown.contains("color"_L1));
        QCOMPARE(shown.value("color"_L1), QJsonValue(QJsonValue::Null));
        QCOMPARE(shown.size(), 5);
    }

    void showsTheSameControlsInLines() {
        const Outcome outcome = _shop.run({u"form"_s, u"a.carnet"_s, u"--row"_s, u"0"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QString());
        QStringList lines = outcome.text().split(u'\n');
        QCOMPARE(lines.takeLast(), QString());
        const QJsonObject shown = controls({u"--row"_s, u"0"_s});
        QVERIFY(shown.size() > 100);
        QCOMPARE(lines.size(), shown.size());
        for (const QString& line : lines) {
            const QJsonValue control = shown.value(line.section(u": "_s, 0, 0));
            QCOMPARE(line.section(u": "_s, 1), control["text"_L1].toString());
        }
        QVERIFY(lines.contains(u"meteoPopUp: Rainy"_s));
    }

    void onlyLooks() {
        const auto before = _shop.everything();
        QVERIFY(!controls({}).isEmpty());
        QVERIFY(!controls({u"--row"_s, u"0"_s}).isEmpty());
        QCOMPARE(_shop.everything(), before);
    }
};

int runFormTest(int argc, char** argv) {
    FormTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FormTest.moc"
