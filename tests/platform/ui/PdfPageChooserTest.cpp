#include <QtTest>
#include <QtWidgets>

#include "UiTests.h"
#include "platform/ui/PdfPageChooser.h"
#include "support/ColouredPdf.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The chooser on screen, with a red, a green and a blue page.
struct ThreePages {
    Strings strings;
    PdfPageChooser chooser{pdf::colouredPages({Qt::red, Qt::green, Qt::blue}), strings, nullptr};
    QSpinBox* field = chooser.findChild<QSpinBox*>(u"pageField"_s);

    ThreePages() {
        chooser.show();
        chooser.activateWindow();
        if (!QTest::qWaitForWindowActive(&chooser)) qFatal("the chooser does not become active");
    }
    QImage shown() const { return chooser.findChild<QLabel*>(u"pagePreview"_s)->pixmap().toImage(); }
    QColor color() const { return shown().pixelColor(shown().rect().center()); }
};

}  // namespace

class PdfPageChooserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstPageIsShownFirst() {
        ThreePages pages;
        QCOMPARE(pages.chooser.page(), 0);
        QCOMPARE(pages.color(), QColor(Qt::red));
        QCOMPARE(pages.field->maximum(), 3);
    }

    void theKeyboardGoesFromPageToPage() {
        ThreePages pages;
        QVERIFY(pages.field->hasFocus());
        QTest::keyClick(pages.field, Qt::Key_Up);
        QCOMPARE(pages.color(), QColor(Qt::green));
        QTest::keyClicks(pages.field, u"3"_s);
        QCOMPARE(pages.color(), QColor(Qt::blue));
        QTest::keyClick(pages.field, Qt::Key_Return);
        QCOMPARE(pages.chooser.result(), int(QDialog::Accepted));
        QCOMPARE(pages.chooser.page(), 2);
    }

    void aPageIsAsLargeAsTheWindowLeavesIt() {
        ThreePages pages;
        pages.chooser.resize(300, 300);
        const int before = pages.shown().width();
        pages.chooser.resize(700, 500);
        QTRY_VERIFY(pages.shown().width() > before);
        // The third page is 300 by 50 points.
        pages.field->setValue(3);
        QVERIFY(std::abs(pages.shown().width() - 6 * pages.shown().height()) <= 6);
    }

    void theAnswerIsThePageOrNone_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("page");
        QTest::newRow("chosen") << int(Qt::Key_Return) << 1;
        QTest::newRow("given up") << int(Qt::Key_Escape) << -1;
    }
    void theAnswerIsThePageOrNone() {
        QFETCH(int, key);
        QTimer::singleShot(0, this, [key] {
            QWidget* chooser = QApplication::activeModalWidget();
            chooser->findChild<QSpinBox*>(u"pageField"_s)->setValue(2);
            QTest::keyClick(chooser, Qt::Key(key));
        });
        QTEST(PdfPageChooser::choose(pdf::colouredPages({Qt::red, Qt::green}), Strings(), nullptr), "page");
    }
};

int runPdfPageChooserTest(int argc, char** argv) {
    PdfPageChooserTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PdfPageChooserTest.moc"
