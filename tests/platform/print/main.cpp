#include "platform/print/PrintTests.h"
#include "support/FontMain.h"

int main(int argc, char** argv) {
    return runFontTests(argc, argv, {runStyledTextTest, runTextPagesTest, runTablePagesTest, runDrawingTest});
}
