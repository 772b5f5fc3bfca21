#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class RegisterEngineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openingSelectsTheLastRecord() {
        RegisterBench bench("Epaves");
        Epaves one, two;
        one.setNom(u"one"_s);
        two.setNom(u"two"_s);
        bench.load<Epaves>({one, two}, epavesClass());
        QCOMPARE(bench.shown->selectedRows(), Selection{1});
        QCOMPARE(bench.text(u"nomField"_s), u"two"_s);
        QVERIFY(!bench.document->isEdited());
    }

    void addingAppendsAndSelectsTheNewRecord() {
        Wrecks wrecks({u"one"_s, u"two"_s});
        wrecks.shown->selectRows({0});
        QCOMPARE(wrecks.add({{u"nomField"_s, u"three"_s}}), 2);
        QCOMPARE(wrecks.names(), QStringList({u"one"_s, u"two"_s, u"three"_s}));
        QCOMPARE(wrecks.shown->selectedRows(), Selection{2});
        QCOMPARE(wrecks.text(u"nomField"_s), u"three"_s);
        QVERIFY(wrecks.document->isEdited());
    }

    void fillingThePickListOfANewRecordLeavesTheSelectedOneAlone() {
        Wrecks wrecks({u"one"_s});
        wrecks.shown->selectRows({0});
        wrecks.desk.pickLists.append(u"type epave"_s, u"cargo"_s);
        wrecks.add({{u"typeField"_s, u"cargo"_s}});
        QCOMPARE(wrecks.record<Epaves>(0).nom(), u"one"_s);
        QVERIFY(wrecks.record<Epaves>(0).type().isNull());
        QCOMPARE(wrecks.record<Epaves>(1).type(), u"cargo"_s);
    }

    void updatingReplacesTheSelectedRecord() {
        Wrecks wrecks({u"one"_s, u"two"_s});
        wrecks.set(1, {{u"nomField"_s, u"other"_s}, {u"jaugeField"_s, u"1200"_s}});
        QCOMPARE(wrecks.names(), QStringList({u"one"_s, u"other"_s}));
        QCOMPARE(wrecks.record<Epaves>(1).jauge(), 1200);
        wrecks.document->undo();
        QCOMPARE(wrecks.names(), QStringList({u"one"_s, u"two"_s}));
        QVERIFY(!wrecks.document->isEdited());
    }

    void storingAnUnchangedFormIsNoEdit() {
        Wrecks wrecks({u"one"_s, u"two"_s});
        wrecks.shown->selectRows({0});
        wrecks.shown->updateRecord();
        wrecks.shown->next();
        QVERIFY(!wrecks.document->isEdited());
        QVERIFY(!wrecks.document->canUndo());
    }

    void updatingWithoutASelectionDoesNothing() {
        Wrecks wrecks({u"one"_s});
        wrecks.fill(u"nomField"_s, u"lost"_s);
        wrecks.shown->updateRecord();
        QCOMPARE(wrecks.names(), QStringList{u"one"_s});
    }

    void deletingTakesAllSelectedRecordsAfterOneQuestion() {
        Wrecks wrecks({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        wrecks.shown->selectRows({0, 2});
        wrecks.desk.prompt.expectBeep();
        wrecks.desk.prompt.expectQuestion(u"Erase card"_s, 0);
        QVERIFY(wrecks.shown->deleteRecords());
        QCOMPARE(wrecks.desk.prompt.finish(), QStringList());
        QCOMPARE(wrecks.names(), QStringList({u"b"_s, u"d"_s}));
        QCOMPARE(wrecks.shown->selectedRows(), Selection());
        wrecks.document->undo();
        QCOMPARE(wrecks.names(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    }

    void cancellingTheQuestionDeletesNothing() {
        Wrecks wrecks({u"a"_s});
        wrecks.shown->selectRows({0});
        wrecks.desk.prompt.expectBeep();
        wrecks.desk.prompt.expectQuestion(u"Erase card"_s, 1);
        QVERIFY(!wrecks.shown->deleteRecords());
        QCOMPARE(wrecks.names(), QStringList{u"a"_s});
    }

    void deletingWithoutASelectionAsksNothing() {
        Wrecks wrecks({u"a"_s});
        QVERIFY(!wrecks.shown->deleteRecords());
        QCOMPARE(wrecks.desk.prompt.finish(), QStringList());
    }

    void previousAndNextStoreTheFormFirst() {
        Wrecks wrecks({u"a"_s, u"b"_s, u"c"_s});
        wrecks.shown->selectRows({1});
        wrecks.fill(u"nomField"_s, u"B"_s);
        wrecks.shown->next();
        QCOMPARE(wrecks.shown->selectedRows(), Selection{2});
        QCOMPARE(wrecks.text(u"nomField"_s), u"c"_s);
        wrecks.fill(u"nomField"_s, u"C"_s);
        wrecks.shown->previous();
        QCOMPARE(wrecks.names(), QStringList({u"a"_s, u"B"_s, u"C"_s}));
        QCOMPARE(wrecks.text(u"nomField"_s), u"B"_s);
    }

    void previousAndNextStopAtTheEnds() {
        Wrecks wrecks({u"a"_s, u"b"_s});
        wrecks.shown->selectRows({0});
        QVERIFY(!wrecks.shown->canGoBack());
        QVERIFY(wrecks.shown->canGoOn());
        wrecks.shown->previous();
        QCOMPARE(wrecks.shown->selectedRows(), Selection{0});
        wrecks.shown->next();
        QVERIFY(wrecks.shown->canGoBack());
        QVERIFY(!wrecks.shown->canGoOn());
        wrecks.shown->next();
        QCOMPARE(wrecks.shown->selectedRows(), Selection{1});
    }

    void withoutASelectionNextIsOfferedAndMovesNowhere() {
        Wrecks wrecks({u"a"_s, u"b"_s});
        QVERIFY(wrecks.shown->canGoOn());
        wrecks.shown->next();
        QCOMPARE(wrecks.shown->selectedRows(), Selection());
        QVERIFY(!RegisterBench("Epaves").shown->canGoOn());
    }

    void selectingAnotherRowStoresTheFormWhileItIsOpen() {
        Wrecks wrecks({u"a"_s, u"b"_s});
        wrecks.shown->selectRows({0});
        wrecks.fill(u"nomField"_s, u"typed"_s);
        wrecks.shown->chooseRows({1});
        QCOMPARE(wrecks.names(), QStringList({u"a"_s, u"b"_s}));
        wrecks.shown->setFormOpen(true);
        wrecks.fill(u"nomField"_s, u"typed"_s);
        wrecks.shown->chooseRows({0});
        QCOMPARE(wrecks.names(), QStringList({u"a"_s, u"typed"_s}));
    }

    void theCountLabelSaysHowMany() {
        Wrecks none({}), one({u"a"_s}), three({u"a"_s, u"b"_s, u"c"_s});
        QCOMPARE(none.shown->tableCount(), u"Cards|0"_s);
        QCOMPARE(one.shown->tableCount(), u"One card"_s);
        QCOMPARE(three.shown->tableCount(), u"Cards|3"_s);
        QCOMPARE(three.text(u"countField"_s), u"Cards|3"_s);
        three.add();
        QCOMPARE(three.text(u"countField"_s), u"Cards|4"_s);
    }

    void aNewWordIsOfferedAndTheRecordSavedWhateverTheAnswer_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QStringList>("list");
        QTest::newRow("yes") << 0 << QStringList({u"cargo"_s, u"trawler"_s});
        QTest::newRow("no") << 1 << QStringList({u"trawler"_s});
    }
    void aNewWordIsOfferedAndTheRecordSavedWhateverTheAnswer() {
        QFETCH(int, answer);
        Wrecks wrecks({u"a"_s});
        while (!wrecks.desk.pickLists.list(u"type epave"_s).isEmpty())
            wrecks.desk.pickLists.removeAt(u"type epave"_s, {0});
        wrecks.desk.pickLists.append(u"type epave"_s, u"trawler"_s);
        wrecks.shown->selectRows({0});
        wrecks.desk.prompt.expectBeep();
        wrecks.desk.prompt.expectQuestion(u"Add item to ComboBox|cargo"_s, answer);
        wrecks.fill(u"typeField"_s, u"cargo"_s);
        QCOMPARE(wrecks.desk.prompt.finish(), QStringList());
        QTEST(wrecks.desk.pickLists.list(u"type epave"_s), "list");
        QTEST(wrecks.desk.defaults.list(u"type epave"_s), "list");
        QCOMPARE(wrecks.record<Epaves>(0).type(), u"cargo"_s);
    }

    void draggingASliderIsOneUndoStep() {
        Wrecks wrecks({u"a"_s});
        wrecks.shown->selectRows({0});
        for (const char* value : {"1", "2", "4"}) wrecks.fill(u"interetSlider"_s, QLatin1String(value));
        QCOMPARE(wrecks.record<Epaves>(0).interet(), 4);
        wrecks.fill(u"techniciteSlider"_s, u"2"_s);
        wrecks.document->undo();
        QCOMPARE(wrecks.record<Epaves>(0).technicite(), 0);
        QCOMPARE(wrecks.record<Epaves>(0).interet(), 4);
        wrecks.document->undo();
        QCOMPARE(wrecks.record<Epaves>(0).interet(), 0);
        QVERIFY(!wrecks.document->canUndo());
        QVERIFY(!wrecks.document->isEdited());
    }

    void aDocumentToLookAtCannotBeChanged() {
        Wrecks wrecks({u"a"_s});
        wrecks.document->setReadOnly(true);
        wrecks.shown->selectRows({0});
        QCOMPARE(wrecks.add(), -1);
        wrecks.fill(u"nomField"_s, u"b"_s);
        wrecks.shown->updateRecord();
        QVERIFY(!wrecks.shown->deleteRecords());
        QVERIFY(!wrecks.shown->acceptDrop(u"materiel"_s));
        QCOMPARE(wrecks.names(), QStringList{u"a"_s});
    }

    void aFieldAnswersToItsOwnName() {
        Wrecks wrecks({u"a"_s});
        wrecks.set(0, {{u"nom"_s, u"b"_s}, {u"pointHaut"_s, u"-"_s}, {u"orientation"_s, u"90"_s}});
        QCOMPARE(wrecks.record<Epaves>(0).nom(), u"b"_s);
        QCOMPARE(wrecks.record<Epaves>(0).pointHaut(), -1.0F);
        QCOMPARE(wrecks.record<Epaves>(0).orientation(), 90);
    }

    void absentTextsStayAbsentWhileNobodyTypes() {
        Wrecks wrecks({u"a"_s});
        wrecks.set(0, {{u"notesField"_s, u"x"_s}});
        QVERIFY(wrecks.record<Epaves>(0).site().isNull());
        QCOMPARE(wrecks.record<Epaves>(0).notes(), u"x"_s);
    }

    void aFloatThatNobodyTypedOverStaysToTheBit() {
        RegisterBench bench("Epaves");
        Epaves wreck;
        wreck.setLongueur(std::numeric_limits<float>::infinity());
        wreck.setLargeur(0.1F + 0.2F);
        wreck.setPointBas(std::numeric_limits<float>::quiet_NaN());
        bench.load<Epaves>({wreck}, epavesClass());
        bench.set(0, {{u"notesField"_s, u"x"_s}});
        QVERIFY(sameValue(bench.record<Epaves>(0).longueur(), wreck.longueur()));
        QVERIFY(sameValue(bench.record<Epaves>(0).largeur(), wreck.largeur()));
        QVERIFY(sameValue(bench.record<Epaves>(0).pointBas(), wreck.pointBas()));
    }
};

int runRegisterEngineTest(int argc, char** argv) {
    RegisterEngineTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterEngineTest.moc"
