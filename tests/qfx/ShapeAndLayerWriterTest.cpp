#include <gtest/gtest.h>

#include <cstdio>

#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/LayerWriter.h"
#include "qfx/Naming.h"
#include "qfx/ShapeWriter.h"

namespace {

using testing_support::CaptureOutput;
using testing_support::DataFile;

// A stack given as "S:TOP", "D:D1", "P:GND": kind letter, colon, name.
void MakeStack(const std::vector<std::string>& layers, double thickness = 0.035) {
    g_model.g_aLayers = std::make_unique<LayerRec[]>(kMaxLayers);
    g_model.g_nLayerCount = 0;
    for (const auto& entry : layers) {
        LayerRec& l = g_model.g_aLayers[g_model.g_nLayerCount];
        l.kind = entry[0] == 'S' ? kLayerSignal : entry[0] == 'P' ? kLayerPlane : kLayerDielectric;
        SetLayerName(l, entry.substr(2));
        l.thickness = thickness;
        l.conductivity = 58;
        l.permittivity = 4.3;
        l.ordinal = static_cast<uint8_t>(g_model.g_nLayerCount++);
    }
}

void AddShape(int layer, int polarity, int net, std::vector<ShapePoint> pts, double area = 1.0,
              int geometry = kGeometryPolygon) {
    ShapeRec s;
    s.layer = layer;
    s.polarity = polarity;
    s.net = net;
    s.geometry = geometry;
    s.area = area;
    s.firstPoint = static_cast<int32_t>(g_model.g_aShapePoints.size());
    s.pointCount = static_cast<int32_t>(pts.size());
    g_model.g_aShapePoints.insert(g_model.g_aShapePoints.end(), pts.begin(), pts.end());
    g_model.g_aShapes.push_back(s);
}

class ShapeWriterTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        MakeStack({"S:TOP", "D:D1", "P:GND", "D:D2", "S:BOT"});
        fixtures::MakeNets({"N1", "N2"});
    }
    std::string Shapes() {
        return CaptureOutput([](FILE* f) { WriteShapes(f); });
    }
};

TEST_F(ShapeWriterTest, FivePointRectangleIsABoxSixPointsAPolygon) {
    AddShape(0, kPolarityCopper, 0, {{0, 0}, {0, 1}, {2, 1}, {2, 0}, {0, 0}});
    AddShape(0, kPolarityCopper, 1, {{0, 0}, {2, 0}, {2, 1}, {0, 1}, {0, 0.5}, {0, 0}});
    EXPECT_EQ(Shapes(), DataFile("qfx/ShapeAndLayerWriter/"
                                 "FivePointRectangleIsABoxSixPointsAPolygon.txt"));
    EXPECT_EQ(g_model.g_aLayers[0].hasShapes, 1);
}

TEST_F(ShapeWriterTest, BoxTakesThePlainNetNameAndTheOtherWinding) {
    g_model.g_strDisplayNetNames[0] = "N1_1";
    g_options.g_bColorShapesByNet = 0;
    g_options.g_strNameAffix = "A_";
    AddShape(2, kPolarityVoid, 0, {{1, 1}, {3, 1}, {3, 4}, {1, 4}, {1, 1}});
    EXPECT_EQ(Shapes(), DataFile("qfx/ShapeAndLayerWriter/"
                                 "BoxTakesThePlainNetNameAndTheOtherWinding.txt"));
}

TEST_F(ShapeWriterTest, SevenPointsPrintFourLinesAndCirclesTheirRadius) {
    g_options.g_bAppendNetName = 0;
    AddShape(4, kPolarityCopper, kNoNet, {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {1, 2}, {0, 1}, {0, 0}});
    AddShape(4, kPolarityCopper, 1, {{5, 6}, {0.25, 0.25}}, 0.2, kGeometryCircle);
    EXPECT_EQ(Shapes(), DataFile("qfx/ShapeAndLayerWriter/"
                                 "SevenPointsPrintFourLinesAndCirclesTheirRadius.txt"));
}

