#include <QCoreApplication>

#include "FileTests.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    int failed = 0;
    for (const auto run : {runReadFileTest, runSaveFileTest, runSaveConditionsTest, runSaveFaultsTest,
                           runDocumentLockTest, runFileMessageTest}) {
        failed += run(argc, argv);
    }
    return failed > 0 ? 1 : 0;
}
