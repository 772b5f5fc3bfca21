#include <QTest>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A root object of class U. Strings so far: 92 "@", 93 "U", 94 "NSObject".
/// Objects: 92 the root, 93 U, 94 NSObject.
QByteArray unknownRoot(const QByteArray& groups) {
    return archiveOf(assemble("84 01 '@' 84 84 84 01 'U' 03 84 84 08 'NSObject' 00 85") + groups +
                     assemble("86"));
}

/// A reference by table index.
QByteArray referenceTo(int index) {
    const int number = index - 110;
    if (number <= 127) return QByteArray(1, char(number));
    return QByteArray{"\x81"} + char(number & 0xff) + char(number >> 8);
}

std::optional<ArchiveError> errorOfTree(const QByteArray& bytes) {
    try {
        Archive::read(bytes);
    } catch (const ArchiveError& error) {
        return error;
    }
    return std::nullopt;
}

QByteArray groupOfType(const QByteArray& type, const QByteArray& value) {
    const QByteArray length = type.size() < 128
                                  ? QByteArray(1, char(type.size()))
                                  : "\x81" + QByteArray(1, char(type.size() & 0xff)) + char(type.size() >> 8);
    return "\x84" + length + type + value;
}

QByteArray nestedObjects(int levels) {
    return QByteArray("\x92\x84\x93").repeated(levels) + QByteArray("\x86").repeated(levels);
}

/// Objects of which each refers to the one before, all beside one another in the root.
QByteArray chainOfReferences(int objects, int references) {
    QByteArray groups = assemble("92 84 93 86");
    for (int i = 1; i < objects; ++i) {
        groups += assemble("92 84 93");
        for (int r = 0; r < references; ++r) groups += "\x92" + referenceTo(3 + i - 1);
        groups += "\x86";
    }
    return groups;
}

QByteArray classChain(int classes) {
    QByteArray chain = assemble("92 84 84 84 01 'V' 00");
    for (int i = 2; i < classes; ++i) chain += assemble("84 95 00");
    return chain + assemble("94 86");
}

}  // namespace

class ArchiveBoundsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void objectsNestTo256();
    void referencesCountAsNesting();
    void recordsCountAsNesting();
    void chainsHave64Classes();
    void chainsThroughReferencesHave64Classes();
    void typesNestTo16();
    void typesDescribeValues();
    void longTextsAreReadOnceForAllReferences();
    void longArraysAreReadOnceForAllReferences();
    void arraysOfLongObjectsAreReadOnceForAllReferences();
    void objectsReachedInManyWaysAreVisitedOnce();
    void deepKeptObjectsCanBeWrittenAndReadAgain();
};

void ArchiveBoundsTest::objectsNestTo256() {
    const QByteArray deepest = unknownRoot(nestedObjects(255));
    QVERIFY(!errorOfTree(deepest));
    QCOMPARE(ArchiveWriter::rewrite(*Archive::read(deepest)), deepest);
    const auto error = errorOfTree(unknownRoot(nestedObjects(256)));
    QVERIFY(error);
    QCOMPARE(error->problem(), u"expected at most 256 nested objects, found more"_s);
    QCOMPARE(error->offset(), unknownRoot({}).size() - 1 + 255 * 3 + 1);
    QVERIFY(errorOfTree(unknownRoot(nestedObjects(100000))));
}

void ArchiveBoundsTest::referencesCountAsNesting() {
    const QByteArray deepest = unknownRoot(chainOfReferences(255, 1));
    QVERIFY(!errorOfTree(deepest));
    const auto error = errorOfTree(unknownRoot(chainOfReferences(256, 1)));
    QVERIFY(error);
    QCOMPARE(error->problem(),
             u"expected at most 256 nested objects, found more, counted through references"_s);
    QVERIFY(errorOfTree(unknownRoot(chainOfReferences(5000, 1))));
}

void ArchiveBoundsTest::recordsCountAsNesting() {
    // Root array, record, then unknown objects: 254 of them are the most.
    const auto read = [](int levels) {
        const QByteArray nested = assemble("92 84 84 84 01 'U' 03 95") +
                                  QByteArray("\x92\x84\x99").repeated(levels - 1) +
                                  QByteArray("\x86").repeated(levels);
        ArchiveReader reader(recordOf(nested));
        reader.beginRootArray();
        reader.beginElement("R");
        reader.readObject();
        reader.endElement();
        reader.endRootArray();
    };
    read(254);
    QVERIFY_THROWS_EXCEPTION(ArchiveError, read(255));
}

void ArchiveBoundsTest::chainsHave64Classes() {
    QVERIFY(!errorOfTree(unknownRoot(classChain(64))));
    const auto error = errorOfTree(unknownRoot(classChain(65)));
    QVERIFY(error);
    QCOMPARE(error->problem(), u"expected at most 64 superclasses, found more"_s);
    QVERIFY(errorOfTree(unknownRoot(classChain(1000))));
}

void ArchiveBoundsTest::chainsThroughReferencesHave64Classes() {
    // Object 3 with classes from 4 on, 60 before NSObject; then one more chain that ends in class 4.
    const QByteArray first = classChain(61);
    const auto second = [](int more) {
        return assemble("92 84") + assemble("84 95 01").repeated(more) + assemble("96 86");
    };
    QVERIFY(!errorOfTree(unknownRoot(first + second(3))));
    QVERIFY(errorOfTree(unknownRoot(first + second(4))));
}

