#include <QTest>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// What the groups of a record begin after, for offsets counted from there.
qint64 recordStart() {
    return recordOf({}).size() - 2;
}

/// A root object of class U.
QByteArray unknownRoot(const QByteArray& groups) {
    return archiveOf(assemble("84 01 '@' 84 84 84 01 'U' 03 84 84 08 'NSObject' 00 85") + groups +
                     assemble("86"));
}
/// Header 16, group 3, head and class U 6, NSObject 12, no superclass 1.
constexpr qint64 unknownStart = 38;

/// The error of reading, or none.
template <typename Read>
std::optional<ArchiveError> errorOf(Read read) {
    try {
        read();
    } catch (const ArchiveError& error) {
        return error;
    }
    return std::nullopt;
}

enum class Slot { Int, Float, Text, Moment, Numbers, Object, End };

void readSlot(ArchiveReader& reader, Slot slot) {
    ArchivedObject kept;
    switch (slot) {
        case Slot::Int:
            reader.readInt();
            break;
        case Slot::Float:
            reader.readFloat();
            break;
        case Slot::Text:
            reader.readText(kept);
            break;
        case Slot::Moment:
            reader.readMoment(kept);
            break;
        case Slot::Numbers:
            reader.readNumbers(kept);
            break;
        case Slot::Object:
            reader.readObject();
            break;
        case Slot::End:
            break;
    }
}

/// A small archive with one of everything, and the reading of its record.
QByteArray smallArchive() {
    return recordOf(firstNumber("03", 'd') +
                    assemble("83 00 00 00 00 00 00 e0 3f 86"
                             "92 84 9a 9a 9c 9b 01 86 92 9d 86"
                             "92 84 84 84 08 'NSString' 01 95 84 01 '+' 03 c3 a9 61 86"
                             "92 84 84 84 06 'NSDate' 00 95 9b 05 86"
                             "96 81 c8 00 84 01 'f' 83 00 00 90 40"
                             "92 84 84 84 01 'U' 00 95 84 05 '{=if}' 01 02 86"
                             "92 98 92 85"));
}

void readSmallArchive(const QByteArray& bytes) {
    ArchiveReader reader(bytes);
    const quint32 count = reader.beginRootArray();
    for (quint32 i = 0; i < count; ++i) {
        if (!reader.beginElement("R").isNew) continue;
        for (const Slot slot : {Slot::Numbers, Slot::Text, Slot::Moment, Slot::Int, Slot::Float, Slot::Object,
                                Slot::Numbers, Slot::Text}) {
            readSlot(reader, slot);
        }
        reader.endElement();
    }
    reader.endRootArray();
}

}  // namespace

Q_DECLARE_METATYPE(Slot)

class ArchiveDamageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void damagedHeadsAreRefused_data();
    void damagedHeadsAreRefused();
    void damagedTreesAreRefused_data();
    void damagedTreesAreRefused();
    void wrongSlotsAreRefused_data();
    void wrongSlotsAreRefused();
    void damagedRecordsAreRefused_data();
    void damagedRecordsAreRefused();
    void cutArchivesAreRefused();
    void flippedBitsAreReadOrRefused();
};

