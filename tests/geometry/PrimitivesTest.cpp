#include <gtest/gtest.h>

#include <cmath>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/EdgesOverlap.h"
#include "geometry/EquivalentRadius.h"
#include "geometry/PointInShape.h"
#include "geometry/RasterizeEdge.h"
#include "geometry/SegmentRectangle.h"
#include "geometry/ShapeArea.h"
#include "geometry/ShapeBoxes.h"

using namespace fixtures;

namespace {

class Primitives : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeSignalLayers({"TOP"});
    }
};

const std::vector<ShapePoint> kSquare{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};

TEST_F(Primitives, PointOnEdgeIsInsideForPointInShapeAndOnOutlineForStrict) {
    int32_t i = AddPolygon(0, kPolarityCopper, 0, kSquare);
    BuildShapeBoxes();
    EXPECT_EQ(1, PointInShape(i, 10, 5, false));   // right edge
    EXPECT_EQ(1, PointInShape(i, 0, 5, true));     // left edge, on the box
    EXPECT_EQ(1, PointInShape(i, 5, 0, false));    // bottom edge
    EXPECT_EQ(1, PointInShape(i, 10, 10, false));  // corner
    EXPECT_EQ(1, PointInShape(i, 5, 5, false));
    EXPECT_EQ(0, PointInShape(i, 11, 5, false));
    EXPECT_EQ(0, PointInShape(i, -1, 5, false));

    // The strict test runs on outlines as the clean-up round leaves them: without the
    // repeated closing point.
    const ShapePoint* p = g_model.g_aShapePoints.data();
    EXPECT_EQ(0, PointInPolygonStrict(10, 5, i, p, 4));
    EXPECT_EQ(0, PointInPolygonStrict(0, 5, i, p, 4));
    EXPECT_EQ(0, PointInPolygonStrict(5, 0, i, p, 4));
    EXPECT_EQ(0, PointInPolygonStrict(5, 10 + 1e-14, i, p, 4));
    EXPECT_EQ(0, PointInPolygonStrict(10, 10, i, p, 4));
    EXPECT_EQ(-1, PointInPolygonStrict(5, 5, i, p, 4));
    EXPECT_EQ(-1, PointInPolygonStrict(9.9, 0.1, i, p, 4));
    EXPECT_EQ(1, PointInPolygonStrict(10.5, 5, i, p, 4));
    EXPECT_EQ(1, PointInPolygonStrict(5, 10 + 1e-13, i, p, 4));
    EXPECT_EQ(1, PointInPolygonStrict(-1, 0, i, p, 4));
    EXPECT_EQ(1, PointInPolygonStrict(5, 5, i, p, 0));
}

TEST_F(Primitives, PointLevelWithHorizontalEdgeAnswersAsJustAbove) {
    // A notch: the level edge from (4,6) to (8,6) has a point left and right of it.
    int32_t i =
        AddPolygon(0, kPolarityCopper, 0,
                   {{0, 0}, {10, 0}, {10, 10}, {8, 10}, {8, 6}, {4, 6}, {4, 10}, {0, 10}, {0, 0}});
    for (double x : {2.0, 9.0, 11.0, -1.0, 3.0})
        EXPECT_EQ(PointInShape(i, x, 6.0 + 1e-9, false), PointInShape(i, x, 6.0, false)) << x;
    EXPECT_EQ(1, PointInShape(i, 2, 6, false));
    EXPECT_EQ(0, PointInShape(i, 11, 6, false));
    EXPECT_EQ(1, PointInShape(i, 6, 6, false));  // on the level edge itself
    EXPECT_EQ(0, PointInShape(i, 6, 7, false));  // in the notch
}

TEST_F(Primitives, TwoPointPolygonIsNeverInsideAndCircleCountsItsRim) {
    int32_t line = AddPolygon(0, kPolarityCopper, 0, {{0, 0}, {10, 0}});
    EXPECT_EQ(0, PointInShape(line, 0, 0, false));
    EXPECT_EQ(0, PointInShape(line, 5, 0, false));
    int32_t c = AddCircle(0, kPolarityCopper, 0, 1, 1, 2);
    BuildShapeBoxes();
    EXPECT_EQ(1, PointInShape(c, 3, 1, true));
    EXPECT_EQ(0, PointInShape(c, 3, 3, false));
    EXPECT_EQ(0, PointInShape(c, 3.5, 1, true));
}

TEST_F(Primitives, AreaIgnoresTheClosingPoint) {
    int32_t closed = AddPolygon(0, 2, 0, {{0, 0}, {0, 2}, {3, 2}, {3, 0}, {0, 0}});
    int32_t open = AddPolygon(0, 2, 0, {{0, 0}, {0, 2}, {3, 2}, {3, 0}});
    int32_t two = AddPolygon(0, 2, 0, {{0, 0}, {3, 2}});
    int32_t none = AddPolygon(0, 2, 0, {});
    int32_t circle = AddCircle(0, kPolarityCopper, 0, 5, 5, 2);
    EXPECT_EQ(6.0, ShapeArea(closed));
    EXPECT_EQ(6.0, ShapeArea(open));
    EXPECT_EQ(0.0, ShapeArea(two));
    EXPECT_EQ(0.0, ShapeArea(none));
    EXPECT_EQ(3.141592653589793 * 2 * 2, ShapeArea(circle));
}

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
