// Time of CleanPolygon on one large ring: saw teeth along the bottom and holes hanging from
// slits along the top, with `points` points of which a tenth make the slits and holes.
#include <benchmark/benchmark.h>

#include <memory>

#include "geometry/CleanPolygon.h"
#include "geometry/ShapeTable.h"
#include "model/LayoutModel.h"

namespace {

void BuildComb(int64_t points) {
    ResetLayoutModel();
    const int64_t holes = points / 80;
    const int64_t teeth = points - holes * 8;
    const double width = 10.0 * static_cast<double>(holes) + 10;
    std::vector<ShapePoint> p;
    p.reserve(static_cast<size_t>(points) + 4);
    for (int64_t k = 0; k < teeth; ++k)
        p.push_back({width * static_cast<double>(k) / static_cast<double>(teeth), (k % 2) * 0.5});
    p.push_back({width, 100});
    for (int64_t j = holes - 1; j >= 0; --j) {
        double x = 10.0 * static_cast<double>(j) + 5;
        for (ShapePoint q :
             {ShapePoint{x, 100}, ShapePoint{x, 60}, ShapePoint{x + 2, 60}, ShapePoint{x + 2, 50},
              ShapePoint{x - 2, 50}, ShapePoint{x - 2, 60}, ShapePoint{x, 60}, ShapePoint{x, 100}})
            p.push_back(q);
    }
    p.push_back({0, 100});
    ShapeRec rec;
    rec.layer = 0;
    AppendShape(rec, p);
}

void BM_CleanPolygon(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        BuildComb(state.range(0));
        state.ResumeTiming();
        CleanPolygon(0);
    }
    state.counters["shapes"] = static_cast<double>(g_model.g_aShapes.size());
    ResetLayoutModel();
}

}  // namespace

BENCHMARK(BM_CleanPolygon)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond)->Iterations(1);
