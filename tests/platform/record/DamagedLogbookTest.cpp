#include <QTest>

#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentError.h"
#include "platform/record/RecordTests.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A logbook of two dives in less than a kilobyte.
QByteArray smallLogbook(TestDesk& desk) {
    const auto carnet = desk.newLogbook();
    for (const auto& place : {u"Brest"_s, u"Ouessant"_s})
        carnet->addDive([&] { carnet->form().setText(carnet->form().find(u"lieu"_s), place); });
    return carnet->dataRepresentationOfType(desk.kinds.standard().currentTypeName(desk.desk));
}

/// Opens bytes as a document, looks at all of it and makes bytes of it again. Answers the refusal's
/// sentence, an empty one when it opened. Any other exception is a failure of the test.
QString open(TestDesk& desk, const QByteArray& bytes, const QString& name) {
    try {
        const DocumentKind& kind = desk.kinds.forContent(bytes, name);
        const auto document = kind.create(kind, desk.desk);
        document->readBytes(bytes, kind.currentTypeName(desk.desk));
        document->dump();
        document->summary();
        document->dataRepresentationOfType(kind.currentTypeName(desk.desk));
        return {};
    } catch (const ArchiveError& error) {
        if (error.offset() < 0 || error.offset() > bytes.size()) return u"offset outside the file"_s;
        return sentenceOf(DocumentError(error.sentence()));
    } catch (const DocumentError& error) {
        return sentenceOf(error);
    }
}

}  // namespace

class DamagedLogbookTest : public QObject {
    Q_OBJECT

    TestDesk _desk;

    QByteArray archiveFor(const QString& name) {
        return name == u"small"_s ? smallLogbook(_desk) : golden::bytes(name);
    }

    static void addArchives() {
        QTest::addColumn<QString>("name");
        for (const auto& name :
             {u"small"_s, u"empty.carnet"_s, u"compresseur-v1.compresseur"_s, u"documents-v1.documents"_s})
            QTest::newRow(qPrintable(name)) << name;
    }

private Q_SLOTS:
    void theWholeArchiveOpens_data() { addArchives(); }
    void theWholeArchiveOpens() {
        QFETCH(QString, name);
        QCOMPARE(open(_desk, archiveFor(name), name), QString());
    }

    void aCutAnywhereIsRefused_data() { addArchives(); }
    void aCutAnywhereIsRefused() {
        QFETCH(QString, name);
        const QByteArray bytes = archiveFor(name);
        for (qsizetype length = 0; length < bytes.size(); ++length) {
            const QString refusal = open(_desk, bytes.left(length), name);
            QVERIFY2(refusal.startsWith(u"byte "_s), qPrintable(u"cut at %1: %2"_s.arg(length).arg(refusal)));
        }
    }

    void aByteTooManyIsRefused_data() { addArchives(); }
    void aByteTooManyIsRefused() {
        QFETCH(QString, name);
        const QByteArray bytes = archiveFor(name) + '\0';
        QVERIFY(open(_desk, bytes, name).startsWith(u"byte %1: "_s.arg(bytes.size() - 1)));
    }

    void aFlippedBitOpensOrIsRefused_data() { addArchives(); }
    void aFlippedBitOpensOrIsRefused() {
        QFETCH(QString, name);
        const QByteArray bytes = archiveFor(name);
        int refused = 0, opened = 0;
        for (qsizetype bit = 0; bit < bytes.size() * 8; ++bit) {
            QByteArray flipped = bytes;
            flipped[bit / 8] = char(flipped[bit / 8] ^ (1 << (bit % 8)));
            const QString refusal = open(_desk, flipped, name);
            QVERIFY2(refusal != u"offset outside the file"_s && !refusal.contains(u'\n'),
                     qPrintable(refusal));
            ++(refusal.isEmpty() ? opened : refused);
        }
        QVERIFY2(refused > 128, "the header's bits at least must count");
        QVERIFY(opened > 0 || name == u"empty.carnet"_s);
    }
};

int runDamagedLogbookTest(int argc, char** argv) {
    DamagedLogbookTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DamagedLogbookTest.moc"
