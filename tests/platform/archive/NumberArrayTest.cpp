#include <QTest>
#include <cmath>
#include <limits>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"
#include "platform/archive/NumberBatch.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

ArchivedObject someObject() {
    return Archive::read(archiveOf(assemble("84 01 '@' 84 84 84 08 'NSObject' 00 85 86")))->root();
}

}  // namespace

class NumberArrayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void absentIsNotEmpty();
    void numbersOfOneKindArePacked();
    void listsAreMadeAndTakenInOneGo();
    void kindsMayDiffer();
    void oddBytesAreNotBooleans();
    void valuesBecomeIntegersByTruncation_data();
    void valuesBecomeIntegersByTruncation();
    void textsAreShortAndPlain_data();
    void textsAreShortAndPlain();
    void copiesDoNotChange();
    void clearedListsAreEmpty();
    void equalMeansKindsAndBits();
    void keptObjectsStand();
};

void NumberArrayTest::absentIsNotEmpty() {
    const NumberArray absent;
    QVERIFY(absent.isAbsent());
    QVERIFY(absent.isEmpty());
    QVERIFY(!absent.commonKind());
    const NumberArray empty = NumberArray::empty();
    QVERIFY(!empty.isAbsent());
    QVERIFY(empty.isEmpty());
    QVERIFY(!empty.commonKind());
    QVERIFY(!(absent == empty));
    QVERIFY(NumberArray::ofDoubles({}) == empty);
    QVERIFY(NumberArray::ofInts({}) == empty);
}

void NumberArrayTest::numbersOfOneKindArePacked() {
    const NumberArray doubles = NumberArray::ofDoubles(std::array{1.0, -2.5, 1e300});
    QCOMPARE(doubles.commonKind(), NumberKind::Double);
    QCOMPARE(doubles.size(), 3);
    QCOMPARE(doubles.packed<double>().size(), 3U);
    QCOMPARE(doubles.packed<double>()[1], -2.5);
    QVERIFY(doubles.packed<float>().empty());
    const NumberArray ints = NumberArray::ofInts(std::array{3, -4});
    QCOMPARE(ints.packed<qint32>()[1], -4);
    NumberArray floats;
    NumberArray wide;
    NumberArray flags;
    for (int i = 0; i < 100; ++i) {
        floats.appendFloat(float(i) / 4);
        wide.appendLongLong(qint64(i) << 40);
        flags.appendBool(i % 3 == 0);
    }
    QCOMPARE(floats.packed<float>()[99], 24.75F);
    QCOMPARE(wide.packed<qint64>()[99], qint64(99) << 40);
    QCOMPARE(flags.packed<bool>()[99], true);
    QCOMPARE(flags.packed<bool>()[98], false);
    QCOMPARE(flags.at(99), 1.0);
}

void NumberArrayTest::listsAreMadeAndTakenInOneGo() {
    const NumberArray floats = arrayOfFloats(std::array{1.5F, -2.0F, 0.25F});
    QCOMPARE(floats.packed<float>().size(), 3U);
    QCOMPARE(floats.packed<float>()[2], 0.25F);
    QVERIFY(arrayOfFloats({}) == NumberArray::empty());
    NumberArray longer = floats;
    longer.appendFloat(7);
    QCOMPARE(longer.size(), 4);
    QCOMPARE(longer.at(3), 7.0);
    QCOMPARE(floats.size(), 3);

    NumberArray mixed = NumberArray::ofInts(std::array{3, -4});
    std::vector<double> values{9, 9, 9, 9};
    copyNumbers(mixed, values);
    QCOMPARE(values, (std::vector<double>{3, -4}));
    mixed.append(0.125);
    mixed.appendRawBool(-1);
    mixed.appendKept(someObject());
    copyNumbers(mixed, values);
    QCOMPARE(values.size(), 5U);
    QCOMPARE(values[2], 0.125);
    QCOMPARE(values[3], -1.0);
    QVERIFY(std::isnan(values[4]));
    copyNumbers(floats, values);
    QCOMPARE(values, (std::vector<double>{1.5, -2, 0.25}));
    copyNumbers(NumberArray::ofDoubles(std::array{1e300}), values);
    QCOMPARE(values, std::vector<double>{1e300});
    copyNumbers(NumberArray(), values);
    QVERIFY(values.empty());
}

