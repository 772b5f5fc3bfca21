#include <QTest>

#include "platform/document/DocumentTests.h"
#include "platform/files/DocumentLock.h"
#include "platform/files/Folder.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// Opening a file that another program has open: the question, and what each answer makes of it.
class LockedDocumentTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Folder> _folder;
    std::unique_ptr<TestDesk> _desk;
    std::unique_ptr<DocumentController> _controller;
    std::unique_ptr<DocumentLock> _elsewhere;

    QString path() const { return _folder->path(u"dives.carnet"_s); }

    /// Opens the file that is open elsewhere, and answers the question so.
    Carnet* openAnswering(int answer) {
        _desk->prompt.expectQuestion(
            u"“dives.carnet” is open in another program. Open it to look at only, or work on a copy?"_s,
            answer);
        return static_cast<Carnet*>(_controller->openDocument(path()));
    }

private Q_SLOTS:
    void init() {
        _folder = std::make_unique<Folder>();
        _desk = std::make_unique<TestDesk>();
        _controller = std::make_unique<DocumentController>(_desk->kinds, _desk->desk);
        const auto carnet = _desk->newLogbook();
        carnet->addDive();
        carnet->saveAs(path());
        carnet->lock.reset();
        _elsewhere = std::make_unique<DocumentLock>(path());
        QVERIFY(_elsewhere->tryLock());
    }
    void cleanup() {
        _controller.reset();
        _elsewhere.reset();
        QCOMPARE(_desk->prompt.finish(), QStringList());
    }

    void lookingOnlyGivesADocumentThatCannotBeChanged() {
        Carnet* carnet = openAnswering(0);
        QVERIFY(carnet && carnet->isReadOnly() && !carnet->lock);
        QCOMPARE(carnet->count(), 1);
        QCOMPARE(carnet->path(), path());
        carnet->select({0});
        carnet->form().setText(carnet->form().find(u"lieu"_s), u"Brest"_s);
        carnet->updateDive();
        QVERIFY(!carnet->deleteDive());
        carnet->renumDives();
        QVERIFY(!carnet->isEdited());
        QCOMPARE(carnet->count(), 1);
    }

    void nothingIsAddedToADocumentToLookAt() {
        Carnet* carnet = openAnswering(0);
        QVERIFY(carnet);
        carnet->addDive();
        QCOMPARE(carnet->count(), 1);
        QVERIFY(!carnet->isEdited());
    }

    void aCopyIsUntitledAndEdited() {
        Carnet* carnet = openAnswering(1);
        QVERIFY(carnet && !carnet->isReadOnly() && carnet->isEdited());
        QVERIFY(carnet->path().isEmpty());
        QCOMPARE(carnet->displayName(), u"Copy of dives.carnet"_s);
        QVERIFY(!_desk->defaults.contains(u"recent documents"_s));
        carnet->saveAs(_folder->path(u"copy.carnet"_s));
        QCOMPARE(_folder->content(u"copy.carnet"_s), _folder->content(u"dives.carnet"_s));
    }

    void declinedNothingIsOpened() {
        QVERIFY(!openAnswering(2));
        QVERIFY(_controller->documents().empty());
        QVERIFY(!_controller->recentDocuments());
    }

    void aLockThatWasGivenBackIsNoQuestion() {
        _elsewhere.reset();
        Document* document = _controller->openDocument(path());
        QVERIFY(document && !document->isReadOnly() && document->lock);
        QCOMPARE(document->lock->state(), DocumentLock::State::Held);
    }

    void whatIsOpenHereIsHeldUntilItIsClosed() {
        _elsewhere.reset();
        Document* document = _controller->openDocument(path());
        QVERIFY(document);
        DocumentLock other(path());
        QVERIFY(!other.tryLock());
        QCOMPARE(other.owner().process, QCoreApplication::applicationPid());
        _controller->close(document);
        QVERIFY(DocumentLock(path()).tryLock());
    }
};

int runLockedDocumentTest(int argc, char** argv) {
    LockedDocumentTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LockedDocumentTest.moc"
