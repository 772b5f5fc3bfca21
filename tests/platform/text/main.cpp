#include "platform/text/TextTests.h"
#include "support/TestMain.h"

int main(int argc, char** argv) {
    return runTests(argc, argv, {runMacRomanTest, runMessageTest, runNumbersTest, runStringsTest, runCatalogueTest});
}
