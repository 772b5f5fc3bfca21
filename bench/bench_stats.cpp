// Statistics over a large logbook, against the floor: the same sums over columns of packed numbers.
//   bench_stats [DIVES]

#include <QCoreApplication>
#include <random>

#include "bench/Measure.h"
#include "stats/StatisticsTotals.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

Plongee makeDive(int number, std::mt19937& random) {
    const auto below = [&random](quint32 end) { return qint32(random() % end); };
    Plongee dive;
    dive.setNoPlongee(number);
    dive.setTypePlongee(below(15));
    dive.setNocturne(below(8) == 0);
    dive.setConfiguration(below(4) == 0);
    dive.setRebreather(below(3) == 0 ? below(5) : 0);
    dive.setGaz(below(6));
    dive.setProfondeur(float(below(700)) / 10);
    dive.setTemps(10 + below(90));
    dive.setTempEau(below(10) == 0 ? -50 : below(30));
    dive.setLieu(QStringLiteral("Lieu %1").arg(number % 80));
    dive.setNotes(QStringLiteral("Belle visibilité, deux congres sous la roche, plongée %1.").arg(number));
    return dive;
}

/// What the statistics need of the dives, as plain columns.
struct Columns {
    std::vector<qint32> type, night, configuration, rebreather, gas, time, water;
    std::vector<float> depth;
};

Columns columnsOf(const Records<Plongee>& dives) {
    Columns columns;
    for (const auto& dive : dives) {
        columns.type.push_back(dive->typePlongee());
        columns.night.push_back(dive->nocturne());
        columns.configuration.push_back(dive->configuration());
        columns.rebreather.push_back(dive->rebreather());
        columns.gas.push_back(dive->gaz());
        columns.time.push_back(dive->temps());
        columns.water.push_back(dive->tempEau());
        columns.depth.push_back(dive->profondeur());
    }
    return columns;
}

/// A plain loop: counts by code, then sums and extremes.
struct Floor {
    std::array<qint32, 16> types{}, rebreathers{}, gases{}, depths{};
    qint64 depth = 0, time = 0, water = 0, measured = 0, night = 0, technical = 0;
    qint32 deepest = 0, longest = 0, coldest = 10000, warmest = 0;

    void add(const Columns& columns) {
        for (std::size_t i = 0; i < columns.type.size(); ++i) {
            const qint32 metres = qint32(columns.depth[i]), minutes = columns.time[i],
                         degrees = columns.water[i];
            ++types[std::size_t(columns.type[i]) & 15];
            ++rebreathers[std::size_t(columns.rebreather[i]) & 15];
            ++gases[std::size_t(columns.gas[i]) & 15];
            ++depths[std::size_t(std::min(metres / 10, 15))];
            night += columns.night[i] == 1;
            technical += columns.configuration[i] == 1;
            depth += metres;
            time += minutes;
            deepest = std::max(deepest, metres);
            longest = std::max(longest, minutes);
            warmest = std::max(warmest, degrees);
            if (degrees == -50) continue;
            water += degrees;
            ++measured;
            coldest = std::min(coldest, degrees);
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int count = argc > 1 ? std::max(1, std::atoi(argv[1])) : 100000;
    std::mt19937 random(20160607);
    Records<Plongee> dives;
    for (int i = 0; i < count; ++i) dives.append(std::make_shared<const Plongee>(makeDive(i + 1, random)));
    const Columns columns = columnsOf(dives);
    constexpr int runs = 20;
    const double floor = bestOf(runs, [&] {
        Floor sums;
        sums.add(columns);
        use(sums);
    });
    const double records = bestOf(runs, [&] { use(totalsOf(dives, PreviousDives(), true)); });
    const double bytes = 32.0 * count;
    std::printf("%d dives of %zu bytes\n", count, sizeof(Plongee));
    row("plain loop over packed columns", floor, bytes, 0);
    row("statistics over the records", records, bytes, floor);
    return 0;
}
