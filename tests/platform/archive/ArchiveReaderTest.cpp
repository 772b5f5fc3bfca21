#include <QTest>
#include <cmath>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A reader that stands at the first slot of a record of class R.
class RecordReader : public ArchiveReader {
public:
    explicit RecordReader(const QByteArray& groups) : ArchiveReader(recordOf(groups)) {
        beginRootArray();
        beginElement("R");
    }
    void end() {
        endElement();
        endRootArray();
    }
};

}  // namespace

class ArchiveReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void elementsMayComeAgain();
    void referencesToOtherObjectsAreNoElements();
    void recordsMustHaveTheirClass_data();
    void recordsMustHaveTheirClass();
    void theHeadIsReadWithoutTheRest();
    void mutableTextsAreTexts();
    void textsOfDerivedClassesAreTexts();
    void unknownObjectsAreKeptInPlaceOfTexts();
    void longTextsAreReadThroughReferences();
    void datesOfDerivedClassesAreKept();
    void datesAreReadThroughReferences();
    void unknownObjectsAreKeptInPlaceOfDates();
    void arraysAreReadThroughReferences();
    void arraysOfDerivedClassesAreReadAndKept();
    void numbersOfDerivedClassesAreNumbers();
    void numbersThatAreNotUnderstoodAreKept();
    void numbersBehindLongClassChainsAreRead();
    void kindsMayChangeWithinAnArray();
    void errorsSayWhereTheyAre();
    void phrasesAreFilledInAnyLanguage();
};

void ArchiveReaderTest::elementsMayComeAgain() {
    ArchiveReader reader(
        rootArray("04", assemble("92 84 84 84 01 'R' 07 95 96 05 86 92 84 97 96 06 86 92 96 92 98")));
    QCOMPARE(reader.beginRootArray(), 4U);
    for (const int value : {5, 6}) {
        const ArchiveReader::Element element = reader.beginElement("R");
        QVERIFY(element.isNew);
        QCOMPARE(element.number, quint32(value - 5));
        QCOMPARE(reader.elementVersion(), 7);
        QCOMPARE(reader.readInt(), value);
        reader.endElement();
    }
    for (const quint32 number : {0U, 1U}) {
        const ArchiveReader::Element element = reader.beginElement("R");
        QVERIFY(!element.isNew);
        QCOMPARE(element.number, number);
    }
    reader.endRootArray();
}

void ArchiveReaderTest::referencesToOtherObjectsAreNoElements() {
    // The second element is the array inside the first one.
    ArchiveReader reader(rootArray("02", assemble("92 84 84 84 01 'R' 07 95 92 84 93 96 00 86 86 92 98")));
    reader.beginRootArray();
    reader.beginElement("R");
    reader.readObject();
    reader.endElement();
    QVERIFY_THROWS_EXCEPTION(ArchiveError, reader.beginElement("R"));
}

void ArchiveReaderTest::recordsMustHaveTheirClass_data() {
    QTest::addColumn<QByteArray>("element");
    QTest::newRow("another name") << assemble("92 84 84 84 01 'S' 01 95 86");
    QTest::newRow("longer name") << assemble("92 84 84 84 02 'RR' 01 95 86");
    QTest::newRow("unknown superclass") << assemble("92 84 84 84 01 'R' 01 84 84 01 'Q' 00 95 86");
    QTest::newRow("no superclass") << assemble("92 84 84 84 01 'R' 01 85 86");
    QTest::newRow("array as superclass") << assemble("92 84 84 84 01 'R' 01 94 86");
    QTest::newRow("nil") << assemble("92 85");
    QTest::newRow("the root itself") << assemble("92 92");
    QTest::newRow("no object") << assemble("96 05");
}

void ArchiveReaderTest::recordsMustHaveTheirClass() {
    QFETCH(QByteArray, element);
    ArchiveReader reader(rootArray("01", element));
    reader.beginRootArray();
    QVERIFY_THROWS_EXCEPTION(ArchiveError, reader.beginElement("R"));
}

