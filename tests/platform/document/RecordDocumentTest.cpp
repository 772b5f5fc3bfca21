#include <QSignalSpy>
#include <QTest>

#include "platform/document/DocumentTests.h"
#include "platform/files/Folder.h"
#include "support/Failure.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using documenttest::SampleDocument;
using documenttest::sampleKind;

class RecordDocumentTest : public QObject {
    Q_OBJECT

    TestDesk _desk;

    std::unique_ptr<SampleDocument> newDocument(int count = 0) {
        auto document = std::make_unique<SampleDocument>(sampleKind(), _desk.desk);
        for (int i = 0; i < count; ++i) document->append(i);
        return document;
    }

private Q_SLOTS:
    void selectionsAreWithinTheListAscendingEachOnce_data() {
        QTest::addColumn<Selection>("rows");
        QTest::addColumn<Selection>("clean");
        QTest::newRow("none") << Selection{} << Selection{};
        QTest::newRow("in order") << Selection{0, 2} << Selection{0, 2};
        QTest::newRow("out of order") << Selection{2, 0, 1} << Selection{0, 1, 2};
        QTest::newRow("twice") << Selection{1, 1, 0, 1} << Selection{0, 1};
        QTest::newRow("outside") << Selection{-1, 3, 2, 99, std::numeric_limits<qsizetype>::min()}
                                 << Selection{2};
    }
    void selectionsAreWithinTheListAscendingEachOnce() {
        QFETCH(Selection, rows);
        const auto document = newDocument(3);
        document->select(rows);
        QTEST(document->selection(), "clean");
        QCOMPARE(document->selectedRow(),
                 document->selection().isEmpty() ? -1 : document->selection().first());
    }

    void aSelectionIsToldOnlyWhenItIsAnotherOne() {
        const auto document = newDocument(3);
        QSignalSpy selected(document.get(), &Document::selectionChanged);
        document->select({1, 0});
        document->select({0, 1, 7});
        QCOMPARE(selected.size(), 1);
        document->select({});
        QCOMPARE(selected.size(), 2);
    }

    void undoPutsListAndSelectionBack() {
        const auto document = newDocument(2);
        document->select({1});
        document->perform(u"Empty"_s, {}, {});
        QCOMPARE(document->numbers(), QList<int>());
        document->undo();
        QCOMPARE(document->numbers(), QList<int>({0, 1}));
        QCOMPARE(document->selection(), Selection({1}));
        QCOMPARE(document->redoName(), u"Empty"_s);
        document->redo();
        QCOMPARE(document->numbers(), QList<int>());
        QCOMPARE(document->undoName(), u"Empty"_s);
    }

    void undoSharesTheRecords() {
        const auto document = newDocument(2);
        const auto first = document->records()[0];
        document->append(2);
        QCOMPARE(document->records()[0], first);
        document->undo();
        QCOMPARE(document->records()[0], first);
    }

    void theEditedMarkFollowsTheHistory() {
        const Folder folder;
        const auto document = newDocument(1);
        QVERIFY(document->isEdited());
        document->saveAs(folder.path(u"a.sample"_s));
        QVERIFY(!document->isEdited());
        QSignalSpy told(document.get(), &Document::editedChanged);
        document->append(5);
        QVERIFY(document->isEdited());
        document->undo();
        QVERIFY(!document->isEdited());
        document->undo();  // before the save
        QVERIFY(document->isEdited());
        document->redo();
        QVERIFY(!document->isEdited());
        document->redo();
        QVERIFY(document->isEdited());
        QCOMPARE(told.size(), 5);
    }

    void anotherChangeToTheSameContentIsAnotherState() {
        const Folder folder;
        const auto document = newDocument(1);
        document->saveAs(folder.path(u"a.sample"_s));
        document->undo();
        document->append(0);  // as before, but not what was saved
        QVERIFY(document->isEdited());
        document->save();
        QVERIFY(!document->isEdited());
        document->undo();
        QVERIFY(document->isEdited());
    }