void ArchiveBoundsTest::typesNestTo16() {
    const auto nested = [](int levels) {
        return groupOfType(QByteArray("[1").repeated(levels) + "s" + QByteArray("]").repeated(levels),
                           "\x05");
    };
    QVERIFY(!errorOfTree(unknownRoot(nested(16))));
    const auto error = errorOfTree(unknownRoot(nested(17)));
    QVERIFY(error);
    QVERIFY(error->problem().endsWith(u"it is nested too deeply"_s));
    QVERIFY(errorOfTree(unknownRoot(groupOfType(QByteArray("{=").repeated(30000), "\x05"))));
}

void ArchiveBoundsTest::typesDescribeValues() {
    QVERIFY(!errorOfTree(unknownRoot(groupOfType(QByteArray("[0c]").repeated(16), {}))));
    const auto error = errorOfTree(unknownRoot(groupOfType(QByteArray("[0c]").repeated(17), {})));
    QVERIFY(error);
    QVERIFY(error->problem().endsWith(u"it describes hardly any value"_s));
    QVERIFY(!errorOfTree(unknownRoot(groupOfType("{" + QByteArray(80, 'x') + "=c}", "\x05"))));
    QVERIFY(errorOfTree(unknownRoot(groupOfType("{" + QByteArray(5000, 'x') + "=c}", "\x05"))));
    QVERIFY(!errorOfTree(unknownRoot(groupOfType(QByteArray(5000, 'c'), QByteArray(5000, '\0')))));
}

void ArchiveBoundsTest::longTextsAreReadOnceForAllReferences() {
    // A megabyte that is referred to 100000 times: a reader that decodes each time would take minutes.
    const int references = 100000;
    const QByteArray text(1000000, 'x');
    ArchiveReader reader(recordOf(assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 82 40 42 0f 00") +
                                  text + assemble("86") + assemble("92 98").repeated(references)));
    reader.beginRootArray();
    reader.beginElement("R");
    ArchivedObject kept;
    for (int i = 0; i <= references; ++i) QCOMPARE(reader.readText(kept).size(), 1000000);
    reader.endElement();
    reader.endRootArray();
}

void ArchiveBoundsTest::longArraysAreReadOnceForAllReferences() {
    const int references = 100000;
    ArchiveReader reader(recordOf(firstNumber("82 40 42 0f 00", 'd') + assemble("05 86") +
                                  assemble("92 99").repeated(999999) + assemble("86") +
                                  assemble("92 98").repeated(references)));
    reader.beginRootArray();
    reader.beginElement("R");
    ArchivedObject kept;
    for (int i = 0; i <= references; ++i) QCOMPARE(reader.readNumbers(kept).size(), 1000000);
    reader.endElement();
    reader.endRootArray();
}

void ArchiveBoundsTest::arraysOfLongObjectsAreReadOnceForAllReferences() {
    const int references = 100000;
    ArchiveReader reader(recordOf(assemble("92 84 93 96 01 92 84 84 84 01 'U' 03 95") +
                                  assemble("96 05").repeated(500000) + assemble("86 86") +
                                  assemble("92 98").repeated(references)));
    reader.beginRootArray();
    reader.beginElement("R");
    ArchivedObject kept;
    for (int i = 0; i <= references; ++i) QCOMPARE(reader.readNumbers(kept).size(), 1);
    reader.endElement();
    reader.endRootArray();
}

void ArchiveBoundsTest::objectsReachedInManyWaysAreVisitedOnce() {
    // 200 objects that each refer to the one before twice: 2^199 ways to the first.
    const auto archive = Archive::read(unknownRoot(chainOfReferences(200, 2)));
    QVERIFY(archive->root().pictureBytes().isNull());
    QCOMPARE(ArchiveWriter::rewrite(*archive), archive->bytes());
}

void ArchiveBoundsTest::deepKeptObjectsCanBeWrittenAndReadAgain() {
    // The last of the chain alone: written, it holds all the others nested.
    const auto archive = Archive::read(rootArray(
        "7f", assemble("92 84 84 84 01 'U' 03 95 86") + [] {
            QByteArray elements;
            for (int i = 1; i < 127; ++i)
                elements += "\x92\x84\x97\x92" + referenceTo(i == 1 ? 4 : i + 4) + "\x86";
            return elements;
        }()));
    const ArchivedObject last = archive->root().asArray().last();
    ArchiveWriter writer;
    writer.beginRootArray(1);
    writer.writeObject(last);
    writer.endRootArray();
    const auto again = Archive::read(writer.take());
    int levels = 0;
    for (ArchivedObject object = again->root().asArray().first(); !object.isNil(); ++levels) {
        const QList<ArchivedGroup> groups = object.groups();
        object = groups.isEmpty()
                     ? ArchivedObject()
                     : *std::get<std::shared_ptr<const ArchivedObject>>(groups[0].values[0].value);
    }
    QCOMPARE(levels, 127);
}

int runArchiveBoundsTest(int argc, char** argv) {
    ArchiveBoundsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveBoundsTest.moc"
