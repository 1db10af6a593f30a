// One input is a translation log, loaded before a translation of the example board.
#include "fuzz/FuzzMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::TranslateWithLog(data, size, fuzz::ProcessScratch().Path(), fuzz::ExampleBoard());
    return 0;
}
