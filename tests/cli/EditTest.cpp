#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class EditTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aControlTakesItsValue_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QJsonValue>("value");
        const auto row = [](const char* assignment, const char* field, const QJsonValue& value) {
            QTest::newRow(assignment) << QString::fromLatin1(field) << value;
        };
        row("bateauField=Suroît", "bateau", u"Suroît"_s);
        row("bateau=Suroît", "bateau", u"Suroît"_s);
        row("bateau=  two blanks ", "bateau", u"  two blanks "_s);
        row("bateau=", "bateau", u""_s);
        row("notes=a=b, c==d;", "notes", u"a=b, c==d;"_s);
        row("notes=one\ntwo", "notes", u"one\ntwo"_s);
        row("notes=%1 %@ \\n", "notes", u"%1 %@ \\n"_s);
        row("date=2016-06-07", "date", u"2016-06-07T00:00:00"_s);
        row("dateField=2016-06-07T14:30:00", "date", u"2016-06-07T14:30:00"_s);
        row("dateField=2016-06-07T14:30:00.25", "date", u"2016-06-07T14:30:00.25"_s);
        row("date=", "date", QJsonValue::Null);
        row("heure=14:30", "heure", u"2001-01-01T14:30:00"_s);
        row("heureField=2016-06-07T14:30:00", "heure", u"2016-06-07T14:30:00"_s);
        row("meteoPopUp=3", "meteo", 3);
        row("meteo=0", "meteo", 0);
        row("nocturneSwitch=1", "nocturne", 1);
        row("nocturne=0", "nocturne", 0);
        row("difficulteSlider=4", "difficulte", 4);
        row("plongeeNoField=412", "noPlongee", 412);
        row("noPlongee=412", "noPlongee", 412);
        row("profondeur=12.5", "profondeur", 12.5);
        row("profondeur=12,5", "profondeur", 12.5);
        row("profondeur=-", "profondeur", 0);
        row("temps=45", "temps", 45);
        row("temps=", "temps", 0);
        row("coeffField=-", "coeff", 0);
        row("coeff=95", "coeff", 95);
        row("depthDeco_Level_3_Field=9", "decoDepth_Level_3", 9);
        row("decoDepth_Level_3=4,5", "decoDepth_Level_3", 4.5);
        row("timeDeco_Level_6_Field=11", "decoTime_Level_6", 11);
        row("decoO2_Level_1_Field=99", "decoO2_Level_1", 99);
        row("o2Mix_2Field=50", "o2Mix_2", 50);
        row("departField=230", "pressionDepart", 230);
        row("bailout_3_HeField=35", "HeBailout3", 35);
        row("bailout_1_FinField=90", "pressFinBailout1", 90);
        row("lestage=4,5", "lestage", 4.5);
        row("gps=N 48° 23.400'  W 4° 29.700'", "gps", u"N 48° 23.400'  W 4° 29.700'"_s);
    }
    void aControlTakesItsValue() {
        QFETCH(QString, field);
        const QString assignment = QString::fromUtf8(QTest::currentDataTag());
        const Workshop shop;
        const QJsonArray three{dive({{u"noPlongee"_s, 1}, {u"temps"_s, 20}}),
                               dive({{u"noPlongee"_s, 2}, {u"temps"_s, 30}, {u"bateau"_s, u"old"_s}}),
                               dive({{u"noPlongee"_s, 3}})};
        shop.putLogbook(u"a.carnet"_s, three);
        QFETCH(QJsonValue, value);
        QJsonArray wanted = shop.records(u"a.carnet"_s);
        QJsonObject changed = wanted[1].toObject();
        changed.insert(field, value);
        wanted[1] = changed;
        const Outcome outcome = shop.run({u"set"_s, u"a.carnet"_s, u"--row"_s, u"1"_s, assignment});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(shop.record(u"a.carnet"_s, 1).value(field), value);
        QCOMPARE(shop.records(u"a.carnet"_s), wanted);
    }

    void severalControlsAndAFileNameWithAnEqualsSign() {
        const Workshop shop;
        shop.putGolden(u"empty.carnet"_s, u"a=b.carnet"_s);
        const Outcome outcome = shop.run(
            {u"add"_s, u"a=b.carnet"_s, u"bateau=one"_s, u"temps=45"_s, u"bateau=two"_s, u"nocturne=1"_s});
        QCOMPARE(outcome.text(), u"row 0\n"_s);
        QCOMPARE(outcome.status, 0);
        const QJsonObject added = shop.record(u"a=b.carnet"_s, 0);
        QCOMPARE(added.value("bateau"_L1), QJsonValue(u"two"_s));
        QCOMPARE(added.value("temps"_L1), QJsonValue(45));
        QCOMPARE(added.value("nocturne"_L1), QJsonValue(1));
    }

    void addingAppendsAndPrintsTheRow() {
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 7}}), dive({{u"noPlongee"_s, 3}})});
        const QJsonArray before = shop.records(u"a.carnet"_s);
        QCOMPARE(shop.run({u"add"_s, u"a.carnet"_s}).text(), u"row 2\n"_s);
        QCOMPARE(shop.run({u"add"_s, u"a.carnet"_s, u"noPlongee=20"_s}).text(), u"row 3\n"_s);
        QCOMPARE(shop.run({u"add"_s, u"a.carnet"_s}).text(), u"row 4\n"_s);
        const QJsonArray after = shop.records(u"a.carnet"_s);
        QCOMPARE(after.size(), 5);
        for (int row : {0, 1}) QCOMPARE(after[row], before[row]);
        const int numbers[] = {7, 3, 4, 20, 21};
        for (int row = 0; row < 5; ++row) QCOMPARE(after[row]["noPlongee"_L1], QJsonValue(numbers[row]));
    }

    void settingNothingWritesNothing() {
        const Workshop shop;
        shop.putLogbook(u"b.carnet"_s, {dive({{u"bateau"_s, u"Suroît"_s}})});
        const auto before = shop.everything();
        QCOMPARE(shop.run({u"set"_s, u"b.carnet"_s, u"--row"_s, u"0"_s}).status, 0);
        QCOMPARE(shop.run({u"set"_s, u"b.carnet"_s, u"--row"_s, u"0"_s, u"bateau=Suroît"_s}).status, 0);
        QCOMPARE(shop.everything(), before);
    }

    void buttonsArePressedInOrderAfterFilling_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("o2");
        QTest::addColumn<int>("he");
        const auto row = [](const QString& line, int o2, int he) {
            QTest::newRow(qPrintable(line)) << line << o2 << he;
        };
        row(u"o2Mix=32 heMix=20 --press razNitrox"_s, 32, 0);
        row(u"o2Mix=32 heMix=20"_s, 32, 20);
        row(u"o2Mix=21 --press razHeliox"_s, 21, 79);
        row(u"--press razHeliox o2Mix=30"_s, 30, 70);
        row(u"o2Mix=40 --press razAir"_s, 21, 0);
        row(u"o2Mix=40 --press razHeliox --press razAir"_s, 21, 0);
        row(u"o2Mix=40 --press razAir --press razHeliox"_s, 21, 79);
    }
    void buttonsArePressedInOrderAfterFilling() {
        QFETCH(QString, line);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"heMix"_s, 10}})});
        const QStringList words = line.split(u' ');
        QCOMPARE(shop.run(QStringList{u"add"_s, u"a.carnet"_s} + words).text(), u"row 1\n"_s);
        QCOMPARE(shop.run(QStringList{u"set"_s, u"a.carnet"_s, u"--row"_s, u"0"_s} + words).status, 0);
        for (const QJsonValue& dive : shop.records(u"a.carnet"_s)) {
            QTEST(dive["o2Mix"_L1].toInt(), "o2");
            QTEST(dive["heMix"_L1].toInt(), "he");
        }
    }
};

int runEditTest(int argc, char** argv) {
    EditTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "EditTest.moc"
