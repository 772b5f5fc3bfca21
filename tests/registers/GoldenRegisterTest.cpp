#include <QTest>

#include "registers/RegisterClasses.h"
#include "registers/RegisterGoldens.h"
#include "registers/RegisterTests.h"
#include "support/RandomRecord.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The names of the fields in which two records differ, with both values.
QString differences(const QJsonObject& found, const QJsonObject& wanted) {
    QStringList told;
    QStringList names = found.keys() + wanted.keys();
    names.removeDuplicates();
    for (const QString& name : names)
        if (found.value(name) != wanted.value(name))
            told << u"%1: %2, not %3"_s.arg(name, found.value(name).toVariant().toString(),
                                            wanted.value(name).toVariant().toString());
    return told.join(u"; "_s);
}

void compareRecords(const QString& name, const QJsonArray& found, const QJsonArray& wanted) {
    QCOMPARE(found.size(), wanted.size());
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        const QString told = differences(found[row].toObject(), wanted[row].toObject());
        QVERIFY2(told.isEmpty(), qPrintable(u"%1, record %2: %3"_s.arg(name).arg(row).arg(told)));
    }
}

template <class R>
void compareArchived(const RecordClass<R>& cls, const R& read, const R& written) {
    for (const Slot<R>& slot : cls.slots) {
        if (!slot.isIn(cls.version)) continue;
        const bool same = std::visit(
            [&](auto target) {
                return sameValue(read.*target, written.*std::get<decltype(target)>(slot.writtenFrom->member));
            },
            slot.field->member);
        QVERIFY2(same, slot.field->name);
    }
}

}  // namespace

