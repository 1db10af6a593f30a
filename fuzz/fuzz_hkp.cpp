// One input is a layout.hkp file beside the example board.
#include "fuzz/FuzzMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::TranslateWithHkp(data, size, fuzz::ProcessScratch().Path(), fuzz::ExampleBoard());
    return 0;
}
