#include <QTest>
#include <limits>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

constexpr ArchiveClass recordClass{"R", 1, &archiveclass::object};

template <typename Write>
QByteArray writtenRecord(Write write) {
    ArchiveWriter writer;
    writer.beginRootArray(1);
    writer.beginObject(recordClass);
    write(writer);
    writer.endObject();
    writer.endRootArray();
    return writer.take();
}

QByteArray writtenNumbers(const NumberArray& numbers) {
    return writtenRecord([&](ArchiveWriter& writer) { writer.writeNumbers(numbers); });
}

/// A reference to table entry n as the format has it: n - 110 in the narrowest integer.
QByteArray referenceTo(int n) {
    const int number = n - 110;
    if (number <= 127) return QByteArray(1, char(number));
    const auto low = [number](int byte) { return char(number >> 8 * byte & 0xff); };
    if (number <= 32767) return QByteArray{"\x81"} + low(0) + low(1);
    return QByteArray{"\x82"} + low(0) + low(1) + low(2) + low(3);
}

}  // namespace

class ArchiveSharingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wholeNumbersAreWrittenOnce();
    void largeWholeNumbersAreWrittenOnce();
    void numbersOfOtherKindsAreOtherNumbers();
    void booleansAreWrittenOncePerByte();
    void fractionsAndOddRealsAreWrittenInFull();
    void shortAsciiTextsAreSharedByContent_data();
    void shortAsciiTextsAreSharedByContent();
    void otherTextsAreSharedByAddress();
    void anotherTextAtTheSameAddressIsAnotherInstance();
    void datesAndArraysAreWrittenInFull();
    void instancesAreWrittenOnce();
    void referencesGrowWithTheTable_data();
    void referencesGrowWithTheTable();
    void manyReferencesReadBack();
    void miscountedArchivesAreNotWritten();
    void theWriterIsEmptyAfterTaking();
};

void ArchiveSharingTest::wholeNumbersAreWrittenOnce() {
    const QByteArray doubles = recordOf(firstNumber("04", 'd') + assemble("01 86"
                                                                          "92 84 9a 9a 9c 9b 02 86"
                                                                          "92 99 92 9d 86"));
    QCOMPARE(writtenNumbers(NumberArray::ofDoubles(std::array{1.0, 2.0, 1.0, 2.0})), doubles);
    const QByteArray ints = recordOf(firstNumber("03", 'i') + assemble("81 00 04 86"
                                                                       "92 99"
                                                                       "92 84 9a 9a 9c 96 81 7f ff 86 86"));
    QCOMPARE(writtenNumbers(NumberArray::ofInts(std::array{1024, 1024, -129})), ints);
}

void ArchiveSharingTest::largeWholeNumbersAreWrittenOnce() {
    NumberArray wide;
    wide.appendLongLong(qint64(1) << 40);
    wide.appendLongLong(qint64(1) << 40);
    QCOMPARE(writtenNumbers(wide),
             recordOf(firstNumber("02", 'q') + assemble("87 00 00 00 00 00 01 00 00 86 92 99 86")));
    QCOMPARE(writtenNumbers(NumberArray::ofDoubles(std::array{3e9, 3e9})),
             recordOf(firstNumber("02", 'd') + assemble("83 00 00 00 c0 0b 5a e6 41 86 92 99 86")));
}

void ArchiveSharingTest::numbersOfOtherKindsAreOtherNumbers() {
    NumberArray zeros;
    zeros.append(0);
    zeros.appendInt(0);
    zeros.appendLongLong(0);
    zeros.appendFloat(0);
    zeros.appendBool(false);
    zeros.appendFloat(0);
    // Objects: 99 d 0, 9a NSNumber, 9b NSValue, 9c "d", 9d i 0, 9e "i", 9f q 0, a0 "q", a1 f 0, a2 "f", a3 c
    // 0.
    const QByteArray expected = recordOf(firstNumber("06", 'd') + assemble("00 86"
                                                                           "92 84 9a 9a 84 96 96 00 86"
                                                                           "92 84 9a 9a 84 84 01 'q' 9c 00 86"
                                                                           "92 84 9a 9a 84 84 01 'f' 9d 00 86"
                                                                           "92 84 9a 9a 84 84 01 'c' 9e 00 86"
                                                                           "92 a1 86"));
    QCOMPARE(writtenNumbers(zeros), expected);
}

