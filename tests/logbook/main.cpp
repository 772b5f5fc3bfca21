#include "logbook/LogbookTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runDiveBlankTest, runDiveMappingTest, runDiveMenusTest, runDiveFormTest,
                     runDiveFiguresTest, runDiveOfferTest, runDiveProfileFormTest, runDiveCellTest,
                     runDiveTableSourceTest, runCarnetListTest,
                     runCarnetSelectionTest, runCarnetSearchTest, runCarnetTypesTest});
}
