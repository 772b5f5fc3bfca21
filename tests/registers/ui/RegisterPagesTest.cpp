#include <QPrinter>

#include "registers/ui/RegisterUiTests.h"
#include "support/PdfText.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class RegisterPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCardWindowShowsTheSelectedRecord() {
        RegisterOnScreen items("Materiel", {u"a"_s, u"b"_s});
        items.clickRow(1);
        items.press(items.tool(items.window.get(), "equipTableViewWindowToolbar", "synthese"));
        auto* page = items.window->synthesisWindowIfMade()->findChild<QTextBrowser*>(u"synthesisTextView"_s);
        QVERIFY(page->toPlainText().contains(u"Card number : b\n"_s));
        items.clickRow(0);
        QVERIFY(page->toPlainText().contains(u"Card number : a\n"_s));
        items.set(0, {{u"matosNoField"_s, u"changed"_s}});
        QVERIFY(page->toPlainText().contains(u"Card number : changed\n"_s));
    }

    void listAndCardArePrinted() {
        RegisterOnScreen items("Materiel", {u"a"_s, u"b"_s});
        QTemporaryDir folder;
        const QString file = folder.filePath(u"out.pdf"_s);
        const auto toFile = [&](QPrinter& printer, QWidget*) {
            printer.setOutputFileName(file);
            printer.setOutputFormat(QPrinter::PdfFormat);
            return true;
        };
        items.clickRow(0);
        items.window->printing().paper = toFile;
        items.press(items.tool(items.window.get(), "equipTableViewWindowToolbar", "imprimer"));
        QVERIFY(QFileInfo(file).size() > 500);
        QCOMPARE(items.shown->selectedRows(), Selection());
        QVERIFY(QFile::remove(file));
        items.clickRow(0);
        items.window->synthesisWindow();
        items.window->synthesisWindowIfMade()->printing().paper = toFile;
        items.window->synthesisWindowIfMade()->findChild<QAction*>(u"printSynthesis"_s)->trigger();
        QVERIFY(QFileInfo(file).size() > 500);
    }

    void theListIsPrintedAsItsColumnsStand() {
        RegisterOnScreen papers("Divers documents", {u"0"_s});
        papers.set(0, {{u"titreField"_s, u"Diver"_s}, {u"emetteurField"_s, u"Club"_s}});
        QTemporaryDir folder;
        const QString file = folder.filePath(u"out.pdf"_s);
        papers.window->printing().file = [&](const QString&) { return file; };
        const auto header = [&] {
            papers.window->printing().savePdf();
            QFile made(file);
            if (!made.open(QIODevice::ReadOnly)) qFatal("no file");
            return pdf::words(made.readAll());
        };
        const QString before = header();
        QVERIFY2(before.startsWith(u"Kind Title Issued by Issued on Renewal on Attestation Diver Club"_s),
                 qPrintable(before));
        // The title in front, the issuer behind the dates.
        papers.window->table().horizontalHeader()->moveSection(1, 0);
        papers.window->table().horizontalHeader()->moveSection(2, 4);
        const QString after = header();
        QVERIFY2(after.startsWith(u"Title Kind Issued on Renewal on Issued by Diver Attestation Club"_s),
                 qPrintable(after));
    }

    void theCardCanBeSavedAsPdf() {
        RegisterOnScreen items("Materiel", {u"a"_s, u"b"_s});
        QTemporaryDir folder;
        const QString file = folder.filePath(u"card.pdf"_s);
        items.clickRow(1);
        items.window->synthesisWindow();
        PrintActions& printing = items.window->synthesisWindowIfMade()->printing();
        printing.file = [&](const QString&) { return file; };
        printing.pdfAction()->trigger();
        QFile made(file);
        QVERIFY(made.open(QIODevice::ReadOnly));
        QVERIFY(pdf::words(made.readAll()).contains(u"Card number : b "_s));
    }
};

int runRegisterPagesTest(int argc, char** argv) {
    RegisterPagesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterPagesTest.moc"
