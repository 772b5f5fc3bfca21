#pragma once

#include <QJsonObject>
#include <array>

#include "logbook/PlongeeArchive.h"

namespace sargan {

/// What is counted, in the order of the panel.
enum StatisticsCounter {
    Bio,
    Carriere,
    Derivante,
    EpavesCount,
    Explo,
    Formation,
    Nocturne,
    Photo,
    Recuperation,
    Glace,
    Speleo,
    Tek,
    Travail,
    Video,
    Autre,
    OpenCircuit,
    SemiClosed,
    ClosedCircuit,
    AirCount,
    NitroxCount,
    TrimixCount,
    HelioxCount,
    Prof_1,
    Prof_2,
    Prof_3,
    Prof_4,
    Prof_5,
    Prof_6,
    Prof_7,
    counterCount
};

/// The dives made before this logbook: one dictionary of the settings, the same for every logbook. A key
/// that is missing reads as 0.
class PreviousDives {
public:
    PreviousDives() = default;
    explicit PreviousDives(QJsonObject values) : _values(std::move(values)) {}

    /// Under this key the settings hold the dictionary.
    static constexpr const char* settingsKey = "statistics values";

    /// Truncated towards zero, within 32 bits.
    qint32 value(const char* key) const;
    QJsonObject values() const { return _values; }

private:
    QJsonObject _values;
};

/// Counts, sums and extremes of a logbook's dives. Whole numbers of 32 bits that turn over at their ends, as
/// stored totals may be anything.
struct StatisticsTotals {
    std::array<qint32, counterCount> counts{};
    qint32 dives = 0;
    qint32 deepest = 0;     ///< m
    qint32 longest = 0;     ///< min
    qint32 totalDepth = 0;  ///< m
    qint32 totalTime = 0;   ///< min
    qint32 coldest = 0;     ///< water, degrees Celsius
    qint32 warmest = 0;
    qint32 temperatures = 0;  ///< sum over the logbook's own dives
    qint32 measured = 0;      ///< how many of them have a temperature

    /// What totals are divided by: the dives, but at least 1. A negative number of dives stays.
    qint32 divisor() const { return quint32(dives) > 1 ? dives : 1; }
    /// Per cent of the dives, in single precision.
    float share(StatisticsCounter counter) const {
        return float(counts[std::size_t(counter)]) / float(divisor()) * 100;
    }
    qint32 meanDepth() const { return quotient(totalDepth, divisor()); }
    qint32 meanTime() const { return quotient(totalTime, divisor()); }
    qint32 meanTemperature() const { return quotient(temperatures, std::max(measured, 1)); }

    friend bool operator==(const StatisticsTotals&, const StatisticsTotals&) = default;

private:
    /// Towards zero; in 64 bits, because the smallest number has no opposite.
    static qint32 quotient(qint64 total, qint64 divisor) { return qint32(total / divisor); }
};

/// Shown as the minimum when previous dives are left out and no dive has a temperature.
inline constexpr qint32 noColdest = 10000;

/// The logbook's dives, together with the previous ones unless they are to be left out.
StatisticsTotals totalsOf(const Records<Plongee>& dives, const PreviousDives& previous, bool ignorePrevious);

/// The settings key of a counter.
const char* keyOf(StatisticsCounter counter);

}  // namespace sargan
