#include "stats/ui/StatsUiTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(argc, argv, {runStatisticsWindowTest, runSynthesisWindowTest, runPrintingTest});
}
