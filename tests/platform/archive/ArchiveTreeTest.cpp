#include "ArchiveTests.h"
int runArchiveTreeTest(int, char**) {
    return 0;
}
