#include <QPrinter>

#include "platform/ui/PrintPreview.h"
#include "platform/ui/SourceTableView.h"
#include "stats/ui/StatsUiTests.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The print dialog's part: everything goes into this file.
PaperChooser printer(const QString& file, QPageSize::PageSizeId paper = QPageSize::A4) {
    return [file, paper](QPrinter& chosen, QWidget*) {
        chosen.setOutputFormat(QPrinter::PdfFormat);
        chosen.setOutputFileName(file);
        chosen.setPageSize(QPageSize(paper));
        return true;
    };
}

}  // namespace

class PrintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theLogbookIsPrintedAsALandscapeList() {
        StatsOnScreen screen(3);
        const Folder folder;
        screen.stats->printing().paper = printer(folder.path(u"list.pdf"_s));
        screen.action("printLogbook")->trigger();
        const QByteArray bytes = folder.content(u"list.pdf"_s);
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"842 x 595 pts (A4)"_s);
        const QString words = pdf::words(bytes);
        for (int depth : {10, 20, 30}) QVERIFY(words.contains(u"Place at %1 m"_s.arg(depth)));
        QVERIFY(words.endsWith(u"Untitled 1/1"_s));
    }

    void theListIsPrintedAsTheWindowShowsIt() {
        StatsOnScreen screen(1);
        QHeaderView* header = screen.window->table().horizontalHeader();
        header->moveSection(header->visualIndex(screen.window->table().list().columnNamed(u"lieu"_s)), 0);
        for (const QString& hidden : {u"column date"_s, u"column heure"_s})
            screen.desk.defaults.store(hidden, false);
        screen.desk.notifications.post(u"updateColumnsTableView"_s, nullptr);
        const Folder folder;
        screen.stats->printing().file = [&](const QString&) { return folder.path(u"l.pdf"_s); };
        screen.action("savePdf")->trigger();
        const QString words = pdf::words(folder.content(u"l.pdf"_s));
        QVERIFY2(words.startsWith(u"Place No. Site Depth Duration"_s), qPrintable(words));
    }

    void whatWasTypedIsPrinted() {
        StatsOnScreen screen(1);
        screen.carnet->select({0});
        screen.window->editWindow();
        screen.carnet->form().setText(ControlName{"siteField"}, u"Donator"_s);
        const Folder folder;
        screen.stats->printing().file = [&](const QString&) { return folder.path(u"l.pdf"_s); };
        screen.action("savePdf")->trigger();
        QVERIFY(pdf::words(folder.content(u"l.pdf"_s)).contains(u"Donator"_s));
    }

    void reportsArePrintedUpright_data() {
        QTest::addColumn<QString>("which");
        QTest::newRow("statistics") << u"printStatistics"_s;
        QTest::newRow("synthesis") << u"printSynthesis"_s;
    }
    void reportsArePrintedUpright() {
        QFETCH(QString, which);
        StatsOnScreen screen(2);
        screen.carnet->select({1});
        const bool isSynthesis = which == u"printSynthesis"_s;
        if (isSynthesis) {
            screen.pressTool("synthese");
            pressButton(screen.stats->chooserIfMade(), "syntheseWindow");
        } else {
            screen.action("statsSynthesis")->trigger();
        }
        ReportWindow* report =
            isSynthesis ? screen.stats->synthesisReportIfMade() : screen.stats->statisticsPageIfMade();
        const Folder folder;
        report->printing().paper = printer(folder.path(u"r.pdf"_s));
        auto* bar = report->findChild<QToolBar*>();
        QAction* action = report->findChild<QAction*>(which);
        QVERIFY(action);
        QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
        const QByteArray bytes = folder.content(u"r.pdf"_s);
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"595 x 842 pts (A4)"_s);
        QVERIFY(pdf::words(bytes).contains(isSynthesis ? u"Dive number : 2"_s : u"Total dives: 2"_s));
    }

    void theGraphsArePrintedOnOnePage() {
        StatsOnScreen screen(2);
        screen.action("graphes")->trigger();
        const Folder folder;
        GraphesWindow* window = screen.stats->graphesIfMade();
        window->printing().paper = printer(folder.path(u"g.pdf"_s));
        window->findChild<QAction*>(u"print"_s)->trigger();
        const QByteArray bytes = folder.content(u"g.pdf"_s);
        QCOMPARE(pdf::pages(bytes).size(), 1);
        QCOMPARE(pdf::info(bytes, u"Page size"_s), u"842 x 595 pts (A4)"_s);
        QVERIFY(pdf::words(bytes).contains(u"60 m et +"_s));
    }

    void givingUpPrintsNothing() {
        StatsOnScreen screen(1);
        bool asked = false;
        screen.stats->printing().paper = [&](QPrinter&, QWidget*) {
            asked = true;
            return false;
        };
        screen.action("printLogbook")->trigger();
        QVERIFY(asked);
    }

    void aPrinterThatFailsIsReported() {
        StatsOnScreen screen(1);
        screen.stats->printing().paper = printer(u"/nowhere/at/all.pdf"_s);
        screen.desk.prompt.expectAlert(u"The printer does not print."_s);
        screen.action("printLogbook")->trigger();
        QCOMPARE(screen.desk.prompt.finish(), QStringList());
    }

    void thePaperOfThePageSetupIsKept() {
        StatsOnScreen screen(1);
        const Folder folder;
        screen.stats->printing().page = [](QPrinter& page, QWidget*) {
            page.setPageSize(QPageSize(QPageSize::Letter));
            return true;
        };
        screen.action("runPageLayout")->trigger();
        QCOMPARE(paperOf(screen.desk.defaults).id(), QPageSize::Letter);
        screen.stats->printing().file = [&](const QString&) { return folder.path(u"l.pdf"_s); };
        screen.action("savePdf")->trigger();
        QCOMPARE(pdf::info(folder.content(u"l.pdf"_s), u"Page size"_s), u"792 x 612 pts (letter)"_s);
        screen.desk.defaults.store(u"print paper"_s, u"nonsense"_s);
        QCOMPARE(paperOf(screen.desk.defaults).id(), QPageSize::A4);
    }

    void thePreviewShowsThePagesAndPrintsThem() {
        StatsOnScreen screen(80);
        screen.action("printPreview")->trigger();
        auto* preview = screen.window->findChild<PrintPreview*>();
        QVERIFY(preview && preview->isVisible());
        QTRY_VERIFY(preview->pageCount() > 1);
        const Folder folder;
        screen.stats->printing().paper = printer(folder.path(u"p.pdf"_s));
        auto* bar = preview->findChild<QToolBar*>();
        for (QAction* item : bar->actions())
            if (item->objectName() == u"printLogbook"_s)
                QTest::mouseClick(bar->widgetForAction(item), Qt::LeftButton);
        QCOMPARE(pdf::pages(folder.content(u"p.pdf"_s)).size(), preview->pageCount());
        const QPointer<PrintPreview> watched = preview;
        preview->close();
        QTRY_VERIFY(!watched);
    }
};

int runPrintingTest(int argc, char** argv) {
    PrintingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PrintingTest.moc"
