#include <QTest>
#include <bit>
#include <cmath>
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

template <typename Read>
auto readRecord(const QByteArray& bytes, Read read) {
    ArchiveReader reader(bytes);
    reader.beginRootArray();
    reader.beginElement("R");
    const auto value = read(reader);
    reader.endElement();
    reader.endRootArray();
    return value;
}

NumberArray readNumbers(ArchiveReader& reader) {
    ArchivedObject kept;
    return reader.readNumbers(kept);
}

const char* const textHead = "92 84 84 84 08 'NSString' 01 95 84 01 '+'";
const char* const dateHead = "92 84 84 84 06 'NSDate' 00 95 84 01 'd'";

}  // namespace

class ArchiveValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void integersTakeTheNarrowestForm_data();
    void integersTakeTheNarrowestForm();
    void widerFormsOfIntegersAreRead_data();
    void widerFormsOfIntegersAreRead();
    void wideIntegersTakeEightBytes_data();
    void wideIntegersTakeEightBytes();
    void wholeFloatsAreIntegers_data();
    void wholeFloatsAreIntegers();
    void wholeDoublesAreIntegers_data();
    void wholeDoublesAreIntegers();
    void wholeRealsAreReadFromRealForm();
    void textsAreUtf8_data();
    void textsAreUtf8();
    void nilIsNotEmpty();
    void numbersKeepTheirKind_data();
    void numbersKeepTheirKind();
    void dataIsACountAndBytes();
    void colourGroupsAreWritten();
    void theWholeExampleIsWritten();
    void theWholeExampleIsRead();
};

void ArchiveValuesTest::integersTakeTheNarrowestForm_data() {
    QTest::addColumn<qint32>("value");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0") << 0 << assemble("00");
    QTest::newRow("127") << 127 << assemble("7f");
    QTest::newRow("128") << 128 << assemble("81 80 00");
    QTest::newRow("138") << 138 << assemble("81 8a 00");
    QTest::newRow("32767") << 32767 << assemble("81 ff 7f");
    QTest::newRow("32768") << 32768 << assemble("82 00 80 00 00");
    QTest::newRow("65535") << 65535 << assemble("82 ff ff 00 00");
    QTest::newRow("largest") << std::numeric_limits<qint32>::max() << assemble("82 ff ff ff 7f");
    QTest::newRow("-1") << -1 << assemble("ff");
    QTest::newRow("-110") << -110 << assemble("92");
    QTest::newRow("-111") << -111 << assemble("81 91 ff");
    QTest::newRow("-128") << -128 << assemble("81 80 ff");
    QTest::newRow("-129") << -129 << assemble("81 7f ff");
    QTest::newRow("-32768") << -32768 << assemble("81 00 80");
    QTest::newRow("-32769") << -32769 << assemble("82 ff 7f ff ff");
    QTest::newRow("smallest") << std::numeric_limits<qint32>::min() << assemble("82 00 00 00 80");
}

void ArchiveValuesTest::integersTakeTheNarrowestForm() {
    QFETCH(qint32, value);
    QFETCH(QByteArray, bytes);
    const QByteArray expected = recordOf(assemble("96") + bytes);
    QCOMPARE(writtenRecord([=](ArchiveWriter& writer) { writer.writeInt(value); }), expected);
    QCOMPARE(readRecord(expected, [](ArchiveReader& reader) { return reader.readInt(); }), value);
}

void ArchiveValuesTest::widerFormsOfIntegersAreRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qint32>("value");
    QTest::newRow("5 in two bytes") << assemble("81 05 00") << 5;
    QTest::newRow("-5 in two bytes") << assemble("81 fb ff") << -5;
    QTest::newRow("5 in four bytes") << assemble("82 05 00 00 00") << 5;
    QTest::newRow("-5 in four bytes") << assemble("82 fb ff ff ff") << -5;
    QTest::newRow("5 in eight bytes") << assemble("87 05 00 00 00 00 00 00 00") << 5;
    QTest::newRow("-5 in eight bytes") << assemble("87 fb ff ff ff ff ff ff ff") << -5;
}

