#include <gtest/gtest.h>

#include <random>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/GapStrokes.h"
#include "geometry/ShapeCleanupRound.h"
#include "model/TranslationOptions.h"
#include "ndd/NddInput.h"
#include "ndd/NetTable.h"
#include "ndd/ParseElement.h"

using namespace fixtures;

namespace {

// Fill records cut and mixed at random, with numbers that are no numbers: the pass and the
// clean-up round must finish without a fault whatever the order of the pieces.
TEST(ShapeRobustness, ScrambledFillRecordsNeverCrashOrHang) {
    // One piece a line (an empty line is a piece too).
    const std::vector<std::string> pieces =
        testing_support::SplitLines(testing_support::DataFile("ndd/ShapeRobustness/pieces.ndd"));
    std::mt19937 rng(12345);
    std::uniform_int_distribution<size_t> pick(0, pieces.size() - 1);
    testing_support::ScratchDir dir;
    for (int round = 0; round < 40; ++round) {
        testing_support::ResetGlobals();
        fixtures::MakeSignalLayers({"TOP", "GND"});
        g_model.g_mapLayerKind.Set("GND", "P");
        g_model.g_dbLengthScale = 1.0;
        g_options.g_nIncludeNoNetEtches = round % 2;
        std::string text = "%board_outline\n%polygon 0 0 50 0 50 50;\n%port \"A\" \"GND\";\n";
        for (int k = 0; k < 60; ++k) text += pieces[pick(rng)] + "\n";
        if (round % 3 == 0)
            text += "%fill_area \"TOP\" \"GND\";\n%begin_boundary\n%outline\n%polygon 1 2";
        std::string path = dir.Write("r" + std::to_string(round) + ".ndd", text);
        ParseNet(*OpenNdd(path));
        ASSERT_EQ(1, ParseElement(path));
        AddGapStrokesOnPlaneLayers(0.3);
        RunShapeCleanupRound();
        RunShapeCleanupRound();
        EXPECT_EQ(g_model.g_aShapes.size(), g_model.g_aShapeBoxes.size());
        for (const ShapeRec& s : g_model.g_aShapes)
            ASSERT_LE(static_cast<size_t>(s.firstPoint) + static_cast<size_t>(s.pointCount),
                      g_model.g_aShapePoints.size());
        ForgetNddInput();
    }
}

}  // namespace