void ArchiveReaderTest::theHeadIsReadWithoutTheRest() {
    const QByteArray bytes = recordOf(assemble("96 05"));
    ArchiveHead head = readArchiveHead(bytes);
    QCOMPARE(head.rootClass, u"NSMutableArray"_s);
    QCOMPARE(head.count, 1U);
    QCOMPARE(head.recordClass, u"R"_s);
    QCOMPARE(head.version, 1);
    // Everything after the class of the first element may be missing.
    head = readArchiveHead(bytes.chopped(4));
    QCOMPARE(head.recordClass, u"R"_s);
    head = readArchiveHead(rootArray("00", {}));
    QCOMPARE(head.count, 0U);
    QVERIFY(head.recordClass.isEmpty());
    QVERIFY(!head.version);
    for (const char* body : {"", "84 01 '@' 85", "84 01 'i' 05"}) {
        QVERIFY_THROWS_EXCEPTION(ArchiveError, readArchiveHead(archiveOf(assemble(body))));
    }
    QVERIFY_THROWS_EXCEPTION(ArchiveError, readArchiveHead({}));
    QVERIFY_THROWS_EXCEPTION(ArchiveError, readArchiveHead("<?xml version=\"1.0\"?>"));
}

void ArchiveReaderTest::mutableTextsAreTexts() {
    RecordReader reader(
        assemble("92 84 84 84 0f 'NSMutableString' 01 84 84 08 'NSString' 01 95 84 01 '+' 02 'ab' 86"
                 "92 98"));
    ArchivedObject kept;
    QCOMPARE(reader.readText(kept), u"ab"_s);
    QCOMPARE(reader.readText(kept), u"ab"_s);
    QVERIFY(kept.isNil());
    reader.end();
}

void ArchiveReaderTest::textsOfDerivedClassesAreTexts() {
    RecordReader reader(
        assemble("92 84 84 84 01 'T' 03 84 84 08 'NSString' 01 95 84 01 '+' 02 'ab' 96 05 86 92 98"));
    ArchivedObject kept;
    QCOMPARE(reader.readText(kept), u"ab"_s);
    QCOMPARE(reader.readText(kept), u"ab"_s);
    reader.end();
}

void ArchiveReaderTest::unknownObjectsAreKeptInPlaceOfTexts() {
    RecordReader reader(
        assemble("92 84 84 84 01 'U' 02 95 96 05 92 84 84 84 08 'NSString' 01 95 84 01 '+' 01 'z' 86 86"
                 "92 98 92 9a 96 09"));
    ArchivedObject kept;
    QVERIFY(reader.readText(kept).isNull());
    QCOMPARE(kept.className(), u"U"_s);
    const ArchivedObject first = kept;
    QVERIFY(reader.readText(kept).isNull());
    QVERIFY(kept == first);
    QCOMPARE(reader.readText(kept), u"z"_s);
    QVERIFY(kept.isNil());
    QCOMPARE(reader.readInt(), 9);
    reader.end();
}

void ArchiveReaderTest::longTextsAreReadThroughReferences() {
    const QByteArray text(100, 'x');
    RecordReader reader(assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 64") + text +
                        assemble("86 92 98 92 98"));
    ArchivedObject kept;
    for (int i = 0; i < 3; ++i) QCOMPARE(reader.readText(kept).toLatin1(), text);
    reader.end();
}

void ArchiveReaderTest::datesOfDerivedClassesAreKept() {
    RecordReader reader(
        assemble("92 84 84 84 0e 'NSCalendarDate' 00 84 84 06 'NSDate' 00 95 84 01 'd' 05 96 07 86"
                 "92 98"
                 "92 84 99 96 07 86"));
    ArchivedObject kept;
    QCOMPARE(reader.readMoment(kept).seconds(), 5.0);
    QCOMPARE(kept.className(), u"NSCalendarDate"_s);
    kept = {};
    QCOMPARE(reader.readMoment(kept).seconds(), 5.0);
    QCOMPARE(kept.className(), u"NSCalendarDate"_s);
    // One that does not begin with its seconds has no date that we could read.
    QVERIFY(!reader.readMoment(kept).isPresent());
    QCOMPARE(kept.className(), u"NSCalendarDate"_s);
    reader.end();
}

