#include "geometry/ShapeLocator.h"

#include <gtest/gtest.h>

#include <random>

#include "TestSupport.h"
#include "geometry/PointInShape.h"
#include "geometry/PointOnNetShape.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"

namespace {

void Rect(int32_t layer, double x0, double y0, double x1, double y1, int32_t net,
          int32_t polarity) {
    ShapeRec shape;
    shape.layer = layer;
    shape.net = net;
    shape.polarity = polarity;
    AppendShape(shape, {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}, {x0, y0}});
}

// The first shape of the layer, in table order, that holds the point; -1 for none.
int32_t FirstByWalk(int32_t layer, double x, double y) {
    const ShapeRun run = FindLayerShapeRun(layer);
    for (int32_t i = run.first; i < run.end; ++i)
        if (PointInShape(i, x, y, true)) return i;
    return -1;
}

int32_t FirstByLocator(ShapeLocator& locator, int32_t layer, double x, double y) {
    int32_t hit = -1;
    locator.Visit(layer, x, y, [&](int32_t i) {
        if (!PointInShape(i, x, y, true)) return false;
        hit = i;
        return true;
    });
    return hit;
}

TEST(ShapeLocator, FindsTheSameFirstShapeAsAWalkOverTheLayer) {
    testing_support::ResetGlobals();
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> at(0, 100);
    std::uniform_real_distribution<double> size(0, 8);
    for (int i = 0; i < 3000; ++i) {
        const int32_t layer = i % 3;
        const double x = std::round(at(rng)), y = std::round(at(rng));
        Rect(layer, x, y, x + std::round(size(rng)), y + std::round(size(rng)), i % 5,
             i % 4 ? kPolarityCopper : kPolarityVoid);
    }
    Rect(1, 0, 0, 100, 100, 1, kPolarityCopper);    // big fills touch every cell
    Rect(1, -50, 20, 150, 20, 2, kPolarityCopper);  // flat: no height
    Rect(2, 30, 30, 30, 30, 2, kPolarityCopper);
    SortShapes();
    ShapeLocator locator;
    int hits = 0;
    for (int k = 0; k < 20000; ++k) {
        const int32_t layer = k % 4;  // layer 3 has no shapes
        // Whole numbers land on box edges and on cell borders as often as not.
        const double x = k % 2 ? std::round(at(rng)) : at(rng) * 1.1 - 5;
        const double y = k % 3 ? std::round(at(rng)) : at(rng) * 1.1 - 5;
        const int32_t expected = FirstByWalk(layer, x, y);
        ASSERT_EQ(FirstByLocator(locator, layer, x, y), expected) << x << " " << y;
        ASSERT_EQ(PointOnNetShape(locator, x, y, k % 5, layer),
                  PointOnNetShape(x, y, k % 5, layer));
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 5000);
    int visited = 0;
    locator.Visit(0, 50.5, 50.5, [&](int32_t) { return ++visited, false; });
    EXPECT_LT(visited, 100);  // of the 1000 shapes of the layer
}

TEST(ShapeLocator, NotANumberWalksTheWholeLayer) {
    testing_support::ResetGlobals();
    for (int i = 0; i < 40; ++i) Rect(0, i, 0, i + 1, 1, 0, kPolarityCopper);
    SortShapes();
    ShapeLocator locator;
    int visited = 0;
    locator.Visit(0, std::nan(""), 0.5, [&](int32_t) { return ++visited, false; });
    EXPECT_EQ(visited, 40);
}

}  // namespace
