#include "CalculatorUiTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(argc, argv, {runCalculatorWindowTest, runCalculatorLooksTest, runCalculatorMenuTest});
}
