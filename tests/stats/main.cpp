#include "stats/StatsTests.h"
#include "support/FontMain.h"

int main(int argc, char** argv) {
    return runFontTests(argc, argv,
                        {runStatisticsTotalsTest, runStatisticsTest, runStatisticsPageTest, runSynthesisTest,
                         runSynthesisGasTest, runGraphesTest, runStatsCommandTest});
}
