#include "platform/record/RecordTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runGoldenLogbookTest, runUnknownObjectsTest, runSlotsTest, runSlotMutationTest,
                     runRecordJsonTest, runDamagedLogbookTest});
}
