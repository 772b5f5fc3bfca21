#include "AppTests.h"
#include "platform/files/SafeFile.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

enum CloseAnswer { save, dontSave, cancel };
enum ChangedAnswer { overwrite, saveElsewhere, giveUp };

QString closeQuestion(const QString& name) {
    return u"Save the changes in “%1”?"_s.arg(name);
}

QString changedQuestion(const QString& name) {
    return u"“%1” was changed by another program since it was opened. Overwrite that version, or save under another name?"_s
        .arg(name);
}

qsizetype divesIn(Desktop& desktop, const QString& file) {
    return dynamic_cast<Carnet&>(*desktop.controller().read(file)).count();
}

}  // namespace

class SavingTest : public QObject {
    Q_OBJECT

    /// A logbook from a file, with one dive more than the file.
    static QString openAndAdd(Desktop& desktop) {
        const QString file = desktop.copyOf(u"plongee-v27.carnet"_s, u"mine.carnet"_s);
        desktop.suite.launch({file});
        desktop.logbook()->addDive();
        return file;
    }

private Q_SLOTS:
    void savingWritesWhatWasTypedLast() {
        Desktop desktop;
        const QString file = openAndAdd(desktop);
        const qsizetype dives = desktop.logbook()->carnet().count();
        formwalk::typeInto(desktop.logbook()->editWindowIfMade()->findChild<QWidget*>(u"siteField"_s),
                           u"typed last"_s);
        desktop.trigger(desktop.logbook(), "saveDocument");
        QVERIFY(!desktop.logbook()->isWindowModified());
        const auto read = desktop.controller().read(file);
        const auto& carnet = dynamic_cast<Carnet&>(*read);
        QCOMPARE(carnet.count(), dives);
        QCOMPARE(carnet.record(dives - 1).site(), u"typed last"_s);
    }

    void anUntitledDocumentIsSavedUnderAChosenName() {
        Desktop desktop;
        desktop.suite.launch({});
        desktop.logbook()->addDive();
        desktop.toSave = desktop.path(u"new.carnet"_s);
        desktop.trigger(desktop.logbook(), "saveDocument");
        QCOMPARE(desktop.suggested, u"Untitled.carnet"_s);
        QCOMPARE(divesIn(desktop, desktop.toSave), 1);
        QCOMPARE(desktop.logbook()->windowTitle(), u"new.carnet[*]"_s);
        QCOMPARE(desktop.controller().recentDocuments()->value(0), desktop.toSave);
    }

    void givingUpTheSaveDialogLeavesTheDocumentEdited() {
        Desktop desktop;
        desktop.suite.launch({});
        desktop.logbook()->addDive();
        desktop.trigger(desktop.logbook(), "saveDocument");
        QVERIFY(desktop.logbook()->isWindowModified());
    }

    void aFileThatIsOpenInAnotherWindowIsNotReplaced() {
        Desktop desktop;
        const QString file = openAndAdd(desktop);
        desktop.controller().newDocument(desktop.desk.kinds.standard());
        desktop.toSave = file;
        desktop.desk.prompt.expectAlert(
            u"“mine.carnet” is open in another window, so it was not replaced."_s);
        desktop.trigger(desktop.logbook(1), "saveDocumentAs");
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QVERIFY(divesIn(desktop, file) > 0);
    }

    void aFileChangedOnDiskIsAskedAbout_data() {
        QTest::addColumn<int>("answer");
        QTest::newRow("overwrite") << int(overwrite);
        QTest::newRow("save under another name") << int(saveElsewhere);
        QTest::newRow("cancel") << int(giveUp);
    }
    void aFileChangedOnDiskIsAskedAbout() {
        QFETCH(int, answer);
        Desktop desktop;
        const QString file = openAndAdd(desktop);
        const qsizetype dives = desktop.logbook()->carnet().count();
        const QByteArray others = golden::bytes(u"plongee-v26.carnet"_s);
        saveFile(file, others);
        desktop.toSave = desktop.path(u"elsewhere.carnet"_s);
        desktop.desk.prompt.expectQuestion(changedQuestion(u"mine.carnet"_s), answer);
        desktop.trigger(desktop.logbook(), "saveDocument");
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(readFile(file) == others, answer != overwrite);
        if (answer == overwrite) QCOMPARE(divesIn(desktop, file), dives);
        if (answer == saveElsewhere) QCOMPARE(divesIn(desktop, desktop.toSave), dives);
        QCOMPARE(desktop.logbook()->isWindowModified(), answer == giveUp);
    }