void ArchiveReaderTest::datesAreReadThroughReferences() {
    RecordReader reader(
        assemble("92 84 84 84 06 'NSDate' 00 95 84 01 'd' 83 00 00 00 00 00 00 e0 3f 86 92 98"));
    ArchivedObject kept;
    QCOMPARE(reader.readMoment(kept).seconds(), 0.5);
    QCOMPARE(reader.readMoment(kept).seconds(), 0.5);
    QVERIFY(kept.isNil());
    reader.end();
}

void ArchiveReaderTest::unknownObjectsAreKeptInPlaceOfDates() {
    RecordReader reader(assemble("92 84 84 84 01 'U' 02 95 86 92 98 96 09"));
    ArchivedObject kept;
    QVERIFY(!reader.readMoment(kept).isPresent());
    QCOMPARE(kept.className(), u"U"_s);
    QVERIFY(reader.readNumbers(kept).isAbsent());
    QCOMPARE(kept.className(), u"U"_s);
    QCOMPARE(reader.readInt(), 9);
    reader.end();
}

void ArchiveReaderTest::arraysAreReadThroughReferences() {
    // A short array, decoded again each time, and one long enough to be remembered.
    RecordReader reader(firstNumber("03", 'd') +
                        assemble("83 00 00 00 00 00 00 e0 3f 86 92 99 92 84 9a 9a 9c 9b 02 86 86"
                                 "92 98"
                                 "92 84 93 96 02 92 99 92 99 86 92 9e 92 9e"));
    ArchivedObject kept;
    const NumberArray expected = NumberArray::ofDoubles(std::array{0.5, 0.5, 2.0});
    QVERIFY(reader.readNumbers(kept) == expected);
    QVERIFY(reader.readNumbers(kept) == expected);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(reader.readNumbers(kept) == NumberArray::ofDoubles(std::array{0.5, 0.5}));
    }
    QVERIFY(kept.isNil());
    reader.end();
}

void ArchiveReaderTest::arraysOfDerivedClassesAreReadAndKept() {
    RecordReader reader(
        assemble("92 84 84 84 01 'A' 00 94 96 01"
                 "92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 95 84 01 '*' 84 96 96 05 86"
                 "96 07 86 92 98"));
    ArchivedObject kept;
    for (int i = 0; i < 2; ++i) {
        kept = {};
        QVERIFY(reader.readNumbers(kept) == NumberArray::ofInts(std::array{5}));
        QCOMPARE(kept.className(), u"A"_s);
    }
    reader.end();
}

void ArchiveReaderTest::numbersOfDerivedClassesAreNumbers() {
    RecordReader reader(firstNumber("03", 'd') +
                        assemble("05 86"
                                 "92 84 84 84 0f 'NSDecimalNumber' 00 9a 9a 9c 9b 06 86"
                                 "92 84 9e 9a 9c 9b 07 96 01 86 86"));
    ArchivedObject kept;
    QVERIFY(reader.readNumbers(kept) == NumberArray::ofDoubles(std::array{5.0, 6.0, 7.0}));
    reader.end();
}

void ArchiveReaderTest::numbersThatAreNotUnderstoodAreKept() {
    // A decimal number of its own layout twice, a number of type "s", a number whose type letter is not that
    // of its value, and an object of an unknown class.
    const QByteArray groups = firstNumber("06", 'd') + assemble(
                                                           "05 86"
                                                           "92 84 84 84 0f 'NSDecimalNumber' 00 9a 96 01 86"
                                                           "92 9d"
                                                           "92 84 9a 9a 84 84 01 's' 9d 09 86"
                                                           "92 84 9a 9a 9c 96 09 86"
                                                           "92 84 84 84 01 'U' 00 95 86 86");
    RecordReader reader(groups);
    ArchivedObject kept;
    const NumberArray numbers = reader.readNumbers(kept);
    reader.end();
    QCOMPARE(numbers.size(), 6);
    QCOMPARE(numbers.kindAt(0), NumberKind::Double);
    for (int i = 1; i < 6; ++i) {
        QCOMPARE(numbers.kindAt(i), NumberKind::Kept);
        QVERIFY(std::isnan(numbers.at(i)));
    }
    QCOMPARE(numbers.keptAt(1).className(), u"NSDecimalNumber"_s);
    QVERIFY(numbers.keptAt(1) == numbers.keptAt(2));
    QCOMPARE(numbers.keptAt(5).className(), u"U"_s);

    // Written back, everything stands as it was.
    const ArchiveClass recordClass{"R", 1, &archiveclass::object};
    ArchiveWriter writer;
    writer.beginRootArray(1);
    writer.beginObject(recordClass);
    writer.writeNumbers(numbers);
    writer.endObject();
    writer.endRootArray();
    QCOMPARE(writer.take(), recordOf(groups));
}

