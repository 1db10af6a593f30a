#include "ndd/ThermalTies.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "DataCases.h"
#include "Fixtures.h"
#include "TestSupport.h"
#include "geometry/PointOnNetShape.h"
#include "geometry/ShapeTable.h"
#include "geometry/SortShapes.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"

namespace {

using testing_support::DataCase;
using testing_support::DataCases;
using testing_support::Exact;
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

    ScratchDir dir_;
};

// Each tie as "x,y wWIDTH LLAYER cCOLOUR NET fFLAGS" at the far end, where it reaches; then
// the kind of the GND layer and the tie types read.
std::string TiesText() {
    RebuildNodeArray();
    RebuildNodeIndex();
    std::string t;
    for (size_t i = 0; i < g_model.g_aTraces.size(); ++i) {
        const TraceRec& tie = g_model.g_aTraces[i];
        const NodeRec* end = NodeById(tie.endNode);
        t += Exact(end->x) + "," + Exact(end->y) + " w" + Exact(tie.width) + " L" +
             std::to_string(tie.layer) + " c" + std::to_string(tie.color) + " " +
             g_model.g_strNetNames[g_model.g_aTraceNets[i]].name + " f" +
             std::to_string(g_model.g_aTraceFlags[i]) + "\n";
    }
    t += std::string("GND ") +
         (g_model.g_aLayers[kGndLayer].kind == kLayerPlane ? "plane" : "signal");
    for (const std::string& key : g_model.g_mapThermalTieTypes.Keys()) {
        const ThermalTieTypeRec* type = g_model.g_mapThermalTieTypes.Find(key);
        t += " " + key + ":" + std::to_string(type->nValue1) + "," + std::to_string(type->nValue2) +
             "," + Exact(type->dbValue);
    }
    return t + "\n";
}

// Trace files with thermal ties over the fills that the arguments name: "fill" a GND fill of
// 0..10 mm on GND, "split" GND up to x 5.5 and VCC beyond, "vcc" a VCC fill; "nonet" the
// no-net option, "onlygnd" a selection of GND alone.
TEST_F(ThermalTiesTest, TieRecordsGiveTheseTies) {
    for (const DataCase& c : DataCases("ndd/ThermalTies/Ties.txt")) {
        SetUp();
        if (c.Has("fill")) Fill(0, 0, 10, 10, kGnd, kPolarityCopper);
        if (c.Has("split")) Fill(0, 0, 5.5, 10, kGnd, kPolarityCopper);
        if (c.Has("split")) Fill(5.5, 0, 10, 10, kVcc, kPolarityCopper);
        if (c.Has("vcc")) Fill(0, 0, 10, 10, kVcc, kPolarityCopper);
        SortShapes();
        g_options.g_nIncludeNoNetEtches = c.Has("nonet");
        if (c.Has("onlygnd")) fixtures::SelectOnlyNet(kGnd);
        EXPECT_EQ(Read(c.input), 1) << c.title;
        EXPECT_EQ(TiesText(), c.expected) << c.title;
    }
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
    Read("TTT T1 200 3 4 0.5\nARS GND 2\nTTI 5000 5000 T1 0 1000");
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
