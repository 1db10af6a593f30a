#include "ndd/ThermalTies.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/PointOnNetShape.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"

namespace {

using testing_support::ScratchDir;

constexpr int32_t kGnd = 0;
constexpr int32_t kVcc = 1;
constexpr int32_t kGndLayer = 2;

class ThermalTiesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeLayerStack(
            {{"TOP", kLayerSignal}, {"D1", kLayerDielectric}, {"GND", kLayerPlane}});
        g_model.g_mapLayerId.Set("1", "TOP");
        g_model.g_mapLayerId.Set("2", "GND");
        fixtures::MakeNets({"GND", "VCC"});
        g_model.g_dbLengthScale = 0.001;  // file units are micrometres
    }

    static void Fill(double x0, double y0, double x1, double y1, int32_t net, int32_t polarity,
                     int32_t layer = kGndLayer) {
        ShapeRec shape;
        shape.layer = layer;
        shape.net = net;
        shape.polarity = polarity;
        AppendShape(shape, {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}, {x0, y0}});
    }

    int Read(const std::string& text) {
        g_options.g_strTraceFile = dir_.Write("traces", text);
        return ParseThermalTies();
    }

    // The far end of trace t, where the tie reaches.
    static std::pair<double, double> TieEnd(size_t t) {
        RebuildNodeArray();
        RebuildNodeIndex();
        const NodeRec* node = NodeById(g_model.g_aTraces[t].endNode);
        return {node->x, node->y};
    }

    ScratchDir dir_;
};

const char kType[] = "TTT T1 200 3 4 0.5\n";

TEST_F(ThermalTiesTest, MaskFiveAtAngleZeroTriesRightThenLeft) {
    Fill(0, 0, 10, 10, kGnd, kPolarityCopper);
    SortShapes();
    EXPECT_EQ(Read(std::string(kType) + "ARS \"GND\" \"2\"\nTTI 5000 5000 T1 0 1000 2000 5\n"), 1);
    ASSERT_EQ(g_model.g_aTraces.size(), 2u);
    EXPECT_EQ(TieEnd(0), std::make_pair(6.0, 5.0));  // bit 1: (x+w, y)
    EXPECT_EQ(TieEnd(1), std::make_pair(4.0, 5.0));  // bit 4: (x-w, y)
    const TraceRec& tie = g_model.g_aTraces[0];
    EXPECT_EQ(tie.width, 200 * 0.001);
    EXPECT_EQ(tie.layer, kGndLayer);
    EXPECT_EQ(tie.color, 1);
    EXPECT_EQ(g_model.g_aTraceNets[0], kGnd);
    EXPECT_EQ(g_model.g_aTraceFlags[0], 0);
    EXPECT_EQ(g_model.g_aLayers[kGndLayer].kind, kLayerSignal);
    const ThermalTieTypeRec* type = g_model.g_mapThermalTieTypes.Find("T1");
    ASSERT_NE(type, nullptr);
    EXPECT_EQ(type->nValue1, 3);
    EXPECT_EQ(type->nValue2, 4);
    EXPECT_EQ(type->dbValue, 0.5);
}

TEST_F(ThermalTiesTest, TieThatReachesNoCopperOfItsNetIsNotMade) {
    Fill(0, 0, 5.5, 10, kGnd, kPolarityCopper);   // the right tie ends beyond this fill
    Fill(5.5, 0, 10, 10, kVcc, kPolarityCopper);  // on copper of another net
    SortShapes();
    Read(std::string(kType) + "ARS GND 2\nTTI 5000 5000 T1 0 1000 2000 15\n");
    ASSERT_EQ(g_model.g_aTraces.size(), 3u);
    EXPECT_EQ(TieEnd(0), std::make_pair(5.0, 7.0));  // bit 2: (x, y+h)
    EXPECT_EQ(TieEnd(1), std::make_pair(4.0, 5.0));  // bit 4
    EXPECT_EQ(TieEnd(2), std::make_pair(5.0, 3.0));  // bit 8: (x, y-h)
}

TEST_F(ThermalTiesTest, AngleFortyFiveTriesOneEightTwoFour) {
    Fill(0, 0, 10, 10, kGnd, kPolarityCopper);
    SortShapes();
    Read(std::string(kType) + "ARS 'GND' '2'\nTTI 5000 5000 T1 45 1000 2000 15\n");
    ASSERT_EQ(g_model.g_aTraces.size(), 4u);
    const double dx = 1.0 / std::sqrt(2.0), dy = 2.0 / std::sqrt(2.0);
    EXPECT_EQ(TieEnd(0), std::make_pair(5 + dx, 5 + dy));  // bit 1
    EXPECT_EQ(TieEnd(1), std::make_pair(5 + dx, 5 - dy));  // bit 8
    EXPECT_EQ(TieEnd(2), std::make_pair(5 - dx, 5 + dy));  // bit 2
    EXPECT_EQ(TieEnd(3), std::make_pair(5 - dx, 5 - dy));  // bit 4
}

