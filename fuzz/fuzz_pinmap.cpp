// One input is an IBIS file into which a pin mapping is saved.
#include "fuzz/FuzzMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::SavePinMapping(data, size, fuzz::ProcessScratch().Path());
    return 0;
}