    void aSaveThatFailsIsToldAndTheDocumentStaysEdited() {
        Desktop desktop;
        desktop.suite.launch({});
        desktop.logbook()->addDive();
        desktop.toSave = desktop.path(u"no such folder/new.carnet"_s);
        desktop.desk.prompt.expectAlert(SaveError(SaveProblem::NoFolder, desktop.toSave).sentence());
        desktop.trigger(desktop.logbook(), "saveDocument");
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QVERIFY(desktop.logbook()->isWindowModified());
    }

    void revertingAsksAndReadsTheFileAgain() {
        Desktop desktop;
        const QString file = openAndAdd(desktop);
        const qsizetype dives = divesIn(desktop, file);
        desktop.desk.prompt.expectQuestion(u"Give up the changes in “mine.carnet” and read the file again?"_s,
                                           1);
        desktop.trigger(desktop.logbook(), "revertDocument");
        QCOMPARE(desktop.logbook()->carnet().count(), dives + 1);
        desktop.desk.prompt.expectQuestion(u"Give up the changes in “mine.carnet” and read the file again?"_s,
                                           0);
        desktop.trigger(desktop.logbook(), "revertDocument");
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(desktop.logbook()->carnet().count(), dives);
        QVERIFY(!desktop.logbook()->isWindowModified());
        QCOMPARE(desktop.logbook()->table().model()->rowCount(), int(dives));
    }

    void closingWithChangesAsks_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("save") << int(save) << true << true;
        QTest::newRow("don't save") << int(dontSave) << true << false;
        QTest::newRow("cancel") << int(cancel) << false << false;
    }
    void closingWithChangesAsks() {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QFETCH(bool, saves);
        Desktop desktop;
        const QString file = openAndAdd(desktop);
        const QByteArray before = readFile(file);
        desktop.desk.prompt.expectQuestion(closeQuestion(u"mine.carnet"_s), answer);
        desktop.logbook()->close();
        QTRY_COMPARE(desktop.count(), closes ? 0 : 1);
        QCoreApplication::processEvents();
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(desktop.count(), closes ? 0 : 1);
        QCOMPARE(readFile(file) != before, saves);
    }

    void closingWithoutChangesAsksNothing() {
        Desktop desktop;
        desktop.suite.launch({desktop.copyOf(u"plongee-v27.carnet"_s, u"mine.carnet"_s)});
        desktop.logbook()->close();
        QTRY_COMPARE(desktop.count(), 0);
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
    }

    void whatIsOnlyTypedCountsAsAChange() {
        Desktop desktop;
        openAndAdd(desktop);
        desktop.trigger(desktop.logbook(), "saveDocument");
        QVERIFY(!desktop.logbook()->isWindowModified());
        formwalk::typeInto(desktop.logbook()->editWindowIfMade()->findChild<QWidget*>(u"gpsField"_s),
                           u"somewhere"_s);
        desktop.desk.prompt.expectQuestion(closeQuestion(u"mine.carnet"_s), cancel);
        desktop.logbook()->close();
        QCoreApplication::processEvents();
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(desktop.count(), 1);
    }

    void quittingAsksForEveryEditedDocumentAndOneCancelKeepsAll() {
        Desktop desktop;
        openAndAdd(desktop);
        desktop.controller().newDocument(desktop.desk.kinds.standard());
        desktop.logbook(1)->addDive();
        QSignalSpy finished(&desktop.suite, &DesktopSuite::finished);
        desktop.desk.prompt.expectQuestion(closeQuestion(u"mine.carnet"_s), dontSave);
        desktop.desk.prompt.expectQuestion(closeQuestion(u"Untitled"_s), cancel);
        QVERIFY(!desktop.suite.quit());
        QCOMPARE(desktop.count(), 2);
        desktop.desk.prompt.expectQuestion(closeQuestion(u"mine.carnet"_s), dontSave);
        desktop.desk.prompt.expectQuestion(closeQuestion(u"Untitled"_s), dontSave);
        QVERIFY(desktop.suite.quit());
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(desktop.count(), 0);
        QCOMPARE(finished.size(), 1);
    }

    void aNewEmptyRegisterCanBeSavedAndOpenedAgain() {
        Desktop desktop;
        desktop.suite.launch({});
        Document* budget = desktop.controller().newDocumentMenuAction(u"newBudgetDocumentMenuAction"_s);
        desktop.toSave = desktop.path(u"mine.budget"_s);
        desktop.trigger(desktop.suite.windows().windowOf(budget), "saveDocument");
        const auto read = desktop.controller().read(desktop.toSave);
        QCOMPARE(QLatin1String(read->kind().typeName), u"Budget"_s);
        QCOMPARE(read->summary().records, 0);
    }
};

int runSavingTest(int argc, char** argv) {
    SavingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SavingTest.moc"
