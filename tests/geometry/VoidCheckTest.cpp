#include <gtest/gtest.h>

#include <random>

#include "Fixtures.h"
#include "TestSupport.h"

#include "geometry/CheckUndiscardableVoids.h"
#include "geometry/TraceInVoid.h"

namespace {

using namespace testing_support;
using namespace fixtures;

// Signal 0, dielectric 1, plane 2.
class VoidCheckTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        MakeLayerStack({{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"GND", kLayerPlane}});
    }
    // Sorts the table as the clean-up round leaves it and runs the check.
    void Check(VoidCheckMode mode = VoidCheckMode::kNormal) {
        SortShapes();
        RebuildNodeArray();
        CheckUndiscardableVoids(mode);
    }
    // The undiscardable flag of the void whose first point is (x, y) on layer.
    int Flag(int32_t layer, double x, double y) {
        for (const ShapeRec& s : g_model.g_aShapes) {
            const ShapePoint& p = g_model.g_aShapePoints[static_cast<size_t>(s.firstPoint)];
            if (s.layer == layer && s.polarity != kPolarityCopper && p.x == x && p.y == y)
                return s.undiscardable;
        }
        ADD_FAILURE() << "no void at " << x << ", " << y;
        return -1;
    }
};

TEST_F(VoidCheckTest, AVoidWithAnIslandKeepsAVoidBesideOneDoesNot) {
    AddSquare(2, kPolarityCopper, 0, 0, 0, 100);
    AddSquare(2, kPolarityVoid, 0, 10, 10, 10);
    AddSquare(2, kPolarityCopper, 0, 12, 12, 2);  // island in the first void
    AddSquare(2, kPolarityVoid, 0, 30, 10, 10);
    AddSquare(2, kPolarityCopper, 0, 41, 10, 2);  // beside the second one
    Check();
    EXPECT_EQ(Flag(2, 10, 10), 1);
    EXPECT_EQ(Flag(2, 30, 10), 0);
}

TEST_F(VoidCheckTest, OnlyTheIslandsFirstPointIsTried) {
    AddSquare(2, kPolarityVoid, 0, 10, 10, 10);
    // A copper piece reaching into the void, whose first point lies outside it.
    AddSquare(2, kPolarityCopper, 0, 5, 5, 7);
    Check();
    EXPECT_EQ(Flag(2, 10, 10), 0);
}

TEST_F(VoidCheckTest, TracesOnAPlaneLayerDoNotKeepAVoid) {
    AddSquare(2, kPolarityVoid, 0, 10, 10, 10);
    AddTraceLine(2, 0, 15, 30, 15, 0);
    AddTraceLine(2, 15, 0, 15, 30, 0);
    Check();
    EXPECT_EQ(Flag(2, 10, 10), 0);
}

TEST_F(VoidCheckTest, ALoneTraceDoesNotKeepAVoidTwoTracesDo) {
    AddSquare(0, kPolarityVoid, 0, 10, 10, 10);
    AddTraceLine(0, 0, 15, 30, 15, 0);
    Check();
    EXPECT_EQ(Flag(0, 10, 10), 0);
    AddTraceLine(0, 50, 50, 60, 50, 0);  // far away, but now the span has two traces
    Check();
    EXPECT_EQ(Flag(0, 10, 10), 1);
}

TEST_F(VoidCheckTest, ATraceAlongTheOutlineDoesNotKeepAVoidOneThroughItDoes) {
    AddSquare(0, kPolarityVoid, 0, 10, 10, 10);
    AddSquare(0, kPolarityVoid, 0, 40, 10, 10);
    AddTraceLine(0, 0, 10, 30, 10, 0);   // along the lower edge of the first
    AddTraceLine(0, 5, 25, 15, 20, 0);   // ends on its upper edge
    AddTraceLine(0, 0, 30, 10, 20, 0);   // touches its corner only
    AddTraceLine(0, 35, 12, 45, 12, 0);  // ends inside the second
    Check();
    EXPECT_EQ(Flag(0, 10, 10), 0);
    EXPECT_EQ(Flag(0, 40, 10), 1);
}

TEST_F(VoidCheckTest, CircleVoidsAreCrossedByTheirChords) {
    AddCircle(0, kPolarityVoid, 0, 10, 10, 2);
    AddCircle(0, kPolarityVoid, 0, 30, 10, 2);
    AddTraceLine(0, 5, 10, 15, 10, 0);   // through the first circle
    AddTraceLine(0, 25, 12, 35, 12, 0);  // tangent to the second
    Check();
    EXPECT_EQ(Flag(0, 10, 10), 1);
    EXPECT_EQ(Flag(0, 30, 10), 0);
}

TEST_F(VoidCheckTest, FlagsAlreadySetStaySet) {
    int32_t v = AddSquare(0, kPolarityVoid, 0, 10, 10, 10);
    g_model.g_aShapes[static_cast<size_t>(v)].undiscardable = 1;  // as from layout.hkp
    AddTraceLine(0, 50, 50, 60, 50, 0);
    AddTraceLine(0, 50, 60, 60, 60, 0);
    Check();
    EXPECT_EQ(Flag(0, 10, 10), 1);
}