void ArchiveDamageTest::damagedHeadsAreRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const QByteArray& bytes, qint64 offset, const QString& problem) {
        QTest::newRow(name) << bytes << offset << problem;
    };
    row("nothing", {}, 0, u"expected an archive, found the end of the file"_s);
    row("streamer version 3", assemble("03 0b 'streamtyped' 81 e8 03 84 01 '@' 85"), 0,
        u"expected streamer version 4, found version 3"_s);
    row("signature length", assemble("04 0a 'streamtype' 81 e8 03 84 01 '@' 85"), 1,
        u"expected a signature of 11 letters, found 10"_s);
    row("short signature", assemble("04 0b 'stream'"), 2,
        u"expected a signature (bytes: 11), found the end of the file after 6 bytes"_s);
    row("big endian", assemble("04 0b 'typedstream' 81 03 e8 84 01 '@' 85"), 2,
        u"expected a little-endian archive, found a big-endian one"_s);
    row("other signature", assemble("04 0b 'streamtypes' 81 e8 03 84 01 '@' 85"), 2,
        u"expected the signature \"streamtyped\", found other bytes"_s);
    row("system version", assemble("04 0b 'streamtyped' 84 01 '@' 85"), 13,
        u"expected a system version, found a new item (byte 84)"_s);
    row("header alone", archiveOf({}), 16, u"expected the root object, found the end of the file"_s);
    row("no object group", archiveOf(assemble("84 01 'i' 05")), 16,
        u"expected the root object (type \"@\"), found type \"i\""_s);
    row("two objects in the root group", archiveOf(assemble("84 02 '@@' 85 85")), 16,
        u"expected the root object (type \"@\"), found type \"@@\""_s);
    row("reference as root", archiveOf(assemble("84 01 '@' 92")), 19,
        u"expected an object, found a reference to item 0 of 0"_s);
    row("second root group", archiveOf(assemble("84 01 '@' 85 92 85")), 20,
        u"expected the end of the file, found 2 more bytes"_s);
}

void ArchiveDamageTest::damagedHeadsAreRefused() {
    QFETCH(QByteArray, bytes);
    QFETCH(qint64, offset);
    QFETCH(QString, problem);
    const auto error = errorOf([&] { Archive::read(bytes); });
    QVERIFY(error);
    QCOMPARE(error->problem(), problem);
    QCOMPARE(error->offset(), offset);
    QVERIFY(error->slot().isEmpty());
}

