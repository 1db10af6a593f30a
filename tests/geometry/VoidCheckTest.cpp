#include <gtest/gtest.h>

#include <random>

#include "Fixtures.h"
#include "TestSupport.h"

#include "geometry/CheckUndiscardableVoids.h"

namespace {

using namespace testing_support;
using namespace fixtures;

// The void check's cases are board scripts under tests/data/geometry/VoidCheck; here the
// grid check against the plain one on large random layers.
class VoidCheckTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        MakeLayerStack({{"TOP", kLayerSignal}});
    }
    // Sorts the table as the clean-up round leaves it and runs the check.
    void Check(VoidCheckMode mode) {
        SortShapes();
        RebuildNodeArray();
        CheckUndiscardableVoids(mode);
    }
};

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
