#include <QtTest>
#include <QtWidgets>

#include "UiTests.h"
#include "platform/ui/EditMenu.h"
#include "platform/ui/PlainWindow.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class PlainWindowTest : public QObject {
    Q_OBJECT

    static std::unique_ptr<Document> open(DocumentController& controller, const QString& file) {
        return controller.read(golden::path(file));
    }

private Q_SLOTS:
    void theRecordsAreShownAsNumberedColumns() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"epaves-v6.epaves"_s);
        auto& plain = dynamic_cast<PlainDocument&>(*document);
        PlainWindow window(plain);
        const auto* table = window.findChild<QTableView*>(u"recordsTableView"_s);
        QVERIFY(table);
        QVERIFY(plain.count() > 0);
        QCOMPARE(table->model()->rowCount(), int(plain.count()));
        QCOMPARE(table->model()->headerData(0, Qt::Horizontal).toString(), u"1"_s);
        QCOMPARE(table->model()->columnCount(), int(plain.values(0).size()));
        for (int row = 0; row < int(plain.count()); ++row)
            for (int column = 0; column < table->model()->columnCount(); ++column)
                QCOMPARE(table->model()->index(row, column).data().toString(),
                         plain.values(row).value(column));
    }

    void aNewOneIsEmpty() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const DocumentKind& kind = *desk.kinds.named(u"Budget"_s, desk.desk);
        const auto document = PlainDocument::create(kind, desk.desk);
        document->setUntitledName(u"Untitled"_s);
        PlainWindow window(dynamic_cast<PlainDocument&>(*document));
        const auto* table = window.findChild<QTableView*>(u"recordsTableView"_s);
        QCOMPARE(table->model()->rowCount(), 0);
        QCOMPARE(window.windowTitle(), u"Untitled[*]"_s);
        QVERIFY(!window.isWindowModified());
    }

    void aDocumentToLookAtOnlySaysSo() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"budget-v1.budget"_s);
        PlainWindow window(dynamic_cast<PlainDocument&>(*document));
        window.show();
        const auto* note = window.findChild<QLabel*>(u"readOnlyNote"_s);
        QVERIFY(!note->isVisible());
        document->setReadOnly(true);
        QVERIFY(note->isVisible());
    }

    void placeAndSizeAreRememberedOnce() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"budget-v1.budget"_s);
        {
            PlainWindow window(dynamic_cast<PlainDocument&>(*document));
            window.show();
            window.resize(555, 444);
            QVERIFY(!desk.defaults.contains(u"window PreviBudget"_s));
            window.rememberPlace();
        }
        PlainWindow again(dynamic_cast<PlainDocument&>(*document));
        QCOMPARE(again.size(), QSize(555, 444));
    }

    void selectedRowsCanBeCopied() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"epaves-v6.epaves"_s);
        auto& plain = dynamic_cast<PlainDocument&>(*document);
        PlainWindow window(plain);
        window.selectEverything();
        QCOMPARE(window.copiedText().split(u'\n').first(), plain.values(0).join(u'\t'));
        QCOMPARE(window.copiedText().count(u'\n'), plain.count() - 1);
    }

    void droppedFilesAreHandedOn() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"budget-v1.budget"_s);
        PlainWindow window(dynamic_cast<PlainDocument&>(*document));
        window.show();
        QSignalSpy dropped(&window, &DocumentWindow::filesDropped);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/one.carnet"_s), QUrl(u"https://example.org/two"_s)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &drop);
        QCOMPARE(dropped.size(), 1);
        QCOMPARE(dropped.first().first().toStringList(), QStringList{u"/one.carnet"_s});
    }

    void closingOnlyAsks() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"budget-v1.budget"_s);
        PlainWindow window(dynamic_cast<PlainDocument&>(*document));
        window.show();
        QSignalSpy wanted(&window, &DocumentWindow::closeWanted);
        window.close();
        QCOMPARE(wanted.size(), 1);
        QVERIFY(window.isVisible());
    }
};

int runPlainWindowTest(int argc, char** argv) {
    PlainWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PlainWindowTest.moc"
