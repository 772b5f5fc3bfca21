#pragma once

#include <QtTest>

#include "stats/Statistics.h"
#include "support/TestDesk.h"

int runGraphesTest(int argc, char** argv);
int runPreviousDivesTest(int argc, char** argv);
int runStatisticsCountersTest(int argc, char** argv);
int runStatisticsPageTest(int argc, char** argv);
int runStatisticsTest(int argc, char** argv);
int runStatisticsTotalsTest(int argc, char** argv);
int runStatsCommandTest(int argc, char** argv);
int runSynthesisGasTest(int argc, char** argv);
int runSynthesisTest(int argc, char** argv);
int runSynthesisWordsTest(int argc, char** argv);

namespace sargan {

/// A dive that counts as little as a dive can: no activity, no apparatus, no temperature.
inline Plongee quietDive() {
    Plongee dive;
    dive.setTypePlongee(2);
    dive.setRebreather(9);
    dive.setTempEau(-50);
    return dive;
}

/// What statistics count of these dives.
inline StatisticsTotals totals(const QList<Plongee>& dives, const QJsonObject& previous = {},
                               bool ignore = true) {
    Records<Plongee> records;
    for (const Plongee& dive : dives) records.append(std::make_shared<const Plongee>(dive));
    return totalsOf(records, PreviousDives(previous), ignore);
}

/// Under this key the settings hold the dives made before the logbook.
inline const QString valuesKey = QStringLiteral("statistics values");

/// What the panel shows in one of its fields.
inline QString field(const Statistics& statistics, const char* name) {
    return statistics.panel().text(ControlName{name});
}

/// A logbook of these dives as it was just opened.
inline std::unique_ptr<Carnet> logbookOf(TestDesk& desk, const QList<Plongee>& dives) {
    Records<Plongee> records;
    for (const Plongee& dive : dives) records.append(std::make_shared<const Plongee>(dive));
    auto carnet = desk.newLogbook();
    carnet->readBytes(writeRecords(records, plongeeClass()), QStringLiteral("Carnet de plongee"));
    return carnet;
}

}  // namespace sargan
