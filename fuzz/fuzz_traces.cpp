// One input is a Board Station "traces" file beside the example board.
#include "fuzz/FuzzMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::TranslateWithTraces(data, size, fuzz::ProcessScratch().Path(), fuzz::ExampleBoard());
    return 0;
}
