#include "LogbookUiTests.h"
#include "logbook/ui/DiveProfileWindow.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

using Step = std::function<void(LogbookOnScreen&)>;

constexpr int yes = 0;
constexpr int no = 1;
const QString question = u"Put the lists that are marked into the dive?"_s;

/// Three dives, the second one selected, and two depths typed into its profile.
struct TypedProfile {
    LogbookOnScreen logbook{3};
    DiveProfileWindow* window = nullptr;

    TypedProfile() {
        logbook.clickRow(1);
        logbook.action("profilData")->trigger();
        window = logbook.window->profileWindowIfMade();
        if (!window || !QTest::qWaitForWindowActive(window)) qFatal("no profile window");
        QTest::keyClicks(text(), u"0"_s);
        QTest::keyClick(text(), Qt::Key_Return);
        QTest::keyClicks(text(), u"12"_s);
    }
    QPlainTextEdit* text() const { return window->findChild<QPlainTextEdit*>(u"importProfondeurField"_s); }
    bool isMarked() const { return window->findChild<QCheckBox*>(u"eraseProfondeurSwitch"_s)->isChecked(); }
    /// Of the dive with this number, wherever it stands now.
    qsizetype samples(int number) const {
        for (const auto& dive : logbook.carnet->records())
            if (dive->noPlongee() == number) return dive->profilProfondeur().size();
        return -1;
    }
    QStringList surprises() { return logbook.desk.prompt.finish(); }
};

}  // namespace

