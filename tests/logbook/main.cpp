#include "logbook/LogbookTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runDiveFormTest, runFormRecordTest, runLogbookListTest, runLogbookSearchTest,
                     runDiveMappingTest, runDiveBlankTest, runCarnetListTest, runCarnetSelectionTest,
                     runCarnetSearchTest, runCarnetTypesTest});
}
