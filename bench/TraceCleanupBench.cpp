// Figures for the trace clean-up passes and the two side-file readers on large inputs.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "geometry/TraceCleanup.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "ndd/HkpReader.h"
#include "ndd/ThermalTies.h"
#include "ndd/TraceReader.h"

namespace {

void OneLayerBoard() {
    ResetTranslationOptions();
    ResetLayoutModel();
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    SetLayerName(g_model.g_aLayers[0], "L1");
    g_model.g_aLayers[0].kind = kLayerSignal;
    g_model.g_nLayerCount = 1;
    g_model.g_mapLayerId.Set("1", "L1");
}

// A chain along the diagonal whose every other segment is tiny, so half the traces merge.
void DiagonalChain(int64_t count) {
    double at = 0;
    for (int64_t i = 0; i < count; ++i) {
        const double step = i % 2 ? 1.0 : 0.001;
        GrowTraceArrays();
        AddTraceRecord(at, at, at + step, at + step, 0.1, 0, 65535);
        at += step;
    }
    RebuildNodeArray();
    RebuildNodeIndex();
}

void BM_ClearTinyTraces(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        OneLayerBoard();
        DiagonalChain(state.range(0));
        g_model.g_dbTinyTraceLimitSquared = 0.01;
        state.ResumeTiming();
        KickOutTrivialTrace();
        ClearTinyTraces();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ClearTinyTraces)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

// Traces on a grid of fills of another net: every trace gets a gap.
void BM_GenerateTraceGaps(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        OneLayerBoard();
        for (int i = 0; i < 1000; ++i) {
            ShapeRec fill;
            fill.layer = 0;
            fill.net = 1;
            const double x = (i % 40) * 10.0, y = (i / 40) * 10.0;
            AppendShape(fill, {{x, y}, {x + 9, y}, {x + 9, y + 9}, {x, y + 9}, {x, y}});
        }
        SortShapes();
        for (int64_t i = 0; i < state.range(0); ++i) {
            const double x = static_cast<double>(i % 4000) * 0.1, y = static_cast<double>(i / 4000);
            GrowTraceArrays();
            AddTraceRecord(x, y, x + 0.05, y + 0.03, 0.1, 0, 0);
        }
        RebuildNodeArray();
        RebuildNodeIndex();
        g_options.g_strTraceGapPercent = "20";
        state.ResumeTiming();
        GenerateTraceGaps();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_GenerateTraceGaps)->Arg(100000)->Unit(benchmark::kMillisecond);

std::string WriteTemp(const std::string& name, const std::string& text) {
    std::string path = "/tmp/ndd2qfx_bench_" + name;
    FILE* f = std::fopen(path.c_str(), "w");
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
    return path;
}

void BM_ParseThermalTies(benchmark::State& state) {
    std::string text = "TTT T 0.1 0 0 0\nARS \"\" \"1\"\n";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += "TTI " + std::to_string(i % 1000 + 0.5) + " " + std::to_string(i / 1000 + 0.5) +
                " T 0 0.2 0.2 15\n";
    const std::string path = WriteTemp("traces", text);
    for (auto _ : state) {
        state.PauseTiming();
        OneLayerBoard();
        g_model.g_dbLengthScale = 1.0;
        g_options.g_nIncludeNoNetEtches = 1;
        ShapeRec fill;
        fill.layer = 0;
        AppendShape(fill, {{0, 0}, {2000, 0}, {2000, 2000}, {0, 2000}, {0, 0}});
        SortShapes();
        g_options.g_strTraceFile = path;
        state.ResumeTiming();
        ParseThermalTies();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    std::remove(path.c_str());
}
BENCHMARK(BM_ParseThermalTies)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_ParseHkpFile(benchmark::State& state) {
    std::string text = ".UNITS MM\n.NET \"\"\n";
    for (int64_t i = 0; i < state.range(0); ++i)
        text +=
            " ..CONDUCTIVE_AREA\n  ...ROUTE_LYR L1\n  ...CONDUCTIVE_AREA_OPTIONS "
            "CONDUCTIVE_SHAPE\n   ....POLYLINE_SHAPE\n    .....XY (0, 0)\n     (4, 0)\n     (4, "
            "4)\n     (0, 4)\n";
    const std::string path = WriteTemp("layout.hkp", text);
    for (auto _ : state) {
        state.PauseTiming();
        OneLayerBoard();
        g_options.g_nIncludeNoNetEtches = 1;
        g_options.g_strHkpFile = path;
        state.ResumeTiming();
        ParseHkpFile();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    std::remove(path.c_str());
}
BENCHMARK(BM_ParseHkpFile)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
