#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// The list operations of the logbook: adding, storing, deleting, renumbering, walking, selecting, undoing.
class LogbookListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewDiveHasTheNumberAfterTheLastRow_data() {
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<int>("next");
        QTest::newRow("empty logbook") << QList<int>{} << 1;
        QTest::newRow("in order") << QList<int>{1, 2, 3} << 4;
        QTest::newRow("gaps") << QList<int>{1, 7, 40} << 41;
        QTest::newRow("unsorted: the last row counts, not the largest") << QList<int>{90, 5} << 6;
        QTest::newRow("negative") << QList<int>{-1} << 0;
    }
    void aNewDiveHasTheNumberAfterTheLastRow() {
        QFETCH(QList<int>, numbers);
        TestDesk desk;
        auto carnet = desk.newLogbook();
        QList<Plongee> dives;
        for (int number : numbers) dives << diveNumbered(number);
        fillLogbook(*carnet, dives);
        const qsizetype row = carnet->addDive();
        QCOMPARE(row, numbers.size());
        QCOMPARE(carnet->selection(), Selection{row});
        QCOMPARE(carnet->currentIndex(), row);
        QTEST(carnet->record(row).noPlongee(), "next");
        QVERIFY(carnet->isEdited());
        QCOMPARE(desk.prompt.finish(), QStringList());
    }

    void storingTheFormReplacesTheSelectedDive() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1, u"Brest"_s), diveNumbered(2, u"Toulon"_s)});
        carnet->select({1});
        carnet->form().setText(ControlName{"siteField"}, u"La Jument"_s);
        QVERIFY(!carnet->isEdited());
        carnet->updateDive();
        QVERIFY(carnet->isEdited());
        QCOMPARE(carnet->record(1).site(), u"La Jument"_s);
        QCOMPARE(carnet->record(1).lieu(), u"Toulon"_s);
        QVERIFY(carnet->record(0).site().isNull());
    }

    void storingAnUnchangedFormChangesNothing() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1, u"Brest"_s)});
        carnet->select({0});
        carnet->updateDive();
        QVERIFY(!carnet->isEdited());
        QVERIFY(!carnet->canUndo());
    }

    void deletingAsksOnceAndRemovesAllSelected_data() {
        QTest::addColumn<Selection>("rows");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QList<int>>("left");
        QTest::newRow("several") << Selection{0, 2} << 0 << QList<int>{2};
        QTest::newRow("one") << Selection{1} << 0 << QList<int>{1, 3};
        QTest::newRow("cancelled") << Selection{0, 1, 2} << 1 << QList<int>{1, 2, 3};
    }
    void deletingAsksOnceAndRemovesAllSelected() {
        QFETCH(Selection, rows);
        QFETCH(int, answer);
        QFETCH(QList<int>, left);
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1), diveNumbered(2), diveNumbered(3)});
        carnet->select(rows);
        desk.prompt.expectBeep();
        desk.prompt.expectQuestion(desk.strings.text({"Main", "Erase dive"}), answer);
        QCOMPARE(carnet->deleteDive(), answer == 0);
        QCOMPARE(desk.prompt.finish(), QStringList());
        QCOMPARE(numbersIn(*carnet), left);
        QCOMPARE(carnet->selection(), answer == 0 ? Selection{} : rows);
        QCOMPARE(carnet->isEdited(), answer == 0);
    }

    void deletingWithoutSelectionDoesNothing() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1)});
        QVERIFY(!carnet->deleteDive());
        QCOMPARE(desk.prompt.finish(), QStringList());
        QCOMPARE(carnet->count(), 1);
    }

    void renumberingFollowsTheListAndKeepsTheRest() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(9, u"Brest"_s), diveNumbered(2, u"Sein"_s),
                              diveNumbered(5, u"Ouessant"_s)});
        const Records<Plongee> before = carnet->records();
        carnet->panel().setText(panelcontrol::renumNumber, u"100"_s);
        carnet->renumDives();
        QCOMPARE(numbersIn(*carnet), (QList<int>{100, 101, 102}));
        for (int row = 0; row < 3; ++row) {
            Plongee sameNumber = carnet->record(row);
            sameNumber.setNoPlongee(before[row]->noPlongee());
            QVERIFY(sameRecord<Plongee>(sameNumber, *before[row], PlongeeFields::all));
        }
        carnet->undo();
        QCOMPARE(numbersIn(*carnet), (QList<int>{9, 2, 5}));
        QVERIFY(!carnet->isEdited());
    }

    void walkingStoresTheFormAndStopsAtTheEnds() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1, u"A"_s), diveNumbered(2, u"B"_s)});
        carnet->nextDive();
        QCOMPARE(carnet->selection(), Selection{});
        carnet->select({0});
        carnet->form().setText(ControlName{"lieuField"}, u"A2"_s);
        carnet->nextDive();
        QCOMPARE(carnet->record(0).lieu(), u"A2"_s);
        QCOMPARE(carnet->selection(), Selection{1});
        QCOMPARE(carnet->form().text(ControlName{"lieuField"}), u"B"_s);
        carnet->nextDive();
        QCOMPARE(carnet->selection(), Selection{1});
        carnet->prevDive();
        carnet->prevDive();
        QCOMPARE(carnet->selection(), Selection{0});
        QCOMPARE(carnet->form().text(ControlName{"lieuField"}), u"A2"_s);
    }

    void selectLastDiveCanLeaveNothingSelected() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1), diveNumbered(2)});
        QSignalSpy scrolled(carnet.get(), &Carnet::scrollWanted);
        carnet->selectLastDive(1, true);
        QCOMPARE(carnet->selection(), Selection{1});
        carnet->selectLastDive(0, false);
        QCOMPARE(carnet->selection(), Selection{});
        QCOMPARE(scrolled.count(), 2);
        carnet->selectLastDive(7, true);
        QCOMPARE(carnet->selection(), Selection{});
    }

    void openingScrollsToTheLastDiveWithNothingSelected() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        QSignalSpy scrolled(carnet.get(), &Carnet::scrollWanted);
        fillLogbook(*carnet, {diveNumbered(1), diveNumbered(2), diveNumbered(3)});
        QCOMPARE(scrolled.count(), 1);
        QCOMPARE(scrolled.first().first().value<qsizetype>(), 2);
        QCOMPARE(carnet->selection(), Selection{});
    }

    void selectingAnotherRowStoresWhatWasTypedWhileTheFormIsOpen() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1, u"A"_s), diveNumbered(2, u"B"_s)});
        carnet->select({0});
        carnet->setFormOpen(true);
        carnet->form().setText(ControlName{"notesField"}, u"congre"_s);
        carnet->changementSelection({1});
        QCOMPARE(carnet->record(0).notes(), u"congre"_s);
        QCOMPARE(carnet->form().text(ControlName{"lieuField"}), u"B"_s);
    }

    void theEditedMarkFollowsUndoAndRedoAcrossASave() {
        TestDesk desk;
        QTemporaryDir folder;
        auto carnet = desk.newLogbook();
        carnet->addDive();
        carnet->saveAs(folder.filePath(u"a.carnet"_s));
        QVERIFY(!carnet->isEdited());
        carnet->addDive();
        QVERIFY(carnet->isEdited());
        carnet->undo();
        QVERIFY(!carnet->isEdited());
        carnet->undo();
        QVERIFY(carnet->isEdited());
        QCOMPARE(carnet->count(), 0);
        carnet->redo();
        QVERIFY(!carnet->isEdited());
        carnet->redo();
        QVERIFY(carnet->isEdited());
        QCOMPARE(numbersIn(*carnet), (QList<int>{1, 2}));
        QVERIFY(!carnet->canRedo());
    }

    void aReadOnlyLogbookTakesNoChange() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, {diveNumbered(1, u"A"_s)});
        carnet->setReadOnly(true);
        carnet->select({0});
        carnet->form().setText(ControlName{"lieuField"}, u"B"_s);
        carnet->updateDive();
        QVERIFY(!carnet->deleteDive());
        carnet->renumDives();
        QCOMPARE(carnet->addDive(), -1);
        QCOMPARE(carnet->count(), 1);
        QCOMPARE(carnet->record(0).lieu(), u"A"_s);
        QCOMPARE(desk.prompt.finish(), QStringList());
    }

    void notificationsReachTheLogbook() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        QSignalSpy reload(carnet.get(), &Carnet::tableReloadWanted);
        QSignalSpy columns(carnet.get(), &Carnet::columnsChanged);
        QSignalSpy profile(carnet.get(), &Carnet::profileChanged);
        QSignalSpy sheet(carnet.get(), &Carnet::renumSheetWanted);
        for (const char* name :
             {"updateTableView", "updateColumnsTableView", "profile", "renumDives", "updateRebreather"})
            desk.notifications.post(QLatin1String(name), nullptr);
        QCOMPARE(reload.count(), 1);
        QCOMPARE(columns.count(), 1);
        QCOMPARE(profile.count(), 1);
        QCOMPARE(sheet.count(), 1);
    }

    void onlyTheOwnTypeIsLoadedAndSaved() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        const QByteArray bytes = carnet->dataRepresentationOfType(u"Carnet de plongee"_s);
        QVERIFY(!bytes.isEmpty());
        QVERIFY(carnet->loadDataRepresentation(bytes, u"Carnet de plongee"_s));
        QVERIFY(!carnet->loadDataRepresentation(bytes, u"Epaves"_s));
        QVERIFY(carnet->dataRepresentationOfType(u"Carnet de Plongee"_s).isNull());
    }

    void savingLogsOneFixedLine() {
        QStringList lines;
        TestDesk desk;
        desk.desk.log = Log([&](const QString& line) { lines << line; });
        desk.newLogbook()->dataRepresentationOfType(u"Carnet de plongee"_s);
        QCOMPARE(lines, QStringList{u"CARNET"_s});
    }
};

int runLogbookListTest(int argc, char** argv) {
    LogbookListTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "LogbookListTest.moc"
