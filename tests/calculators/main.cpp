#include "CalculatorTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runNitroxTest, runTrimixTest, runRebreatherTest, runUnitsTest, runDatumTest, runGpsTest,
                     runCalculatorWindowsTest, runCalculatorTextsTest, runCalcCommandTest});
}