void ArchiveReaderTest::numbersBehindLongClassChainsAreRead() {
    // The name of the class puts more than 255 bytes between the number's head and its value.
    const QByteArray name(300, 'n');
    RecordReader reader(firstNumber("03", 'd') + assemble("05 86 92 84 84 84 81 2c 01") + name +
                        assemble("00 9a 9a 9c 9b 06 86 92 9d 86"));
    ArchivedObject kept;
    QVERIFY(reader.readNumbers(kept) == NumberArray::ofDoubles(std::array{5.0, 6.0, 6.0}));
    reader.end();
}

void ArchiveReaderTest::kindsMayChangeWithinAnArray() {
    // d 5, i 6, a reference to each, then i 7 and d 0.5 in full again.
    RecordReader reader(firstNumber("06", 'd') +
                        assemble("05 86"
                                 "92 84 9a 9a 84 96 96 06 86"
                                 "92 99 92 9d"
                                 "92 84 9a 9a 9e 96 07 86"
                                 "92 84 9a 9a 9c 9b 83 00 00 00 00 00 00 e0 3f 86 86"));
    NumberArray expected;
    expected.append(5);
    expected.appendInt(6);
    expected.append(5);
    expected.appendInt(6);
    expected.appendInt(7);
    expected.append(0.5);
    ArchivedObject kept;
    QVERIFY(reader.readNumbers(kept) == expected);
    reader.end();
}

void ArchiveReaderTest::errorsSayWhereTheyAre() {
    const QByteArray bytes = rootArray("02", assemble("92 84 84 84 01 'R' 07 95 96 05 86 92 84 97 92 85 86"));
    ArchiveReader reader(bytes);
    reader.beginRootArray();
    reader.beginElement("R");
    reader.atSlot("profondeur");
    QCOMPARE(reader.readInt(), 5);
    reader.endElement();
    reader.beginElement("R");
    reader.atSlot("lieu");
    try {
        reader.readInt();
        QFAIL("an object was read as an integer");
    } catch (const ArchiveError& error) {
        // The type byte of the last but one group: 86 86 end the file, 85 is nil.
        QCOMPARE(error.offset(), bytes.size() - 4);
        QCOMPARE(error.slot(), u"R 1, lieu"_s);
        QCOMPARE(
            error.sentence(),
            u"byte %1: expected an integer (type \"i\"), found type \"@\" (R 1, lieu)"_s.arg(error.offset()));
        QCOMPARE(QString::fromUtf8(error.what()), error.sentence());
    }
}

void ArchiveReaderTest::phrasesAreFilledInAnyLanguage() {
    const ArchivePhrase phrase("%@ (bytes: %@)"_words, {"a text"_words, 5});
    QCOMPARE(phrase.text(), u"a text (bytes: 5)"_s);
    const auto backwards = [](const char* english) {
        return QByteArrayView(english) == "a text" ? u"un texte %@"_s : u"[%@, %@]"_s;
    };
    QCOMPARE(phrase.text(backwards), u"[un texte , 5]"_s);
    // What stands in an archive is no phrase, whatever it looks like.
    QCOMPARE(ArchivePhrase("%@, %@"_words, {u"%@"_s, u"a text"_s}).text(backwards), u"[%@, a text]"_s);
    QCOMPARE(ArchivePhrase::name(QByteArray(81, 'x')).text(), QString(80, u'x'));
}

int runArchiveReaderTest(int argc, char** argv) {
    ArchiveReaderTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveReaderTest.moc"