void NumberArrayTest::kindsMayDiffer() {
    NumberArray numbers;
    numbers.appendBool(true);
    numbers.appendInt(-7);
    numbers.appendFloat(0.25F);
    numbers.append(-0.125);
    numbers.appendLongLong(std::numeric_limits<qint64>::min());
    for (int i = 0; i < 50; ++i) numbers.appendInt(i);
    QVERIFY(!numbers.commonKind());
    QVERIFY(numbers.packed<bool>().empty());
    QCOMPARE(numbers.size(), 55);
    QCOMPARE(numbers.kindAt(0), NumberKind::Bool);
    QCOMPARE(numbers.kindAt(3), NumberKind::Double);
    QCOMPARE(numbers.at(0), 1.0);
    QCOMPARE(numbers.at(1), -7.0);
    QCOMPARE(numbers.at(2), 0.25);
    QCOMPARE(numbers.at(3), -0.125);
    QCOMPARE(numbers.at(4), -9223372036854775808.0);
    QCOMPARE(numbers.at(54), 49.0);
}

void NumberArrayTest::oddBytesAreNotBooleans() {
    NumberArray flags;
    flags.appendRawBool(1);
    QCOMPARE(flags.packed<bool>().size(), 1U);
    flags.appendRawBool(-1);
    QCOMPARE(flags.commonKind(), NumberKind::Bool);
    QVERIFY(flags.packed<bool>().empty());
    QCOMPARE(flags.at(1), -1.0);
}

void NumberArrayTest::valuesBecomeIntegersByTruncation_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<qint32>("integer");
    QTest::newRow("2.9") << 2.9 << 2;
    QTest::newRow("-2.9") << -2.9 << -2;
    QTest::newRow("1e10") << 1e10 << std::numeric_limits<qint32>::max();
    QTest::newRow("-1e10") << -1e10 << std::numeric_limits<qint32>::min();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity()
                              << std::numeric_limits<qint32>::max();
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void NumberArrayTest::valuesBecomeIntegersByTruncation() {
    QFETCH(double, value);
    QFETCH(qint32, integer);
    QCOMPARE(NumberArray::ofDoubles(std::array{value}).intAt(0), integer);
}

void NumberArrayTest::textsAreShortAndPlain_data() {
    QTest::addColumn<NumberArray>("numbers");
    QTest::addColumn<QString>("text");
    const auto one = [](auto append) {
        NumberArray numbers;
        append(numbers);
        return numbers;
    };
    QTest::newRow("0") << NumberArray::ofDoubles(std::array{0.0}) << u"0"_s;
    QTest::newRow("12.25") << NumberArray::ofDoubles(std::array{12.25}) << u"12.25"_s;
    QTest::newRow("0.1") << NumberArray::ofDoubles(std::array{0.1}) << u"0.1"_s;
    QTest::newRow("1e21") << NumberArray::ofDoubles(std::array{1e21}) << u"1000000000000000000000"_s;
    QTest::newRow("1e-7") << NumberArray::ofDoubles(std::array{1e-7}) << u"0.0000001"_s;
    QTest::newRow("smallest") << NumberArray::ofDoubles(std::array{5e-324})
                              << u"0."_s + QString(323, u'0') + u"5"_s;
    QTest::newRow("float 0.1") << one([](NumberArray& n) { n.appendFloat(0.1F); }) << u"0.1"_s;
    QTest::newRow("int") << NumberArray::ofInts(std::array{-42}) << u"-42"_s;
    QTest::newRow("long long") << one([](NumberArray& n) { n.appendLongLong(9007199254740993); })
                               << u"9007199254740993"_s;
    QTest::newRow("bool") << one([](NumberArray& n) { n.appendBool(true); }) << u"1"_s;
}

