// One input is the IBIS file of the example board's active part.
#include "fuzz/FuzzMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::TranslateWithIbis(data, size, fuzz::ProcessScratch().Path(), fuzz::ExampleBoard());
    return 0;
}
