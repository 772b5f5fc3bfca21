// The logbook's table: what a page of cells costs, and sorting by a text column against sorting bare strings.
//   bench_table [DIVES]

#include <QCoreApplication>
#include <random>

#include "bench/Measure.h"
#include "cli/Suite.h"
#include "platform/desk/Desk.h"
#include "settings/RegisteredDefaults.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

Records<Plongee> makeDives(int count) {
    std::mt19937 random(20160607);
    Records<Plongee> dives;
    dives.reserve(count);
    for (int i = 0; i < count; ++i) {
        auto dive = std::make_shared<Plongee>();
        dive->setNoPlongee(i + 1);
        dive->setDate(Moment::fromSeconds(4e8 + i * 3600.0));
        dive->setLieu(QStringLiteral("Lieu %1").arg(random() % 800));
        dive->setSite(QStringLiteral("Le tombant du phare %1").arg(random() % 30000));
        dive->setProfondeur(float(random() % 600) / 10);
        dive->setTemps(int(random() % 90));
        dive->setTempEau(int(random() % 25) + 4);
        dive->setCountryCode(QStringLiteral("FRA"));
        dives.append(dive);
    }
    return dives;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.size() > 1 ? arguments[1].toInt() : 100'000;

    ScriptedPrompt prompt;
    UserDefaults defaults;
    Strings strings;
    NotificationCenter notifications;
    PickLists pickLists(defaults);
    Desk desk{prompt, defaults, strings, notifications, pickLists, Clock(), Log()};
    registerDefaults(defaults, pickLists);
    for (const char* key : {"mix in color", "foreign in color", "low temperature in color"})
        defaults.store(QLatin1String(key), 1);
    const SaveTypes saveTypes;
    const DocumentKinds kinds = makeDocumentKinds(saveTypes);
    Carnet carnet(kinds.standard(), desk, saveTypes);
    const Records<Plongee> dives = makeDives(count);
    carnet.perform(QStringLiteral("Load"), dives, {});
    const TableSource& table = *carnet.table();
    const int columns = int(table.tableColumns().size());

    constexpr int rows = 40;
    qsizetype first = 0;
    const double page = bestOf(50, [&] {
        for (qsizetype row = first; row < first + rows; ++row)
            for (int column = 0; column < columns; ++column) use(table.tableCell(row, column));
        first = (first + 7919) % (count - rows);
    });
    std::printf("%d dives, %d columns\n", count, columns);
    std::printf("a page of %d rows                %8.3f ms   %8.0f rows/s\n", rows, page * 1e3, rows / page);

    for (const char* field : {"lieu", "site"}) {
        std::vector<QString> bare;
        for (const auto& dive : dives) bare.push_back(field[0] == 'l' ? dive->lieu() : dive->site());
        const double floor = bestOf(5, [&] {
            std::vector<QString> copy = bare;
            std::sort(copy.begin(), copy.end());
            use(copy);
        });
        double click = 1e30;
        for (int run = 0; run < 5; ++run) {
            carnet.perform(QStringLiteral("Load"), dives, {});
            click = std::min(click, bestOf(1, [&] {
                                 carnet.diveTable().didClickTableColumn(QString::fromLatin1(field));
                             }));
        }
        std::printf("sort by %-5s                     %8.1f ms   bare strings %8.1f ms   %5.2f x\n", field,
                    click * 1e3, floor * 1e3, click / floor);
    }
    return 0;
}
