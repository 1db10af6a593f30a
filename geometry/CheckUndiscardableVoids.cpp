#include "geometry/CheckUndiscardableVoids.h"

#include <algorithm>
#include <map>
#include <vector>

#include "geometry/PointInShape.h"
#include "geometry/ShapeLocator.h"
#include "geometry/ShapeTable.h"
#include "geometry/TraceInVoid.h"
#include "geometry/VoidTraceGrid.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"

namespace {

// Trace indices in order of their layers; bit 30 marks a trace already tried for one void.
constexpr uint32_t kVisited = 0x40000000u;
constexpr uint32_t kTraceIndexBits = 0x3FFFFFFFu;
// The grid is used when the last position of a span lies more than this beyond its first.
constexpr size_t kGridAbove = 256;

bool IsVoid(const ShapeRec& s) {
    return s.polarity != kPolarityCopper;
}

int32_t TraceLayer(uint32_t entry) {
    return g_model.g_aTraces[entry & kTraceIndexBits].layer;
}

// All trace indices grouped by layer, layers rising. Within a layer the order is left open.
std::vector<uint32_t> TracesByLayer() {
    const auto& traces = g_model.g_aTraces;
    std::map<int32_t, size_t> start;
    for (const TraceRec& t : traces) ++start[t.layer];
    size_t at = 0;
    for (auto& entry : start) {
        size_t count = entry.second;
        entry.second = at;
        at += count;
    }
    std::vector<uint32_t> order(traces.size());
    for (size_t i = 0; i < traces.size(); ++i)
        order[start[traces[i].layer]++] = static_cast<uint32_t>(i);
    return order;
}

bool IsSignalLayer(int32_t layer) {
    return layer >= 0 && layer < g_model.g_nLayerCount &&
           g_model.g_aLayers[layer].kind == kLayerSignal;
}

// A void holding the first point of an earlier copper shape of its layer holds an island:
// dropping it would join the island to the fill around it. Since the table rises in area, an
// island comes before the void around it.
void MarkIslands(ShapeRun run, ShapeLocator& locator) {
    auto& shapes = g_model.g_aShapes;
    const auto& points = g_model.g_aShapePoints;
    for (int32_t p = run.first; p < run.end; ++p) {
        const ShapeRec& island = shapes[static_cast<size_t>(p)];
        if (IsVoid(island) || island.pointCount <= 0 || island.firstPoint < 0 ||
            static_cast<size_t>(island.firstPoint) >= points.size())
            continue;
        const ShapePoint pt = points[static_cast<size_t>(island.firstPoint)];
        locator.Visit(island.layer, pt.x, pt.y, [&](int32_t v) {
            if (v <= p || v >= run.end) return false;
            ShapeRec& s = shapes[static_cast<size_t>(v)];
            if (IsVoid(s) && !s.undiscardable && PointInShape(v, pt.x, pt.y, true))
                s.undiscardable = 1;
            return false;
        });
    }
}

// The traces of one layer against the voids of its run.
class LayerTraceCheck {
  public:
    LayerTraceCheck(std::vector<uint32_t>& order, VoidTraceGrid& grid)
        : order_(order), grid_(grid) {}

    void Run(ShapeRun run, VoidCheckMode mode) {
        FindSpan(g_model.g_aShapes[static_cast<size_t>(run.first)].layer);
        // A lone trace on a layer is not tried: it does not protect a void.
        if (end_ - first_ < 2) return;
        CollectEnds();
        const bool useGrid = mode == VoidCheckMode::kNormal && end_ - 1 > first_ + kGridAbove &&
                             grid_.Build(ends_, positions_);
        for (int32_t v = run.first; v < run.end; ++v) {
            ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(v)];
            if (!IsVoid(s) || s.undiscardable) continue;
            VoidTraceTest test(v);
            if (useGrid ? GridHit(test) : PlainHit(test)) s.undiscardable = 1;
        }
    }

  private:
    void FindSpan(int32_t layer) {
        auto lower = std::lower_bound(order_.begin(), order_.end(), layer,
                                      [](uint32_t e, int32_t l) { return TraceLayer(e) < l; });
        auto upper = std::upper_bound(lower, order_.end(), layer,
                                      [](int32_t l, uint32_t e) { return l < TraceLayer(e); });
        first_ = static_cast<size_t>(lower - order_.begin());
        end_ = static_cast<size_t>(upper - order_.begin());
    }

    void CollectEnds() {
        ends_.assign(end_ - first_, TraceEnds());
        positions_.resize(end_ - first_);
        for (size_t k = first_; k < end_; ++k) {
            const TraceRec& t = g_model.g_aTraces[order_[k] & kTraceIndexBits];
            const NodeRec* a = NodeById(t.startNode);
            const NodeRec* b = NodeById(t.endNode);
            TraceEnds& e = ends_[k - first_];
            if (a && b) e = TraceEnds{{a->x, a->y}, {b->x, b->y}, true};
            positions_[k - first_] = static_cast<uint32_t>(k);
        }
    }

    bool PlainHit(VoidTraceTest& test) const {
        for (const TraceEnds& e : ends_)
            if (e.known && test.Hit(e.a, e.b)) return true;
        return false;
    }

    // Walks the cells under the void's box; a trace standing in several of them is tried once.
    bool GridHit(VoidTraceTest& test) {
        if (!grid_.Overlaps(test.Box())) return false;
        const VoidTraceGrid::CellRange r = grid_.Range(test.Box());
        bool hit = false;
        visited_.clear();
        for (int32_t row = r.row0; row <= r.row1 && !hit; ++row)
            for (int32_t col = r.col0; col <= r.col1 && !hit; ++col)
                for (uint32_t pos : grid_.Cell(row, col)) {
                    if (order_[pos] & kVisited) continue;
                    order_[pos] |= kVisited;
                    visited_.push_back(pos);
                    const TraceEnds& e = ends_[pos - first_];
                    if (test.Hit(e.a, e.b)) {
                        hit = true;
                        break;
                    }
                }
        for (uint32_t pos : visited_) order_[pos] &= ~kVisited;
        return hit;
    }

    std::vector<uint32_t>& order_;
    VoidTraceGrid& grid_;
    size_t first_ = 0, end_ = 0;
    std::vector<TraceEnds> ends_;
    std::vector<uint32_t> positions_;
    std::vector<uint32_t> visited_;
};

}  // namespace

void CheckUndiscardableVoids(VoidCheckMode mode) {
    if (g_model.TraceCount() > 0) RebuildNodeIndex();
    std::vector<uint32_t> order = TracesByLayer();
    VoidTraceGrid grid;
    ShapeLocator locator;
    const auto& shapes = g_model.g_aShapes;
    const int32_t count = g_model.ShapeCount();
    for (int32_t i = 0; i < count;) {
        ShapeRun run{i, i + 1};
        const int32_t layer = shapes[static_cast<size_t>(i)].layer;
        while (run.end < count && shapes[static_cast<size_t>(run.end)].layer == layer) ++run.end;
        MarkIslands(run, locator);
        if (IsSignalLayer(layer)) LayerTraceCheck(order, grid).Run(run, mode);
        i = run.end;
    }
}