TEST_F(ShapeWriterTest, SmallVoidsDropUnlessTheRunsFirstShapeIsUndiscardable) {
    g_options.g_dbVoidAreaLimit = 0.5;
    g_options.g_bColorShapesByNet = 0;
    std::vector<ShapePoint> tri = {{0, 0}, {1, 0}, {0, 1}, {0, 0}};
    AddShape(0, kPolarityVoid, 0, tri, 0.5);  // equal to the limit: dropped
    AddShape(0, kPolarityVoid, 0, tri, 0.6);  // opens the run of TOP
    AddShape(0, kPolarityVoid, 0, tri, 0.1);  // dropped in the run as well
    AddShape(2, kPolarityVoid, 0, tri,
             0.5);  // undiscardable: opens and keeps the run
    g_model.g_aShapes[3].undiscardable = 1;
    AddShape(2, kPolarityVoid, 0, tri, 0.2);  // kept by the opener's flag
    AddShape(2, kPolarityCopper, 0, tri, 0.1);
    g_model.g_aShapes[5].discarded = 1;  // discarded shapes always go
    const std::string p =
        "  0.000000e+00mm 0.000000e+00mm 1.000000e+00mm 0.000000e+00mm\n"
        "+   0.000000e+00mm 1.000000e+00mm 0.000000e+00mm 0.000000e+00mm\n";
    EXPECT_EQ(Shapes(),
              ".Shape Shape$TOP Color = green\n"
              "Polygon1::N1-  " +
                  p +
                  ".EndShape\n"
                  ".Shape Shape$GND Color = green\n"
                  "Polygon4::N1-  " +
                  p + "Polygon3::N1-  " + p +
                  ".EndShape\n"
                  // one plane with shapes is fewer than two: the pseudo plane needs it
                  ".Shape PseudoNullShape Color = green\n.EndShape\n");
}

TEST_F(ShapeWriterTest, NoShapesAndNoPlanesGiveTheNullShapeOnce) {
    MakeStack({"S:TOP", "D:D1", "S:BOT"});
    EXPECT_EQ(Shapes(), ".Shape PseudoNullShape Color = green\n.EndShape\n");
    g_options.g_bAddPseudoPlane = 0;
    EXPECT_EQ(Shapes(), "");
}

class LayerWriterTest : public ::testing::Test {
  protected:
    void SetUp() override { testing_support::ResetGlobals(); }
    std::string Layers() {
        return CaptureOutput([](FILE* f) { WriteLayers(f); });
    }
};

TEST_F(LayerWriterTest, NoPlanesEndInTwoPseudoPlanesAndEverySignalGetsAPatch) {
    MakeStack({"S:TOP", "D:D1", "S:BOT"});
    EXPECT_EQ(Layers(), DataFile("qfx/ShapeAndLayerWriter/"
                                 "NoPlanesEndInTwoPseudoPlanesAndEverySignalGetsAPatch.txt"));
}

TEST_F(LayerWriterTest, OnePlaneWithShapesAndThinOuterDielectrics) {
    MakeStack({"D:TOPD", "S:TOP", "D:D1", "P:GND", "D:BOTD"});
    g_model.g_aLayers[0].thickness = 0.0;
    g_model.g_aLayers[4].thickness = 0.0;
    g_model.g_aLayers[3].hasShapes = 1;
    g_options.g_bAllowPatches = 0;
    g_options.g_strNameAffix = "X";
    EXPECT_EQ(Layers(), DataFile("qfx/ShapeAndLayerWriter/"
                                 "OnePlaneWithShapesAndThinOuterDielectrics.txt"));
}

TEST_F(LayerWriterTest, ColoursFollowTheTableIndexAndPatchesCountAsPlanes) {
    MakeStack({"S:L0", "D:L1", "S:L2", "D:L3", "S:L4", "D:L5", "S:L6", "D:L7", "P:L8"});
    for (int i : {0, 2}) g_model.g_aLayers[i].hasShapes = 1;
    std::vector<std::string> lines = testing_support::SplitLines(Layers());
    ASSERT_EQ(lines.size(),
              9u + 4u * 2u);  // no pseudo layers: three planes counted
    EXPECT_EQ(lines[6],
              "Signal$L6 Thickness = 3.500000e-02mm Conductivity = "
              "5.800000e+09 Color = blue");
    EXPECT_EQ(lines[8],
              "Plane$L8 Thickness = 3.500000e-02mm Conductivity = 5.800000e+09 Shape = "
              "PseudoNullShape Color = red");
}

TEST(Naming, TitleVersionTurnsCommasToDotsAndDropsBlanks) {
    EXPECT_EQ(TitleVersion("25, 1, 1"), "25.1.1");
    EXPECT_EQ(TitleVersion(" 1 ,0, 12"), "1.0.12");
}

}  // namespace