/// What was typed into a profile's lists and not put into the dive yet, when the person goes elsewhere.
class DiveProfileLeavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavingTheDiveAsks_data() {
        QTest::addColumn<Step>("leave");
        QTest::addColumn<QString>("title");
        const auto row = [](const char* name, const QString& title, const Step& leave) {
            QTest::newRow(name) << leave << title;
        };
        row("another row", u"Dive 1 – profile data"_s, [](LogbookOnScreen& logbook) { logbook.clickRow(0); });
        row("the next dive", u"Dive 3 – profile data"_s,
            [](LogbookOnScreen& logbook) { logbook.action("nextDive")->trigger(); });
        row("the previous dive", u"Dive 1 – profile data"_s,
            [](LogbookOnScreen& logbook) { logbook.action("prevDive")->trigger(); });
        row("a new dive", u"Dive 4 – profile data"_s,
            [](LogbookOnScreen& logbook) { logbook.action("addDive")->trigger(); });
        row("a search", u"Dive 1 – profile data"_s,
            [](LogbookOnScreen& logbook) { logbook.carnet->findInNotes(); });
        row("renumbering", u"Dive 3 – profile data"_s,
            [](LogbookOnScreen& logbook) { logbook.carnet->renumDives(); });
    }
    void leavingTheDiveAsks() {
        QFETCH(Step, leave);
        QFETCH(QString, title);
        for (const int answer : {yes, no}) {
            TypedProfile typed;
            typed.logbook.desk.prompt.expectQuestion(question, answer);
            leave(typed.logbook);
            QCOMPARE(typed.surprises(), QStringList());
            QCOMPARE(typed.samples(2), answer == yes ? 2 : 1);
            QCOMPARE(typed.samples(1), 1);
            QCOMPARE(typed.samples(3), 1);
            QVERIFY(!typed.isMarked());
            QCOMPARE(typed.text()->toPlainText(), QString());
            QCOMPARE(typed.window->windowTitle(), title);
        }
    }

    void whatIsPutIntoTheDiveOnLeavingCanBeUndone() {
        TypedProfile typed;
        typed.logbook.desk.prompt.expectQuestion(question, yes);
        typed.logbook.clickRow(2);
        QCOMPARE(typed.samples(2), 2);
        typed.logbook.carnet->undo();
        QCOMPARE(typed.samples(2), 1);
        QCOMPARE(typed.surprises(), QStringList());
    }

    void stayingWithTheDiveKeepsWhatWasTyped_data() {
        QTest::addColumn<Step>("stay");
        const auto row = [](const char* name, const Step& stay) { QTest::newRow(name) << stay; };
        row("storing the form", [](LogbookOnScreen& logbook) {
            logbook.carnet->form().setText(ControlName{"siteField"}, u"here"_s);
            logbook.carnet->updateDive();
        });
        row("sorting", [](LogbookOnScreen& logbook) {
            logbook.carnet->diveTable().didClickTableColumn(u"noPlongee"_s);
        });
        row("sorting the dive away", [](LogbookOnScreen& logbook) {
            logbook.carnet->form().setText(divecontrol::plongeeNo, u"9"_s);
            logbook.carnet->updateDive();
            logbook.carnet->diveTable().didClickTableColumn(u"noPlongee"_s);
            logbook.carnet->form().setText(divecontrol::plongeeNo, u"2"_s);
            logbook.carnet->updateDive();
        });
        row("selecting one more", [](LogbookOnScreen& logbook) { logbook.clickRow(2, Qt::ControlModifier); });
        row("opening the lists again",
            [](LogbookOnScreen& logbook) { logbook.action("profilData")->trigger(); });
        row("undoing an edit of it", [](LogbookOnScreen& logbook) {
            logbook.carnet->form().setText(ControlName{"siteField"}, u"here"_s);
            logbook.carnet->updateDive();
            logbook.carnet->undo();
        });
    }
    void stayingWithTheDiveKeepsWhatWasTyped() {
        QFETCH(Step, stay);
        TypedProfile typed;
        stay(typed.logbook);
        QCOMPARE(typed.surprises(), QStringList());
        QCOMPARE(typed.text()->toPlainText(), u"0\n12"_s);
        QVERIFY(typed.isMarked());
        QCOMPARE(typed.samples(2), 1);
        QTest::mouseClick(typed.window->findChild<QWidget*>(u"importProfil"_s), Qt::LeftButton);
        QCOMPARE(typed.samples(2), 2);
        QCOMPARE(typed.samples(1), 1);
    }

    void listsThatAreNotMarkedFollowTheDive() {
        TypedProfile typed;
        Plongee profile = typed.logbook.carnet->diveForm().working();
        profile.setPRESS_Data(NumberArray::ofDoubles(std::to_array({200.0, 190.0})));
        typed.logbook.carnet->diveForm().setProfile(profile);
        typed.logbook.carnet->updateDive();
        QCOMPARE(typed.text()->toPlainText(), u"0\n12"_s);
        QCOMPARE(typed.window->findChild<QPlainTextEdit*>(u"importPRESS_Field"_s)->toPlainText(),
                 u"200.0\n190.0"_s);
    }

    void aDiveThatIsUndoneTakesItsTextsWithIt() {
        LogbookOnScreen logbook(1);
        logbook.carnet->select({0});
        logbook.action("profilData")->trigger();
        DiveProfileWindow* window = logbook.window->profileWindowIfMade();
        window->profile().form().setText(profileLists().front().text, u"5\n6"_s);
        logbook.carnet->undo();
        QCOMPARE(logbook.carnet->count(), 0);
        QVERIFY(!window->profile().hasPending());
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
    }

    void savingAndClosingAskToo_data() {
        QTest::addColumn<int>("answer");
        QTest::newRow("yes") << yes;
        QTest::newRow("no") << no;
    }
    void savingAndClosingAskToo() {
        QFETCH(int, answer);
        TypedProfile typed;
        QVERIFY(typed.logbook.window->mayHavePending());
        typed.logbook.desk.prompt.expectQuestion(question, answer);
        typed.logbook.window->storePending();
        QCOMPARE(typed.surprises(), QStringList());
        QCOMPARE(typed.samples(2), answer == yes ? 2 : 1);
        // Who does not want them in the dive yet still has them.
        QCOMPARE(typed.isMarked(), answer == no);
        QCOMPARE(typed.text()->toPlainText(), answer == yes ? u"0.0\n12.0"_s : u"0\n12"_s);
        QCOMPARE(typed.logbook.window->mayHavePending(), answer == no);
    }

    void withNothingMarkedNobodyIsAsked() {
        TypedProfile typed;
        QTest::mouseClick(typed.window->findChild<QWidget*>(u"importProfil"_s), Qt::LeftButton);
        typed.logbook.clickRow(0);
        typed.logbook.window->storePending();
        QCOMPARE(typed.surprises(), QStringList());
    }
};

int runDiveProfileLeavingTest(int argc, char** argv) {
    DiveProfileLeavingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveProfileLeavingTest.moc"
