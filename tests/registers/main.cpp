#include "registers/RegisterTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runGoldenRegisterTest, runRegisterSlotMutationTest, runRegisterEngineTest,
                     runRegisterFormRecordTest, runRepEpavesTest, runInvMaterielTest, runRegisterCommandsTest,
                     runAddressBooksTest, runDemoRegistersTest, runDiversDocumentsTest, runInvConsoTest,
                     runMaintCompTest, runPreviBudgetTest, runRebreatherServTest});
}
