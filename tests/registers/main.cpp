#include "registers/RegisterTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(
        argc, argv,
        {runGoldenRegisterTest, runRegisterSlotMutationTest, runRegisterEngineTest, runRegisterFormRecordTest,
         runRepEpavesTest, runRepEpavesTableTest, runInvMaterielTest, runInvMaterielTableTest,
         runRegisterSortTest, runRegisterPictureDumpTest, runRegisterCommandsTest, runAddressBooksTest,
         runDemoRegistersTest, runDiversDocumentsTest, runInvConsoTest, runMaintCompTest, runPreviBudgetTest,
         runRebreatherServTest});
}
