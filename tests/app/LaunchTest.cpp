#include "AppTests.h"
#include "app/ReminderWindow.h"
#include "app/StartWindow.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QString recentKey = u"recent documents"_s;

}  // namespace

class LaunchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAnyListOfRecentDocumentsANewLogbookOpens() {
        Desktop desktop;
        desktop.suite.launch({});
        QCOMPARE(desktop.count(), 1);
        QVERIFY(desktop.logbook() && desktop.logbook()->isVisible());
        QCOMPARE(desktop.logbook()->windowTitle(), u"Untitled[*]"_s);
        QVERIFY(!desktop.suite.startWindow());
        QVERIFY(!desktop.controller().penseBeteWindowIfMade());
    }

    void theMostRecentDocumentOpensAndNoNewLogbook() {
        Desktop desktop;
        const QString file = desktop.copyOf(u"plongee-v27.carnet"_s, u"mine.carnet"_s);
        desktop.desk.defaults.store(recentKey, QJsonArray{file, u"/nowhere/older.carnet"_s});
        desktop.suite.launch({});
        QCOMPARE(desktop.count(), 1);
        QCOMPARE(desktop.controller().documents().front()->path(), file);
    }

    void anEmptyListOpensNothingButTheStartWindow() {
        Desktop desktop;
        desktop.desk.defaults.store(recentKey, QJsonArray{});
        QVERIFY(desktop.controller().applicationOpenUntitledFile());
        QCOMPARE(desktop.count(), 0);
        desktop.suite.launch({});
        QCOMPARE(desktop.count(), 0);
        QVERIFY(desktop.suite.startWindow() && desktop.suite.startWindow()->isVisible());
    }

    void theStartWindowLeadsToANewLogbook() {
        Desktop desktop;
        desktop.desk.defaults.store(recentKey, QJsonArray{});
        desktop.suite.launch({});
        QTest::mouseClick(desktop.suite.startWindow()->findChild<QPushButton*>(u"newLogbook"_s),
                          Qt::LeftButton);
        QTRY_VERIFY(desktop.logbook());
        QVERIFY(!desktop.suite.startWindow());
    }

    void theStartWindowLeadsToAFile() {
        Desktop desktop;
        desktop.desk.defaults.store(recentKey, QJsonArray{});
        desktop.toOpen = {desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s)};
        desktop.suite.launch({});
        QTest::mouseClick(desktop.suite.startWindow()->findChild<QPushButton*>(u"openDocument"_s),
                          Qt::LeftButton);
        QTRY_COMPARE(desktop.count(), 1);
        QCOMPARE(desktop.controller().documents().front()->path(), desktop.path(u"a.carnet"_s));
    }

    void aRecentFileThatIsGoneIsToldAndTheStartWindowComes() {
        Desktop desktop;
        const QString gone = desktop.path(u"gone.carnet"_s);
        desktop.desk.defaults.store(recentKey, QJsonArray{gone});
        try {
            readFile(gone);
            QFAIL("the file should not be there");
        } catch (const ReadError& error) {
            desktop.desk.prompt.expectAlert(error.sentence());
        }
        desktop.suite.launch({});
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QVERIFY(desktop.suite.startWindow() && desktop.suite.startWindow()->isVisible());
    }

    void theReminderComesBesideTheDocumentNotInsteadOfIt() {
        Desktop desktop;
        desktop.desk.defaults.store(u"pense bete"_s, true);
        desktop.desk.defaults.store(u"pense bete text"_s, u"service the regulator"_s);
        desktop.suite.launch({});
        const ReminderWindow* note = desktop.controller().penseBeteWindowIfMade();
        QVERIFY(note && note->isVisible());
        QCOMPARE(note->findChild<QPlainTextEdit*>()->toPlainText(), u"service the regulator"_s);
        QVERIFY(desktop.logbook() && desktop.logbook()->isVisible());
    }

    void theReminderIsKept() {
        Desktop desktop;
        desktop.suite.launch({});
        desktop.trigger(desktop.logbook(), "showPenseBete");
        ReminderWindow& note = desktop.controller().penseBeteWindow();
        QVERIFY(note.isVisible());
        formwalk::typeInto(note.findChild<QPlainTextEdit*>(), u"buy a torch"_s);
        QTest::mouseClick(note.findChild<QCheckBox*>(), Qt::LeftButton, {},
                          QPoint(8, note.findChild<QCheckBox*>()->height() / 2));
        note.close();
        QCOMPARE(desktop.desk.defaults.text(u"pense bete text"_s), u"buy a torch"_s);
        QVERIFY(desktop.desk.defaults.boolean(u"pense bete"_s));
    }

    void filesOnTheCommandLineOpenInsteadOfTheRecentOne() {
        Desktop desktop;
        const QString first = desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s);
        const QString second = desktop.copyOf(u"epaves-v6.epaves"_s, u"b.epaves"_s);
        desktop.desk.defaults.store(recentKey, QJsonArray{u"/nowhere/older.carnet"_s});
        desktop.suite.launch({first, second});
        QCOMPARE(desktop.count(), 2);
        QCOMPARE(desktop.desk.prompt.finish(), QStringList());
        QCOMPARE(desktop.controller().recentDocuments()->mid(0, 2), (QStringList{second, first}));
    }

    void everyNewDocumentActionMakesItsKindAndForgetsItAgain_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("type");
        const QList<std::pair<QString, QString>> actions{
            {u"newCarnetDocumentMenuAction"_s, u"Carnet de plongee"_s},
            {u"newDocumentDocumentMenuAction"_s, u"Divers documents"_s},
            {u"newMaterielDocumentMenuAction"_s, u"Materiel"_s},
            {u"newRebreatherDocumentMenuAction"_s, u"Rebreather"_s},
            {u"newConsommablesDocumentMenuAction"_s, u"Consommables"_s},
            {u"newCompresseurDocumentMenuAction"_s, u"Compresseur"_s},
            {u"newEpavesDocumentMenuAction"_s, u"Epaves"_s},
            {u"newBudgetDocumentMenuAction"_s, u"Budget"_s},
            {u"newEntrepriseDocumentMenuAction"_s, u"Entreprises"_s},
            {u"newStructureDocumentMenuAction"_s, u"Structures"_s}};
        for (const auto& [action, type] : actions) QTest::newRow(qPrintable(action)) << action << type;
    }
    void everyNewDocumentActionMakesItsKindAndForgetsItAgain() {
        QFETCH(QString, action);
        QFETCH(QString, type);
        Desktop desktop;
        desktop.suite.launch({});
        desktop.trigger(desktop.logbook(), action.toLatin1().constData());
        QCOMPARE(desktop.count(), 2);
        QCOMPARE(QLatin1String(desktop.controller().documents().back()->kind().typeName), type);
        QVERIFY(desktop.suite.windows().all().back()->isVisible());
        QCOMPARE(desktop.controller().defaultType(), u"Carnet de plongee"_s);
        desktop.trigger(desktop.logbook(), "newDocument");
        QCOMPARE(QLatin1String(desktop.controller().documents().back()->kind().typeName),
                 u"Carnet de plongee"_s);
    }

    void theLoadingPanelIsMadeAndDisposedOf() {
        Desktop desktop;
        QVERIFY(!desktop.controller().isLoadingWindowShown());
        desktop.controller().showLoadingWindow();
        QVERIFY(desktop.controller().isLoadingWindowShown());
        desktop.controller().disposeLoadingWindow();
        QVERIFY(!desktop.controller().isLoadingWindowShown());
    }

    void theProgramEndsWhenNothingIsLeftOnScreen() {
        Desktop desktop;
        desktop.suite.launch({});
        QSignalSpy finished(&desktop.suite, &DesktopSuite::finished);
        desktop.trigger(desktop.logbook(), "showPenseBete");
        desktop.trigger(desktop.logbook(), "closeDocument");
        QTRY_COMPARE(desktop.count(), 0);
        QCOMPARE(finished.size(), 0);
        desktop.controller().penseBeteWindow().close();
        QCOMPARE(finished.size(), 1);
    }
};

int runLaunchTest(int argc, char** argv) {
    LaunchTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LaunchTest.moc"