void ArchiveDamageTest::damagedTreesAreRefused_data() {
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<qint64>("offset");  // from the start of the groups
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* groups, qint64 offset, const QString& problem) {
        QTest::newRow(groups) << assemble(groups) << offset << problem;
    };
    // Tags that do not belong where they stand.
    row("80", 0, u"expected a type encoding, found the reserved byte 80"_s);
    row("88", 0, u"expected a type encoding, found the reserved byte 88"_s);
    row("91", 0, u"expected a type encoding, found the reserved byte 91"_s);
    row("85", 0, u"expected a type encoding, found nil (byte 85)"_s);
    row("83", 0, u"expected a type encoding, found a floating-point value (byte 83)"_s);
    row("84 01 'i' 83 00 00 00 00", 3, u"expected an integer, found a floating-point value (byte 83)"_s);
    row("84 01 'i' 84", 3, u"expected an integer, found a new item (byte 84)"_s);
    row("84 01 'i' 85", 3, u"expected an integer, found nil (byte 85)"_s);
    row("84 01 'I' 86", 3, u"expected an integer, found the end of an object (byte 86)"_s);
    row("84 01 'f' 84", 3, u"expected a number, found a new item (byte 84)"_s);
    row("84 01 '+' 84", 3, u"expected a text, found a new item (byte 84)"_s);
    row("92 86", 1, u"expected an object, found the end of an object (byte 86)"_s);
    row("92 83", 1, u"expected an object, found a floating-point value (byte 83)"_s);
    row("84 01 '*' 86", 3, u"expected a C string, found the end of an object (byte 86)"_s);
    row("84 01 '#' 86", 3, u"expected a class, found the end of an object (byte 86)"_s);
    row("84 01 ':' 86", 3, u"expected a selector, found the end of an object (byte 86)"_s);

    // References out of range, or to something of another kind.
    row("95", 0, u"expected a type encoding, found a reference to string 3 of 3"_s);
    row("81 00 ff", 0, u"expected a type encoding, found the reference number -256"_s);
    row("82 00 00 00 80", 0, u"expected a type encoding, found the reference number -2147483648"_s);
    row("87 ff ff ff ff ff ff ff 7f", 0,
        u"expected a type encoding, found the reference number 9223372036854775807"_s);
    row("92 95", 1, u"expected an object, found a reference to item 3 of 3"_s);
    row("92 82 ff ff ff 7f", 1, u"expected an object, found a reference to item 2147483757 of 3"_s);
    row("92 93", 1, u"expected an object, found a reference to item 1, which is none"_s);
    row("92 92", 1, u"expected a finished object, found a reference to item 0, which contains it"_s);
    row("84 01 '#' 92", 3, u"expected a class, found a reference to item 0, which is none"_s);
    row("84 01 '#' 99", 3, u"expected a class, found a reference to item 7, which is none"_s);
    row("84 01 '*' 93", 3, u"expected a C string, found a reference to item 1, which is none"_s);
    row("84 01 '*' 99", 3, u"expected a C string, found a reference to item 7, which is none"_s);
    row("93 05", 0,
        u"expected a type encoding, found \"U\", and it has an unknown letter or unbalanced brackets"_s);

    // Type encodings.
    row("84 00", 0, u"expected a type encoding, found \"\", and it is empty"_s);
    for (const char* type : {"!", "x", "^i", "b3", "(ii)", "]", "}", "[3c", "[3", "{=i", "i]"}) {
        const QByteArray spelled = "84 0" + QByteArray::number(qstrlen(type)) + " '" + type + "'";
        const QByteArray why = qstrcmp(type, "[3c") == 0 ? "its brackets are unbalanced"
                                                         : "it has an unknown letter or unbalanced brackets";
        row(spelled.constData(), 0,
            u"expected a type encoding, found \"%1\", and %2"_s.arg(QString::fromLatin1(type),
                                                                    QString::fromLatin1(why)));
    }
    row("84 03 '[c]'", 0, u"expected a type encoding, found \"[c]\", and an array has no length"_s);
    row("84 03 '{i}'", 0, u"expected a type encoding, found \"{i}\", and a struct has no fields"_s);
    row("84 04 '{x=}'", 0, u"expected a type encoding, found \"{x=}\", and a struct has no fields"_s);
    row("84 07 '[5[0c]]'", 0,
        u"expected a type encoding, found \"[5[0c]]\", and the elements of an array hold nothing"_s);
    row("84 17 '[99999999999999999999c]'", 0,
        u"expected a type encoding, found \"[99999999999999999999c]\", and an array length overflows"_s);
    row("84 15 '[9999999[9999999c]]i]'", 0,
        u"expected a type encoding, found \"[9999999[9999999c]]i]\", and an array length overflows"_s);

    // Lengths and counts that the file cannot hold.
    row("84 0a 'i'", 2, u"expected a type encoding (bytes: 10), found the end of the file after 2 bytes"_s);
    row("84 01 '+' 7f 'abc'", 4, u"expected a text (bytes: 127), found the end of the file after 4 bytes"_s);
    row("84 01 '+' 87 ff ff ff ff ff ff ff ff", 12,
        u"expected a text (bytes: 18446744073709551615), found the end of the file after 1 bytes"_s);
    row("84 07 '[9999c]' 'abc'", 9,
        u"expected a byte array (bytes: 9999), found the end of the file after 4 bytes"_s);
    row("84 07 '[9999i]' 01 02", 9, u"expected an array of 9999 elements, found 3 bytes left"_s);

    // Values out of range.
    row("84 01 's' 82 00 80 00 00", 3, u"expected an integer that fits type \"s\", found 32768"_s);
    row("84 01 'S' 82 00 00 01 00", 3, u"expected an integer that fits type \"S\", found 65536"_s);
    row("84 01 'i' 87 00 00 00 80 00 00 00 00", 3,
        u"expected an integer that fits type \"i\", found 2147483648"_s);
    row("84 01 'I' 87 00 00 00 00 01 00 00 00", 3,
        u"expected an integer that fits type \"I\", found 4294967296"_s);
    row("84 01 '*' 84 84 03 'a' 00 'b'", 3, u"expected a C string, found a text with a zero byte in it"_s);
    row("84 01 '*' 84 85", 4, u"expected the text of a C string, found nil (byte 85)"_s);

    // Classes.
    row("92 84 85 86", 2, u"expected the class of an object, found nil"_s);
    row("92 84 84 84 00 00 94 86", 3, u"expected a class name, found an empty one"_s);
    row("92 84 84 85 00 94 86", 3, u"expected a class name, found nil (byte 85)"_s);
    row("92 84 84 84 01 'V' 87 00 00 00 80 00 00 00 00 94 86", 6,
        u"expected a class version of 32 bits, found 2147483648"_s);
    row("92 84 84 84 01 'V' 85 94 86", 6, u"expected a class version, found nil (byte 85)"_s);
    row("92 84 84 84 08 'NSString' 00 94 84 01 '+' 01 'a' 86", 13,
        u"expected version 1 of class NSString, found 0"_s);

    // Texts and collections.
    row("92 84 84 84 08 'NSString' 01 94 84 01 '+' 02 c3 28 86", 18,
        u"expected a text in UTF-8, found other bytes"_s);
    row("92 84 84 84 08 'NSString' 01 94 84 01 '+' 85 86", 18, u"expected a text, found nil (byte 85)"_s);
    row("92 84 84 84 08 'NSString' 01 94 84 01 'i' 05 86", 15,
        u"expected a text (type \"+\"), found type \"i\""_s);
    row("92 84 84 84 08 'NSString' 01 94 86", 15, u"expected a text, found the end of an object (byte 86)"_s);
    row("92 84 84 84 08 'NSString' 01 94 84 01 '+' 01 'a' 84 01 'i' 05 86", 20,
        u"expected the end of an object, found a new item (byte 84)"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'i' ff 86", 17,
        u"expected a count that the remaining bytes (2) can hold, found -1"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'i' 02 92 84 93 86 86", 22,
        u"expected an element of a collection, found the end of an object (byte 86)"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'i' 01 92 84 93 86 92 84 93 86 86", 22,
        u"expected the end of an object, found the byte 92"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'i' 03 92 85", 17,
        u"expected a count that the remaining bytes (3) can hold, found 3"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'i' 01 92 85 86", 19,
        u"expected an element of a collection, found nil (byte 85)"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'i' 01 92 95 86", 19,
        u"expected a finished object, found a reference to item 3, which contains it"_s);
    row("92 84 84 84 07 'NSArray' 00 94 84 01 'I' 00 86", 14,
        u"expected the count of a collection (type \"i\"), found type \"I\""_s);
    row("92 84 84 84 05 'NSSet' 00 94 84 01 'I' 01 92 85 86", 17,
        u"expected an element of a collection, found nil (byte 85)"_s);
    row("92 84 84 84 0c 'NSDictionary' 00 94 84 01 'i' 01 92 84 93 86 86", 27,
        u"expected an element of a collection, found the end of an object (byte 86)"_s);
    row("92 84 84 84 0c 'NSDictionary' 00 94 84 01 'i' 02 92 85 92 85", 22,
        u"expected a count that the remaining bytes (5) can hold, found 2"_s);
}

