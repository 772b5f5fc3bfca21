#include "logbook/LogbookTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runDiveBlankTest, runDiveMappingTest, runDiveMenusTest, runDiveFormTest,
                     runDiveFiguresTest, runDiveOfferTest, runDiveProfileFormTest, runDiveCellTextTest,
                     runDiveCellColorTest, runDiveTableSourceTest, runDiveTableSortTest, runCarnetListTest,
                     runCarnetSelectionTest, runCarnetSearchTest, runCarnetTypesTest});
}
