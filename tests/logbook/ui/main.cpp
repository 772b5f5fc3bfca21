#include "LogbookUiTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(
        argc, argv,
        {runDiveLayoutTest, runDiveEditWindowTest, runDiveProfileWindowTest, runDiveProfileLeavingTest,
         runDiveTypingTest, runLogbookEditingTest, runLogbookTableTest, runLogbookSearchTest});
}