void ArchiveDamageTest::damagedTreesAreRefused() {
    QFETCH(QByteArray, groups);
    QFETCH(qint64, offset);
    QFETCH(QString, problem);
    const auto error = errorOf([&] { Archive::read(unknownRoot(groups)); });
    QVERIFY(error);
    QCOMPARE(error->problem(), problem);
    QCOMPARE(error->offset(), unknownStart + offset);
}

void ArchiveDamageTest::wrongSlotsAreRefused_data() {
    QTest::addColumn<Slot>("slot");
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<QString>("problem");
    const auto row = [](Slot slot, const char* groups, qint64 offset, const QString& problem) {
        QTest::addRow("%d %s", int(slot), groups) << slot << assemble(groups) << offset << problem;
    };
    row(Slot::Int, "92 85", 0, u"expected an integer (type \"i\"), found type \"@\""_s);
    row(Slot::Int, "84 01 'q' 05", 0, u"expected an integer (type \"i\"), found type \"q\""_s);
    row(Slot::Int, "84 02 'ii' 05 05", 0, u"expected an integer (type \"i\"), found type \"ii\""_s);
    row(Slot::Int, "96 83 00 00 00 00", 1, u"expected an integer, found a floating-point value (byte 83)"_s);
    row(Slot::Int, "96 87 00 00 00 80 00 00 00 00", 1, u"expected an integer of 32 bits, found 2147483648"_s);
    row(Slot::Int, "", 0, u"expected an integer, found the end of an object (byte 86)"_s);
    row(Slot::Float, "96 05", 0, u"expected a number (type \"f\"), found type \"i\""_s);
    row(Slot::Float, "84 01 'f' 84", 3, u"expected a number, found a new item (byte 84)"_s);
    row(Slot::Text, "96 05", 0, u"expected an object (type \"@\"), found type \"i\""_s);
    row(Slot::Text, "92 84 84 84 06 'NSDate' 00 95 84 01 'd' 05 86", 1,
        u"expected a text, found an object of class NSDate"_s);
    row(Slot::Text, "92 84 93 96 00 86", 1, u"expected a text, found an object of class NSMutableArray"_s);
    row(Slot::Text, "92 84 95 86", 1, u"expected a text, found an object of class NSObject"_s);
    row(Slot::Text, "92 96", 1,
        u"expected a finished object, found a reference to item 4, which contains it"_s);
    row(Slot::Moment, "92 84 84 84 08 'NSString' 01 95 84 01 '+' 01 'a' 86", 1,
        u"expected a date, found an object of class NSString"_s);
    row(Slot::Moment, "92 84 84 84 06 'NSDate' 00 95 84 01 'f' 05 86", 13,
        u"expected a date (type \"d\"), found type \"f\""_s);
    row(Slot::Moment, "92 84 84 84 06 'NSDate' 00 95 86", 13,
        u"expected a date, found the end of an object (byte 86)"_s);
    row(Slot::Numbers, "92 84 84 84 06 'NSDate' 00 95 84 01 'd' 05 86", 1,
        u"expected an array of numbers, found an object of class NSDate"_s);
    row(Slot::Numbers, "92 84 93 96 01 92 85 86", 6, u"expected a number, found nil"_s);
    row(Slot::Numbers, "92 84 93 96 01 96 05 86", 5, u"expected a number (type \"@\"), found type \"i\""_s);
    row(Slot::Numbers, "92 84 93 96 01 92 84 84 84 08 'NSString' 01 95 84 01 '+' 01 'a' 86 86", 6,
        u"expected a number, found an object of class NSString"_s);
    row(Slot::Numbers, "92 84 93 96 01 92 84 93 96 00 86 86", 6,
        u"expected a number, found an object of class NSMutableArray"_s);
    row(Slot::Numbers, "92 84 93 96 01 92 98 86", 6,
        u"expected a finished object, found a reference to item 6, which contains it"_s);
    row(Slot::Numbers, "92 84 93 96 04 92 85 86", 4,
        u"expected a count that the remaining bytes (5) can hold, found 4"_s);
    row(Slot::Numbers, "92 84 93 84 01 'I' 00 86", 3,
        u"expected the count of an array (type \"i\"), found type \"I\""_s);
    row(Slot::Numbers, "92 84 93 96 00 96 05 86", 5, u"expected the end of an object, found the byte 96"_s);
    row(Slot::End, "96 05", 0, u"expected the end of an object, found the byte 96"_s);
}

