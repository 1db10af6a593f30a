// Time of SeparateTouchingEdges on one layer of touching squares, for 100 thousand and for a
// million outline points: the figures should grow about tenfold.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "geometry/SeparateTouchingEdges.h"
#include "geometry/ShapeTable.h"
#include "ndd/FinishShapes.h"
#include "ndd/LayoutModel.h"

namespace {

// A side x side field of unit squares on layer 0; neighbours belong to different nets, so every
// inner edge is shared by two shapes that must move apart.
void BuildField(int64_t points) {
    ResetLayoutModel();
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    SetLayerName(g_model.g_aLayers[0], "TOP");
    g_model.g_aLayers[0].kind = kLayerSignal;
    g_model.g_nLayerCount = 1;
    const int side = static_cast<int>(std::sqrt(static_cast<double>(points / 4)));
    g_model.g_aShapes.reserve(static_cast<size_t>(side) * side);
    g_model.g_aShapePoints.reserve(static_cast<size_t>(side) * side * 4);
    for (int i = 0; i < side; ++i)
        for (int j = 0; j < side; ++j) {
            ShapeRec rec;
            rec.layer = 0;
            rec.net = (i + j) % 2;
            rec.polarity = kPolarityCopper;
            double x = i, y = j;
            AppendShape(rec, {{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}});
        }
    SetLayerExtents();
}

void BM_SeparateTouchingEdges(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        BuildField(state.range(0));
        state.ResumeTiming();
        SeparateTouchingEdges();
    }
    state.counters["points"] = static_cast<double>(g_model.g_aShapePoints.size());
    ResetLayoutModel();
}

}  // namespace

BENCHMARK(BM_SeparateTouchingEdges)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
