#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// What the dive form does beyond mapping fields: checks, gas shortcuts, difficulty.
class DiveFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pressuresAreToldOnceAndKept_data() {
        QTest::addColumn<int>("in");
        QTest::addColumn<int>("out");
        QTest::addColumn<int>("in2");
        QTest::addColumn<int>("out2");
        QTest::addColumn<bool>("told");
        QTest::newRow("fine") << 200 << 50 << 200 << 50 << false;
        QTest::newRow("equal is fine") << 200 << 200 << 0 << 0 << false;
        QTest::newRow("end above start") << 200 << 210 << 0 << 0 << true;
        QTest::newRow("negative start") << -1 << -2 << 0 << 0 << true;
        QTest::newRow("negative end") << 200 << -1 << 0 << 0 << true;
        QTest::newRow("second tank") << 200 << 50 << 100 << 101 << true;
        QTest::newRow("both: one alert") << 200 << 210 << 100 << 101 << true;
    }
    void pressuresAreToldOnceAndKept() {
        QFETCH(int, in);
        QFETCH(int, out);
        QFETCH(int, in2);
        QFETCH(int, out2);
        QFETCH(bool, told);
        TestDesk desk;
        DiveForm form(desk.desk);
        form.form().setInteger(divecontrol::depart, in);
        form.form().setInteger(divecontrol::fin, out);
        form.form().setInteger(divecontrol::depart2, in2);
        form.form().setInteger(divecontrol::fin2, out2);
        if (told) desk.prompt.expectAlert(desk.strings.text({"Carnet", "Pressure in out"}));
        const Plongee dive = form.addDiveToList();
        QCOMPARE(desk.prompt.finish(), QStringList());
        QCOMPARE((QList<int>{dive.pressionDepart(), dive.pressionFin(), dive.pressionDepart_2(),
                             dive.pressionFin_2()}),
                 (QList<int>{in, out, in2, out2}));
    }

    void theMixIsCorrectedInTheFormAndTheDive_data() {
        QTest::addColumn<QString>("o2");
        QTest::addColumn<QString>("he");
        QTest::addColumn<int>("storedO2");
        QTest::addColumn<int>("storedHe");
        QTest::addColumn<bool>("told");
        QTest::newRow("trimix") << u"18"_s << u"45"_s << 18 << 45 << false;
        QTest::newRow("helium 86 stays") << u"10"_s << u"86"_s << 10 << 86 << false;
        QTest::newRow("helium 87 goes") << u"10"_s << u"87"_s << 10 << 0 << true;
        QTest::newRow("helium below 0 goes") << u"21"_s << u"-1"_s << 21 << 0 << true;
        QTest::newRow("oxygen 0") << u"0"_s << u"0"_s << 21 << 0 << false;
        QTest::newRow("oxygen below 0") << u"-5"_s << u"0"_s << 21 << 0 << false;
        QTest::newRow("oxygen empty") << u""_s << u"0"_s << 21 << 0 << false;
        QTest::newRow("oxygen 1 stays") << u"1"_s << u"0"_s << 1 << 0 << false;
    }
    void theMixIsCorrectedInTheFormAndTheDive() {
        QFETCH(QString, o2);
        QFETCH(QString, he);
        QFETCH(int, storedO2);
        QFETCH(int, storedHe);
        QFETCH(bool, told);
        for (const bool second : {false, true}) {
            TestDesk desk;
            DiveForm form(desk.desk);
            const ControlName oxygen = second ? divecontrol::o2Mix2 : divecontrol::o2Mix;
            const ControlName helium = second ? divecontrol::heMix2 : divecontrol::heMix;
            form.form().setText(oxygen, o2);
            form.form().setText(helium, he);
            if (told) desk.prompt.expectAlert(desk.strings.text({"Carnet", "Helium percent"}));
            const Plongee dive = form.addDiveToList();
            QCOMPARE(desk.prompt.finish(), QStringList());
            QCOMPARE(second ? dive.o2Mix_2() : dive.o2Mix(), storedO2);
            QCOMPARE(second ? dive.heMix_2() : dive.heMix(), storedHe);
            QCOMPARE(form.form().integer(oxygen), storedO2);
            QCOMPARE(form.form().integer(helium), storedHe);
        }
    }

    void alertsComeInTheOrderOfTheChecks() {
        TestDesk desk;
        DiveForm form(desk.desk);
        form.form().setInteger(divecontrol::depart, -1);
        form.form().setInteger(divecontrol::heMix, 90);
        form.form().setInteger(divecontrol::heMix2, -1);
        desk.prompt.expectAlert(desk.strings.text({"Carnet", "Pressure in out"}));
        desk.prompt.expectAlert(desk.strings.text({"Carnet", "Helium percent"}));
        desk.prompt.expectAlert(desk.strings.text({"Carnet", "Helium percent"}));
        form.addDiveToList();
        QCOMPARE(desk.prompt.finish(), QStringList());
    }

    void gasShortcutsCompleteTheMix_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("typed");
        QTest::addColumn<QList<int>>("mix");
        QTest::newRow("air") << u"razAir"_s << 50 << QList<int>{21, 79, 0};
        QTest::newRow("nitrox 32") << u"razNitrox"_s << 32 << QList<int>{32, 68, 0};
        QTest::newRow("heliox 21") << u"razHeliox"_s << 21 << QList<int>{21, 0, 79};
        QTest::newRow("oxygen") << u"razNitrox"_s << 100 << QList<int>{100, 0, 0};
    }
    void gasShortcutsCompleteTheMix() {
        QFETCH(QString, action);
        QFETCH(int, typed);
        TestDesk desk;
        DiveForm form(desk.desk);
        form.form().setInteger(divecontrol::o2Mix, typed);
        form.form().setInteger(divecontrol::heMix, 40);
        form.form().press(action);
        const QList<int> mix{form.form().integer(divecontrol::o2Mix), form.form().integer(divecontrol::n2Mix),
                             form.form().integer(divecontrol::heMix)};
        QTEST(mix, "mix");
        QCOMPARE(form.form().focus(), form.form().find(u"surfaceField"_s));
    }

    void theDifficultyHasAWord_data() {
        QTest::addColumn<QString>("word");
        const char* words[] = {"Very easy", "Easy", "Normal", "Hard", "Very hard", "Extreme", "Extreme"};
        for (int level = 0; level < 7; ++level)
            QTest::addRow("%d", level) << QString::fromLatin1(words[level]);
        QTest::newRow("-1") << u"Extreme"_s;
    }
    void theDifficultyHasAWord() {
        TestDesk desk;
        desk.strings.setLanguage(Strings::Language::Keys);
        DiveForm form(desk.desk);
        form.form().setTag(divecontrol::difficulte, QByteArray(QTest::currentDataTag()).toInt());
        form.updateSlider();
        QTEST(form.form().text(divecontrol::difficulteCaption), "word");
    }
};

int runDiveFormTest(int argc, char** argv) {
    DiveFormTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "DiveFormTest.moc"
