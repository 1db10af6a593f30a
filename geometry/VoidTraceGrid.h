#pragma once
// A coarse grid of the traces of one layer, so that a void is tested only against the traces
// that pass near it. Fixed at 16 x 16 cells over the box of the traces' ends; used for layers
// of more than 257 traces, where a plain loop over voids and traces would take too long.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/ShapeRec.h"

// A trace's two ends; known is false when a node could not be found.
struct TraceEnds {
    ShapePoint a, b;
    bool known = false;
};

class VoidTraceGrid {
  public:
    static constexpr int32_t kSide = 16;

    // Empties the cells, and enters every known trace, with the given value (its position),
    // into each cell that it passes through. Answers false, leaving the cells empty, when the
    // box of the ends is flat in either axis or there is no known trace.
    bool Build(const std::vector<TraceEnds>& traces, const std::vector<uint32_t>& values);

    const BoundingBox& Box() const { return box_; }
    bool Overlaps(const BoundingBox& b) const;

    // The cells that may hold a trace with a point inside box b, which overlaps the grid.
    struct CellRange {
        int32_t row0, row1, col0, col1;
    };
    CellRange Range(const BoundingBox& b) const;

    const std::vector<uint32_t>& Cell(int32_t row, int32_t col) const {
        return cells_[static_cast<size_t>(row * kSide + col)];
    }

  private:
    void Enter(uint32_t value, const TraceEnds& t);
    void Walk(uint32_t value, ShapePoint p, ShapePoint q, bool alongX);

    BoundingBox box_;
    double cellW_ = 0.0, cellH_ = 0.0;
    std::vector<uint32_t> cells_[kSide * kSide];
};
