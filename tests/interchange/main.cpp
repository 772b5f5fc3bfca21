#include "interchange/InterchangeTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(
        argc, argv,
        {runTextExportTest, runUddfExportTest, runUddfImportTest, runUddfValuesTest, runUdcfTest,
         runHandheldTest, runHostileXmlTest, runImportTest, runRoundTripTest, runInterchangeCommandTest});
}
