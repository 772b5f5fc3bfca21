#include "stats/StatsTests.h"
#include "support/FontMain.h"

int main(int argc, char** argv) {
    return runFontTests(argc, argv,
                        {runStatisticsCountersTest, runStatisticsTotalsTest, runStatisticsTest,
                         runPreviousDivesTest, runStatisticsPageTest, runSynthesisTest, runSynthesisWordsTest,
                         runSynthesisGasTest, runGraphesTest, runStatsCommandTest});
}