void ArchiveValuesTest::widerFormsOfIntegersAreRead() {
    QFETCH(QByteArray, bytes);
    QFETCH(qint32, value);
    const QByteArray archive = recordOf(assemble("96") + bytes);
    QCOMPARE(readRecord(archive, [](ArchiveReader& reader) { return reader.readInt(); }), value);
}

void ArchiveValuesTest::wideIntegersTakeEightBytes_data() {
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("2^31") << qint64(2147483648) << assemble("87 00 00 00 80 00 00 00 00");
    QTest::newRow("-2^31") << qint64(-2147483648) << assemble("82 00 00 00 80");
    QTest::newRow("-2^31-1") << qint64(-2147483649) << assemble("87 ff ff ff 7f ff ff ff ff");
    QTest::newRow("-9000000000") << qint64(-9000000000) << assemble("87 00 e6 8e e7 fd ff ff ff");
    QTest::newRow("600") << qint64(600) << assemble("81 58 02");
    QTest::newRow("largest") << std::numeric_limits<qint64>::max() << assemble("87 ff ff ff ff ff ff ff 7f");
    QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << assemble("87 00 00 00 00 00 00 00 80");
}

void ArchiveValuesTest::wideIntegersTakeEightBytes() {
    QFETCH(qint64, value);
    QFETCH(QByteArray, bytes);
    NumberArray numbers;
    numbers.appendLongLong(value);
    const QByteArray expected = recordOf(firstNumber("01", 'q') + bytes + assemble("86 86"));
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) { writer.writeNumbers(numbers); }), expected);
    QCOMPARE(readRecord(expected, readNumbers), numbers);
}

void ArchiveValuesTest::wholeFloatsAreIntegers_data() {
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0") << 0x00000000U << assemble("00");
    QTest::newRow("-0") << 0x80000000U << assemble("83 00 00 00 80");
    QTest::newRow("1") << 0x3f800000U << assemble("01");
    QTest::newRow("-5") << 0xc0a00000U << assemble("fb");
    QTest::newRow("1.5") << 0x3fc00000U << assemble("83 00 00 c0 3f");
    QTest::newRow("0.466796875") << 0x3eef0000U << assemble("83 00 00 ef 3e");
    QTest::newRow("65535") << 0x477fff00U << assemble("82 ff ff 00 00");
    QTest::newRow("2^31 - 128") << 0x4effffffU << assemble("82 80 ff ff 7f");
    QTest::newRow("2^31") << 0x4f000000U << assemble("83 00 00 00 4f");
    QTest::newRow("-2^31") << 0xcf000000U << assemble("82 00 00 00 80");
    QTest::newRow("-2^31 - 256") << 0xcf000001U << assemble("83 01 00 00 cf");
    QTest::newRow("infinity") << 0x7f800000U << assemble("83 00 00 80 7f");
    QTest::newRow("-infinity") << 0xff800000U << assemble("83 00 00 80 ff");
    QTest::newRow("NaN") << 0x7fc00001U << assemble("83 01 00 c0 7f");
    QTest::newRow("smallest positive") << 0x00000001U << assemble("83 01 00 00 00");
}

void ArchiveValuesTest::wholeFloatsAreIntegers() {
    QFETCH(quint32, bits);
    QFETCH(QByteArray, bytes);
    const QByteArray expected = recordOf(assemble("84 01 'f'") + bytes);
    const float value = std::bit_cast<float>(bits);
    QCOMPARE(writtenRecord([=](ArchiveWriter& writer) { writer.writeFloat(value); }), expected);
    const float back = readRecord(expected, [](ArchiveReader& reader) { return reader.readFloat(); });
    QCOMPARE(std::bit_cast<quint32>(back), bits);
}

