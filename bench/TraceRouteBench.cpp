// A synthetic route of 200 000 connected segments, read through the real trace pass from
// generated NDD text and written as node and trace lines. The figure to read is
// cpu_s_per_100k: CPU seconds per 100 000 segments.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "geometry/MakeNode.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/TraceReader.h"
#include "qfx/NodeWriter.h"
#include "qfx/TraceWriter.h"

namespace {

constexpr int kSegments = 200000;
constexpr int kRow = 1000;  // points per row of the serpentine

// Point i of a serpentine on a 0.1 mm grid, in TN: rows alternate direction, so point i and
// i + 1 are always neighbours and every segment shares its ends with the next one.
void RoutePoint(int i, long& x, long& y) {
    int row = i / kRow, col = i % kRow;
    x = 10000L * (row % 2 == 0 ? col : kRow - 1 - col);
    y = 10000L * row;
}

std::string g_routeFolder;

void RemoveRouteFile() {
    std::remove((g_routeFolder + "/route.ndd").c_str());
    rmdir(g_routeFolder.c_str());
}

const std::string& RouteFile() {
    static std::string path;
    if (!path.empty()) return path;
    char dir[] = "/tmp/ndd2qfx_bench_XXXXXX";
    if (!mkdtemp(dir)) std::abort();
    g_routeFolder = dir;
    std::atexit(RemoveRouteFile);
    path = g_routeFolder + "/route.ndd";
    FILE* f = std::fopen(path.c_str(), "w");
    std::fprintf(f, "%%length TN;\n%%port \"U1-1\" \"SIG\";\n# Traces section.\n");
    for (int i = 0; i < kSegments; ++i) {
        long x1, y1, x2, y2;
        RoutePoint(i, x1, y1);
        RoutePoint(i + 1, x2, y2);
        std::fprintf(f, "%%trace \"TOP\" 12700 %ld %ld %ld %ld \"SIG\";\n", x1, y1, x2, y2);
    }
    std::fclose(f);
    return path;
}

// A fresh model with the route's stack and net table, the input loaded.
void PrepareModel() {
    ResetTranslationOptions();
    ResetLayoutModel();
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    SetLayerName(g_model.g_aLayers[0], "TOP");
    g_model.g_aLayers[0].kind = kLayerSignal;
    SetLayerName(g_model.g_aLayers[1], "D1");
    g_model.g_aLayers[1].kind = kLayerDielectric;
    SetLayerName(g_model.g_aLayers[2], "BOTTOM");
    g_model.g_aLayers[2].kind = kLayerSignal;
    g_model.g_nLayerCount = 3;
    LoadNddInput(RouteFile());
    auto stream = OpenNdd(RouteFile());
    ParseNet(*stream);
    AssignNetColors();
}

void ReadRoute() {
    ParseTrace(RouteFile(), 0);
    ParseArcTrace(RouteFile(), 0);
    RebuildNodeArray();
    RebuildNodeIndex();
}

void WriteRoute(FILE* out) {
    MakeNode();
    FlipMirroredBottomNodes();
    WriteNodes(out);
    WriteTraces(out);
}

void SetFigures(benchmark::State& state) {
    state.counters["segments"] = kSegments;
    state.counters["cpu_s_per_100k"] =
        benchmark::Counter(kSegments / 100000.0, benchmark::Counter::kIsIterationInvariantRate |
                                                     benchmark::Counter::kInvert);
}

void BM_ReadAndWriteRoute(benchmark::State& state) {
    FILE* out = std::fopen("/dev/null", "w");
    for (auto _ : state) {
        state.PauseTiming();
        PrepareModel();
        state.ResumeTiming();
        ReadRoute();
        WriteRoute(out);
    }
    std::fclose(out);
    SetFigures(state);
}

void BM_ReadRoute(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        PrepareModel();
        state.ResumeTiming();
        ReadRoute();
    }
    if (g_model.TraceCount() != kSegments || g_model.g_nNodeCount != kSegments + 1)
        state.SkipWithError("the route did not read as one chain");
    SetFigures(state);
}

void BM_WriteRoute(benchmark::State& state) {
    FILE* out = std::fopen("/dev/null", "w");
    for (auto _ : state) {
        state.PauseTiming();
        PrepareModel();
        ReadRoute();
        state.ResumeTiming();
        WriteRoute(out);
    }
    std::fclose(out);
    SetFigures(state);
}

}  // namespace

BENCHMARK(BM_ReadAndWriteRoute)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ReadRoute)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_WriteRoute)->Unit(benchmark::kMillisecond)->Iterations(3);
