#include <QCoreApplication>

#include "ArchiveTests.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    int failed = 0;
    for (const auto run : {runArchiveValuesTest, runArchiveSharingTest, runArchiveReaderTest,
                           runArchiveTreeTest, runArchiveDamageTest, runArchiveBoundsTest,
                           runArchiveMemoryTest, runArchiveFixtureTest, runNumberArrayTest, runMomentTest}) {
        failed += run(argc, argv);
    }
    return failed > 0 ? 1 : 0;
}