void NumberArrayTest::textsAreShortAndPlain() {
    QFETCH(NumberArray, numbers);
    QFETCH(QString, text);
    QCOMPARE(numbers.textAt(0), text);
}

void NumberArrayTest::copiesDoNotChange() {
    NumberArray original = NumberArray::ofInts(std::array{1, 2});
    const NumberArray copy = original;
    original.appendInt(3);
    QCOMPARE(copy.size(), 2);
    QCOMPARE(original.size(), 3);
    NumberArray mixed = copy;
    mixed.append(0.5);
    const NumberArray mixedCopy = mixed;
    mixed.append(0.75);
    QCOMPARE(copy.commonKind(), NumberKind::Int);
    QCOMPARE(mixedCopy.size(), 3);
    QCOMPARE(mixedCopy.at(2), 0.5);
    QCOMPARE(mixed.at(3), 0.75);
    NumberArray moved = std::move(mixed);
    QCOMPARE(moved.size(), 4);
}

void NumberArrayTest::clearedListsAreEmpty() {
    NumberArray numbers = NumberArray::ofInts(std::array{1});
    numbers.clear();
    QVERIFY(!numbers.isAbsent());
    QVERIFY(numbers.isEmpty());
    numbers.append(0.5);
    QCOMPARE(numbers.commonKind(), NumberKind::Double);
    QVERIFY(NumberArray::empty().isEmpty());
}

void NumberArrayTest::equalMeansKindsAndBits() {
    NumberArray zero;
    zero.append(0.0);
    NumberArray minusZero;
    minusZero.append(-0.0);
    NumberArray intZero;
    intZero.appendInt(0);
    QVERIFY(!(zero == minusZero));
    QVERIFY(!(zero == intZero));
    NumberArray nan;
    nan.append(std::numeric_limits<double>::quiet_NaN());
    NumberArray otherNan;
    otherNan.append(std::numeric_limits<double>::quiet_NaN());
    QVERIFY(nan == otherNan);
    NumberArray mixed = zero;
    mixed.appendInt(1);
    NumberArray sameMixed = NumberArray::ofDoubles(std::array{0.0});
    sameMixed.appendInt(1);
    QVERIFY(mixed == sameMixed);
    QVERIFY(!(mixed == zero));
    NumberArray swapped = intZero;
    swapped.append(1);
    QVERIFY(!(mixed == swapped));
}

void NumberArrayTest::keptObjectsStand() {
    const ArchivedObject object = someObject();
    const ArchivedObject other = someObject();
    NumberArray numbers;
    numbers.appendKept(object);
    QCOMPARE(numbers.commonKind(), NumberKind::Kept);
    numbers.appendKept(other);
    numbers.append(2.5);
    numbers.appendKept(object);
    QCOMPARE(numbers.kindAt(0), NumberKind::Kept);
    QVERIFY(std::isnan(numbers.at(0)));
    QCOMPARE(numbers.intAt(0), 0);
    QVERIFY(numbers.keptAt(0) == object);
    QVERIFY(numbers.keptAt(1) == other);
    QVERIFY(numbers.keptAt(2).isNil());
    QVERIFY(numbers.keptAt(3) == object);
    NumberArray copy = numbers;
    copy.append(1);
    QVERIFY(copy.keptAt(3) == object);
    NumberArray same;
    same.appendKept(object);
    QVERIFY(!(same == numbers));
    same.appendKept(other);
    same.append(2.5);
    same.appendKept(object);
    QVERIFY(same == numbers);
}

int runNumberArrayTest(int argc, char** argv) {
    NumberArrayTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "NumberArrayTest.moc"
