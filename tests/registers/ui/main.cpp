#include "registers/ui/RegisterUiTests.h"
#include "support/GuiMain.h"

int main(int argc, char** argv) {
    return runGuiTests(
        argc, argv,
        {runRegisterWindowTest, runRegisterPagesTest, runRegisterPictureTest, runOtherRegistersTest});
}
