#include "geometry/NodeGrid.h"

#include <algorithm>
#include <cmath>

#include "model/LayoutModel.h"

namespace {

constexpr double kCellLimit = 1e15;  // cells beyond this are no cells of any board

}  // namespace

bool NodeGrid::Key(int32_t layer, double x, double y, int64_t& cx, int64_t& cy) {
    const double fx = std::floor(x / kNodeGridCell), fy = std::floor(y / kNodeGridCell);
    if (!(std::fabs(fx) < kCellLimit) || !(std::fabs(fy) < kCellLimit) || layer < 0) return false;
    cx = static_cast<int64_t>(fx);
    cy = static_cast<int64_t>(fy);
    return true;
}

uint64_t NodeGrid::CellKey(int32_t layer, int64_t cx, int64_t cy) {
    // Two cells (of any layers) may share a key and so a vector: that only adds candidates,
    // which the caller tests anyway.
    uint64_t h = static_cast<uint64_t>(layer) * 0x9E3779B97F4A7C15ull;
    h ^= static_cast<uint64_t>(cx) + 0x632BE59BD9B4E019ull + (h << 6) + (h >> 2);
    h ^= static_cast<uint64_t>(cy) + 0x85EBCA77C2B2AE63ull + (h << 6) + (h >> 2);
    return h;
}

bool NodeGrid::Wanted(int32_t layer) const {
    return layer >= 0 && static_cast<size_t>(layer) < wanted_.size() && wanted_[layer];
}

std::vector<const NodeRec*>* NodeGrid::CellOf(const NodeRec* node, double x, double y) {
    int64_t cx, cy;
    if (!Key(node->layer, x, y, cx, cy)) return &odd_;
    return &cells_.Get(CellKey(node->layer, cx, cy));
}

void NodeGrid::Build(std::vector<bool> wanted) {
    wanted_ = std::move(wanted);
    cells_.Clear();
    odd_.clear();
    for (const NodeRec& n : g_model.g_setNodes) Add(&n);
}

void NodeGrid::Add(const NodeRec* node) {
    if (Wanted(node->layer)) CellOf(node, node->x, node->y)->push_back(node);
}

void NodeGrid::Moved(const NodeRec* node, double oldX, double oldY) {
    if (!Wanted(node->layer)) return;
    // A via moves its nodes by less than the node tolerance: nearly always within their cell.
    int64_t oldCx, oldCy, cx, cy;
    if (Key(node->layer, oldX, oldY, oldCx, oldCy) && Key(node->layer, node->x, node->y, cx, cy) &&
        oldCx == cx && oldCy == cy)
        return;
    std::vector<const NodeRec*>* from = CellOf(node, oldX, oldY);
    std::vector<const NodeRec*>* to = CellOf(node, node->x, node->y);
    if (from == to) return;
    auto it = std::find(from->begin(), from->end(), node);
    if (it != from->end()) {
        *it = from->back();
        from->pop_back();
    }
    to->push_back(node);
}
