// Time of the undiscardable void check on one signal layer with many traces and voids.
#include <benchmark/benchmark.h>

#include <random>

#include "geometry/CheckUndiscardableVoids.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"

namespace {

// A 200 x 200 mm signal layer: `traces` short traces in random directions, and 5000 small
// voids, squares and circles. Half the voids stand in a square of 50 mm that no trace enters,
// so that they are kept discardable only after every trace of their cells was tried. Nodes go
// straight into the flat array: the check reads trace ends through the index only.
bool InHole(double x, double y, double margin) {
    return x > 75 - margin && x < 125 + margin && y > 75 - margin && y < 125 + margin;
}

void MakeBoard(int64_t traces) {
    ResetLayoutModel();
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    g_model.g_aLayers[0].kind = kLayerSignal;
    g_model.g_nLayerCount = 1;
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> pos(0, 200), step(-2, 2), size(0.2, 1.0);
    auto& nodes = g_model.g_aNodes;
    nodes.reserve(static_cast<size_t>(traces) * 2);
    for (int64_t i = 0; i < traces; ++i) {
        double x = pos(rng), y = pos(rng);
        while (InHole(x, y, 2.0)) x = pos(rng);
        for (int end = 0; end < 2; ++end) {
            NodeRec n;
            n.id = static_cast<uint32_t>(nodes.size());
            n.x = end ? x + step(rng) : x;
            n.y = end ? y + step(rng) : y;
            nodes.push_back(n);
        }
        TraceRec t;
        t.width = 0.1;
        t.layer = 0;
        t.startNode = static_cast<int32_t>(2 * i);
        t.endNode = static_cast<int32_t>(2 * i + 1);
        g_model.g_aTraces.push_back(t);
    }
    g_model.g_nNodeCount = static_cast<uint32_t>(nodes.size());
    for (int v = 0; v < 5000; ++v) {
        ShapeRec s;
        s.layer = 0;
        s.polarity = kPolarityVoid;
        double x = pos(rng), y = pos(rng), a = size(rng);
        if (v % 2 == 0) {
            x = 75 + (x / 200) * 49;
            y = 75 + (y / 200) * 49;
        }
        if (v % 4 == 0) {
            s.geometry = kGeometryCircle;
            AppendShape(s, {{x, y}, {a / 2, a / 2}});
        } else {
            AppendShape(s, {{x, y}, {x, y + a}, {x + a, y + a}, {x + a, y}});
        }
    }
    SortShapes();
}

void BM_CheckUndiscardableVoids(benchmark::State& state) {
    MakeBoard(state.range(0));
    int64_t kept = 0;
    for (auto _ : state) {
        state.PauseTiming();
        for (ShapeRec& s : g_model.g_aShapes) s.undiscardable = 0;
        state.ResumeTiming();
        CheckUndiscardableVoids();
        state.PauseTiming();
        kept = 0;
        for (const ShapeRec& s : g_model.g_aShapes) kept += s.undiscardable;
        state.ResumeTiming();
    }
    state.counters["voids_kept"] = static_cast<double>(kept);
}

BENCHMARK(BM_CheckUndiscardableVoids)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

}  // namespace