void ArchiveValuesTest::wholeDoublesAreIntegers_data() {
    QTest::addColumn<quint64>("bits");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0") << quint64(0) << assemble("00");
    QTest::newRow("-0") << quint64(0x8000000000000000) << assemble("83 00 00 00 00 00 00 00 80");
    QTest::newRow("0.5") << quint64(0x3fe0000000000000) << assemble("83 00 00 00 00 00 00 e0 3f");
    QTest::newRow("100.5") << quint64(0x4059200000000000) << assemble("83 00 00 00 00 00 20 59 40");
    QTest::newRow("21692800") << quint64(0x4174b01800000000) << assemble("82 80 01 4b 01");
    QTest::newRow("2^31 - 1") << quint64(0x41dfffffffc00000) << assemble("82 ff ff ff 7f");
    QTest::newRow("2^31") << quint64(0x41e0000000000000) << assemble("83 00 00 00 00 00 00 e0 41");
    QTest::newRow("-2^31") << quint64(0xc1e0000000000000) << assemble("82 00 00 00 80");
    QTest::newRow("-2^31 - 1") << quint64(0xc1e0000000200000) << assemble("83 00 00 20 00 00 00 e0 c1");
    QTest::newRow("infinity") << quint64(0x7ff0000000000000) << assemble("83 00 00 00 00 00 00 f0 7f");
    QTest::newRow("NaN") << quint64(0x7ff8000000000002) << assemble("83 02 00 00 00 00 00 f8 7f");
}

void ArchiveValuesTest::wholeDoublesAreIntegers() {
    QFETCH(quint64, bits);
    QFETCH(QByteArray, bytes);
    const double value = std::bit_cast<double>(bits);

    const Moment moment = Moment::fromSeconds(value);
    const QByteArray date = recordOf(assemble(dateHead) + bytes + assemble("86"));
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) { writer.writeMoment(moment); }), date);
    ArchivedObject kept;
    QVERIFY(readRecord(date, [&](ArchiveReader& reader) { return reader.readMoment(kept); }) == moment);
    QVERIFY(kept.isNil());

    const NumberArray numbers = NumberArray::ofDoubles(std::array{value});
    const QByteArray number = recordOf(firstNumber("01", 'd') + bytes + assemble("86 86"));
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) { writer.writeNumbers(numbers); }), number);
    QVERIFY(readRecord(number, readNumbers) == numbers);
}

void ArchiveValuesTest::wholeRealsAreReadFromRealForm() {
    const QByteArray archive = recordOf(assemble("84 01 'f' 83 00 00 40 40"));
    QCOMPARE(readRecord(archive, [](ArchiveReader& reader) { return reader.readFloat(); }), 3.0F);
    const QByteArray wide = recordOf(firstNumber("01", 'd') + assemble("87 00 00 00 00 00 00 10 00 86 86"));
    QCOMPARE(readRecord(wide, readNumbers).at(0), 4503599627370496.0);
}

void ArchiveValuesTest::textsAreUtf8_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << u""_s << assemble("00");
    QTest::newRow("ASCII") << u"Hello, world"_s << assemble("0c 'Hello, world'");
    QTest::newRow("accents") << u"Été"_s << assemble("05 c3 89 74 c3 a9");
    QTest::newRow("beyond 16 bits") << u"\U0001F420"_s << assemble("04 f0 9f 90 a0");
    QTest::newRow("with a zero") << QString(u"a\0b"_s) << assemble("03 61 00 62");
    QTest::newRow("127") << QString(127, u'x') << assemble("7f") + QByteArray(127, 'x');
    QTest::newRow("128") << QString(128, u'x') << assemble("81 80 00") + QByteArray(128, 'x');
    QTest::newRow("32768") << QString(32768, u'x') << assemble("82 00 80 00 00") + QByteArray(32768, 'x');
}

