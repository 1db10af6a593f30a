#pragma once
// The libFuzzer side of a harness: one scratch folder for the whole process, removed at exit.
#include <cstdlib>
#include <memory>

#include "fuzz/FuzzTargets.h"

namespace fuzz {

inline ScratchFolder& ProcessScratch() {
    static std::unique_ptr<ScratchFolder> scratch = [] {
        setenv("KEEP_BENCHMARK", "0", 1);
        auto made = std::make_unique<ScratchFolder>();
        return made;
    }();
    return *scratch;
}

// The example board that the side-file harnesses translate (read, never written).
inline const char* ExampleBoard() {
    return NDD2QFX_SOURCE_DIR "/examples/board.ndd";
}

}  // namespace fuzz
