#include "platform/desk/DeskTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv,
                    {runPromptTest, runNotificationCenterTest, runPickListsTest, runUserDefaultsTest,
                     runUserDefaultsFileTest});
}
