#include "UiTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(argc, argv,
                       {runFormViewTest, runFormViewWalkTest, runMomentFieldTest, runPdfPageChooserTest,
                        runDocumentWindowTest, runSourceTableTest});
}
