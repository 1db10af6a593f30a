#include "ndd/HkpReader.h"

#include <gtest/gtest.h>

#include "DataCases.h"
#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

namespace {

using testing_support::ScratchDir;

constexpr int32_t kVcc = 1;

class HkpReaderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeLayerStack(
            {{"layer_1", kLayerSignal}, {"D1", kLayerDielectric}, {"layer_2", kLayerPlane}});
        fixtures::MakeNets({"GND", "VCC"});
    }

    void Read(const std::string& text) {
        g_options.g_strHkpFile = dir_.Write("layout.hkp", text);
        ParseHkpFile();
    }

    ScratchDir dir_;
};

// Areas of layout.hkp as read and the shapes they give (see ShapesAsText); "{area}" in a file
// stands for rect_area.hkp. Arguments: "nonet" for no-net elements, "onlyvcc" for a selection
// of VCC alone. Every area is undiscardable copper.
TEST_F(HkpReaderTest, AreasGiveTheseShapes) {
    const std::string area = testing_support::DataFile("ndd/HkpReader/rect_area.hkp");
    for (const testing_support::DataCase& c :
         testing_support::DataCases("ndd/HkpReader/Areas.txt")) {
        SetUp();
        g_options.g_nIncludeNoNetEtches = c.Has("nonet");
        if (c.Has("onlyvcc")) fixtures::SelectOnlyNet(kVcc);
        std::string text = c.input;
        for (size_t at; (at = text.find("{area}\n")) != std::string::npos;)
            text.replace(at, 7, area);
        Read(text);
        EXPECT_EQ(fixtures::ShapesAsText(), c.expected) << c.title;
        for (const ShapeRec& shape : g_model.g_aShapes) EXPECT_EQ(shape.undiscardable, 1);
    }
}

TEST_F(HkpReaderTest, FileThatCannotBeOpenedIsReportedWithTwoBlanks) {
    g_options.g_nBatchMode = 1;
    g_options.g_pErrorLog = std::tmpfile();
    g_options.g_strHkpFile = dir_.File("missing.hkp");
    ParseHkpFile();
    g_options.g_strHkpFile.clear();
    ParseHkpFile();  // an empty path does nothing
    EXPECT_EQ(testing_support::ReadStream(g_options.g_pErrorLog),
              "The Input  file could not be opened\n");
}

TEST_F(HkpReaderTest, MalformedFilesNeverCrashOrHang) {
    Read(".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n");
    Read(
        ".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n");
    Read(
        ".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....POLYLINE_SHAPE\n");
    EXPECT_TRUE(g_model.g_aShapes.empty());
    Read(
        ".NET GND\n..CONDUCTIVE_AREA\n...CONDUCTIVE_AREA_OPTIONS CONDUCTIVE_SHAPE\n"
        "....RECT_SHAPE\n.....XY\n...ROUTE_LYR\n.UNITS\n.NET\n");
    EXPECT_EQ(fixtures::ShapesAsText(), "L-1 N0 P+ 0,0 0,0 0,0 0,0 0,0\n");
    std::string noise(".NET GND\n..CONDUCTIVE_AREA\n");
    for (int i = 0; i < 70000; ++i) noise += static_cast<char>((i * 7919 + i / 13) % 256);
    Read(noise);
    Read(std::string(".NET GND\n..CONDUCTIVE_AREA\n") + std::string(50000, '.') + "\n" +
         std::string("\0\0..CONDUCTIVE_AREA\n", 20));
}

}  // namespace
