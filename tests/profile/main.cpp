#include "profile/ProfileTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv, {runCnsClockTest, runGasUsedTest, runProfileDataTest, runProfilGeometryTest});
}