/// The nine record classes against archives that a script has made.
class GoldenRegisterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyVersionThatReadsDifferentlyIsThere() {
        QMap<QString, QList<int>> versions;
        forEachRegister([&](const auto& reg) {
            QList<int>& list = versions[QString::fromLatin1(reg.stem)];
            for (const auto& golden : registerGoldens(QString::fromLatin1(reg.stem)))
                if (!list.contains(golden.version)) list << golden.version;
            std::sort(list.begin(), list.end());
        });
        const QMap<QString, QList<int>> wanted{
            {u"epaves"_s, {1, 2, 3, 4, 5, 6}}, {u"materiel"_s, {1, 2, 3, 4, 5}}, {u"compresseur"_s, {1}},
            {u"rebreather"_s, {1, 2, 3, 4}},   {u"consommables"_s, {1, 2, 3}},   {u"budget"_s, {1}},
            {u"entreprises"_s, {1, 2, 3}},     {u"structures"_s, {0}},           {u"documents"_s, {1}}};
        QCOMPARE(versions, wanted);
    }

    void writesTheCurrentVersion() {
        forEachRegister([](const auto& reg) { QCOMPARE(reg.cls.version, reg.version); });
    }

    void readsAsItsExpectation() {
        forEachRegister([](const auto& reg) {
            for (const auto& golden : registerGoldens(QString::fromLatin1(reg.stem))) {
                qint32 version = -1;
                const auto records = readRecords(golden.bytes, reg.cls, &version);
                QCOMPARE(version, golden.version);
                compareRecords(golden.name, jsonOf(records, reg.cls), golden.records);
            }
        });
    }

    void savesByteForByteAsExpected() {
        forEachRegister([](const auto& reg) {
            for (const auto& golden : registerGoldens(QString::fromLatin1(reg.stem))) {
                const QByteArray written = writeRecords(readRecords(golden.bytes, reg.cls), reg.cls);
                QVERIFY2(written == golden.resaved, qPrintable(golden.name));
            }
        });
    }

    void readsBackWhatItWritesInEveryVersion() {
        forEachRegister([](const auto& reg) {
            for (const auto& golden : registerGoldens(QString::fromLatin1(reg.stem))) {
                const auto records = readRecords(golden.bytes, reg.cls);
                qint32 version = -1;
                const auto again =
                    readRecords(writeRecords(records, reg.cls, golden.version), reg.cls, &version);
                QCOMPARE(version, golden.version);
                compareRecords(golden.name, jsonOf(again, reg.cls), afterSaving(golden.records));
            }
        });
    }

    void aRecordThatStandsTwiceIsOneRecord() {
        forEachRegister([](const auto& reg) {
            const QString file = u"%1-v%2-edges.%1"_s.arg(QLatin1String(reg.stem)).arg(reg.version);
            const auto records = readRecords(golden::bytes(file), reg.cls);
            QCOMPARE(records.last(), records[1]);
            QVERIFY(records[2] != records[1]);
        });
    }

    void anyRecordComesBack() {
        QRandomGenerator random(7);
        forEachRegister([&](const auto& reg) {
            using R = std::remove_cvref_t<decltype(*readRecords(QByteArray(), reg.cls).first())>;
            Records<R> records;
            for (int i = 0; i < 200; ++i)
                records.append(std::make_shared<const R>(randomrecord::make(reg.cls, random)));
            const auto again = readRecords(writeRecords(records, reg.cls), reg.cls);
            QCOMPARE(again.size(), records.size());
            for (int i = 0; i < 200; ++i) compareArchived(reg.cls, *again[i], *records[i]);
        });
    }

    void anyRecordComesBackThroughJson() {
        QRandomGenerator random(8);
        forEachRegister([&](const auto& reg) {
            for (int i = 0; i < 100; ++i) {
                const auto record = randomrecord::make(reg.cls, random);
                const QJsonObject json = recordToJson(record, reg.cls.fields);
                QCOMPARE(json.size(), qsizetype(reg.cls.fields.size()));
                const auto again = recordFromJson(json, u"r"_s, reg.cls);
                QCOMPARE(recordToJson(again, reg.cls.fields), json);
            }
        });
    }

    // The rules that the old versions are known for, by hand.

    void theThirdBearingIsTheFirstAfterSaving() {
        Epaves wreck;
        wreck.setRelevement1(u"church over mole"_s);
        wreck.setRelevement2(u"tower over rock"_s);
        wreck.setRelevement3(u"never kept"_s);
        const Records<Epaves> list{std::make_shared<const Epaves>(wreck)};
        const auto again = readRecords(writeRecords(list, epavesClass()), epavesClass());
        QCOMPARE(again[0]->relevement1(), u"church over mole"_s);
        QCOMPARE(again[0]->relevement2(), u"tower over rock"_s);
        QCOMPARE(again[0]->relevement3(), u"church over mole"_s);
    }

    void aDateTextBecomesADate_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("iso");
        QTest::newRow("short") << u"5/3/2010"_s << u"2010-03-05T00:00:00"_s;
        QTest::newRow("with zeros") << u"05/03/2010"_s << u"2010-03-05T00:00:00"_s;
        QTest::newRow("summer") << u"14/7/1999"_s << u"1999-07-14T00:00:00"_s;
        QTest::newRow("no such day") << u"31/2/2011"_s << QString();
        QTest::newRow("words") << u"vers 1998"_s << QString();
        QTest::newRow("nothing") << u""_s << QString();
        QTest::newRow("absent") << QString() << QString();
    }
    void aDateTextBecomesADate() {
        QFETCH(QString, text);
        QFETCH(QString, iso);
        Materiel item;
        item.setDateAchatMatos(text);
        const Records<Materiel> list{std::make_shared<const Materiel>(item)};
        for (const int version : {1, 2}) {
            const auto again = readRecords(writeRecords(list, materielClass(), version), materielClass());
            QCOMPARE(again[0]->dateAchat().iso(), iso);
            QCOMPARE(again[0]->dateAchatMatos(), text);
        }
        const auto again = readRecords(writeRecords(list, materielClass(), 3), materielClass());
        QVERIFY(!again[0]->dateAchat().isPresent());
    }

    void aPostalNumberBecomesItsText() {
        Entreprises firm;
        firm.setCodePostal(u"13008"_s);
        firm.setCotation(4);
        const Records<Entreprises> list{std::make_shared<const Entreprises>(firm)};
        const auto old = readRecords(writeRecords(list, entreprisesClass(), 1), entreprisesClass());
        QCOMPARE(old[0]->codePostal(), u"13008"_s);
        QCOMPARE(old[0]->cotation(), 0);
    }
};

int runGoldenRegisterTest(int argc, char** argv) {
    GoldenRegisterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GoldenRegisterTest.moc"
