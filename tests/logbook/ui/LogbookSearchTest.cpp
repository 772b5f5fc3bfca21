#include "LogbookUiTests.h"
#include "platform/record/Field.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class LogbookSearchTest : public QObject {
    Q_OBJECT

    static void search(const LogbookOnScreen& logbook, const char* place, const QString& text) {
        formwalk::typeInto(logbook.window->findChild<QWidget*>(u"searchField"_s), text);
        logbook.window->findChild<QAction*>(QLatin1String(place))->trigger();
    }

private Q_SLOTS:
    void theSearchSelectsAndCounts() {
        LogbookOnScreen logbook(12);
        const auto* found = logbook.window->findChild<QLabel*>(u"foundDivesField"_s);
        logbook.carnet->select({0});
        Form& form = logbook.carnet->form();
        form.setText(ControlName{"notesField"}, u"A big Grouper"_s);
        logbook.carnet->updateDive();
        search(logbook, "findInNotes", u"grouper"_s);
        QCOMPARE(found->text(), u"One dive found"_s);
        QCOMPARE(logbook.shownSelection(), Selection{0});
        search(logbook, "findInBateaux", u""_s);
        QCOMPARE(found->text(), u"12 dives found"_s);
        QCOMPARE(logbook.carnet->selection().size(), 12);
        search(logbook, "findInPartenaires", u"nobody"_s);
        QCOMPARE(found->text(), u"0 dives found"_s);
        QVERIFY(logbook.shownSelection().isEmpty());
    }

    void returnSearchesInTheChosenPlace() {
        LogbookOnScreen logbook(2);
        search(logbook, "findInEpaves", u"x"_s);
        logbook.carnet->select({1});
        logbook.carnet->form().setText(ControlName{"epavesField"}, u"Rubis"_s);
        logbook.carnet->updateDive();
        auto* field = logbook.window->findChild<QLineEdit*>(u"searchField"_s);
        formwalk::typeInto(field, u"rub"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(logbook.carnet->selection(), Selection{1});
    }

    void theSearchInComputersEndsInAnAlert() {
        LogbookOnScreen logbook(1);
        logbook.desk.prompt.expectAlert(UnknownKeyError(u"ordi"_s, u"Plongee"_s).sentence());
        search(logbook, "findInOrdinateurs", u"x"_s);
        QCOMPARE(logbook.desk.prompt.finish(), QStringList());
    }
};

int runLogbookSearchTest(int argc, char** argv) {
    LogbookSearchTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LogbookSearchTest.moc"
