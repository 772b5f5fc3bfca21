#include <QTest>

#include "logbook/PlongeeArchive.h"
#include "platform/record/RecordJson.h"
#include "platform/record/RecordTests.h"
#include "support/Golden.h"
#include "support/SlotMutants.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A golden logbook and what must be made of it.
struct Golden {
    QString name;
    QByteArray bytes;
    QJsonArray records;
    QByteArray resaved;
};

QJsonArray jsonOf(const Records<Plongee>& dives) {
    QJsonArray list;
    for (const auto& dive : dives) list.append(recordToJson<Plongee>(*dive, PlongeeFields::all));
    return list;
}

/// The first golden logbook by which a class is found to be wrong; empty when it passes for right.
QString foundOutBy(const RecordClass<Plongee>& cls, const std::vector<Golden>& goldens) {
    for (const Golden& golden : goldens) {
        try {
            const auto dives = readRecords(golden.bytes, cls);
            if (jsonOf(dives) != golden.records) return golden.name;
            if (writeRecords(dives, cls) != golden.resaved) return golden.name + u", saved"_s;
            qint32 version = 27;
            readRecords(golden.bytes, plongeeClass(), &version);
            const QByteArray asItWas = writeRecords(dives, cls, version);
            if (jsonOf(readRecords(asItWas, plongeeClass())) != golden.records)
                return golden.name + u", saved as it was"_s;
        } catch (const ArchiveError&) {
            return golden.name + u", refused"_s;
        }
    }
    return {};
}

/// The pony tanks' migration with one of its rules changed.
struct Migration {
    int firstVersionWithout = 27;
    int leastValue = 1;
    int skipped = -1;    ///< this move is not made
    int misplaced = -1;  ///< this move goes to the next tank
} migration;

void migrate(Plongee& dive, qint32 version) {
    if (version >= migration.firstVersionWithout) return;
    const Int ponies[] = {dive.volPony1(),         dive.volPony2(),         dive.volPony3(),
                          dive.pressDepartPony1(), dive.pressDepartPony2(), dive.pressDepartPony3(),
                          dive.pressFinPony1(),    dive.pressFinPony2(),    dive.pressFinPony3()};
    using Set = void (Plongee::*)(Int);
    const Set bailouts[] = {
        &Plongee::setVolBailout1,         &Plongee::setVolBailout2,         &Plongee::setVolBailout3,
        &Plongee::setPressDepartBailout1, &Plongee::setPressDepartBailout2, &Plongee::setPressDepartBailout3,
        &Plongee::setPressFinBailout1,    &Plongee::setPressFinBailout2,    &Plongee::setPressFinBailout3};
    for (int i = 0; i < 9; ++i) {
        if (i == migration.skipped || ponies[i] < migration.leastValue) continue;
        (dive.*bailouts[i == migration.misplaced ? (i + 1) % 9 : i])(ponies[i]);
    }
}

}  // namespace

/// Makes every small mistake in the dive's slot table, and demands that the golden logbooks tell.
class SlotMutationTest : public QObject {
    Q_OBJECT

    std::vector<Golden> _goldens;
    SlotMutants<Plongee> _makeMutants{plongeeClass()};
    int _mutants = 0;
    int _survivors = 0;

    void expectFoundOut(const QString& mistake, const RecordClass<Plongee>& cls) {
        ++_mutants;
        if (!foundOutBy(cls, _goldens).isEmpty()) return;
        ++_survivors;
        QTest::qFail(qPrintable(u"no golden logbook tells: "_s + mistake), __FILE__, __LINE__);
    }
    void expectFoundOut(const std::vector<SlotMutant<Plongee>>& mutants, int atLeast) {
        QVERIFY(int(mutants.size()) >= atLeast);
        for (const auto& mutant : mutants) {
            RecordClass<Plongee> cls = plongeeClass();
            cls.slots = mutant.slots;
            expectFoundOut(mutant.mistake, cls);
        }
    }
    void expectFoundOut(const QString& mistake, const Migration& changed) {
        RecordClass<Plongee> cls = plongeeClass();
        cls.finish = migrate;
        migration = changed;
        expectFoundOut(mistake, cls);
    }

private Q_SLOTS:
    void initTestCase() {
        for (const QString& name : golden::logbooks())
            _goldens.push_back({name, golden::bytes(name + u".carnet"_s), golden::records(name),
                                golden::bytes(u"resaved-"_s + name + u".carnet"_s)});
        // Objects of unknown classes are no matter of slots, and their field values are absent.
        std::erase_if(_goldens, [](const Golden& golden) { return golden.name.contains(u"unknown"_s); });
    }
    void cleanupTestCase() { qInfo("%d mutants, %d survivors", _mutants, _survivors); }

    void theTableItselfPasses() { QCOMPARE(foundOutBy(plongeeClass(), _goldens), QString()); }
    void misplacedSlotsAreTold() { expectFoundOut(_makeMutants.misplaced(), 3 * 140); }
    void shiftedRangesAreTold() { expectFoundOut(_makeMutants.shifted(21, 26), 2 * 35); }
    void changedFormsAreTold() { expectFoundOut(_makeMutants.reformed(), 2 * 9); }
    void exchangedFieldsAreTold() { expectFoundOut(_makeMutants.exchanged(), 2 * 140); }

    void theMigrationRewrittenHerePasses() {
        RecordClass<Plongee> cls = plongeeClass();
        cls.finish = migrate;
        migration = {};
        QCOMPARE(foundOutBy(cls, _goldens), QString());
    }
    // A migration from version 27 on, too, would be no mistake: no such dive has a pony tank.
    void mistakesOfTheMigrationAreTold() {
        for (const int version : {26, 25, 24, 21})
            expectFoundOut(u"migration only below version %1"_s.arg(version),
                           Migration{.firstVersionWithout = version});
        for (const int least : {INT_MIN, -1, 0, 2, 8})
            expectFoundOut(u"migration from %1 on"_s.arg(least), Migration{.leastValue = least});
        for (int move = 0; move < 9; ++move) {
            expectFoundOut(u"move %1 missing"_s.arg(move), Migration{.skipped = move});
            expectFoundOut(u"move %1 to the next tank"_s.arg(move), Migration{.misplaced = move});
        }
    }
    void mistakesOfTheHooksAreTold() {
        RecordClass<Plongee> cls = plongeeClass();
        cls.finish = nullptr;
        expectFoundOut(u"no migration"_s, cls);
        cls = plongeeClass();
        std::swap(cls.prepare, cls.finish);
        expectFoundOut(u"migration before the slots"_s, cls);
        cls = plongeeClass();
        cls.prepare = [](Plongee& dive, qint32) { dive.setEtranger(1); };
        expectFoundOut(u"a default for what is not archived"_s, cls);
        cls.prepare = [](Plongee& dive, qint32) { dive.setSodaType(u""_s); };
        expectFoundOut(u"a default for what old versions lack"_s, cls);
        cls.prepare = [](Plongee& dive, qint32) { dive.setLowGF(30); };
        expectFoundOut(u"a gradient factor for what old versions lack"_s, cls);
    }
};

int runSlotMutationTest(int argc, char** argv) {
    SlotMutationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SlotMutationTest.moc"
