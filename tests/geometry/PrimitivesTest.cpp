// Point-in-shape and area cases are board scripts under tests/data/geometry/Primitives.
#include <gtest/gtest.h>

#include <cmath>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/EdgesOverlap.h"
#include "geometry/EquivalentRadius.h"
#include "geometry/RasterizeEdge.h"
#include "geometry/SegmentRectangle.h"

using namespace fixtures;

namespace {

class Primitives : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeSignalLayers({"TOP"});
    }
};

TEST_F(Primitives, SegmentRectangleAlongTheAxes) {
    AddSegmentRectangle(5, 8, 5, 2, 2, 0, 7, true);
    AddSegmentRectangle(1, 3, 6, 3, 2, 0, 7, false);
    ASSERT_EQ(2, g_model.ShapeCount());
    const ShapeRec& s = g_model.g_aShapes[0];
    EXPECT_EQ(kPolarityVoid, s.polarity);
    EXPECT_EQ(1, s.undiscardable);
    EXPECT_EQ(7, s.net);
    EXPECT_EQ((std::vector<ShapePoint>{{4, 1}, {4, 9}, {6, 9}, {6, 1}, {4, 1}}), PointsOf(0));
    EXPECT_EQ((std::vector<ShapePoint>{{1, 2}, {1, 4}, {6, 4}, {6, 2}, {1, 2}}), PointsOf(1));
}

TEST_F(Primitives, SlantedSegmentRectangleSurroundsTheSegment) {
    // From (0,0) to (3,4): length 5, half width 1, ends extended by 1.
    AddSegmentRectangle(0, 0, 3, 4, 2, 0, 7, true);
    std::vector<ShapePoint> p = PointsOf(0);
    ASSERT_EQ(5u, p.size());
    EXPECT_EQ(p[0], p[4]);
    // Along the segment the rectangle reaches 3.5 from the midpoint (1.5, 2); across it, 1.
    const double ux = 0.6, uy = 0.8;
    auto along = [&](ShapePoint q) { return (q.x - 1.5) * ux + (q.y - 2) * uy; };
    auto across = [&](ShapePoint q) { return -(q.x - 1.5) * uy + (q.y - 2) * ux; };
    EXPECT_NEAR(3.5, along(p[0]), 1e-12);
    EXPECT_NEAR(-3.5, along(p[1]), 1e-12);
    EXPECT_NEAR(-3.5, along(p[2]), 1e-12);
    EXPECT_NEAR(3.5, along(p[3]), 1e-12);
    EXPECT_NEAR(1.0, std::fabs(across(p[0])), 1e-12);
    EXPECT_NEAR(-across(p[0]), across(p[3]), 1e-12);
    EXPECT_NEAR(across(p[0]), across(p[1]), 1e-12);
}

TEST_F(Primitives, EdgesOverlapFindsSlitsButNotNeighbours) {
    // A keyhole: edge 3 runs (0,5)->(3,5), edge 9 back (3,5)->(0,5).
    std::vector<ShapePoint> p{{10, 0}, {10, 10}, {0, 10}, {0, 5}, {3, 5}, {3, 7},
                              {7, 7},  {7, 3},   {3, 3},  {3, 5}, {0, 5}, {0, 0}};
    const int32_t n = static_cast<int32_t>(p.size());
    EXPECT_EQ(0, EdgesOverlap(p.data(), 3, 9, n));
    EXPECT_EQ(0, EdgesOverlap(p.data(), 9, 3, n));
    EXPECT_EQ(-1, EdgesOverlap(p.data(), 3, 4, n));
    EXPECT_EQ(-1, EdgesOverlap(p.data(), 0, 11, n));
    // Edges 2 and 10 lie on x = 0 but only touch at (0,5).
    EXPECT_EQ(-1, EdgesOverlap(p.data(), 2, 10, n));
    EXPECT_EQ(-1, EdgesOverlap(p.data(), 1, 6, n));
}

TEST_F(Primitives, RasterizeEdgeListsTheCellsItCrosses) {
    LayerRec& L = g_model.g_aLayers[0];
    L.minX = 0;
    L.minY = 0;
    L.gridX = 1;
    L.gridY = 1;
    std::vector<int32_t> cells;
    // Along x through columns 0..2 in row 0.
    EXPECT_EQ(3, RasterizeEdge(0.5, 0.5, 2.5, 0.5, 0, cells));
    EXPECT_EQ((std::vector<int32_t>{0, 1, 2}), cells);
    // Along y from row 1 to row 2 in column 3, reversed ends.
    EXPECT_EQ(2, RasterizeEdge(3.5, 2.5, 3.5, 1.5, 0, cells));
    EXPECT_EQ((std::vector<int32_t>{1 * 256 + 3, 2 * 256 + 3}), cells);
    // On the grid line y = 1: the rows on both sides.
    EXPECT_EQ(2, RasterizeEdge(0.5, 1, 0.7, 1, 0, cells));
    EXPECT_EQ((std::vector<int32_t>{256, 0}), cells);
    // Too short, or starting beyond the grid.
    EXPECT_EQ(0, RasterizeEdge(1, 1, 1 + 1e-11, 1, 0, cells));
    EXPECT_EQ(0, RasterizeEdge(300, 1, 301, 1, 0, cells));
    // The far edge counts as the last cell.
    EXPECT_EQ(1, RasterizeEdge(255.5, 0.5, 256, 0.5, 0, cells));
    EXPECT_EQ((std::vector<int32_t>{255}), cells);
    L.gridY = 0;
    EXPECT_EQ(0, RasterizeEdge(0.5, 0.5, 2.5, 0.5, 0, cells));
}

TEST(EquivalentRadius, FourForms) {
    EXPECT_EQ(2.0 * 0.5 * 0.7, EquivalentRadiusCircle(2.0));
    EXPECT_EQ((2 * 1.0 + 2 * 3.0) * 0.7 / 6.283186, EquivalentRadiusRectangle(1.0, 3.0));
    EXPECT_EQ((2 * 1.0 + 2 * 0.0 + 6.283186 * 0.5) * 0.7 / 6.283186,
              EquivalentRadiusRoundLine(1.0, 0.0, 0.5));
    EXPECT_EQ(10.0 / 6.283185307179586 * 0.7, EquivalentRadiusPolygon(10.0));
    EXPECT_NE(EquivalentRadiusRectangle(1.0, 3.0), 8.0 / (2 * 3.141592653589793) * 0.7);
}

}  // namespace
