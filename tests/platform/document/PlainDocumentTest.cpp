#include <QTest>

#include "platform/document/DocumentTests.h"
#include "platform/document/PlainDocument.h"
#include "platform/files/Folder.h"
#include "support/Failure.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The registers' golden archives.
QStringList registers() {
    QStringList files;
    for (const QString& file : golden::files(u"*-v*"_s))
        if (!file.endsWith(u".json"_s) && !file.endsWith(u".carnet"_s)) files << file;
    return files;
}

}  // namespace

/// Registers are shown as the plain values of their archive while this program cannot edit them.
class PlainDocumentTest : public QObject {
    Q_OBJECT

    TestDesk _desk;

    std::unique_ptr<Document> read(const QString& path) {
        return DocumentController(_desk.kinds, _desk.desk).read(path);
    }
    static void addRegisters() {
        QTest::addColumn<QString>("file");
        for (const QString& file : registers()) QTest::newRow(qPrintable(file)) << file;
    }

private Q_SLOTS:
    void thereAreNineRegisters() { QCOMPARE(registers().size(), 9); }

    void showsEveryValueInFileOrder_data() { addRegisters(); }
    void showsEveryValueInFileOrder() {
        QFETCH(QString, file);
        const QJsonObject wanted = golden::json(file.section(u'.', 0, 0));
        const auto document = read(golden::path(file));
        const QJsonObject dump = document->dump();
        QCOMPARE(dump.value("class"_L1), wanted.value("class"_L1));
        QCOMPARE(dump.value("version"_L1), wanted.value("version"_L1));
        const QJsonArray records = dump.value("records"_L1).toArray();
        const QJsonArray slotLists = wanted.value("slots"_L1).toArray();
        QCOMPARE(records.size(), slotLists.size());
        for (qsizetype row = 0; row < records.size(); ++row) {
            const QJsonArray values = records[row].toObject().value("values"_L1).toArray();
            const QJsonArray expected = slotLists[row].toArray();
            QCOMPARE(values.size(), expected.size());
            for (qsizetype i = 0; i < values.size(); ++i) {
                const QJsonArray slot = expected[i].toArray();
                const bool isPicture = slot[0].toString() == u"image"_s && slot[1].isString();
                const QJsonValue shown = isPicture ? values[i].toObject().value("base64"_L1) : values[i];
                QVERIFY2(shown == slot[1], qPrintable(u"row %1, value %2"_s.arg(row).arg(i)));
            }
        }
    }

    void isSavedAsItWasRead_data() { addRegisters(); }
    void isSavedAsItWasRead() {
        QFETCH(QString, file);
        const Folder folder;
        const auto document = read(golden::path(file));
        const QString copy = folder.path(file);
        document->saveAs(copy);
        QCOMPARE(folder.content(file), golden::bytes(file));
        QVERIFY(!document->isEdited() && !document->canUndo() && !document->editor());
    }

    void aNewOneIsEmpty() {
        const DocumentKind* kind = _desk.kinds.named(u"Epaves"_s, _desk.desk);
        const Folder folder;
        kind->create(*kind, _desk.desk)->saveAs(folder.path(u"a.epaves"_s));
        QCOMPARE(folder.content(u"a.epaves"_s), golden::bytes(u"empty.carnet"_s));
        const auto again = read(folder.path(u"a.epaves"_s));
        QCOMPARE(&again->kind(), kind);
        QCOMPARE(again->summary().records, 0);
        QCOMPARE(again->summary().recordClass, u"Epaves"_s);
        QVERIFY(!again->summary().version);
        QVERIFY(again->dump().value("version"_L1).isNull());
    }

    void recordsCannotBeMadeYet() {
        const DocumentKind* kind = _desk.kinds.named(u"Epaves"_s, _desk.desk);
        const auto document = kind->create(*kind, _desk.desk);
        document->loadRecords({});
        const auto error = failureOf<DocumentError>([&] { document->loadRecords({QJsonObject()}); });
        QVERIFY(error);
        QCOMPARE(sentenceOf(*error), u"records of the type \"Epaves\" cannot be made yet, only read"_s);
    }

    void knowsNoExportTypes() {
        const Folder folder;
        const auto document = read(golden::path(u"budget-v1.budget"_s));
        QVERIFY(
            failureOf<DocumentError>([&] { document->exportTo(folder.path(u"x"_s), u"No such type"_s); }));
        QVERIFY(folder.names().isEmpty());
    }

    void whatIsNoListOfRecordsIsRefused_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("text") << u"refused-root-string.carnet"_s;
        QTest::newRow("dictionary") << u"refused-root-dictionary.carnet"_s;
        QTest::newRow("record") << u"refused-root-dive.carnet"_s;
    }
    void whatIsNoListOfRecordsIsRefused() {
        QFETCH(QString, file);
        PlainDocument document(*_desk.kinds.named(u"Budget"_s, _desk.desk), _desk.desk);
        const auto error =
            failureOf<DocumentError>([&] { document.readBytes(golden::bytes(file), u"Budget"_s); });
        QVERIFY(error);
        QCOMPARE(document.count(), 0);
    }
};

int runPlainDocumentTest(int argc, char** argv) {
    PlainDocumentTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PlainDocumentTest.moc"
