#include <QTest>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// An archive whose root is an object of class U, version 3, with these groups.
/// Strings so far: 92 "@", 93 "U", 94 "NSObject". Objects: 92 the root, 93 U, 94 NSObject.
QByteArray unknownRoot(const QByteArray& groups) {
    return archiveOf(assemble("84 01 '@' 84 84 84 01 'U' 03 84 84 08 'NSObject' 00 85") + groups +
                     assemble("86"));
}

/// Values spelled for comparison: nil, numbers, "text", <class>, (objects by class), {lists}.
QString spell(const ArchivedValue& value);

QString spell(const QList<ArchivedValue>& values) {
    QStringList spelled;
    for (const ArchivedValue& value : values) spelled += spell(value);
    return spelled.join(u' ');
}

struct Speller {
    QString operator()(std::monostate) const { return u"nil"_s; }
    QString operator()(qint64 value) const { return QString::number(value); }
    QString operator()(double value) const { return u"%1."_s.arg(value); }
    QString operator()(const QByteArray& bytes) const { return u"\"%1\""_s.arg(QString::fromLatin1(bytes)); }
    QString operator()(const std::shared_ptr<const ArchivedObject>& object) const {
        return u"(%1)"_s.arg(object->className());
    }
    QString operator()(const ArchivedClass& cls) const { return u"<%1 %2>"_s.arg(cls.name).arg(cls.version); }
    QString operator()(const QList<ArchivedValue>& values) const { return u"{%1}"_s.arg(spell(values)); }
};

QString spell(const ArchivedValue& value) {
    return std::visit(Speller(), value.value);
}

ArchivedObject objectIn(const ArchivedObject& object, qsizetype group, qsizetype value = 0) {
    return *std::get<std::shared_ptr<const ArchivedObject>>(object.groups()[group].values[value].value);
}

}  // namespace

class ArchiveTreeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void groupsShowTheirValues_data();
    void groupsShowTheirValues();
    void classesShowTheWholeChain();
    void textsAndArraysAreViewed();
    void nilHasNothing();
    void aNilRootIsAnArchive();
    void viewsKeepTheArchive();
    void viewsOfOneInstanceAreEqual();
    void picturesAreFoundInside_data();
    void picturesAreFoundInside();
    void integersAreRewrittenInTheNarrowestForm();
    void stringsPastTheOneByteReferencesAreFound();
    void numbersBehindWideTypeReferencesAreFound();
    void keptObjectsAreWrittenOnce();
    void keptObjectsBringWhatTheyReferTo();
    void keptObjectsOfTwoArchivesStandApart();
    void classesWithOtherVersionsStandApart();
};

void ArchiveTreeTest::groupsShowTheirValues_data() {
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("values");
    const auto row = [](const char* groups, const char* type, const QString& values) {
        QTest::newRow(groups) << assemble(groups) << QByteArray(type) << values;
    };
    row("84 01 'c' 92", "c", u"-110"_s);
    row("84 01 'C' 92", "C", u"146"_s);
    row("84 01 'B' 01", "B", u"1"_s);
    row("84 01 's' 81 00 80", "s", u"-32768"_s);
    row("84 01 'S' 82 ff ff 00 00", "S", u"65535"_s);
    row("84 01 'i' ff", "i", u"-1"_s);
    row("84 01 'I' 81 91 00", "I", u"145"_s);
    row("84 01 'I' 82 ff ff ff ff", "I", u"4294967295"_s);
    row("84 01 'l' 05", "l", u"5"_s);
    row("84 01 'L' 05", "L", u"5"_s);
    row("84 01 'q' 87 00 e6 8e e7 fd ff ff ff", "q", u"-9000000000"_s);
    row("84 01 'Q' 87 00 00 00 00 01 00 00 00", "Q", u"4294967296"_s);
    row("84 01 'f' 83 00 00 60 40", "f", u"3.5."_s);
    row("84 01 'd' 83 00 00 00 00 00 20 59 40", "d", u"100.5."_s);
    row("84 01 'd' 05", "d", u"5."_s);
    row("92 85", "@", u"nil"_s);
    row("92 84 93 86", "@", u"(U)"_s);
    row("92 84 94 86", "@", u"(NSObject)"_s);
    row("84 01 '#' 93", "#", u"<U 3>"_s);
    row("84 01 '#' 85", "#", u"nil"_s);
    row("84 01 '#' 84 84 01 'V' 05 93", "#", u"<V 5>"_s);
    row("84 01 '*' 84 84 02 'ab'", "*", u"\"ab\""_s);
    row("84 01 '*' 84 94", "*", u"\"NSObject\""_s);
    row("84 01 '*' 85", "*", u"nil"_s);
    row("84 01 '+' 03 'a' 00 'b'", "+", QString(u"\"a\0b\""_s));
    row("84 01 '+' 85", "+", u"nil"_s);
    row("84 01 ':' 84 03 'go:'", ":", u"\"go:\""_s);
    row("84 01 ':' 93", ":", u"\"U\""_s);
    row("84 01 ':' 85", ":", u"nil"_s);
    row("84 01 '%' 84 02 'at'", "%", u"\"at\""_s);
    row("84 02 'iI' 01 0c", "iI", u"1 12"_s);
    row("84 04 'ffff' 00 01 83 00 00 00 3f 01", "ffff", u"0. 1. 0.5. 1."_s);
    row("84 04 '[6c]' 'abcdef'", "[6c]", u"\"abcdef\""_s);
    row("84 04 '[0c]'", "[0c]", u"\"\""_s);
    row("84 04 '[3i]' 01 02 03", "[3i]", u"{1 2 3}"_s);
    row("84 0b '{CGSize=dd}' 81 ac 06 81 c0 03", "{CGSize=dd}", u"{1708. 960.}"_s);
    row("84 0e '[2{?=i[2s]@}]i' 01 02 03 85 04 05 06 84 93 86 07", "[2{?=i[2s]@}]i",
        u"{{1 {2 3} nil} {4 {5 6} (U)}} 7"_s);
    row("84 05 '{=ii}' 01 02", "{=ii}", u"{1 2}"_s);
}

