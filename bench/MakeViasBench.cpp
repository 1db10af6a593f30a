// Time of MakeVias for many through vias over a stack with fills, voids and traces.
#include <benchmark/benchmark.h>

#include <random>

#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "qfx/MakeVias.h"

namespace {

// Four conductor layers of 200 x 200 mm. Each middle layer has a fill of net 0 with a small
// void at every fourth via, and a trace ends at the centre of every third via on layer 4.
void MakeBoard(int64_t vias) {
    ResetLayoutModel();
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    const uint8_t kinds[] = {kLayerSignal, kLayerDielectric, kLayerPlane, kLayerDielectric,
                             kLayerSignal, kLayerDielectric, kLayerSignal};
    for (int i = 0; i < 7; ++i) g_model.g_aLayers[i].kind = kinds[i];
    g_model.g_nLayerCount = 7;
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> pos(1, 199);
    ShapeRec fill;
    fill.layer = 2;
    fill.net = 0;
    AppendShape(fill, {{0, 0}, {0, 200}, {200, 200}, {200, 0}});
    for (int64_t i = 0; i < vias; ++i) {
        ViaRec via;
        via.x = pos(rng);
        via.y = pos(rng);
        via.net = static_cast<int32_t>(i % 3);
        via.startLayer = 0;
        via.endLayer = 6;
        g_model.g_aVias.push_back(via);
        if (i % 4 == 0) {
            ShapeRec v = fill;
            v.polarity = kPolarityVoid;
            AppendShape(v, {{via.x - 0.1, via.y - 0.1},
                            {via.x - 0.1, via.y + 0.1},
                            {via.x + 0.1, via.y + 0.1},
                            {via.x + 0.1, via.y - 0.1}});
        }
        if (i % 3 == 0) AddNode(nullptr, via.x, via.y, 4, via.net, 1, nullptr, 0.0);
    }
    SortShapes();
}

void BM_MakeVias(benchmark::State& state) {
    MakeBoard(state.range(0));
    const NodeSet nodes = g_model.g_setNodes;
    const uint32_t count = g_model.g_nNodeCount;
    for (auto _ : state) {
        state.PauseTiming();
        g_model.g_setNodes = nodes;
        g_model.g_nNodeCount = count;
        state.ResumeTiming();
        benchmark::DoNotOptimize(MakeVias());
    }
    state.counters["stretches"] = static_cast<double>(g_model.g_aViaOut.size());
}

BENCHMARK(BM_MakeVias)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
