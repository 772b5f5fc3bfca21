#include "ArchiveTests.h"
int runArchiveDamageTest(int, char**) {
    return 0;
}