void ArchiveValuesTest::textsAreUtf8() {
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    const QByteArray expected = recordOf(assemble(textHead) + bytes + assemble("86"));
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) { writer.writeText(text); }), expected);
    ArchivedObject kept;
    const QString back = readRecord(expected, [&](ArchiveReader& reader) { return reader.readText(kept); });
    QCOMPARE(back, text);
    QVERIFY(!back.isNull());
    QVERIFY(kept.isNil());
}

void ArchiveValuesTest::nilIsNotEmpty() {
    const QByteArray expected = recordOf(assemble("92 85 92 85 92 85 92 85"));
    QCOMPARE(writtenRecord([](ArchiveWriter& writer) {
                 writer.writeText(QString());
                 writer.writeMoment({});
                 writer.writeNumbers({});
                 writer.writeNil();
             }),
             expected);
    ArchivedObject kept;
    QVERIFY(readRecord(expected, [&](ArchiveReader& reader) {
        return reader.readText(kept).isNull() && !reader.readMoment(kept).isPresent() &&
               reader.readNumbers(kept).isAbsent() && reader.readObject().isNil();
    }));

    const QByteArray empty = recordOf(assemble("92 84 93 96 00 86"));
    QCOMPARE(writtenRecord([](ArchiveWriter& writer) { writer.writeNumbers(NumberArray::empty()); }), empty);
    const NumberArray back = readRecord(empty, readNumbers);
    QVERIFY(!back.isAbsent());
    QCOMPARE(back.size(), 0);
}

void ArchiveValuesTest::numbersKeepTheirKind_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<NumberKind>("kind");
    QTest::addColumn<double>("value");
    QTest::newRow("int") << firstNumber("01", 'i') + assemble("2a") << NumberKind::Int << 42.0;
    QTest::newRow("long long") << firstNumber("01", 'q') + assemble("ff") << NumberKind::LongLong << -1.0;
    QTest::newRow("float") << firstNumber("01", 'f') + assemble("83 00 00 60 40") << NumberKind::Float << 3.5;
    QTest::newRow("double") << firstNumber("01", 'd') + assemble("03") << NumberKind::Double << 3.0;
    QTest::newRow("yes") << firstNumber("01", 'c') + assemble("01") << NumberKind::Bool << 1.0;
    QTest::newRow("odd byte") << firstNumber("01", 'c') + assemble("86") << NumberKind::Bool << -122.0;
}

void ArchiveValuesTest::numbersKeepTheirKind() {
    QFETCH(QByteArray, bytes);
    QFETCH(NumberKind, kind);
    QFETCH(double, value);
    const QByteArray archive = recordOf(bytes + assemble("86 86"));
    const NumberArray numbers = readRecord(archive, readNumbers);
    QCOMPARE(numbers.size(), 1);
    QCOMPARE(numbers.kindAt(0), kind);
    QCOMPARE(numbers.at(0), value);
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) { writer.writeNumbers(numbers); }), archive);
}

void ArchiveValuesTest::dataIsACountAndBytes() {
    const QByteArray expected =
        recordOf(assemble("92 84 84 84 06 'NSData' 00 95 96 06 84 04 '[6c]' de ad be ef 00 7f 86"));
    const QByteArray bytes = assemble("de ad be ef 00 7f");
    QCOMPARE(writtenRecord([&](ArchiveWriter& writer) { writer.writeBytes(bytes); }), expected);
    Archive::read(expected);
}

void ArchiveValuesTest::colourGroupsAreWritten() {
    const QByteArray expected = recordOf(
        assemble("92 84 84 84 07 'NSColor' 00 95 84 01 'c' 01 84 04 'ffff' 83 00 00 00 3f 00 01 01 86"));
    QCOMPARE(writtenRecord([](ArchiveWriter& writer) {
                 writer.beginObject(archiveclass::color);
                 writer.writeByteGroup(1);
                 writer.writeFloatsGroup({0.5F, 0, 1, 1});
                 writer.endObject();
             }),
             expected);
}

