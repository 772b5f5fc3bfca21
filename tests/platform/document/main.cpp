#include "platform/document/DocumentTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runHistoryTest, runRecordDocumentTest, runDocumentFileTest, runDocumentControllerTest,
                     runLockedDocumentTest, runBadInputTest, runColumnOrderTest});
}
