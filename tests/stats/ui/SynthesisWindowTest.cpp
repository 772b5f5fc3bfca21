#include <QScrollBar>

#include "stats/ui/StatsUiTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QString reportOf(const StatsOnScreen& screen) {
    ReportWindow* report = screen.stats->synthesisReportIfMade();
    return report ? report->view().toPlainText() : u"no report"_s;
}

/// The radio button of a choice, by its tag's place.
QAbstractButton* choice(const StatsOnScreen& screen, int place) {
    return screen.stats->chooserIfMade()->findChildren<QRadioButton*>().value(place);
}

}  // namespace

class SynthesisWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSelectedDiveIsReportedOn() {
        StatsOnScreen screen(3);
        screen.carnet->select({1});
        screen.pressTool("synthese");
        SynthesisChooser* chooser = screen.stats->chooserIfMade();
        QVERIFY(chooser && chooser->isVisible());
        QVERIFY(choice(screen, 0)->isChecked());
        pressButton(chooser, "syntheseWindow");
        QVERIFY(!chooser->isVisible());
        QVERIFY(screen.stats->synthesisReportIfMade()->isVisible());
        QCOMPARE(screen.stats->synthesisReportIfMade()->view().objectName(), u"syntheseField"_s);
        QVERIFY(reportOf(screen).startsWith(u"Dive number : 2\n"_s));
        QVERIFY(!reportOf(screen).contains(u"Dive number : 1"_s));
    }

    void allDivesAreReportedOn() {
        StatsOnScreen screen(3);
        screen.carnet->select({1});
        screen.pressTool("synthese");
        QTest::mouseClick(choice(screen, 1), Qt::LeftButton);
        pressButton(screen.stats->chooserIfMade(), "syntheseWindow");
        for (int number = 1; number <= 3; ++number)
            QVERIFY(reportOf(screen).contains(u"Dive number : %1\n"_s.arg(number)));
    }

    void aLongReportComesInPiecesAndKeepsItsPlace() {
        StatsOnScreen screen(120);
        screen.carnet->select({0});
        screen.pressTool("synthese");
        QTest::mouseClick(choice(screen, 1), Qt::LeftButton);
        pressButton(screen.stats->chooserIfMade(), "syntheseWindow");
        ReportWindow* report = screen.stats->synthesisReportIfMade();
        QVERIFY(reportOf(screen).startsWith(u"Dive number : 1\n"_s));
        QVERIFY(!report->isComplete());
        // What is printed or saved meanwhile is the whole.
        const Folder folder;
        QVERIFY(report->saveReport(folder.path(u"r.txt"_s)));
        QVERIFY(folder.content(u"r.txt"_s).contains("Dive number : 120\n"));
        QTRY_VERIFY(report->isComplete());
        QCOMPARE(reportOf(screen).trimmed().toUtf8(), folder.content(u"r.txt"_s).trimmed());

        QScrollBar* bar = report->view().verticalScrollBar();
        QCOMPARE(bar->value(), 0);
        const int place = bar->maximum() / 2;
        bar->setValue(place);
        screen.carnet->form().setText(screen.carnet->form().find(u"lieuField"), u"Elsewhere"_s);
        screen.carnet->updateDive();
        QTRY_VERIFY(report->isComplete());
        QVERIFY(reportOf(screen).contains(u"Place : Elsewhere\n"_s));
        QCOMPARE(bar->value(), place);
        report->open();
        QCOMPARE(bar->value(), 0);
    }

    void withoutASelectedDiveItCannotBeWanted() {
        StatsOnScreen screen(2);
        screen.carnet->select({});
        screen.pressTool("synthese");
        SynthesisChooser* chooser = screen.stats->chooserIfMade();
        auto* fine = chooser->findChild<QPushButton*>(u"syntheseWindow"_s);
        QVERIFY(choice(screen, 1)->isChecked() && fine->isEnabled());
        QTest::mouseClick(choice(screen, 0), Qt::LeftButton);
        QVERIFY(!fine->isEnabled());
        screen.carnet->select({0});
        QVERIFY(fine->isEnabled());
        pressButton(chooser, "closeDivesForSynthesisWindow");
        QVERIFY(!chooser->isVisible());
        QVERIFY(!screen.stats->synthesisReportIfMade());
    }

    void anEmptyLogbookHasNoSynthesis() {
        StatsOnScreen screen(0);
        QVERIFY(!screen.action("synthese")->isEnabled());
        QVERIFY(screen.action("statistics")->isEnabled());
        screen.addDive(20);
        QVERIFY(screen.action("synthese")->isEnabled());
    }

    void theReportFollowsSelectionContentAndUnits() {
        StatsOnScreen screen(2);
        screen.carnet->select({0});
        screen.pressTool("synthese");
        pressButton(screen.stats->chooserIfMade(), "syntheseWindow");
        QVERIFY(reportOf(screen).contains(u"Depth : 10 m\n"_s));
        screen.carnet->select({1});
        QVERIFY(reportOf(screen).contains(u"Depth : 20 m\n"_s));
        screen.desk.defaults.store(u"us units"_s, 1);
        screen.desk.notifications.post(u"updateTableView"_s, nullptr);
        QVERIFY(reportOf(screen).contains(u"Depth : 20 ft\n"_s));
        screen.carnet->form().setText(screen.carnet->form().find(u"lieuField"), u"Elsewhere"_s);
        screen.carnet->updateDive();
        QVERIFY(reportOf(screen).contains(u"Place : Elsewhere\n"_s));
        // What is shown stays when nothing is selected any more.
        screen.carnet->select({});
        QVERIFY(reportOf(screen).contains(u"Place : Elsewhere\n"_s));
    }

    void paperIsWhiteOnADarkDesktop() {
        StatsOnScreen screen(1);
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
        screen.action("statsSynthesis")->trigger();
        QTextBrowser& view = screen.stats->statisticsPageIfMade()->view();
        QCOMPARE(view.palette().color(QPalette::Base), QColor(Qt::white));
        const QImage shown = view.viewport()->grab().toImage();
        QCOMPARE(shown.pixelColor(shown.width() - 10, shown.height() - 10), QColor(Qt::white));
        QApplication::setPalette(QPalette());
    }

    void reportsAreSavedInTheFormatOfTheirName() {
        StatsOnScreen screen(1);
        screen.carnet->select({0});
        screen.pressTool("synthese");
        pressButton(screen.stats->chooserIfMade(), "syntheseWindow");
        ReportWindow* report = screen.stats->synthesisReportIfMade();
        const Folder folder;
        report->chooseFile = [&](const QString&) { return folder.path(u"r.txt"_s); };
        report->findChild<QAction*>(u"saveReport"_s)->trigger();
        QVERIFY(folder.content(u"r.txt"_s).startsWith("Dive number : 1\n"));
        QVERIFY(report->saveReport(folder.path(u"r.html"_s)));
        QVERIFY(report->saveReport(folder.path(u"r.pdf"_s)));
        QVERIFY(folder.content(u"r.pdf"_s).startsWith("%PDF"));
        screen.desk.prompt.expectAlert(u"This program cannot write a file with such an ending."_s);
        QVERIFY(!report->saveReport(folder.path(u"r.doc"_s)));
        QCOMPARE(screen.desk.prompt.finish(), QStringList());
    }
};

int runSynthesisWindowTest(int argc, char** argv) {
    SynthesisWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SynthesisWindowTest.moc"
