#include "stats/StatisticsTotals.h"

#include <cmath>

#include "platform/text/Numbers.h"

namespace sargan {

namespace {

/// A water temperature that was not recorded.
constexpr qint32 noTemperature = -50;
constexpr std::size_t none = counterCount;

constexpr std::array<const char*, counterCount> keys = {
    "bio",          "carriere", "derivante", "epaves", "explo",   "formation", "nocturne", "photo",
    "recuperation", "glace",    "speleo",    "tek",    "travail", "video",     "autre",    "co",
    "scr",          "ccr",      "air",       "nitrox", "trimix",  "heliox",    "prof_1",   "prof_2",
    "prof_3",       "prof_4",   "prof_5",    "prof_6", "prof_7",
};

/// What a code counts as. The last entry is for all codes that the table does not know: dives follow no
/// pattern, so every branch on their codes would cost a wrong guess.
template <std::size_t size>
std::size_t entry(const std::array<std::size_t, size>& table, qint32 code) {
    return table[std::min<std::size_t>(quint32(code), size - 1)];
}

/// By typePlongee. 2 and 4 count in no activity: "tek" goes by the configuration.
constexpr std::array<std::size_t, 16> activities = {
    EpavesCount, Explo,     none,  Photo,     none, Speleo,   Video,        Travail,
    Autre,       Derivante, Glace, Formation, Bio,  Carriere, Recuperation, none};

/// By rebreather.
constexpr std::array<std::size_t, 6> apparatus = {OpenCircuit,   SemiClosed,    ClosedCircuit,
                                                  ClosedCircuit, ClosedCircuit, none};

/// The order of the tests is the rule: whatever is left over counts as heliox, a semi-closed rebreather on
/// air included.
constexpr std::size_t gasFamily(std::size_t gas, std::size_t rebreather) {
    if (gas == 0 && (rebreather < 1 || rebreather > 4)) return AirCount;
    if (gas == 2 || gas == 4 || gas == 5) return TrimixCount;
    if (gas == 1 || (rebreather >= 2 && rebreather <= 4)) return NitroxCount;
    return HelioxCount;
}

/// By gaz, and for each gas by rebreather; the last of both stand for the codes beyond.
constexpr auto gasFamilies = [] {
    std::array<std::array<std::size_t, apparatus.size()>, 7> families{};
    for (std::size_t gas = 0; gas < families.size(); ++gas)
        for (std::size_t rebreather = 0; rebreather < apparatus.size(); ++rebreather)
            families[gas][rebreather] = gasFamily(gas, rebreather);
    return families;
}();

std::size_t gasFamilyOf(qint32 gas, qint32 rebreather) {
    return entry(gasFamilies[std::min<std::size_t>(quint32(gas), gasFamilies.size() - 1)], rebreather);
}

/// By ten metres; what is less than none is in the first class, 60 m and more in the last.
std::size_t depthClass(qint32 depth) {
    return std::size_t(Prof_1) + std::size_t(std::clamp(depth, 0, 60) / 10);
}

qint32 truncated(float value) {
    if (std::isnan(value)) return 0;
    if (value >= 2147483648.0F) return INT32_MAX;
    if (value <= -2147483648.0F) return INT32_MIN;
    return qint32(value);
}

/// The sums while they grow: wide enough for any list, cut to 32 bits at the end.
class Tally {
public:
    void start(const PreviousDives& previous) {
        for (std::size_t i = 0; i < counterCount; ++i) _counts[i] = previous.value(keys[i]);
        _totals.deepest = previous.value("prof max");
        _totals.longest = previous.value("temps max");
        _totals.coldest = previous.value("temperature min");
        _totals.warmest = previous.value("temperature max");
        _depth = previous.value("total profondeur");
        _time = previous.value("total temps");
        _dives = previous.value("total plongees");
    }
    void startWithoutPrevious() { _totals.coldest = noColdest; }

    void add(const Plongee& dive) {
        ++_counts[entry(activities, dive.typePlongee())];
        _counts[Nocturne] += dive.nocturne() == 1;
        _counts[Tek] += dive.configuration() == 1;
        const qint32 rebreather = dive.rebreather();
        ++_counts[entry(apparatus, rebreather)];
        ++_counts[gasFamilyOf(dive.gaz(), rebreather)];
        addDepth(truncated(dive.profondeur()));
        _time += dive.temps();
        _totals.longest = std::max(_totals.longest, dive.temps());
        addTemperature(dive.tempEau());
    }

    StatisticsTotals totals(qsizetype ownDives) const {
        StatisticsTotals done = _totals;
        for (std::size_t i = 0; i < counterCount; ++i) done.counts[i] = qint32(_counts[i]);
        done.dives = qint32(_dives + ownDives);
        done.totalDepth = qint32(_depth);
        done.totalTime = qint32(_time);
        done.temperatures = qint32(_temperatures);
        done.measured = qint32(_measured);
        return done;
    }

private:
    void addDepth(qint32 depth) {
        _depth += depth;
        _totals.deepest = std::max(_totals.deepest, depth);
        ++_counts[depthClass(depth)];
    }
    void addTemperature(qint32 water) {
        _totals.warmest = std::max(_totals.warmest, water);
        const bool isMeasured = water != noTemperature;
        _temperatures += isMeasured ? water : 0;
        _measured += isMeasured;
        _totals.coldest = std::min(_totals.coldest, isMeasured ? water : INT32_MAX);
    }

    StatisticsTotals _totals;
    std::array<qint64, counterCount + 1> _counts{};  ///< the last one takes what counts nowhere
    qint64 _dives = 0;
    qint64 _depth = 0;
    qint64 _time = 0;
    qint64 _temperatures = 0;
    qint64 _measured = 0;
};

}  // namespace

qint32 PreviousDives::value(const char* key) const {
    const QJsonValue held = _values.value(QLatin1String(key));
    if (held.isString()) return leadingInteger(held.toString());
    if (held.isBool()) return held.toBool();
    const double number = held.toDouble();
    return qint32(std::clamp(std::trunc(number), double(INT32_MIN), double(INT32_MAX)));
}

StatisticsTotals totalsOf(const Records<Plongee>& dives, const PreviousDives& previous, bool ignorePrevious) {
    Tally tally;
    if (ignorePrevious)
        tally.startWithoutPrevious();
    else
        tally.start(previous);
    for (const auto& dive : dives) tally.add(*dive);
    return tally.totals(dives.size());
}

const char* keyOf(StatisticsCounter counter) {
    return keys[std::size_t(counter)];
}

}  // namespace sargan
