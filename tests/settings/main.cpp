#include "SettingsTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runColorsTest, runInterfaceChoiceTest, runRegisteredDefaultsTest, runPreferencesTest,
                     runPreferencesSavingTest, runPickListEditorTest, runSettingsCommandTest});
}
