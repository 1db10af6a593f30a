// Time of SeparateTouchingEdges on layers of touching squares, for 100 thousand and for a
// million outline points, and for both layers in one board: the figures should grow about
// tenfold from the first to the second.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "geometry/FinishShapes.h"
#include "geometry/SeparateTouchingEdges.h"
#include "geometry/ShapeTable.h"
#include "model/LayoutModel.h"

namespace {

void StartModel() {
    ResetLayoutModel();
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    SetLayerName(g_model.g_aLayers[0], "TOP");
    SetLayerName(g_model.g_aLayers[1], "BOTTOM");
    g_model.g_aLayers[0].kind = kLayerSignal;
    g_model.g_aLayers[1].kind = kLayerSignal;
    g_model.g_nLayerCount = 2;
}

// A side x side field of unit squares; neighbours belong to different nets, so every inner edge
// is shared by two shapes that must move apart.
void AddField(int64_t points, int32_t layer) {
    const int side = static_cast<int>(std::sqrt(static_cast<double>(points / 4)));
    for (int i = 0; i < side; ++i)
        for (int j = 0; j < side; ++j) {
            ShapeRec rec;
            rec.layer = layer;
            rec.net = (i + j) % 2;
            rec.polarity = kPolarityCopper;
            double x = i, y = j;
            AppendShape(rec, {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}});
        }
}

void BM_SeparateTouchingEdges(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        StartModel();
        AddField(state.range(0), 0);
        if (state.range(1) > 0) AddField(state.range(1), 1);
        SetLayerExtents();
        state.ResumeTiming();
        SeparateTouchingEdges();
    }
    state.counters["points"] = static_cast<double>(g_model.g_aShapePoints.size());
    ResetLayoutModel();
}

}  // namespace

// One layer of 100 thousand points, one of a million, and a million next to 100 thousand.
BENCHMARK(BM_SeparateTouchingEdges)
    ->Args({100000, 0})
    ->Args({1000000, 0})
    ->Args({1000000, 100000})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