TEST(TraceInVoid, CrossingsAndTouches) {
    ResetGlobals();
    MakeLayerStack({{"TOP", kLayerSignal}});
    AddSquare(0, kPolarityVoid, 0, 0, 0, 10);
    // The same square stored without its closing point, as after the clean-up round.
    AddPolygon(0, kPolarityVoid, 0, {{20, 0}, {20, 10}, {30, 10}, {30, 0}});
    SortShapes();
    const int32_t through = AddTraceLine(0, -5, 5, 15, 5, 0);
    const int32_t inside = AddTraceLine(0, 2, 2, 3, 3, 0);
    const int32_t corner = AddTraceLine(0, -10, 10, 10, -10, 0);
    const int32_t edge = AddTraceLine(0, -5, 10, 15, 10, 0);
    const int32_t outside = AddTraceLine(0, -5, -5, -1, -1, 0);
    const int32_t closing = AddTraceLine(0, 25, -5, 25, 5, 0);  // enters across the closing edge
    RebuildNodeArray();
    RebuildNodeIndex();
    // Square 0 has the smaller area? Both are 100: the table keeps their order.
    EXPECT_TRUE(TraceInVoid(through, 0));
    EXPECT_TRUE(TraceInVoid(inside, 0));
    EXPECT_FALSE(TraceInVoid(corner, 0));
    EXPECT_FALSE(TraceInVoid(edge, 0));
    EXPECT_FALSE(TraceInVoid(outside, 0));
    EXPECT_TRUE(TraceInVoid(closing, 1));
    EXPECT_FALSE(TraceInVoid(through, 1));
}

// A layer of 160 x 160 with integer coordinates, so that many trace ends and void sides stand
// exactly on the lines of the 16 x 16 grid (cells of 10).
void GenerateLayer(std::mt19937& rng, int traces, int voids) {
    std::uniform_int_distribution<int> pos(0, 160), step(-15, 15), side(1, 8), kind(0, 3);
    AddTraceLine(0, 0, 0, 160, 160, 0);  // fixes the box of the traces
    for (int i = 1; i < traces; ++i) {
        double x = pos(rng), y = pos(rng);
        switch (kind(rng)) {
            case 0:  // along a grid line
                AddTraceLine(0, x, std::round(y / 10) * 10, x + step(rng), std::round(y / 10) * 10,
                             0);
                break;
            case 1:
                AddTraceLine(0, std::round(x / 10) * 10, y, std::round(x / 10) * 10, y + step(rng),
                             0);
                break;
            default:
                AddTraceLine(0, x, y, x + step(rng), y + step(rng), 0);
        }
    }
    for (int i = 0; i < voids; ++i) {
        double x = pos(rng), y = pos(rng);
        if (kind(rng) == 0)
            AddCircle(0, kPolarityVoid, 0, x, y, side(rng) * 0.4);
        else
            AddSquare(0, kPolarityVoid, 0, x, y, side(rng) * 0.5);
    }
}

// The same with coordinates that are not whole numbers, many within a nanometre of a grid
// line on either side.
void GenerateNearGridLayer(std::mt19937& rng, int traces, int voids) {
    std::uniform_real_distribution<double> pos(0, 160), step(-15, 15), side(0.5, 4);
    std::uniform_int_distribution<int> kind(0, 3), line(0, 16), offset(-1, 1);
    auto coord = [&] { return kind(rng) == 0 ? line(rng) * 10 + offset(rng) * 5e-10 : pos(rng); };
    AddTraceLine(0, 0, 0, 160, 160, 0);
    for (int i = 1; i < traces; ++i) {
        double x = coord(), y = coord();
        AddTraceLine(0, x, y, kind(rng) == 0 ? x : x + step(rng),
                     kind(rng) == 0 ? y : y + step(rng), 0);
    }
    for (int i = 0; i < voids; ++i) {
        double x = coord(), y = coord(), a = side(rng);
        if (kind(rng) == 0)
            AddCircle(0, kPolarityVoid, 0, x, y, a);
        else
            AddPolygon(0, kPolarityVoid, 0, {{x, y}, {x + a, y + a * 0.5}, {x, y + a}, {x, y}});
    }
}

class GridAgreement : public VoidCheckTest, public ::testing::WithParamInterface<int> {};

TEST_P(GridAgreement, GridAndPlainCheckGiveTheSameFlags) {
    std::mt19937 rng(12345);
    if (GetParam() == 0)
        GenerateLayer(rng, 3000, 2000);
    else
        GenerateNearGridLayer(rng, 3000, 2000);
    Check(VoidCheckMode::kPlainOnly);
    std::vector<int32_t> plain;
    for (ShapeRec& s : g_model.g_aShapes) {
        plain.push_back(s.undiscardable);
        s.undiscardable = 0;
    }
    Check(VoidCheckMode::kNormal);
    int kept = 0;
    for (size_t i = 0; i < plain.size(); ++i) {
        EXPECT_EQ(g_model.g_aShapes[i].undiscardable, plain[i]) << "void " << i;
        kept += plain[i];
    }
    // Both outcomes are well represented.
    EXPECT_GT(kept, 200);
    EXPECT_LT(kept, 1800);
}

INSTANTIATE_TEST_SUITE_P(WholeAndNearGridCoordinates, GridAgreement, ::testing::Values(0, 1));

}  // namespace
