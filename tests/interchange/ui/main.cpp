#include "support/GuiMain.h"

int runInterchangeActionsTest(int argc, char** argv);

int main(int argc, char** argv) {
    return runGuiTests(argc, argv, {runInterchangeActionsTest});
}