void ArchiveTreeTest::groupsShowTheirValues() {
    QFETCH(QByteArray, groups);
    QFETCH(QByteArray, type);
    QFETCH(QString, values);
    const QByteArray bytes = unknownRoot(groups);
    const auto archive = Archive::read(bytes);
    const QList<ArchivedGroup> found = archive->root().groups();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0].type, type);
    QCOMPARE(spell(found[0].values), values);
    QCOMPARE(ArchiveWriter::rewrite(*archive), bytes);
}

void ArchiveTreeTest::classesShowTheWholeChain() {
    const auto archive =
        Archive::read(unknownRoot(assemble("92 84 84 84 01 'V' 82 ff ff ff 7f 84 84 01 'W' 81 80 ff 93 86")));
    const ArchivedObject inner = objectIn(archive->root(), 0);
    const QList<ArchivedClass> chain = inner.classes();
    QCOMPARE(chain.size(), 4);
    QVERIFY(chain[0] == (ArchivedClass{u"V"_s, 2147483647}));
    QVERIFY(chain[1] == (ArchivedClass{u"W"_s, -128}));
    QVERIFY(chain[2] == (ArchivedClass{u"U"_s, 3}));
    QVERIFY(chain[3] == (ArchivedClass{u"NSObject"_s, 0}));
    QCOMPARE(inner.className(), u"V"_s);
    QVERIFY(inner.isKindOf("V") && inner.isKindOf("U") && inner.isKindOf("NSObject"));
    QVERIFY(!inner.isKindOf("X") && !archive->root().isKindOf("V"));
}

void ArchiveTreeTest::textsAndArraysAreViewed() {
    const auto archive = Archive::read(
        rootArray("03", assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 05 c3 89 74 c3 a9 86 92 96"
                                 "92 84 93 96 01 92 96 86")));
    const QList<ArchivedObject> elements = archive->root().asArray();
    QCOMPARE(elements.size(), 3);
    QCOMPARE(elements[0].asText(), u"Été"_s);
    QVERIFY(elements[1] == elements[0]);
    QCOMPARE(elements[2].asArray().size(), 1);
    QVERIFY(elements[2].asArray()[0] == elements[0]);
    QVERIFY(elements[0].asArray().isEmpty());
    QVERIFY(elements[2].asText().isNull());
}

void ArchiveTreeTest::nilHasNothing() {
    const ArchivedObject nil;
    QVERIFY(nil.isNil());
    QVERIFY(nil.classes().isEmpty());
    QVERIFY(nil.className().isEmpty());
    QVERIFY(!nil.isKindOf("NSObject"));
    QVERIFY(nil.groups().isEmpty());
    QVERIFY(nil.asText().isNull());
    QVERIFY(nil.asArray().isEmpty());
    QVERIFY(nil.pictureBytes().isNull());
}

void ArchiveTreeTest::aNilRootIsAnArchive() {
    const QByteArray bytes = archiveOf(assemble("84 01 '@' 85"));
    const auto archive = Archive::read(bytes);
    QVERIFY(archive->root().isNil());
    QCOMPARE(ArchiveWriter::rewrite(*archive), bytes);
}

