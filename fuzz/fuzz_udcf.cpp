#include "fuzz/FuzzImport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    sargan::fuzz::importOne("udcf", data, size);
    return 0;
}