void ArchiveSharingTest::booleansAreWrittenOncePerByte() {
    NumberArray flags;
    for (const qint8 byte : {0, 1, 1, 0, -128, -128}) flags.appendRawBool(byte);
    const QByteArray expected = recordOf(firstNumber("06", 'c') + assemble("00 86"
                                                                           "92 84 9a 9a 9c 9b 01 86"
                                                                           "92 9d 92 99"
                                                                           "92 84 9a 9a 9c 9b 80 86"
                                                                           "92 9e 86"));
    QCOMPARE(writtenNumbers(flags), expected);
}

void ArchiveSharingTest::fractionsAndOddRealsAreWrittenInFull() {
    const double infinity = std::numeric_limits<double>::infinity();
    const NumberArray numbers =
        NumberArray::ofDoubles(std::array{0.5, 0.5, 0.0, -0.0, -0.0, infinity, infinity});
    const QByteArray expected =
        recordOf(firstNumber("07", 'd') + assemble("83 00 00 00 00 00 00 e0 3f 86"
                                                   "92 84 9a 9a 9c 9b 83 00 00 00 00 00 00 e0 3f 86"
                                                   "92 84 9a 9a 9c 9b 00 86"
                                                   "92 84 9a 9a 9c 9b 83 00 00 00 00 00 00 00 80 86"
                                                   "92 84 9a 9a 9c 9b 83 00 00 00 00 00 00 00 80 86"
                                                   "92 84 9a 9a 9c 9b 83 00 00 00 00 00 00 f0 7f 86"
                                                   "92 84 9a 9a 9c 9b 83 00 00 00 00 00 00 f0 7f 86 86"));
    QCOMPARE(writtenNumbers(numbers), expected);
}

void ArchiveSharingTest::shortAsciiTextsAreSharedByContent_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("shared");
    QTest::newRow("empty") << u""_s << true;
    QTest::newRow("one letter") << u"a"_s << true;
    QTest::newRow("seven letters") << u"Marseil"_s << true;
    QTest::newRow("eight letters") << u"Marseill"_s << false;
    QTest::newRow("one accent") << u"\u00e9"_s << false;
    QTest::newRow("last of ASCII") << u"\x7f"_s << true;
    QTest::newRow("zeros") << QString(u"\0\0"_s) << true;
}

void ArchiveSharingTest::shortAsciiTextsAreSharedByContent() {
    QFETCH(QString, text);
    QFETCH(bool, shared);
    const QString other = QString::fromUtf8(text.toUtf8());
    const QByteArray utf8 = text.toUtf8();
    const QByteArray bytes = char(utf8.size()) + utf8 + assemble("86");
    const QByteArray again = shared ? assemble("92 98") : assemble("92 84 99 99") + bytes;
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) {
                 writer.writeText(text);
                 writer.writeText(other);
             }),
             recordOf(assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+'") + bytes + again));
}

void ArchiveSharingTest::otherTextsAreSharedByAddress() {
    const QString text = u"Port-Cros"_s;
    const QString copy = text;
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) {
                 writer.writeText(text);
                 writer.writeText(text);
                 writer.writeText(copy);
                 writer.writeText(copy);
             }),
             recordOf(assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 09 'Port-Cros' 86"
                               "92 98 92 84 99 99 09 'Port-Cros' 86 92 9a")));
}

void ArchiveSharingTest::anotherTextAtTheSameAddressIsAnotherInstance() {
    QString text = u"Port-Cros"_s;
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) {
                 writer.writeText(text);
                 text = u"Porquerolles"_s;
                 writer.writeText(text);
             }),
             recordOf(assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 09 'Port-Cros' 86"
                               "92 84 99 99 0c 'Porquerolles' 86")));
}

void ArchiveSharingTest::datesAndArraysAreWrittenInFull() {
    const Moment moment = Moment::fromSeconds(7);
    const NumberArray numbers = NumberArray::empty();
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) {
                 writer.writeMoment(moment);
                 writer.writeMoment(moment);
                 writer.writeNumbers(numbers);
                 writer.writeNumbers(numbers);
             }),
             recordOf(assemble("92 84 84 84 06 'NSDate' 00 95 84 01 'd' 07 86"
                               "92 84 99 99 07 86"
                               "92 84 93 96 00 86 92 84 93 96 00 86")));
}

void ArchiveSharingTest::instancesAreWrittenOnce() {
    const int one = 1;
    const int two = 2;
    ArchiveWriter writer;
    writer.beginRootArray(3);
    for (const int* instance : {&one, &two, &one}) {
        if (!writer.beginInstance(instance, recordClass)) continue;
        writer.writeInt(*instance);
        writer.endObject();
    }
    writer.endRootArray();
    QCOMPARE(writer.take(),
             rootArray("03", assemble("92 84 84 84 01 'R' 01 95 96 01 86 92 84 97 96 02 86 92 96")));
}