void ArchiveTreeTest::viewsKeepTheArchive() {
    ArchivedObject view;
    {
        const auto archive = Archive::read(unknownRoot(assemble("84 01 'i' 07")));
        view = archive->root();
    }
    QCOMPARE(spell(view.groups()[0].values), u"7"_s);
}

void ArchiveTreeTest::viewsOfOneInstanceAreEqual() {
    const auto archive = Archive::read(unknownRoot(assemble("92 84 93 86 92 95 92 84 93 86")));
    const ArchivedObject first = objectIn(archive->root(), 0);
    QVERIFY(first == objectIn(archive->root(), 1));
    QVERIFY(!(first == objectIn(archive->root(), 2)));
    QVERIFY(!(first == Archive::read(archive->bytes())->objectAt(first.index())));
    QVERIFY(archive->objectAt(1).isNil());
    QVERIFY(archive->objectAt(1000).isNil());
}

void ArchiveTreeTest::picturesAreFoundInside_data() {
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<QByteArray>("picture");
    const auto row = [](const char* name, const char* groups, const char* picture) {
        QTest::newRow(name) << assemble(groups) << assemble(picture);
    };
    row("Motorola TIFF", "84 04 '[5c]' 'MM' 00 2a 07", "'MM' 00 2a 07");
    row("Intel TIFF", "84 04 '[5c]' 'II' 2a 00 07", "'II' 2a 00 07");
    row("PNG", "84 04 '[5c]' 89 'PNG' 0d", "89 'PNG' 0d");
    row("JPEG", "84 04 '[4c]' ff d8 ff e0", "ff d8 ff e0");
    row("in a data object", "92 84 84 84 06 'NSData' 00 94 84 01 'i' 03 84 04 '[3c]' ff d8 ff 86",
        "ff d8 ff");
    row("as text", "84 01 '+' 04 ff d8 ff e0", "ff d8 ff e0");
    row("the first of two", "84 04 '[3c]' 'abc' 84 04 '[4c]' ff d8 ff e0 96 ff d8 ff e1", "ff d8 ff e0");
    row("too short", "84 04 '[3c]' 'MM' 00", "");
    row("other bytes", "84 04 '[4c]' 'GIF8'", "");
    row("none", "84 01 'i' 05", "");
}

void ArchiveTreeTest::picturesAreFoundInside() {
    QFETCH(QByteArray, groups);
    QFETCH(QByteArray, picture);
    const auto archive = Archive::read(unknownRoot(groups));
    QCOMPARE(archive->root().pictureBytes(), picture);
    QCOMPARE(archive->root().pictureBytes().isNull(), picture.isEmpty());
    // Also when the object only refers to the one that holds the picture.
    const auto around =
        Archive::read(unknownRoot(assemble("92 84 93") + groups + assemble("86 92 84 93 92 95 86")));
    QCOMPARE(objectIn(around->root(), 1).pictureBytes(), picture);
}

void ArchiveTreeTest::integersAreRewrittenInTheNarrowestForm() {
    const auto archive =
        Archive::read(unknownRoot(assemble("84 01 'i' 82 05 00 00 00 84 01 'I' ff 84 01 'f' 83 00 00 40 40"
                                           "84 01 '+' 81 01 00 'x'")));
    QCOMPARE(ArchiveWriter::rewrite(*archive),
             unknownRoot(assemble("84 01 'i' 05 84 01 'I' 81 ff 00 84 01 'f' 03 84 01 '+' 01 'x'")));
}

void ArchiveTreeTest::stringsPastTheOneByteReferencesAreFound() {
    // 300 C strings of their own text: string 3 is "*", text n is string 4 + n and object 3 + n.
    QByteArray groups;
    for (int n = 0; n < 300; ++n) {
        const QByteArray text = QByteArray::number(n);
        groups += assemble(n == 0 ? "84 01 '*'" : "95") + assemble("84 84") + char(text.size()) + text;
    }
    // String 113 is number 3, and string 303 the last text, "299"; object 302 is its C string.
    groups += assemble("95 81 c0 00");
    groups += assemble("84 01 ':' 03 95 81 c0 00");
    groups += assemble("81 c2 00 81 c1 00");
    const QByteArray bytes = unknownRoot(groups);
    const auto archive = Archive::read(bytes);
    const QList<ArchivedGroup> found = archive->root().groups();
    QCOMPARE(found.size(), 304);
    QCOMPARE(spell(found[299].values), u"\"299\""_s);
    QCOMPARE(spell(found[300].values), u"\"299\""_s);
    QCOMPARE(found[301].type, QByteArray(":"));
    QCOMPARE(spell(found[301].values), u"\"109\""_s);
    QCOMPARE(spell(found[302].values), u"\"299\""_s);
    QCOMPARE(found[303].type, QByteArray(":"));
    QCOMPARE(spell(found[303].values), u"\"299\""_s);
    QCOMPARE(ArchiveWriter::rewrite(*archive), bytes);
}

