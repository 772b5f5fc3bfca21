#include "ProfileUiTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(argc, argv, {runProfilDrawingTest, runGraphProfileWindowTest});
}