namespace {

constexpr ArchiveClass demoClass{"Demo", 27, &archiveclass::object};

// One record with every kind of slot. Objects: 92 root, 93..95 its classes, 96 the record, 97 Demo, 98 an
// array, 99 its number, 9a NSNumber, 9b NSValue, 9c "d", 9d an array, 9e its number, 9f "i", a0 the date,
// a1 NSDate, a2 the text, a3 NSString.
const char* const wholeExample =
    "04 0b 'streamtyped' 81 e8 03"
    "84 01 '@' 84 84 84 0e 'NSMutableArray' 00 84 84 07 'NSArray' 00 84 84 08 'NSObject' 00 85 84 01 'i' 01"
    "92 84 84 84 04 'Demo' 1b 95"
    "92 84 93 96 01"
    "92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 95 84 01 '*' 84 84 01 'd' 9b 00 86 86"
    "92 84 93 96 01 92 84 9a 9a 84 96 96 00 86 86"
    "96 01"
    "96 81 c8 00"
    "92 84 84 84 06 'NSDate' 00 95 9b 83 00 00 00 00 00 00 e0 3f 86"
    "92 85"
    "92 84 84 84 08 'NSString' 01 95 84 01 '+' 05 c3 89 74 c3 a9 86"
    "92 a2"
    "84 01 'f' 83 00 00 90 40"
    "9f 03"
    "96 82 00 00 90 40"
    "86 86";

}  // namespace

void ArchiveValuesTest::theWholeExampleIsWritten() {
    const QString text = u"Été"_s;
    ArchiveWriter writer;
    writer.beginRootArray(1);
    writer.beginObject(demoClass);
    writer.writeNumbers(NumberArray::ofDoubles(std::array{0.0}));
    writer.writeNumbers(NumberArray::ofInts(std::array{0}));
    writer.writeInt(1);
    writer.writeInt(200);
    writer.writeMoment(Moment::fromSeconds(0.5));
    writer.writeNil();
    writer.writeText(text);
    writer.writeText(text);
    writer.writeFloat(4.5F);
    writer.writeFloat(3.0F);
    writer.writeInt(0x40900000);
    writer.endObject();
    writer.endRootArray();
    const QByteArray bytes = writer.take();
    QCOMPARE(bytes.size(), 211);
    QCOMPARE(bytes, assemble(wholeExample));
}

void ArchiveValuesTest::theWholeExampleIsRead() {
    ArchiveReader reader(assemble(wholeExample));
    ArchivedObject kept;
    QCOMPARE(reader.beginRootArray(), 1U);
    const ArchiveReader::Element element = reader.beginElement("Demo");
    QVERIFY(element.isNew);
    QCOMPARE(element.number, 0U);
    QCOMPARE(reader.elementVersion(), 27);
    QVERIFY(reader.readNumbers(kept) == NumberArray::ofDoubles(std::array{0.0}));
    QVERIFY(reader.readNumbers(kept) == NumberArray::ofInts(std::array{0}));
    QCOMPARE(reader.readInt(), 1);
    QCOMPARE(reader.readInt(), 200);
    QCOMPARE(reader.readMoment(kept).seconds(), 0.5);
    QVERIFY(reader.readText(kept).isNull());
    QCOMPARE(reader.readText(kept), u"Été"_s);
    QCOMPARE(reader.readText(kept), u"Été"_s);
    QCOMPARE(reader.readFloat(), 4.5F);
    QCOMPARE(reader.readFloat(), 3.0F);
    QCOMPARE(reader.readInt(), 0x40900000);
    reader.endElement();
    reader.endRootArray();
    QCOMPARE(reader.offset(), 211);
    QVERIFY(kept.isNil());
}

int runArchiveValuesTest(int argc, char** argv) {
    ArchiveValuesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveValuesTest.moc"
