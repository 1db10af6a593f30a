#pragma once
// The nodes of some layers by square cells, for the question "is there a node of layer L within
// r of (x, y)?", which a walk of the node set answers only by walking the strip x ± r of the
// whole layer. Holds pointers into the node set: keep it in step when nodes are added or moved.
#include <cstdint>
#include <vector>

#include "geometry/CellTable.h"
#include "model/NodeRec.h"

class NodeGrid {
  public:
    // Enters the set's nodes of the layers marked in wanted (by layer index).
    void Build(std::vector<bool> wanted);
    // A node new in the set.
    void Add(const NodeRec* node);
    // A node of the set whose position changed from (oldX, oldY).
    void Moved(const NodeRec* node, double oldX, double oldY);

    // Calls visit for every entered node of layer that lies in the square x ± r, y ± r (and
    // for some others). False, having called nothing, when the grid cannot tell: the square is
    // too big or not finite.
    template <class Visit>
    bool ForNear(int32_t layer, double x, double y, double r, Visit&& visit) const;

  private:
    static bool Key(int32_t layer, double x, double y, int64_t& cx, int64_t& cy);
    static uint64_t CellKey(int32_t layer, int64_t cx, int64_t cy);
    bool Wanted(int32_t layer) const;
    std::vector<const NodeRec*>* CellOf(const NodeRec* node, double x, double y);

    std::vector<bool> wanted_;
    CellTable cells_;
    std::vector<const NodeRec*> odd_;  // nodes with a coordinate that is no finite number
};

constexpr double kNodeGridCell = 0.5;  // mm
constexpr int64_t kNodeGridMaxCells = 4096;

template <class Visit>
bool NodeGrid::ForNear(int32_t layer, double x, double y, double r, Visit&& visit) const {
    int64_t x0, y0, x1, y1;
    // Cells are monotonic in the coordinates, and a node moved is entered anew, so a node
    // within the square stands in one of these cells.
    if (!Key(layer, x - r, y - r, x0, y0) || !Key(layer, x + r, y + r, x1, y1)) return false;
    if ((x1 - x0 + 1) * (y1 - y0 + 1) > kNodeGridMaxCells) return false;
    for (int64_t cx = x0; cx <= x1; ++cx)
        for (int64_t cy = y0; cy <= y1; ++cy) {
            const CellTable::List* found = cells_.Find(CellKey(layer, cx, cy));
            if (!found) continue;
            for (const NodeRec* n : *found) visit(*n);
        }
    for (const NodeRec* n : odd_)
        if (n->layer == layer) visit(*n);
    return true;
}
