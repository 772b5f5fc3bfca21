#include "LogbookUiTests.h"
#include "platform/ui/FormView.h"
#include "platform/ui/PaneScroller.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class DiveEditWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDiveAddedWithTheToolbarIsTypedIn() {
        LogbookOnScreen logbook;
        logbook.pressHere("addDive");
        QVERIFY(logbook.edit() && QTest::qWaitForWindowActive(logbook.edit()));
        QCOMPARE(logbook.field<QLineEdit>("plongeeNoField")->text(), u"1"_s);
        formwalk::typeInto(logbook.field<QWidget>("lieuField"), u"Porquerolles"_s);
        formwalk::typeInto(logbook.field<QWidget>("dateField"), u"05/09/2015"_s);
        QTest::keyClick(logbook.edit(), Qt::Key_3, Qt::ControlModifier);
        formwalk::typeInto(logbook.field<QWidget>("profondeurField"), u"32,5"_s);
        formwalk::typeInto(logbook.field<QWidget>("tempsField"), u"47"_s);
        logbook.edit()->close();
        QCOMPARE(logbook.carnet->count(), 1);
        const Plongee& dive = logbook.carnet->record(0);
        QCOMPARE(dive.noPlongee(), 1);
        QCOMPARE(dive.lieu(), u"Porquerolles"_s);
        QCOMPARE(dive.date().local().date(), QDate(2015, 9, 5));
        QCOMPARE(dive.profondeur(), 32.5f);
        QCOMPARE(dive.temps(), 47);
        QVERIFY(logbook.window->isWindowModified());
        const auto* model = logbook.window->table().model();
        QCOMPARE(model->index(0, 2).data().toString(), u"Porquerolles"_s);
        QCOMPARE(model->index(0, 5).data().toString(), u"32.5 m"_s);
    }

    void closingStoresTheFormAndLookingChangesNothing() {
        LogbookOnScreen logbook(3);
        logbook.clickRow(1);
        QTest::keyClick(&logbook.window->table(), Qt::Key_Return);
        QVERIFY(logbook.edit() && QTest::qWaitForWindowActive(logbook.edit()));
        const auto before = logbook.carnet->records();
        const QString undo = logbook.carnet->undoName();
        QTest::keyClick(logbook.edit(), Qt::Key_Escape);
        QVERIFY(!logbook.edit()->isVisible());
        QVERIFY(logbook.carnet->records() == before);
        QCOMPARE(logbook.carnet->undoName(), undo);
        logbook.openEdit();
        formwalk::typeInto(logbook.field<QWidget>("siteField"), u"Le Donator"_s);
        QTest::keyClick(logbook.edit(), Qt::Key_Escape);
        QCOMPARE(logbook.carnet->record(1).site(), u"Le Donator"_s);
        QCOMPARE(logbook.carnet->undoName(), u"Edit dive"_s);
    }

    void previousAndNextStoreTheFormAndStopAtTheEnds() {
        LogbookOnScreen logbook(3);
        logbook.clickRow(1);
        logbook.openEdit();
        formwalk::typeInto(logbook.field<QWidget>("siteField"), u"A"_s);
        QTest::keyClick(logbook.edit(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->record(1).site(), u"A"_s);
        QCOMPARE(logbook.carnet->selection(), Selection{2});
        QCOMPARE(logbook.shownSelection(), Selection{2});
        QCOMPARE(logbook.field<QLineEdit>("plongeeNoField")->text(), u"3"_s);
        QVERIFY(!logbook.action("nextDive")->isEnabled());
        QTest::keyClick(logbook.edit(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->selection(), Selection{2});
        logbook.pressInEdit("prevDive");
        logbook.pressInEdit("prevDive");
        QCOMPARE(logbook.carnet->selection(), Selection{0});
        QVERIFY(!logbook.action("prevDive")->isEnabled());
        QVERIFY(logbook.action("nextDive")->isEnabled());
    }

    void selectingAnotherRowStoresTheFormFirst() {
        LogbookOnScreen logbook(3);
        logbook.clickRow(0);
        logbook.openEdit();
        formwalk::typeInto(logbook.field<QWidget>("siteField"), u"first"_s);
        logbook.clickRow(2);
        QCOMPARE(logbook.carnet->record(0).site(), u"first"_s);
        QCOMPARE(logbook.carnet->record(2).site(), QString());
        QCOMPARE(logbook.shownSelection(), Selection{2});
        QCOMPARE(logbook.field<QLineEdit>("plongeeNoField")->text(), u"3"_s);
    }

    void theToolbarStoresAndErases() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        formwalk::typeInto(logbook.field<QWidget>("siteField"), u"here"_s);
        logbook.pressInEdit("addDiveToList");
        QCOMPARE(logbook.carnet->record(0).site(), u"here"_s);
        QVERIFY(logbook.edit()->isVisible());
        QTest::keyClick(logbook.edit(), Qt::Key_4, Qt::ControlModifier);
        logbook.pressInEdit("blankFields");
        QCOMPARE(logbook.edit()->view().currentPane(), 0);
        QCOMPARE(logbook.field<QComboBox>("siteField")->currentText(), QString());
        QCOMPARE(logbook.carnet->record(0).site(), u"here"_s);
    }

    void panesAreReachedByKeyAndByButton_data() {
        QTest::addColumn<int>("pane");
        for (int pane = 0; pane < 6; ++pane) QTest::addRow("pane %d", pane + 1) << pane;
    }
    void panesAreReachedByKeyAndByButton() {
        QFETCH(int, pane);
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        logbook.edit()->view().showPane((pane + 1) % 6);
        QTest::keyClick(logbook.edit(), Qt::Key(Qt::Key_1 + pane), Qt::ControlModifier);
        QCOMPARE(logbook.edit()->view().currentPane(), pane);
        logbook.edit()->view().showPane((pane + 1) % 6);
        logbook.pressInEdit(("goView_" + QByteArray::number(pane + 1)).constData());
        QCOMPARE(logbook.edit()->view().currentPane(), pane);
    }

    void theWindowFitsItsPane() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        const auto turnTo = [&](int pane) {
            QTest::keyClick(logbook.edit(), Qt::Key(Qt::Key_1 + pane), Qt::ControlModifier);
            QCoreApplication::processEvents();
            return logbook.edit()->size();
        };
        const int least = std::min(960, logbook.edit()->screen()->availableSize().width() - 20);
        for (int pane = 0; pane < 6; ++pane) {
            const QSize size = turnTo(pane);
            for (const auto* scroller : logbook.edit()->findChildren<PaneScroller*>()) {
                if (!scroller->isVisible()) continue;
                const QSize room = scroller->size() - scroller->sizeSideBySide();
                QVERIFY2(room.width() >= 0 && room.height() >= 0, qPrintable(scroller->objectName()));
                // No room is left over but for what every pane is given at least.
                QVERIFY2(room.height() == 0 || size.height() == 420, qPrintable(scroller->objectName()));
                QVERIFY2(room.width() == 0 || size.width() == least, qPrintable(scroller->objectName()));
            }
        }
        // Deco is the highest, then gas; from whichever pane one comes.
        for (const int from : {0, 1, 4, 5}) {
            turnTo(from);
            const int deco = turnTo(2).height();
            turnTo(from);
            const int gas = turnTo(3).height();
            QVERIFY2(deco > gas && gas > 420, qPrintable(QString::number(from)));
        }
    }

    void aPaneKeepsTheSizeThatItWasGiven() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        QCoreApplication::processEvents();
        const auto turnTo = [](DiveEditWindow* window, int pane) {
            QTest::keyClick(window, Qt::Key(Qt::Key_1 + pane), Qt::ControlModifier);
            QCoreApplication::processEvents();
            return window->size();
        };
        const QSize notes = turnTo(logbook.edit(), 5);
        logbook.edit()->resize(700, 500);
        const QSize general = turnTo(logbook.edit(), 0);
        QVERIFY(general != QSize(700, 500));
        QVERIFY(notes != QSize(700, 500));
        QCOMPARE(turnTo(logbook.edit(), 5), QSize(700, 500));
        logbook.edit()->close();
        DiveEditWindow again(*logbook.carnet, {}, {});
        again.openOn(0);
        QVERIFY(QTest::qWaitForWindowActive(&again));
        QCoreApplication::processEvents();
        QCOMPARE(again.size(), general);
        QCOMPARE(turnTo(&again, 5), QSize(700, 500));
    }

    void undoTakesBackTypingFirstAndThenTheOperation() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(0);
        logbook.openEdit();
        auto* site = logbook.field<QComboBox>("siteField");
        site->setFocus();
        QTest::keyClicks(site, u"abc"_s);
        QTest::keyClick(site, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->form().text(logbook.carnet->form().find(u"siteField")), QString());
        QCOMPARE(logbook.carnet->count(), 2);
        // Nothing is left to undo in the field: the key is the document's now.
        QTest::keyClick(site, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->count(), 1);
    }

    void undoStoresWhatWasTypedElsewhereAndTakesItBack() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        formwalk::typeInto(logbook.field<QWidget>("siteField"), u"typed"_s);
        auto* number = logbook.field<QLineEdit>("plongeeNoField");
        number->setFocus();
        QTest::keyClick(number, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->record(0).site(), QString());
        QCOMPARE(logbook.field<QComboBox>("siteField")->currentText(), QString());
        QCOMPARE(logbook.carnet->redoName(), u"Edit dive"_s);
        logbook.action("redo")->trigger();
        QCOMPARE(logbook.carnet->record(0).site(), u"typed"_s);
    }

    void withoutADiveThereIsNothingToTypeInto() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(0);
        logbook.openEdit();
        logbook.carnet->select({});
        QVERIFY(!logbook.field<QLineEdit>("plongeeNoField")->isEnabled());
        logbook.carnet->select({1});
        QVERIFY(logbook.field<QLineEdit>("plongeeNoField")->isEnabled());
    }
};

int runDiveEditWindowTest(int argc, char** argv) {
    DiveEditWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveEditWindowTest.moc"
