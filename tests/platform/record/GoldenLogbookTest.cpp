#include <QTest>
#include <set>

#include "logbook/PlongeeArchive.h"
#include "platform/record/RecordJson.h"
#include "platform/record/RecordTests.h"
#include "support/Failure.h"
#include "support/Golden.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QJsonArray jsonOf(const Records<Plongee>& dives) {
    QJsonArray list;
    for (const auto& dive : dives) list.append(recordToJson<Plongee>(*dive, PlongeeFields::all));
    return list;
}

/// The names of the fields in which two dives differ.
QStringList differences(const QJsonObject& found, const QJsonObject& wanted) {
    QStringList names;
    for (const QString& name : found.keys() + wanted.keys())
        if (found.value(name) != wanted.value(name) && !names.contains(name)) names << name;
    return names;
}

void compareDives(const QJsonArray& found, const QJsonArray& wanted) {
    QCOMPARE(found.size(), wanted.size());
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        const QStringList names = differences(found[row].toObject(), wanted[row].toObject());
        QVERIFY2(names.isEmpty(), qPrintable(u"dive %1 differs in %2"_s.arg(row).arg(names.join(u", "_s))));
    }
}

/// Fields that stand in archives of some versions only; all others stand in all of them.
struct Span {
    const char* field;
    int first;
    int last;
};
constexpr Span spans[] = {
    {"deco_TTS", 24, 99},
    {"pAtm", 26, 99},
    {"deco_Level_1_sw", 0, 26},
    {"deco_Level_2_sw", 0, 26},
    {"deco_Level_3_sw", 0, 26},
    {"deco_Level_4_sw", 0, 26},
    {"deco_Level_5_sw", 0, 26},
    {"deco_Level_6_sw", 25, 26},
    {"decoO2_Level_6", 25, 99},
    {"decoHe_Level_6", 25, 99},
    {"decoDepth_Level_6", 25, 99},
    {"decoTime_Level_6", 25, 99},
    {"volPony1", 0, 26},
    {"volPony2", 0, 26},
    {"volPony3", 0, 26},
    {"pressDepartPony1", 0, 26},
    {"pressDepartPony2", 0, 26},
    {"pressDepartPony3", 0, 26},
    {"pressFinPony1", 0, 26},
    {"pressFinPony2", 0, 26},
    {"pressFinPony3", 0, 26},
    {"volBailout3", 27, 99},
    {"pressDepartBailout3", 27, 99},
    {"pressFinBailout3", 27, 99},
    {"O2Bailout3", 27, 99},
    {"HeBailout3", 27, 99},
    {"lowSetpoint", 25, 99},
    {"highGF", 25, 99},
    {"lowGF", 25, 99},
    {"etranger", 1, 0},
    {"computerMode", 1, 0},
};

/// What is left of a dive in an archive of this version, read again.
QJsonObject asArchivedIn(int version, QJsonObject dive) {
    for (const auto& [field, first, last] : spans)
        if (version < first || version > last) dive[QLatin1String(field)] = 0;
    if (version < 27) dive[u"sodaType"_s] = QJsonValue();
    return dive;
}

void addLogbooks() {
    QTest::addColumn<QString>("name");
    for (const QString& name : golden::logbooks()) QTest::newRow(qPrintable(name)) << name;
}

}  // namespace

class GoldenLogbookTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSetIsComplete() {
        const QStringList wanted{u"plongee-v20"_s,           u"plongee-v23"_s,
                                 u"plongee-v24"_s,           u"plongee-v25"_s,
                                 u"plongee-v26"_s,           u"plongee-v27-dates"_s,
                                 u"plongee-v27-long-text"_s, u"plongee-v27-unknown-objects"_s,
                                 u"plongee-v27-unmerged"_s,  u"plongee-v27"_s};
        QCOMPARE(golden::logbooks(), wanted);
        QVERIFY(golden::files(u"refused-*.carnet"_s).size() >= 20);
    }

    void readsAsItsExpectation_data() { addLogbooks(); }
    void readsAsItsExpectation() {
        QFETCH(QString, name);
        qint32 version = 0;
        const auto dives = readRecords(golden::bytes(name + u".carnet"_s), plongeeClass(), &version);
        QCOMPARE(version, golden::json(name).value("version"_L1).toInt());
        compareDives(jsonOf(dives), golden::records(name));
    }

    void readsAnEmptyLogbook() {
        qint32 version = -5;
        QVERIFY(readRecords(golden::bytes(u"empty.carnet"_s), plongeeClass(), &version).isEmpty());
        QCOMPARE(version, -5);
    }

    void savesByteForByteAsExpected_data() {
        addLogbooks();
        QTest::newRow("empty") << u"empty"_s;
    }
    void savesByteForByteAsExpected() {
        QFETCH(QString, name);
        const auto dives = readRecords(golden::bytes(name + u".carnet"_s), plongeeClass());
        const QByteArray written = writeRecords(dives, plongeeClass());
        const QByteArray wanted = golden::bytes(u"resaved-"_s + name + u".carnet"_s);
        const auto difference =
            std::mismatch(written.begin(), written.end(), wanted.begin(), wanted.end()).first;
        QVERIFY2(written == wanted,
                 qPrintable(u"%1 bytes, %2 wanted, first difference at byte %3"_s.arg(written.size())
                                .arg(wanted.size())
                                .arg(difference - written.begin())));
    }

    void readsBackWhatItWrites_data() { addLogbooks(); }
    void readsBackWhatItWrites() {
        QFETCH(QString, name);
        const auto dives = readRecords(golden::bytes(name + u".carnet"_s), plongeeClass());
        const auto again = readRecords(writeRecords(dives, plongeeClass()), plongeeClass());
        QJsonArray wanted;
        for (const QJsonValue& dive : golden::records(name)) wanted.append(asArchivedIn(27, dive.toObject()));
        compareDives(jsonOf(again), wanted);
    }

    void writesEveryOlderVersion_data() {
        QTest::addColumn<int>("version");
        for (const int version : {20, 23, 24, 25, 26, 27})
            QTest::newRow(qPrintable(u"version %1"_s.arg(version))) << version;
    }
    void writesEveryOlderVersion() {
        QFETCH(int, version);
        const auto dives = readRecords(golden::bytes(u"plongee-v27.carnet"_s), plongeeClass());
        qint32 found = 0;
        const auto again = readRecords(writeRecords(dives, plongeeClass(), version), plongeeClass(), &found);
        QCOMPARE(found, version);
        QJsonArray wanted;
        for (const QJsonValue& dive : golden::records(u"plongee-v27"_s))
            wanted.append(asArchivedIn(version, dive.toObject()));
        compareDives(jsonOf(again), wanted);
    }

    // Where the third bail-out tank is not archived, only the pony tank that took its place is.
    void writesItsOwnOldVersionAgain_data() {
        QTest::addColumn<QString>("name");
        for (const QString& name : golden::logbooks())
            if (!name.startsWith(u"plongee-v27"_s)) QTest::newRow(qPrintable(name)) << name;
    }
    void writesItsOwnOldVersionAgain() {
        QFETCH(QString, name);
        qint32 version = 0;
        const auto dives = readRecords(golden::bytes(name + u".carnet"_s), plongeeClass(), &version);
        const auto again = readRecords(writeRecords(dives, plongeeClass(), version), plongeeClass());
        compareDives(jsonOf(again), golden::records(name));
    }

    void aDiveThatStandsTwiceIsOneDive_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("row");
        QTest::newRow("current") << u"plongee-v27"_s << 0;
        QTest::newRow("unmerged") << u"plongee-v27-unmerged"_s << 0;
        QTest::newRow("version 26") << u"plongee-v26"_s << 1;
    }
    void aDiveThatStandsTwiceIsOneDive() {
        QFETCH(QString, name);
        QFETCH(int, row);
        const auto dives = readRecords(golden::bytes(name + u".carnet"_s), plongeeClass());
        QCOMPARE(dives.last(), dives[row]);
        const auto again = readRecords(writeRecords(dives, plongeeClass()), plongeeClass());
        QCOMPARE(again.last(), again[row]);
        std::set<const Plongee*> instances;
        for (const auto& dive : again) instances.insert(dive.get());
        QCOMPARE(qsizetype(instances.size()), again.size() - 1);
    }

    void refusesWithAnOffsetAndOneSentence_data() {
        QTest::addColumn<QString>("file");
        for (const QString& file : golden::files(u"refused-*.carnet"_s))
            QTest::newRow(qPrintable(file)) << file;
    }
    void refusesWithAnOffsetAndOneSentence() {
        QFETCH(QString, file);
        const QByteArray bytes = golden::bytes(file);
        const auto error = failureOf<ArchiveError>([&] { readRecords(bytes, plongeeClass()); });
        QVERIFY(error);
        QVERIFY(error->offset() >= 0 && error->offset() <= bytes.size());
        QVERIFY(error->sentence().startsWith(u"byte %1: "_s.arg(error->offset())));
        QVERIFY(!error->sentence().contains(u'\n'));
    }
};

int runGoldenLogbookTest(int argc, char** argv) {
    GoldenLogbookTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GoldenLogbookTest.moc"
