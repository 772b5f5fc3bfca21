#include <QDir>
#include <QTest>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

struct SmallArchive {
    const char* name;
    const char* spelled;
};

// Small archives as other programs write them, one root object each.
constexpr SmallArchive smallArchives[] = {
    {"NSDate",
     "04 0b 'streamtyped' 81 e8 03 84 01 '@'"
     "84 84 84 06 'NSDate' 00 84 84 08 'NSObject' 00 85 84 01 'd' 82 80 01 4b 01 86"},
    {"NSString",
     "04 0b 'streamtyped' 81 e8 03 84 01 '@'"
     "84 84 84 08 'NSString' 01 84 84 08 'NSObject' 00 85 84 01 '+' 0c 'Hello, world' 86"},
    {"NumberDouble",
     "04 0b 'streamtyped' 81 e8 03 84 01 '@'"
     "84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 84 84 08 'NSObject' 00 85"
     "84 01 '*' 84 84 01 'd' 97 83 00 00 00 00 00 20 59 40 86"},
    {"NSMutableArray",
     "04 0b 'streamtyped' 81 e8 03 84 01 '@'"
     "84 84 84 0e 'NSMutableArray' 00 84 84 07 'NSArray' 00 84 84 08 'NSObject' 00 85 84 01 'i' 02"
     "92 84 84 84 08 'NSString' 01 95 84 01 '+' 01 'x' 86"
     "92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 95 84 01 '*' 84 84 01 'q' 9c 02 86 86"},
    {"NSDictionary",
     "04 0b 'streamtyped' 81 e8 03 84 01 '@'"
     "84 84 84 0c 'NSDictionary' 00 84 84 08 'NSObject' 00 85 84 01 'i' 02"
     "92 84 84 84 08 'NSString' 01 94 84 01 '+' 02 'k2' 86"
     "92 84 96 97 01 'v' 86"
     "92 84 96 97 02 'k1' 86"
     "92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 84 01 'q' 9b 01 86 86"},
};

}  // namespace

class ArchiveFixtureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void archivesAreRewrittenByteForByte_data();
    void archivesAreRewrittenByteForByte();
    void foreignFilesAreAsSpelled_data();
    void foreignFilesAreAsSpelled();
    void everyForeignFileIsRewritten();
};

void ArchiveFixtureTest::archivesAreRewrittenByteForByte_data() {
    QTest::addColumn<QByteArray>("bytes");
    for (const SmallArchive& archive : smallArchives) {
        QTest::newRow(archive.name) << assemble(archive.spelled);
    }
}

void ArchiveFixtureTest::archivesAreRewrittenByteForByte() {
    QFETCH(QByteArray, bytes);
    const auto archive = Archive::read(bytes);
    QCOMPARE(archive->root().className(),
             QString::fromLatin1(QTest::currentDataTag()).replace(u"NumberDouble"_s, u"NSNumber"_s));
    QCOMPARE(ArchiveWriter::rewrite(*archive), bytes);
}

void ArchiveFixtureTest::foreignFilesAreAsSpelled_data() {
    archivesAreRewrittenByteForByte_data();
}

void ArchiveFixtureTest::foreignFilesAreAsSpelled() {
    QFETCH(QByteArray, bytes);
    const QByteArray folder = qgetenv("SARGAN_FIXTURES");
    if (folder.isEmpty()) QSKIP("SARGAN_FIXTURES names no folder");
    QFile file(QDir(QFile::decodeName(folder)).filePath(QString::fromLatin1(QTest::currentDataTag())));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    QCOMPARE(file.readAll(), bytes);
}

void ArchiveFixtureTest::everyForeignFileIsRewritten() {
    const QByteArray folder = qgetenv("SARGAN_FIXTURES");
    if (folder.isEmpty()) QSKIP("SARGAN_FIXTURES names no folder");
    const QDir dir(QFile::decodeName(folder));
    int archives = 0;
    for (const QString& name : dir.entryList(QDir::Files)) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        if (!bytes.startsWith("\x04\x0b")) continue;
        QVERIFY2(ArchiveWriter::rewrite(*Archive::read(bytes)) == bytes, qPrintable(name));
        ++archives;
    }
    QVERIFY(archives > 0);
}

int runArchiveFixtureTest(int argc, char** argv) {
    ArchiveFixtureTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveFixtureTest.moc"
