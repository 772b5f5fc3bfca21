#include "cli/CliTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(
        argc, argv,
        {runUsageTest, runHelpTest, runGlobalOptionsTest, runNewTest, runInfoTest, runDumpTest, runLoadTest,
         runFormTest, runBlankDiveTest, runEditTest, runRowsTest, runPromptTest, runOfferTest, runPictureTest,
         runProfileDataTest, runSearchTest, runTableCommandTest, runRefusedFileTest, runLockTest});
}
