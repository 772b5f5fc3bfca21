#include "AppTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(argc, argv,
                       {runLaunchTest, runMenuTest, runSavingTest, runSettingsTest, runSingleInstanceTest,
                        runDesktopPromptTest});
}
