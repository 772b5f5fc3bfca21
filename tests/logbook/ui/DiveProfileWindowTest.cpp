#include "LogbookUiTests.h"
#include "logbook/ui/DepthPreview.h"
#include "logbook/ui/DiveProfileWindow.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class DiveProfileWindowTest : public QObject {
    Q_OBJECT

    static constexpr int yes = 0;
    static constexpr int no = 1;

    static DiveProfileWindow* open(LogbookOnScreen& logbook) {
        logbook.action("profilData")->trigger();
        DiveProfileWindow* window = logbook.window->profileWindowIfMade();
        if (!window || !QTest::qWaitForWindowActive(window)) qFatal("no profile window");
        return window;
    }
    template <class W>
    static W* in(DiveProfileWindow* window, const char* name) {
        return window->findChild<W*>(QLatin1String(name));
    }
    static QList<double> depths(const NumberArray& list) {
        QList<double> all;
        for (qsizetype i = 0; i < list.size(); ++i) all << list.at(i);
        return all;
    }

private Q_SLOTS:
    void depthsAreTypedAndPutIntoTheDive() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(1);
        DiveProfileWindow* window = open(logbook);
        QCOMPARE(window->windowTitle(), u"Dive 2 – profile data"_s);
        auto* text = in<QPlainTextEdit>(window, "importProfondeurField");
        QCOMPARE(window->focusWidget(), text);
        QVERIFY(!in<QPushButton>(window, "importProfil")->isEnabled());
        QTest::keyClicks(text, u"0"_s);
        QTest::keyClick(text, Qt::Key_Return);
        QTest::keyClicks(text, u"18,5"_s);
        QVERIFY(in<QCheckBox>(window, "eraseProfondeurSwitch")->isChecked());
        QVERIFY(!in<QCheckBox>(window, "eraseASC_Switch")->isChecked());
        QCOMPARE(depths(window->findChild<DepthPreview*>()->depths()), (QList<double>{0, 18.5}));
        QTest::mouseClick(in<QWidget>(window, "importProfil"), Qt::LeftButton);
        QCOMPARE(depths(logbook.carnet->record(1).profilProfondeur()), (QList<double>{0, 18.5}));
        QCOMPARE(in<QLabel>(window, "countProfondeurField")->text(), u"2 values"_s);
        QCOMPARE(in<QLabel>(window, "countASC_Field")->text(), u"No data"_s);
        QVERIFY(!in<QCheckBox>(window, "eraseProfondeurSwitch")->isChecked());
        QCOMPARE(text->toPlainText(), u"0.0\n18.5"_s);
    }

    void everyListIsTypedIntoItsOwnField() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        DiveProfileWindow* window = open(logbook);
        for (const ProfileList& list : profileLists()) {
            auto* text = in<QPlainTextEdit>(window, list.text.text);
            QVERIFY2(text, list.text.text);
            text->setFocus();
            QTest::keyClicks(text, u"1"_s);
            QTest::keyClick(text, Qt::Key_Return);
            QTest::keyClicks(text, u"0"_s);
        }
        for (const ProfileList& list : profileLists()) {
            QVERIFY2(in<QCheckBox>(window, list.replace.text)->isChecked(), list.id);
            QCOMPARE(window->profile().form().text(list.text), u"1\n0"_s);
        }
        QTest::mouseClick(in<QWidget>(window, "eraseAllSwitch"), Qt::LeftButton, {}, QPoint(8, 8));
        QTest::mouseClick(in<QWidget>(window, "importProfil"), Qt::LeftButton);
        for (const ProfileList& list : profileLists()) {
            QVERIFY(!in<QCheckBox>(window, list.replace.text)->isChecked());
            QCOMPARE(in<QLabel>(window, list.count.text)->text(), u"2 values"_s);
        }
    }

    void anotherDiveIsShownWhenItIsSelected() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(0);
        DiveProfileWindow* window = open(logbook);
        logbook.clickRow(1);
        QCOMPARE(window->windowTitle(), u"Dive 2 – profile data"_s);
    }

    void itFitsASmallScreen() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        DiveProfileWindow* window = open(logbook);
        window->resize(420, 380);
        QCOMPARE(window->size(), QSize(420, 380));
        auto* put = in<QWidget>(window, "importProfil");
        QVERIFY(window->rect().contains(QRect(put->mapTo(window, QPoint()), put->size())));
        // The keyboard brings a list to light that stands beyond the edge.
        auto* last = in<QPlainTextEdit>(window, "importPRESS_Field");
        QVERIFY(last->mapTo(window, QPoint()).x() > window->width());
        for (int i = 0; i < 30 && window->focusWidget() != last; ++i)
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(window->focusWidget(), last);
        QVERIFY(last->mapTo(window, QPoint(50, 0)).x() < window->width());
    }

    void itOpensFromTheEditWindowToo() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        formwalk::typeInto(logbook.field<QWidget>("bateauField"), u"Suroit"_s);
        logbook.pressInEdit("profilData");
        QVERIFY(logbook.window->profileWindowIfMade()->isVisible());
        QCOMPARE(logbook.carnet->record(0).bateau(), u"Suroit"_s);
    }

    void withoutADiveItDoesNotOpen() {
        LogbookOnScreen logbook(1);
        QVERIFY(!logbook.action("profilData")->isEnabled());
        logbook.clickRow(0);
        QVERIFY(logbook.action("profilData")->isEnabled());
    }

    void closingAsksAboutWhatIsMarked_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("samples");
        QTest::newRow("yes") << yes << 2;
        QTest::newRow("no") << no << 1;
    }
    void closingAsksAboutWhatIsMarked() {
        QFETCH(int, answer);
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        DiveProfileWindow* window = open(logbook);
        auto* text = in<QPlainTextEdit>(window, "importProfondeurField");
        QTest::keyClicks(text, u"7"_s);
        QTest::keyClick(text, Qt::Key_Return);
        logbook.desk.prompt.expectQuestion(u"Put the lists that are marked into the dive?"_s, answer);
        QTest::keyClick(text, Qt::Key_Escape);
        QVERIFY(!window->isVisible());
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
        QTEST(int(logbook.carnet->record(0).profilProfondeur().size()), "samples");
    }

    void theSampleAtTheCursorIsTold() {
        LogbookOnScreen logbook(1);
        logbook.carnet->select({0});
        logbook.carnet->form().setTag(divecontrol::samplingRate, 2);  // every 30 s
        Plongee profile = logbook.carnet->diveForm().working();
        profile.setProfilProfondeur(NumberArray::ofDoubles(std::to_array({0.0, 5.0, 12.25, 3.0})));
        logbook.carnet->diveForm().setProfile(profile);
        logbook.carnet->updateDive();
        DiveProfileWindow* window = open(logbook);
        auto* text = in<QPlainTextEdit>(window, "importProfondeurField");
        QTest::keyClick(text, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(text, Qt::Key_Down);
        QTest::keyClick(text, Qt::Key_Down);
        QCOMPARE(in<QLabel>(window, "sampleField")->text(), u"Sample 2: 1:00, 12.2 m"_s);
    }

    void aReadOnlyLogbookShowsButTakesNothing() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.carnet->setReadOnly(true);
        DiveProfileWindow* window = open(logbook);
        auto* text = in<QPlainTextEdit>(window, "importProfondeurField");
        QTest::keyClicks(text, u"7"_s);
        QCOMPARE(text->toPlainText(), QString());
        QVERIFY(!in<QCheckBox>(window, "eraseAllSwitch")->isEnabled());
    }
};

int runDiveProfileWindowTest(int argc, char** argv) {
    DiveProfileWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveProfileWindowTest.moc"
