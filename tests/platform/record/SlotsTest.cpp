#include <QTest>

#include "platform/archive/ArchiveReader.h"
#include "platform/record/RecordTests.h"
#include "support/Failure.h"
#include "support/Sample.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

RecordPointer<Sample> fullSample() {
    Sample sample;
    sample.setWhole(-70000);
    sample.setCopy(12);
    sample.setReal(1.5F);
    sample.setOld(7.75F);
    sample.setBitwise(4.5F);
    sample.setText(u"Ça va"_s);
    sample.setDate(Moment::fromSeconds(0.5));
    sample.setDepths(NumberArray::ofDoubles(std::to_array({0.0, 12.3})));
    sample.setFlags(NumberArray::ofInts(std::to_array<qint32>({1, 0})));
    sample.setPicture({QByteArray("\x89PNG\r\n", 6)});
    sample.setMemo(5);
    return std::make_shared<const Sample>(sample);
}

Sample readAs(qint32 version) {
    return *readRecords(writeRecords<Sample>({fullSample()}, sampleClass(), version), sampleClass()).at(0);
}

/// The types and first values of the groups of the only record in an archive.
QStringList groupsOf(const QByteArray& bytes) {
    QStringList texts;
    const auto archive = Archive::read(bytes);
    for (const ArchivedGroup& group : archive->root().asArray().at(0).groups()) {
        QString text = QString::fromLatin1(group.type);
        if (const auto* whole = std::get_if<qint64>(&group.values.at(0).value))
            text += u' ' + QString::number(*whole);
        if (const auto* real = std::get_if<double>(&group.values.at(0).value))
            text += u' ' + QString::number(*real);
        texts << text;
    }
    return texts;
}

}  // namespace

class SlotsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCurrentVersionKeepsEveryArchivedField() {
        const Sample sample = readAs(3);
        QCOMPARE(sample.whole(), -70000);
        QCOMPARE(sample.real(), 1.5F);
        QCOMPARE(sample.old(), 7.75F);
        QCOMPARE(sample.bitwise(), 4.5F);
        QCOMPARE(sample.text(), u"Ça va"_s);
        QCOMPARE(sample.date().seconds(), 0.5);
        QCOMPARE(sample.depths(), fullSample()->depths());
        QCOMPARE(sample.flags(), fullSample()->flags());
        QCOMPARE(sample.picture().bytes, QByteArray("\x89PNG\r\n", 6));
    }

    void aFieldMayBeWrittenFromAnother() { QCOMPARE(readAs(3).copy(), -70000); }

    void whatWasAWholeNumberIsOneInOldVersions() {
        QCOMPARE(readAs(1).old(), 7.0F);
        QCOMPARE(readAs(2).old(), 7.75F);
    }

    void aFieldIsAbsentBeforeItsFirstVersion() {
        QVERIFY(readAs(1).picture().isAbsent());
        QVERIFY(!readAs(2).picture().isAbsent());
    }

    // prepare sets `real` to -1, the slot then overwrites it, and finish tells what it found.
    void theHooksRunBeforeAndAfterTheSlots() {
        QCOMPARE(readAs(3).memo(), 300);
        QCOMPARE(readAs(1).memo(), 100);
        Sample minusOne = *fullSample();
        minusOne.setReal(-1);
        const QByteArray bytes =
            writeRecords<Sample>({std::make_shared<const Sample>(minusOne)}, sampleClass());
        QCOMPARE(readRecords(bytes, sampleClass()).at(0)->memo(), 301);
    }

    void versionsFarAwayAreReadByTheSameRanges_data() {
        QTest::addColumn<int>("version");
        QTest::addColumn<bool>("hasPicture");
        QTest::newRow("negative") << -5 << false;
        QTest::newRow("least") << INT_MIN << false;
        QTest::newRow("zero") << 0 << false;
        QTest::newRow("later than this program") << 4 << true;
        QTest::newRow("greatest") << INT_MAX << true;
    }
    void versionsFarAwayAreReadByTheSameRanges() {
        QFETCH(int, version);
        QFETCH(bool, hasPicture);
        qint32 found = 1;
        const QByteArray bytes = writeRecords<Sample>({fullSample()}, sampleClass(), version);
        const auto records = readRecords(bytes, sampleClass(), &found);
        QCOMPARE(found, version);
        QCOMPARE(!records[0]->picture().isAbsent(), hasPicture);
    }

    void theArchiveHoldsTheSlotsInOrder() {
        const QByteArray bytes = writeRecords<Sample>({fullSample()}, sampleClass());
        // The bits of 4.5F are 0x40900000.
        const QStringList wanted{u"i -70000"_s, u"i -70000"_s, u"f 1.5"_s, u"f 7.75"_s, u"i 1083179008"_s,
                                 u"@"_s,        u"@"_s,        u"@"_s,     u"@"_s,      u"@"_s};
        QCOMPARE(groupsOf(bytes), wanted);
    }

    void theArchiveOfVersionOneHoldsItsSlots() {
        const QByteArray bytes = writeRecords<Sample>({fullSample()}, sampleClass(), 1);
        const QStringList wanted{u"i -70000"_s, u"i -70000"_s, u"f 1.5"_s, u"i 7"_s, u"i 1083179008"_s,
                                 u"@"_s,        u"@"_s,        u"@"_s,     u"@"_s};
        QCOMPARE(groupsOf(bytes), wanted);
    }

    void anOldWholeNumberBeyondItsRangeIsWrittenAsTheNearest_data() {
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("read");
        QTest::newRow("truncated") << -7.75F << -7.0F;
        QTest::newRow("too large") << 1e20F << 2147483648.0F;
        QTest::newRow("too small") << -1e20F << -2147483648.0F;
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0.0F;
    }
    void anOldWholeNumberBeyondItsRangeIsWrittenAsTheNearest() {
        QFETCH(float, value);
        QFETCH(float, read);
        Sample sample;
        sample.setOld(value);
        const QByteArray bytes =
            writeRecords<Sample>({std::make_shared<const Sample>(sample)}, sampleClass(), 1);
        QCOMPARE(readRecords(bytes, sampleClass()).at(0)->old(), read);
    }

    void absentAndEmptyAreNotTheSame() {
        Sample sample;
        sample.setText(u""_s);
        sample.setDepths(NumberArray::empty());
        const Records<Sample> two{std::make_shared<const Sample>(), std::make_shared<const Sample>(sample)};
        const auto again = readRecords(writeRecords(two, sampleClass()), sampleClass());
        QVERIFY(again[0]->text().isNull());
        QVERIFY(again[0]->depths().isAbsent());
        QVERIFY(!again[0]->date().isPresent());
        QVERIFY(!again[1]->text().isNull() && again[1]->text().isEmpty());
        QVERIFY(!again[1]->depths().isAbsent() && again[1]->depths().isEmpty());
    }

    void sameRecordTellsEveryDifference() {
        const Sample full = *fullSample();
        const auto same = [&](const Sample& other) {
            return sameRecord<Sample>(full, other, SampleFields::all);
        };
        QVERIFY(same(full));
        for (const Field<Sample>* field : SampleFields::all) {
            Sample other = full;
            const Sample blank;
            std::visit([&](auto at) { other.*at = blank.*at; }, field->member);
            QVERIFY2(!same(other), field->name);
        }
        Sample zero = full, minus = full;
        zero.setReal(0.0F);
        minus.setReal(-0.0F);
        QVERIFY(!sameRecord<Sample>(zero, minus, SampleFields::all));
        zero.setText(u""_s);
        minus = zero;
        minus.setText({});
        QVERIFY(!sameRecord<Sample>(zero, minus, SampleFields::all));
    }

    void readingCanBeStopped() {
        Records<Sample> many;
        for (int i = 0; i < 1000; ++i) many.append(fullSample());
        for (auto& sample : many) sample = std::make_shared<const Sample>(*sample);
        const QByteArray bytes = writeRecords(many, sampleClass());
        QList<double> shares;
        readRecords(bytes, sampleClass(), nullptr, [&](double share) {
            shares << share;
            return true;
        });
        QVERIFY(shares.size() >= 3);
        QVERIFY(std::is_sorted(shares.begin(), shares.end()));
        QVERIFY(shares.first() > 0 && shares.last() <= 1);
        QVERIFY(failureOf<ReadCancelled>(
            [&] { readRecords(bytes, sampleClass(), nullptr, [](double) { return false; }); }));
    }

    void anUnknownFieldNameIsAnError() {
        QCOMPARE(fieldIndex<Sample>(SampleFields::all, u"real"), 2);
        const auto error = failureOf<UnknownKeyError>([] { fieldIndex<Sample>(SampleFields::all, u"Real"); });
        QVERIFY(error);
        QCOMPARE(error->key(), u"Real"_s);
        QCOMPARE(error->sentence(), u"Sample has no field named \"Real\""_s);
    }

    void theFormatPageTellsWhatIsUnusual_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("plain") << 0 << QStringList{u"1"_s, u"whole"_s, u"i"_s, u"all"_s, u""_s};
        QTest::newRow("copy") << 1
                              << QStringList{u"2"_s, u"copy"_s, u"i"_s, u"all"_s, u"written from whole"_s};
        QTest::newRow("real") << 2 << QStringList{u"3"_s, u"real"_s, u"f"_s, u"all"_s, u""_s};
        QTest::newRow("whole once") << 3
                                    << QStringList{u"4"_s, u"old"_s, u"i"_s, u"up to 1"_s,
                                                   u"a whole number in these versions"_s};
        QTest::newRow("bits") << 5
                              << QStringList{u"6"_s, u"bitwise"_s, u"i"_s, u"all"_s,
                                             u"the 32 bits of the float, as an integer"_s};
        QTest::newRow("later") << 10 << QStringList{u"11"_s, u"picture"_s, u"@"_s, u"2 and later"_s, u""_s};
    }
    void theFormatPageTellsWhatIsUnusual() {
        QFETCH(int, row);
        QFETCH(QStringList, texts);
        const QList<SlotDescription> rows = describeSlots(sampleClass());
        QCOMPARE(rows.size(), 11);
        const SlotDescription& shown = rows[row];
        QCOMPARE(QStringList({QString::number(shown.number), shown.field, QString(QLatin1Char(shown.type)),
                              shown.versions, shown.remark}),
                 texts);
    }
    void theFormatPageTellsBothEndsOfARange() {
        const auto row = describeSlot(7, "a", "a", 'i', 25, 26, SlotForm::Plain);
        QCOMPARE(row.versions, u"25 to 26"_s);
    }
};

int runSlotsTest(int argc, char** argv) {
    SlotsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SlotsTest.moc"
