#include "AppTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(argc, argv,
                       {runLaunchTest, runDiveFilesTest, runLanguageTest, runMenuTest, runSavingTest, runSettingsTest, runSingleInstanceTest, runSpokenNamesTest,
                        runDesktopPromptTest});
}
