#include "LogbookUiTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class LogbookEditingTest : public QObject {
    Q_OBJECT

    static constexpr int agree = 0;
    static constexpr int decline = 1;

private Q_SLOTS:
    void deletingBeepsAndAsksOnceForAllSelectedDives() {
        LogbookOnScreen logbook(4);
        logbook.clickRow(0);
        logbook.clickRow(2, Qt::ControlModifier);
        logbook.desk.prompt.expectBeep();
        logbook.desk.prompt.expectQuestion(u"Erase the selected dives?"_s, agree);
        logbook.pressHere("deleteDive");
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
        QCOMPARE(logbook.numbers(), (QList<int>{2, 4}));
        QCOMPARE(logbook.window->table().model()->rowCount(), 2);
        QVERIFY(logbook.shownSelection().isEmpty());
    }

    void theDeleteKeyDeletesAndDecliningKeeps() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(1);
        logbook.desk.prompt.expectBeep();
        logbook.desk.prompt.expectQuestion(u"Erase the selected dives?"_s, decline);
        QTest::keyClick(&logbook.window->table(), Qt::Key_Delete);
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2}));
        QCOMPARE(logbook.shownSelection(), Selection{1});
    }

    void withoutASelectionThereIsNothingToDelete() {
        LogbookOnScreen logbook(2);
        QVERIFY(!logbook.action("deleteDive")->isEnabled());
        logbook.clickRow(0);
        QVERIFY(logbook.action("deleteDive")->isEnabled());
        logbook.carnet->select({});
        QVERIFY(!logbook.action("deleteDive")->isEnabled());
    }

    void deletingCanBeUndoneAndRedone() {
        LogbookOnScreen logbook(3);
        logbook.clickRow(1);
        logbook.desk.prompt.expectBeep();
        logbook.desk.prompt.expectQuestion(u"Erase the selected dives?"_s, agree);
        logbook.pressHere("deleteDive");
        QCOMPARE(logbook.action("undo")->text(), u"Undo: delete dives"_s);
        QTest::keyClick(logbook.window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2, 3}));
        QCOMPARE(logbook.shownSelection(), Selection{1});
        QTest::keyClick(logbook.window.get(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 3}));
        QTest::keyClick(logbook.window.get(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(logbook.window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 3}));
    }

    void theRenumberingSheetNumbersFromItsField() {
        LogbookOnScreen logbook(3);
        connect(logbook.window.get(), &LogbookWindow::renumberingWanted, logbook.window.get(),
                [&] { logbook.desk.notifications.post(u"renumDives"_s, nullptr); });
        logbook.action("renumDives")->trigger();
        auto* sheet = logbook.window->findChild<QDialog*>(u"renumDivesWindow"_s);
        QVERIFY(sheet && sheet->isVisible());
        formwalk::typeInto(sheet->findChild<QWidget*>(u"renumNumberField"_s), u"100"_s);
        QTest::mouseClick(sheet->findChild<QPushButton*>(u"renumDives"_s), Qt::LeftButton);
        QVERIFY(!sheet->isVisible());
        QCOMPARE(logbook.numbers(), (QList<int>{100, 101, 102}));
        QCOMPARE(logbook.window->table().model()->index(2, 0).data().toString(), u"102"_s);
        QCOMPARE(logbook.carnet->record(1).lieu(), u"Place 2"_s);
    }

    void theRenumberingSheetTakesOnlyANumber() {
        LogbookOnScreen logbook(1);
        logbook.desk.notifications.post(u"renumDives"_s, nullptr);
        auto* sheet = logbook.window->findChild<QDialog*>(u"renumDivesWindow"_s);
        auto* confirm = sheet->findChild<QPushButton*>(u"renumDives"_s);
        auto* field = sheet->findChild<QLineEdit*>(u"renumNumberField"_s);
        QVERIFY(confirm->isEnabled());
        formwalk::typeInto(field, u"ten"_s);
        QVERIFY(!confirm->isEnabled());
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(sheet->isVisible());
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        QVERIFY(!confirm->isEnabled());
        formwalk::typeInto(field, u"-3"_s);
        QVERIFY(confirm->isEnabled());
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(!sheet->isVisible());
        QCOMPARE(logbook.numbers(), QList<int>{1});
    }

    void everyOpenLogbookOffersToRenumber() {
        LogbookOnScreen logbook(1);
        const auto other = logbook.desk.newLogbook();
        other->setUntitledName(u"Other"_s);
        LogbookWindow otherWindow(*other);
        logbook.desk.notifications.post(u"renumDives"_s, nullptr);
        QVERIFY(logbook.window->findChild<QDialog*>(u"renumDivesWindow"_s)->isVisible());
        QVERIFY(otherWindow.findChild<QDialog*>(u"renumDivesWindow"_s)->isVisible());
    }

    void aReadOnlyLogbookSaysSoAndChangesNothing() {
        LogbookOnScreen logbook(2);
        const auto before = logbook.carnet->records();
        logbook.carnet->setReadOnly(true);
        QVERIFY(logbook.window->findChild<QLabel*>(u"readOnlyNote"_s)->isVisible());
        logbook.clickRow(0);
        for (const char* name : {"addDive", "deleteDive", "renumDives"})
            QVERIFY2(!logbook.action(name)->isEnabled(), name);
        logbook.window->addDive();
        logbook.window->deleteDive();
        logbook.openEdit();
        QVERIFY(logbook.edit()->isVisible());
        formwalk::typeInto(logbook.field<QWidget>("plongeeNoField"), u"99"_s);
        logbook.edit()->close();
        QVERIFY(logbook.carnet->records() == before);
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
    }

    void theMenuOffersWhatTheFieldOrTheTableCanTake() {
        LogbookOnScreen logbook(1);
        QVERIFY(QTest::qWaitForWindowActive(logbook.window.get()));
        auto* search = logbook.window->findChild<QLineEdit*>(u"searchField"_s);
        QTest::keyClick(logbook.window.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(search->hasFocus());
        QTest::keyClicks(search, u"reef"_s);
        logbook.action("selectAll")->trigger();
        logbook.action("copy")->trigger();
        QCOMPARE(QApplication::clipboard()->text(), u"reef"_s);
        logbook.window->table().setFocus();
        logbook.action("selectAll")->trigger();
        logbook.action("copy")->trigger();
        QVERIFY(QApplication::clipboard()->text().contains(u"Place 1"_s));
    }

    void theDeleteKeyInTheSearchFieldDeletesLetters() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        auto* search = logbook.window->findChild<QLineEdit*>(u"searchField"_s);
        search->setFocus();
        QTest::keyClicks(search, u"ab"_s);
        QTest::keyClick(search, Qt::Key_Home);
        QTest::keyClick(search, Qt::Key_Delete);
        QCOMPARE(search->text(), u"b"_s);
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
    }
};

int runLogbookEditingTest(int argc, char** argv) {
    LogbookEditingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LogbookEditingTest.moc"