TEST_F(ThermalTiesTest, TieBeforeAnyAreaAddsNothingEvenWithNoNetElements) {
    Fill(0, 0, 10, 10, kGnd, kPolarityCopper);
    SortShapes();
    g_options.g_nIncludeNoNetEtches = 1;
    Read(std::string(kType) + "TTI 5000 5000 T1 0 1000 2000 15\n");
    EXPECT_TRUE(g_model.g_aTraces.empty());
    EXPECT_EQ(g_model.g_aLayers[kGndLayer].kind, kLayerPlane);
}

TEST_F(ThermalTiesTest, LayerBecomesSignalBeforeAnyTieIsTried) {
    SortShapes();  // no copper at all
    Read(std::string(kType) + "ARS GND 2\nTTI 5000 5000 T1 0 1000 2000 0\n");
    EXPECT_TRUE(g_model.g_aTraces.empty());
    EXPECT_EQ(g_model.g_aLayers[kGndLayer].kind, kLayerSignal);
}

TEST_F(ThermalTiesTest, LinesPassedOverLeaveTheLayerAlone) {
    Fill(0, 0, 10, 10, kGnd, kPolarityCopper);
    SortShapes();
    Read(std::string(kType) +
         "ARS GND 2\n"
         "TTI 5000 5000 f 0 1000 2000 15\n"    // free type
         "TTI 5000 5000 T1 30 1000 2000 15\n"  // angle neither 0 nor 45
         "TTI 5000 5000 T9 0 1000 2000 15\n"   // unknown type
         "ARS GND 7\n"                         // unknown layer identifier
         "TTI 5000 5000 T1 0 1000 2000 15\n"
         "ARS GND 1\n"
         "TTI 5000 5000 T1 0 1000 2000 15\n");  // TOP has no copper
    EXPECT_TRUE(g_model.g_aTraces.empty());
    EXPECT_EQ(g_model.g_aLayers[kGndLayer].kind, kLayerPlane);
}

TEST_F(ThermalTiesTest, NetOutsideTheSelectionIsPassedOver) {
    Fill(0, 0, 10, 10, kVcc, kPolarityCopper);
    SortShapes();
    g_options.g_bSelectedOnly = 1;
    g_options.g_bAllNets = 0;
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {kGnd};
    g_options.g_aSortedSelectedNets = {kGnd};
    Read(std::string(kType) + "ARS VCC 2\nTTI 5000 5000 T1 0 1000 2000 15\n");
    EXPECT_TRUE(g_model.g_aTraces.empty());
    EXPECT_EQ(g_model.g_aLayers[kGndLayer].kind, kLayerPlane);  // passed over before the layer
}

TEST_F(ThermalTiesTest, MissingOrEmptyFileIsPassedOverSilently) {
    g_options.g_nBatchMode = 1;
    g_options.g_pErrorLog = std::tmpfile();
    g_options.g_strTraceFile = dir_.File("none");
    EXPECT_EQ(ParseThermalTies(), 1);
    g_options.g_strTraceFile.clear();
    EXPECT_EQ(ParseThermalTies(), 1);
    EXPECT_EQ(testing_support::ReadStream(g_options.g_pErrorLog), "");
}

TEST_F(ThermalTiesTest, MalformedFilesEndQuietly) {
    Fill(0, 0, 10, 10, kGnd, kPolarityCopper);
    SortShapes();
    // A tie whose fields run out at the end of the file is not made.
    Read(std::string(kType) + "ARS GND 2\nTTI 5000 5000 T1 0 1000");
    EXPECT_TRUE(g_model.g_aTraces.empty());
    Read("TTT\nARS\nTTI\n");
    Read(std::string("TTT T1 200 3 4 0.5\nARS \"GND\n") + std::string("TTI \0\xff\x01\n", 8) +
         std::string(40000, 'x') + "\n\n");
    std::string noise;
    for (int i = 0; i < 5000; ++i) noise += static_cast<char>((i * 7919) % 256);
    Read("ARS GND 2\n" + noise);
    EXPECT_TRUE(g_model.g_aTraces.empty());
}

TEST(PointOnNetShape, VoidInsideAFillWinsOverTheFill) {
    testing_support::ResetGlobals();
    ShapeRec fill;
    fill.layer = 0;
    fill.net = 3;
    AppendShape(fill, {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}});
    ShapeRec hole = fill;
    hole.polarity = kPolarityVoid;
    AppendShape(hole, {{4, 4}, {6, 4}, {6, 6}, {4, 6}, {4, 4}});
    SortShapes();
    EXPECT_TRUE(PointOnNetShape(2, 2, 3, 0));
    EXPECT_FALSE(PointOnNetShape(5, 5, 3, 0));
    EXPECT_FALSE(PointOnNetShape(2, 2, 4, 0));
    EXPECT_FALSE(PointOnNetShape(2, 2, 3, 1));
    EXPECT_TRUE(PointOnNetShape(2, 2, kNoNet, 0));  // no net while no-net elements are off
    g_options.g_nIncludeNoNetEtches = 1;
    EXPECT_FALSE(PointOnNetShape(2, 2, kNoNet, 0));
}

}  // namespace