void ArchiveDamageTest::wrongSlotsAreRefused() {
    QFETCH(Slot, slot);
    QFETCH(QByteArray, groups);
    QFETCH(qint64, offset);
    QFETCH(QString, problem);
    ArchiveReader reader(recordOf(groups));
    reader.beginRootArray();
    reader.beginElement("R");
    reader.atSlot("here");
    const auto error = errorOf([&] {
        readSlot(reader, slot);
        reader.endElement();
    });
    QVERIFY(error);
    QCOMPARE(error->problem(), problem);
    QCOMPARE(error->offset(), recordStart() + offset);
    QVERIFY(error->slot().startsWith(u"R 0"_s));
}

void ArchiveDamageTest::damagedRecordsAreRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<QString>("problem");
    const QByteArray root =
        archiveOf(assemble("84 01 '@' 84 84 84 0c 'NSDictionary' 00 84 84 08 'NSObject' 00 85"
                           "84 01 'i' 00 86"));
    QTest::newRow("a dictionary as root")
        << root << qint64(19) << u"expected an array, found an object of class NSDictionary"_s;
    QTest::newRow("nil as root") << archiveOf(assemble("84 01 '@' 85")) << qint64(19)
                                 << u"expected an array, found nil or a reference"_s;
    QTest::newRow("more bytes") << recordOf({}) + assemble("92 85") << recordOf({}).size()
                                << u"expected the end of the file, found 2 more bytes"_s;
    QTest::newRow("more elements") << rootArray("01", assemble("92 84 84 84 01 'R' 01 95 86 92 84 97 86"))
                                   << recordOf({}).size() - 1
                                   << u"expected the end of an object, found the byte 92"_s;
    QTest::newRow("fewer elements")
        << rootArray("02", assemble("92 84 84 84 01 'R' 01 95 86")) << recordOf({}).size() - 1
        << u"expected an element of the root array, found the end of an object (byte 86)"_s;
    QTest::newRow("a count past the file")
        << rootArray("7f", assemble("92 84 84 84 01 'R' 01 95 86")) << qint64(65)
        << u"expected a count that the remaining bytes (10) can hold, found 127"_s;
}