void ArchiveSharingTest::referencesGrowWithTheTable_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0") << 0 << assemble("92");
    QTest::newRow("109") << 109 << assemble("ff");
    QTest::newRow("110") << 110 << assemble("00");
    QTest::newRow("237") << 237 << assemble("7f");
    QTest::newRow("238") << 238 << assemble("81 80 00");
    QTest::newRow("249") << 249 << assemble("81 8b 00");
    QTest::newRow("32877") << 32877 << assemble("81 ff 7f");
    QTest::newRow("32878") << 32878 << assemble("82 00 80 00 00");
}

void ArchiveSharingTest::referencesGrowWithTheTable() {
    QFETCH(int, index);
    QFETCH(QByteArray, bytes);
    QCOMPARE(referenceTo(index), bytes);
    if (index < 6) return;
    // Empty arrays fill the table from entry 6 on, until the text gets this number.
    const QString text = u"a"_s;
    QByteArray groups;
    for (int i = 6; i < index; ++i) groups += assemble("92 84 93 96 00 86");
    groups += assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 01 'a' 86 92") + bytes;
    const QByteArray expected = recordOf(groups);
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) {
                 for (int i = 6; i < index; ++i) writer.writeNumbers(NumberArray::empty());
                 writer.writeText(text);
                 writer.writeText(text);
             }),
             expected);
    ArchiveReader reader(expected);
    reader.beginRootArray();
    reader.beginElement("R");
    ArchivedObject kept;
    for (int i = 6; i < index; ++i) QVERIFY(!reader.readNumbers(kept).isAbsent());
    QCOMPARE(reader.readText(kept), text);
    QCOMPARE(reader.readText(kept), text);
    reader.endElement();
    reader.endRootArray();
}

void ArchiveSharingTest::manyReferencesReadBack() {
    // Numbers 0 to 39999 of a kind that begins at object 9: number n is object 9 + n, three more for n > 0.
    NumberArray numbers;
    QByteArray groups = firstNumber("82 80 38 01 00", 'i') + assemble("00 86");
    for (int n = 1; n < 40000; ++n) {
        QByteArray value;
        if (n < 128) value = QByteArray(1, char(n));
        if (n >= 128 && n < 32768) value = QByteArray{"\x81"} + char(n & 0xff) + char(n >> 8);
        if (n >= 32768) value = QByteArray{"\x82"} + char(n & 0xff) + char(n >> 8) + '\0' + '\0';
        groups += assemble("92 84 9a 9a 9c 96") + value + assemble("86");
    }
    for (int n = 0; n < 40000; ++n) {
        groups += assemble("92") + referenceTo(n == 0 ? 7 : n + 10);
    }
    for (int round = 0; round < 2; ++round) {
        for (int n = 0; n < 40000; ++n) numbers.appendInt(n);
    }
    const QByteArray expected = recordOf(groups + assemble("86"));
    QVERIFY(writtenNumbers(numbers) == expected);
    ArchiveReader reader(expected);
    reader.beginRootArray();
    reader.beginElement("R");
    ArchivedObject kept;
    QVERIFY(reader.readNumbers(kept) == numbers);
    reader.endElement();
    reader.endRootArray();
}

void ArchiveSharingTest::miscountedArchivesAreNotWritten() {
    ArchiveWriter tooFew;
    tooFew.beginRootArray(2);
    tooFew.beginObject(recordClass);
    tooFew.endObject();
    QVERIFY_THROWS_EXCEPTION(std::logic_error, tooFew.endRootArray());
    QVERIFY_THROWS_EXCEPTION(std::logic_error, tooFew.take());
    ArchiveWriter tooMany;
    tooMany.beginRootArray(0);
    tooMany.beginObject(recordClass);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, tooMany.endObject());
    ArchiveWriter notBegun;
    QVERIFY_THROWS_EXCEPTION(std::logic_error, notBegun.endObject());
}

void ArchiveSharingTest::theWriterIsEmptyAfterTaking() {
    const QString text = u"a"_s;
    ArchiveWriter writer;
    writer.writeText(text);
    const QByteArray once = writer.take();
    writer.writeText(text);
    QCOMPARE(writer.take(), once);
}

int runArchiveSharingTest(int argc, char** argv) {
    ArchiveSharingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveSharingTest.moc"
