// One input is one NDD file, translated in a batch run as the program would.
#include "fuzz/FuzzMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::TranslateNdd(data, size, fuzz::ProcessScratch().Path());
    return 0;
}
