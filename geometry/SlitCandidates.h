#pragma once
// A cell index over the edges of one ring, so that the search for the edge that runs back along
// a slit looks only at edges near it instead of all of them.
#include <cstdint>
#include <vector>

#include "model/ShapeRec.h"

class SlitCandidates {
  public:
    // Indexes the edges k -> k+1 (the last one closing the ring) of points[0..count).
    void Build(const ShapePoint* points, int32_t count);

    // The edges above a of the ring (as it is now, at points), in rising order, that can share a
    // stretch with edge a as EdgesOverlap sees it: every edge whose box comes near edge a's box.
    // False when the index cannot tell (no usable cells, or edge a too short for a bounded search);
    // then every edge above a must be tried.
    bool Near(const ShapePoint* points, int32_t a, std::vector<int32_t>& out) const;

    // The ring was cut as CleanPolygon cuts a slit: the points at positions a+1-u .. b left it
    // and those behind b moved up to a+1-u. The edges kept keep their entries.
    void OnCut(int32_t a, int32_t b, int32_t u);

  private:
    struct Span {
        int c0, c1, r0, r1;
    };
    Span SpanOf(double x0, double y0, double x1, double y1) const;
    void Add(int32_t entry, int32_t a, std::vector<int32_t>& out) const;

    int32_t n_ = 0;
    bool usable_ = false;
    double minX_ = 0, minY_ = 0, cell_ = 0;
    int cols_ = 0, rows_ = 0;
    std::vector<uint32_t> start_;
    std::vector<int32_t> items_;
    std::vector<int32_t> wide_;  // edges over many cells, tried for every search
    // Entries hold the positions of the edges when the index was built; where each is now,
    // -1 once it has left the ring, and the other way round.
    std::vector<int32_t> now_;
    std::vector<int32_t> builtAt_;
};
