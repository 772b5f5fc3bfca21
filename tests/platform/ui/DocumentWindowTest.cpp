#include <QtTest>
#include <QtWidgets>

#include "UiTests.h"
#include "platform/ui/EditMenu.h"
#include "registers/ui/RegisterWindow.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// What every document's window does, tried on a register's.
class DocumentWindowTest : public QObject {
    Q_OBJECT

    static std::unique_ptr<Document> open(DocumentController& controller, const QString& file) {
        return controller.read(golden::path(file));
    }

private Q_SLOTS:
    void aNewOneIsNamedAndNotEdited() {
        TestDesk desk;
        const DocumentKind& kind = *desk.kinds.named(u"Budget"_s, desk.desk);
        const auto document = kind.create(kind, desk.desk);
        document->setUntitledName(u"Untitled"_s);
        RegisterWindow window(dynamic_cast<Register&>(*document));
        QCOMPARE(window.windowTitle(), u"Untitled[*]"_s);
        QVERIFY(!window.isWindowModified());
    }

    void aDocumentToLookAtOnlySaysSo() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"budget-v1.budget"_s);
        RegisterWindow window(dynamic_cast<Register&>(*document));
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
            RegisterWindow window(dynamic_cast<Register&>(*document));
            window.show();
            window.resize(555, 444);
            QVERIFY(!desk.defaults.contains(u"window PreviBudget"_s));
            window.rememberPlace();
        }
        RegisterWindow again(dynamic_cast<Register&>(*document));
        QCOMPARE(again.size(), QSize(555, 444));
    }

    void droppedFilesAreHandedOn() {
        TestDesk desk;
        DocumentController controller(desk.kinds, desk.desk);
        const auto document = open(controller, u"budget-v1.budget"_s);
        RegisterWindow window(dynamic_cast<Register&>(*document));
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
        RegisterWindow window(dynamic_cast<Register&>(*document));
        window.show();
        QSignalSpy wanted(&window, &DocumentWindow::closeWanted);
        window.close();
        QCOMPARE(wanted.size(), 1);
        QVERIFY(window.isVisible());
    }
};

int runDocumentWindowTest(int argc, char** argv) {
    DocumentWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DocumentWindowTest.moc"
