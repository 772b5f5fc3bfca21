#include <QTest>

#include "registers/RegisterClasses.h"
#include "registers/RegisterGoldens.h"
#include "registers/RegisterTests.h"
#include "support/SlotMutants.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

using Goldens = std::vector<RegisterGolden>;

/// The first golden archive by which a class is found to be wrong; empty when it passes for right.
template <class R>
QString foundOutBy(const RecordClass<R>& changed, const RecordClass<R>& right, const Goldens& goldens) {
    for (const RegisterGolden& golden : goldens) {
        try {
            const auto records = readRecords(golden.bytes, changed);
            if (jsonOf(records, right) != golden.records) return golden.name;
            if (writeRecords(records, changed) != golden.resaved) return golden.name + u", saved"_s;
            const QByteArray asItWas = writeRecords(records, changed, golden.version);
            if (jsonOf(readRecords(asItWas, right), right) != afterSaving(golden.records))
                return golden.name + u", saved as it was"_s;
        } catch (const ArchiveError&) {
            return golden.name + u", refused"_s;
        }
    }
    return {};
}

}  // namespace

/// Makes every small mistake in the registers' slot tables, and demands that the golden archives tell.
class RegisterSlotMutationTest : public QObject {
    Q_OBJECT

    int _mutants = 0;

    template <class R>
    void expectFoundOut(const RegisterClass<R>& reg, const std::vector<SlotMutant<R>>& mutants, int atLeast,
                        const Goldens& goldens) {
        QVERIFY2(int(mutants.size()) >= atLeast, reg.stem);
        for (const auto& mutant : mutants) {
            RecordClass<R> changed = reg.cls;
            changed.slots = mutant.slots;
            ++_mutants;
            if (foundOutBy(changed, reg.cls, goldens).isEmpty())
                QTest::qFail(
                    qPrintable(QLatin1String(reg.stem) + u": no golden archive tells: "_s + mutant.mistake),
                    __FILE__, __LINE__);
        }
    }
    template <class R>
    void expectHookFoundOut(const RecordClass<R>& right, const QString& stem, void (*prepare)(R&, qint32),
                            void (*finish)(R&, qint32)) {
        RecordClass<R> changed = right;
        changed.prepare = prepare;
        changed.finish = finish;
        ++_mutants;
        QVERIFY2(!foundOutBy(changed, right, registerGoldens(stem)).isEmpty(), qPrintable(stem));
    }

private Q_SLOTS:
    void cleanupTestCase() { qInfo("%d mutants", _mutants); }

    void theTablesThemselvesPass() {
        forEachRegister([](const auto& reg) {
            QCOMPARE(foundOutBy(reg.cls, reg.cls, registerGoldens(QString::fromLatin1(reg.stem))), QString());
        });
    }

    void everyMistakeInATableIsTold() {
        forEachRegister([this](const auto& reg) {
            const Goldens goldens = registerGoldens(QString::fromLatin1(reg.stem));
            const SlotMutants mutants(reg.cls);
            const int count = int(reg.cls.slots.size());
            expectFoundOut(reg, mutants.misplaced(), 3 * count - 6, goldens);
            expectFoundOut(reg, mutants.exchanged(), count, goldens);
            expectFoundOut(reg, mutants.reformed(), 1, goldens);
            if (reg.version > 1) expectFoundOut(reg, mutants.shifted(2, reg.version - 1), count, goldens);
        });
    }

    void mistakesOfTheHooksAreTold() {
        expectHookFoundOut<Epaves>(epavesClass(), u"epaves"_s, nullptr, nullptr);
        expectHookFoundOut<Epaves>(
            epavesClass(), u"epaves"_s,
            [](Epaves& wreck, qint32 version) { epavesClass().prepare(wreck, version + 1); }, nullptr);
        expectHookFoundOut<Epaves>(
            epavesClass(), u"epaves"_s,
            [](Epaves& wreck, qint32 version) {
                epavesClass().prepare(wreck, version);
                wreck.setMiseAJour(Moment::fromSeconds(0));
            },
            nullptr);
        expectHookFoundOut<Materiel>(materielClass(), u"materiel"_s, nullptr, nullptr);
        expectHookFoundOut<Materiel>(materielClass(), u"materiel"_s, materielClass().finish, nullptr);
        expectHookFoundOut<Materiel>(
            materielClass(), u"materiel"_s, nullptr,
            [](Materiel& item, qint32 version) { materielClass().finish(item, version - 1); });
        expectHookFoundOut<Materiel>(
            materielClass(), u"materiel"_s, nullptr,
            [](Materiel& item, qint32 version) { materielClass().finish(item, version + 1); });
    }
};

int runRegisterSlotMutationTest(int argc, char** argv) {
    RegisterSlotMutationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterSlotMutationTest.moc"
