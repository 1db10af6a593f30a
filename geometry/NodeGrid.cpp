#include "geometry/NodeGrid.h"

#include <algorithm>
#include <cmath>

#include "model/LayoutModel.h"

namespace {

constexpr double kCellLimit = 1e15;  // cells beyond this are no cells of any board

}  // namespace

bool NodeGrid::Key(double x, double y, int64_t& cx, int64_t& cy) {
    const double fx = std::floor(x / kNodeGridCell), fy = std::floor(y / kNodeGridCell);
    if (!(std::fabs(fx) < kCellLimit) || !(std::fabs(fy) < kCellLimit)) return false;
    cx = static_cast<int64_t>(fx);
    cy = static_cast<int64_t>(fy);
    return true;
}

uint64_t NodeGrid::CellKey(int64_t cx, int64_t cy) {
    // Two cells may share a key and so a list: that only adds candidates, which the caller
    // tests anyway.
    uint64_t h = static_cast<uint64_t>(cx) * 0x9E3779B97F4A7C15ull;
    h ^= static_cast<uint64_t>(cy) + 0x85EBCA77C2B2AE63ull + (h << 6) + (h >> 2);
    return h;
}

bool NodeGrid::Wanted(int32_t layer) const {
    return layer >= 0 && static_cast<size_t>(layer) < wanted_.size() && wanted_[layer];
}

std::vector<const NodeRec*>* NodeGrid::CellOf(double x, double y) {
    int64_t cx, cy;
    if (!Key(x, y, cx, cy)) return &odd_;
    return &cells_.Get(CellKey(cx, cy));
}

std::vector<const NodeRec*>* NodeGrid::EnteredCellOf(double x, double y) {
    int64_t cx, cy;
    if (!Key(x, y, cx, cy)) return &odd_;
    return cells_.Find(CellKey(cx, cy));
}

void NodeGrid::Build(std::vector<bool> wanted) {
    wanted_ = std::move(wanted);
    cells_.Clear();
    odd_.clear();
    for (const NodeRec& n : g_model.g_setNodes) Add(&n);
}

void NodeGrid::Add(const NodeRec* node) {
    if (Wanted(node->layer)) CellOf(node->x, node->y)->push_back(node);
}

void NodeGrid::Moved(const NodeRec* node, double oldX, double oldY) {
    if (!Wanted(node->layer)) return;
    // A via moves its nodes by less than the node tolerance: nearly always within their cell.
    int64_t oldCx, oldCy, cx, cy;
    if (Key(oldX, oldY, oldCx, oldCy) && Key(node->x, node->y, cx, cy) && oldCx == cx &&
        oldCy == cy)
        return;
    // The new cell first: making it may move the others, and the old one exists already.
    std::vector<const NodeRec*>* to = CellOf(node->x, node->y);
    std::vector<const NodeRec*>* from = EnteredCellOf(oldX, oldY);
    if (from == to) return;
    if (from) {
        auto it = std::find(from->begin(), from->end(), node);
        if (it != from->end()) {
            *it = from->back();
            from->pop_back();
        }
    }
    to->push_back(node);
}