void ArchiveTreeTest::numbersBehindWideTypeReferencesAreFound() {
    // Selectors fill the string table up to 241; then "@" stands there once more as string 242, 81 84 00.
    QByteArray groups = assemble("84 01 '%' 84 01 'a'");
    for (int n = 5; n < 242; ++n) groups += assemble("95 84 01 'a'");
    groups += assemble(
        "84 01 '@' 85 81 84 00 84 84 84 07 'NSArray' 00 94 84 01 'i' 15"
        "81 84 00 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 84 01 'd' 81 8a 00 00 86");
    for (int n = 1; n <= 20; ++n) {
        groups += assemble("81 84 00 84 98 81 89 00 9a 81 8a 00") + char(n) + assemble("86");
    }
    const auto archive = Archive::read(unknownRoot(groups + assemble("86")));
    const QList<ArchivedObject> numbers = objectIn(archive->root(), 239).asArray();
    QCOMPARE(numbers.size(), 21);
    for (int n = 0; n <= 20; ++n) {
        QCOMPARE(numbers[n].className(), u"NSNumber"_s);
        QCOMPARE(spell(numbers[n].groups()[1].values), u"%1."_s.arg(n));
    }
}

namespace {

QByteArray writtenObjects(const QList<ArchivedObject>& objects) {
    ArchiveWriter writer;
    writer.beginRootArray(quint32(objects.size()));
    for (const ArchivedObject& object : objects) writer.writeObject(object);
    writer.endRootArray();
    return writer.take();
}

}  // namespace

void ArchiveTreeTest::keptObjectsAreWrittenOnce() {
    const auto archive = Archive::read(unknownRoot(assemble("84 01 'i' 07 92 84 93 95 05 86")));
    const ArchivedObject root = archive->root();
    const ArchivedObject inner = objectIn(root, 1);
    // Inner first, then the root that holds it, then both again.
    QCOMPARE(writtenObjects({inner, root, inner, root}),
             rootArray("04", assemble("92 84 84 84 01 'U' 03 95 96 05 86"
                                      "92 84 97 96 07 92 96 86"
                                      "92 96 92 98")));
    QCOMPARE(writtenObjects({root, inner}),
             rootArray("02", assemble("92 84 84 84 01 'U' 03 95 96 07 92 84 97 96 05 86 86"
                                      "92 98")));
}

void ArchiveTreeTest::keptObjectsBringWhatTheyReferTo() {
    // The third object refers to the second, which refers to the first.
    const auto archive = Archive::read(
        unknownRoot(assemble("92 84 93 84 01 'i' 05 86 92 84 93 92 95 86 92 84 93 92 96 92 95 86")));
    QCOMPARE(writtenObjects({objectIn(archive->root(), 2)}),
             rootArray("01", assemble("92 84 84 84 01 'U' 03 95 92 84 97 92 84 97 96 05 86 86 92 99 86")));
}

void ArchiveTreeTest::keptObjectsOfTwoArchivesStandApart() {
    const QByteArray bytes = unknownRoot(assemble("84 01 'i' 07"));
    const auto one = Archive::read(bytes);
    const auto two = Archive::read(bytes);
    QCOMPARE(writtenObjects({one->root(), two->root(), one->root()}),
             rootArray("03", assemble("92 84 84 84 01 'U' 03 95 96 07 86 92 84 97 96 07 86 92 96")));
}

void ArchiveTreeTest::classesWithOtherVersionsStandApart() {
    const auto one = Archive::read(unknownRoot({}));
    const auto two = Archive::read(unknownRoot({}).replace("U\x03", "U\x04"));
    const auto three = Archive::read(archiveOf(assemble("84 01 '@' 84 84 84 01 'U' 03 85 86")));
    QCOMPARE(writtenObjects({one->root(), two->root(), three->root(), one->root()}),
             rootArray("04", assemble("92 84 84 84 01 'U' 03 95 86"
                                      "92 84 84 97 04 95 86"
                                      "92 84 84 97 03 85 86"
                                      "92 96")));
}

int runArchiveTreeTest(int argc, char** argv) {
    ArchiveTreeTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveTreeTest.moc"
