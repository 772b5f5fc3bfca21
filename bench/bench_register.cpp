// A register of many records opened, sorted and shown, against the floors: reading the file's bytes, sorting
// the bare strings, and copying ready texts.
//   bench_register [RECORDS]

#include <QCoreApplication>
#include <random>

#include "bench/Measure.h"
#include "registers/InvMateriel.h"
#include "registers/RegisterDocument.h"
#include "settings/RegisteredDefaults.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

struct BenchDesk {
    ScriptedPrompt prompt;
    UserDefaults defaults;
    Strings strings;
    NotificationCenter notifications;
    PickLists pickLists{defaults};
    Desk desk{prompt, defaults, strings, notifications, pickLists, Clock(), Log()};
};

const DocumentKind kind{"Materiel", false, "InvMateriel", "Materiel", "materiel", "newMaterielDocument", {}};

QByteArray makeFile(int count) {
    std::mt19937 random(20160607);
    Records<Materiel> records;
    for (int i = 0; i < count; ++i) {
        Materiel item;
        item.setMatosNo(QString::number(i + 1));
        item.setTypeMatos(QStringLiteral("Détendeur %1").arg(random() % 900));
        item.setMarqueMatos(QStringLiteral("Marque %1").arg(random() % 60));
        item.setSerieMatos(QString::number(random(), 16));
        item.setQuantiteMatos(1);
        item.setEquipState(Int(random() % 7));
        item.setLastRevision(Moment::fromSeconds(4e8 + double(random() % 30'000'000)));
        item.setNextRevision(Moment::fromSeconds(item.lastRevision().seconds() + 3e7));
        item.setNotesMatos(QStringLiteral("Révisé, joints changés, essai en piscine le %1.").arg(i % 28 + 1));
        records.append(std::make_shared<const Materiel>(item));
    }
    return writeRecords(records, materielClass());
}

void times(const char* what, double seconds, double floor) {
    std::printf("%-40s %9.2f ms", what, seconds * 1e3);
    if (floor > 0) std::printf("   %6.2f x the floor", seconds / floor);
    std::printf("\n");
}

/// Clicks a header on a freshly opened register, so that every run sorts the same disorder.
double sortTime(const QByteArray& bytes, BenchDesk& desk, const char* column) {
    double best = 1e30;
    for (int run = 0; run < 5; ++run) {
        RegisterDocument<Materiel> document(kind, desk.desk, invMateriel());
        document.readBytes(bytes, QStringLiteral("Materiel"));
        best = std::min(best, bestOf(1, [&] { document.clickTableColumn(QLatin1String(column)); }));
    }
    return best;
}

double bareSortTime(const Records<Materiel>& records, bool numbers) {
    double best = 1e30;
    for (int run = 0; run < 5; ++run) {
        QStringList texts;
        std::vector<int> states;
        for (const auto& item : records) {
            texts << item->typeMatos();
            states.push_back(item->equipState());
        }
        best = std::min(best, bestOf(1, [&] {
                            if (numbers)
                                std::stable_sort(states.begin(), states.end(), std::greater<>());
                            else
                                std::stable_sort(texts.begin(), texts.end(), std::greater<>());
                        }));
        use(texts);
        use(states);
    }
    return best;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 50000;
    BenchDesk desk;
    const QByteArray bytes = makeFile(count);
    std::printf("%d records, %.1f MB\n\n", count, double(bytes.size()) / 1e6);

    RegisterDocument<Materiel> document(kind, desk.desk, invMateriel());
    const double decode = bestOf(5, [&] { use(readRecords(bytes, materielClass())); });
    const double open = bestOf(5, [&] {
        RegisterDocument<Materiel> fresh(kind, desk.desk, invMateriel());
        fresh.readBytes(bytes, QStringLiteral("Materiel"));
        use(fresh);
    });
    document.readBytes(bytes, QStringLiteral("Materiel"));
    times("floor: decode the archive", decode, 0);
    times("open the register", open, decode);
    const double bareTexts = bareSortTime(document.records(), false);
    const double bareNumbers = bareSortTime(document.records(), true);
    times("floor: sort the bare strings", bareTexts, 0);
    times("sort on a text column", sortTime(bytes, desk, "typeMatos"), bareTexts);
    times("floor: sort the bare numbers", bareNumbers, 0);
    times("sort on a number column", sortTime(bytes, desk, "equipState"), bareNumbers);

    constexpr int pageRows = 50;
    const int columns = int(document.tableColumns().size());
    const double page = bestOf(20, [&] {
        for (int row = 0; row < pageRows; ++row)
            for (int column = 0; column < columns; ++column) use(document.tableCell(row + count / 2, column));
    });
    times("format a page of 50 rows", page, 0);
    std::printf("%-40s %9.2f us\n", "  a cell", page * 1e6 / (pageRows * columns));
    return 0;
}