void ArchiveDamageTest::damagedRecordsAreRefused() {
    QFETCH(QByteArray, bytes);
    QFETCH(qint64, offset);
    QFETCH(QString, problem);
    const auto error = errorOf([&] {
        ArchiveReader reader(bytes);
        const quint32 count = reader.beginRootArray();
        for (quint32 i = 0; i < count; ++i) {
            reader.beginElement("R");
            reader.endElement();
        }
        reader.endRootArray();
    });
    QVERIFY(error);
    QCOMPARE(error->problem(), problem);
    QCOMPARE(error->offset(), offset);
}

void ArchiveDamageTest::cutArchivesAreRefused() {
    const QByteArray bytes = smallArchive();
    readSmallArchive(bytes);
    Archive::read(bytes);
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        const QByteArray cut = bytes.first(size);
        const auto recordError = errorOf([&] { readSmallArchive(cut); });
        const auto treeError = errorOf([&] { Archive::read(cut); });
        QVERIFY2(recordError && treeError, qPrintable(QString::number(size)));
        QVERIFY(recordError->offset() <= size && treeError->offset() <= size);
    }
}

void ArchiveDamageTest::flippedBitsAreReadOrRefused() {
    const QByteArray bytes = smallArchive();
    int refused = 0;
    for (qsizetype bit = 0; bit < bytes.size() * 8; ++bit) {
        QByteArray flipped = bytes;
        flipped[bit / 8] = char(flipped[bit / 8] ^ 1 << bit % 8);
        const bool recordRefused = errorOf([&] { readSmallArchive(flipped); }).has_value();
        const bool treeRefused = errorOf([&] {
                                     const auto archive = Archive::read(flipped);
                                     Archive::read(ArchiveWriter::rewrite(*archive));
                                 }).has_value();
        refused += recordRefused || treeRefused;
    }
    // Most bits matter: types, tags, references, names. What may change freely are values and versions.
    QVERIFY(refused > bytes.size() * 8 / 2);
    QVERIFY(refused < bytes.size() * 8);
}

int runArchiveDamageTest(int argc, char** argv) {
    ArchiveDamageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveDamageTest.moc"
