#include "platform/form/FormTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv, {runFormTest, runFormFillTest});
}