    void saveInTheMiddleOfTheHistoryKeepsItsSteps() {
        const Folder folder;
        const auto document = newDocument(3);
        document->undo();
        document->saveAs(folder.path(u"a.sample"_s));
        QVERIFY(document->canUndo() && document->canRedo());
        document->redo();
        QCOMPARE(document->numbers(), QList<int>({0, 1, 2}));
        document->undo();
        QVERIFY(!document->isEdited());
    }

    void contentIsToldOnEveryChange() {
        const auto document = newDocument();
        QSignalSpy content(document.get(), &Document::contentChanged);
        document->append(1);
        document->undo();
        document->redo();
        QCOMPARE(content.size(), 3);
        document->redo();
        QCOMPARE(content.size(), 3);
    }

    void aDocumentToLookAtHasNoUndo() {
        const auto document = newDocument(1);
        document->setReadOnly(true);
        QVERIFY(!document->canUndo());
        document->undo();
        QCOMPARE(document->count(), 1);
    }

    void theFirstLoadCannotBeUndoneAndTheNextCan() {
        const auto source = newDocument(2);
        const QByteArray bytes = source->dataRepresentationOfType(u"Samples"_s);
        const auto document = newDocument();
        document->readBytes(bytes, u"Samples"_s);
        QVERIFY(!document->canUndo() && !document->isEdited());
        source->append(2);
        document->readBytes(source->dataRepresentationOfType(u"Samples"_s), u"Samples"_s);
        QCOMPARE(document->count(), 3);
        QVERIFY(!document->isEdited());
        document->undo();
        QCOMPARE(document->count(), 2);
        QVERIFY(document->isEdited());
    }

    void bytesUnderAnotherTypeNameAreRefused() {
        const QByteArray bytes = newDocument(2)->dataRepresentationOfType(u"Samples"_s);
        const auto error = failureOf<DocumentError>([&] { newDocument()->readBytes(bytes, u"Budget"_s); });
        QVERIFY(error);
        QCOMPARE(sentenceOf(*error), u"a document of the type \"Samples\" was expected, not \"Budget\""_s);
    }

    void dumpAndLoadAreInverse() {
        const auto document = newDocument(2);
        const QJsonObject dump = document->dump();
        QCOMPARE(dump.value("type"_L1).toString(), u"Samples"_s);
        QCOMPARE(dump.value("class"_L1).toString(), u"Sample"_s);
        QCOMPARE(dump.value("version"_L1).toInt(), 3);
        const auto loaded = newDocument();
        loaded->loadRecords(dump.value("records"_L1).toArray());
        QCOMPARE(loaded->numbers(), QList<int>({0, 1}));
        QVERIFY(loaded->isEdited());
        QCOMPARE(loaded->undoName(), u"Load"_s);
    }

    void aLoadThatFailsChangesNothing() {
        const auto document = newDocument(1);
        const QJsonArray list{QJsonObject{{u"whole"_s, 5}}, 7};
        const auto error = failureOf<JsonError>([&] { document->loadRecords(list); });
        QVERIFY(error);
        QCOMPARE(error->sentence(), u"records[1]: expected an object"_s);
        QCOMPARE(document->numbers(), QList<int>({0}));
        QCOMPARE(document->undoName(), u"Append 0"_s);
    }

    void theSummaryTellsTheVersionThatWasReadOrWouldBeWritten() {
        const auto source = newDocument(1);
        QCOMPARE(source->summary().version, std::optional<qint32>(sampleClass().version));
        const QByteArray old = writeRecords(source->records(), sampleClass(), 1);
        const auto document = newDocument();
        document->readBytes(old, u"Samples"_s);
        QCOMPARE(document->summary().version, std::optional<qint32>(1));
        QCOMPARE(document->dump().value("version"_L1).toInt(), 1);
        QCOMPARE(document->summary().records, 1);
        document->readBytes(newDocument()->dataRepresentationOfType(u"Samples"_s), u"Samples"_s);
        QCOMPARE(document->summary().version, std::optional<qint32>(sampleClass().version));
    }
};

int runRecordDocumentTest(int argc, char** argv) {
    RecordDocumentTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RecordDocumentTest.moc"
