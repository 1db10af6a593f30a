// Padstack library, size pass and via pass over a large generated board.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/LayerStack.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/PadBoundaries.h"
#include "ndd/PadLibrary.h"
#include "ndd/PadStackLayers.h"
#include "ndd/ViaPass.h"
#include "qfx/PadStackSection.h"

namespace {

constexpr int kLayers = 32;
constexpr int kPadStacks = 2000;
constexpr int kVias = 200000;

// 32 conductor layers, 2000 all-layer padstacks, 200000 vias and some buried padstacks
// without rule.
std::string MakeBoard() {
    std::string text = "%length TN;\n";
    for (int i = 0; i < kLayers; ++i) {
        text += "%signal \"L" + std::to_string(i) + "\" \"" + std::to_string(i) +
                "\" \"x\" 3500 \"CU\";\n%dielectric \"D\" \"x\" \"FR4\" 20000;\n";
    }
    text += "%board_outline\n%port \"U1-1\" \"N1\";\n";
    text +=
        "%paddef \"C\"\n%begin_boundary\n%outline\n%circle 0 0 "
        "50000;\n%end_boundary\n%end_paddef\n";
    for (int i = 0; i < kPadStacks; ++i) {
        text += "%padstackdef \"PS" + std::to_string(i) + "\"\n";
        text += i % 10 == 0 ? "%padstacktype \"%buried\"\n" : "%padstacktype \"%thruhole\"\n";
        text += "%drill " + std::to_string(10000 + i) + ";\n%liblayer \"%all_layers\"\n";
        text += "%pad 0 0 \"C\";\n%antipad 0 0 \"C\";\n%end_padstackdef;\n";
    }
    for (int i = 0; i < kVias; ++i) {
        text += "%via \"PS" + std::to_string(i % kPadStacks) + "\" " + std::to_string(i) +
                " 100 0 \"N1\";\n";
    }
    return text;
}

std::string WriteBoard() {
    std::string path = std::string(std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp") +
                       "/ndd2qfx_padstack_bench.ndd";
    FILE* f = std::fopen(path.c_str(), "w");
    std::string text = MakeBoard();
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
    return path;
}

const std::string& BoardPath() {
    static const std::string path = WriteBoard();
    return path;
}

void Prepare() {
    ResetTranslationOptions();
    ResetLayoutModel();
    ParseLayer(BoardPath());
    auto stream = OpenNdd(BoardPath());
    ParseNet(*stream);
}

void BM_PadStackLibraryPasses(benchmark::State& state) {
    Prepare();
    for (auto _ : state) {
        ParsePadDefData(BoardPath());
        ResolvePadStackLayers();
        ExpandDefaultLayers();
    }
    state.counters["padstacks"] = static_cast<double>(g_model.g_padStacks.Size());
}
BENCHMARK(BM_PadStackLibraryPasses)->Unit(benchmark::kMillisecond);

void BM_PadDefAndViaPass(benchmark::State& state) {
    Prepare();
    ParsePadDefData(BoardPath());
    for (auto _ : state) {
        ParsePadDef(BoardPath());
        ParseVia(BoardPath());
    }
    state.counters["vias"] = static_cast<double>(g_model.g_aVias.size());
}
BENCHMARK(BM_PadDefAndViaPass)->Unit(benchmark::kMillisecond);

void BM_WritePadStackLibraries(benchmark::State& state) {
    Prepare();
    ParsePadDefData(BoardPath());
    ResolvePadStackLayers();
    ExpandDefaultLayers();
    FILE* out = std::fopen("/dev/null", "w");
    for (auto _ : state) {
        WritePadStackLibrary(out);
        WriteMirroredPadStacks(out);
    }
    std::fclose(out);
}
BENCHMARK(BM_WritePadStackLibraries)->Unit(benchmark::kMillisecond);

}  // namespace
