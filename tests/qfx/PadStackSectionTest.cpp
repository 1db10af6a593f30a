#include "qfx/PadStackSection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "qfx/Skeleton.h"

using namespace testing_support;

namespace {

constexpr uint8_t S = kLayerSignal;
constexpr uint8_t D = kLayerDielectric;
constexpr uint8_t P = kLayerPlane;

std::shared_ptr<PadDefRec> Pad(const std::string& shape, double width, double height,
                               double offsetX = 0.0, double offsetY = 0.0) {
    auto pad = std::make_shared<PadDefRec>();
    pad->shapeName = shape;
    pad->width = width;
    pad->height = height;
    pad->offsetX = offsetX;
    pad->offsetY = offsetY;
    return pad;
}

PadEntry Entry(const std::string& layer, std::shared_ptr<PadDefRec> regular,
               std::shared_ptr<PadDefRec> anti = nullptr) {
    PadEntry entry;
    entry.layerName = layer;
    entry.regular = std::move(regular);
    entry.anti = std::move(anti);
    return entry;
}

PadStackRec& AddStack(const std::string& key, double drill, std::vector<PadEntry> entries) {
    PadStackRec stack;
    stack.name = key;
    stack.drill = drill;
    stack.entries = std::move(entries);
    return g_model.g_padStacks.Set(key, std::move(stack));
}

std::string Library() {
    return CaptureOutput([](FILE* f) { WritePadStackLibrary(f); });
}
std::string Mirrored() {
    return CaptureOutput([](FILE* f) { WriteMirroredPadStacks(f); });
}

class PadStackSectionTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetGlobals(); }
};

TEST_F(PadStackSectionTest, DsdsdStackMirrorsTheTwoSignalLayersIntoEachOther) {
    fixtures::MakeLayerStack({{"D1", D}, {"TOP", S}, {"D2", D}, {"BOT", S}, {"D3", D}});
    AddStack("P", -1.0,
             {Entry("top", Pad("CIRCLE", 0.5, 0.5)), Entry("BOT", Pad("RECT", 0.6, 0.4))});
    EXPECT_EQ(Library(),
              DataFile("qfx/PadStackSection/DsdsdStackMirrorsTheTwoSignalLayersIntoEachOther.txt"));
    // Last entry first: BOT (index 3) lands on 5 - 3 - 0 - 1 = 1, TOP (1) on 3.
    EXPECT_EQ(
        Mirrored(),
        DataFile("qfx/PadStackSection/DsdsdStackMirrorsTheTwoSignalLayersIntoEachOther.2.txt"));
}

TEST_F(PadStackSectionTest, OneMoreTrailingDielectricShiftsTheMirrorUpByOne) {
    fixtures::MakeLayerStack({{"TOP", S}, {"D1", D}, {"BOT", S}, {"D2", D}});
    AddStack("P", -1.0, {Entry("TOP", Pad("CIRCLE", 0.5, 0.5))});
    Library();
    // 4 - 0 - (1 - 0) - 1 = 2.
    EXPECT_EQ(Mirrored(),
              DataFile("qfx/PadStackSection/OneMoreTrailingDielectricShiftsTheMirrorUpByOne.txt"));
}

TEST_F(PadStackSectionTest, PlaneAntiPadMirroredOntoASignalLayerBecomesARegularPad) {
    fixtures::MakeLayerStack({{"GND", P}, {"D1", D}, {"BOT", S}});
    AddStack(
        "V", -1.0,
        {Entry("GND", nullptr, Pad("CIRCLE", 0.8, 0.8)), Entry("BOT", Pad("CIRCLE", 0.5, 0.5))});
    EXPECT_EQ(
        Library(),
        DataFile("qfx/PadStackSection/PlaneAntiPadMirroredOntoASignalLayerBecomesARegularPad.txt"));
    // BOT's regular pad lands on the plane as an anti pad, GND's anti pad on BOT as a regular.
    EXPECT_EQ(
        Mirrored(),
        DataFile(
            "qfx/PadStackSection/PlaneAntiPadMirroredOntoASignalLayerBecomesARegularPad.2.txt"));
    // The exchange stays in the records, so the second writing shows it in the plain
    // definition too; the renamed layers are left as they are.
    EXPECT_EQ(
        Library(),
        DataFile(
            "qfx/PadStackSection/PlaneAntiPadMirroredOntoASignalLayerBecomesARegularPad.3.txt"));
}

TEST_F(PadStackSectionTest, DrillHeadForms) {
    fixtures::MakeLayerStack({{"TOP", S}});
    AddStack("V", 0.3, {});
    EXPECT_EQ(Library(), DataFile("qfx/PadStackSection/DrillHeadForms.txt"));
    g_options.g_dbDrillClearance = 5 * 0.0254;  // -drill 5
    EXPECT_EQ(Library(), DataFile("qfx/PadStackSection/DrillHeadForms.2.txt"));
    for (double drill : {0.0, 1e-6, 999999.0, 1000000.0, -1.0}) {
        g_model.g_padStacks.Find("V")->drill = drill;
        EXPECT_EQ(Library(), "\n*PadStack Library Section\n\n.PadStackDef V\n\n.EndPadStackDef\n\n")
            << drill;
    }
    // A padstack without entries has no mirrored copy.
    EXPECT_EQ(Mirrored(), "");
}

TEST_F(PadStackSectionTest, WithoutPadsOnlyHeadsAndEndsArePrinted) {
    fixtures::MakeLayerStack({{"TOP", S}, {"BOT", S}});
    AddStack("V", 0.1,
             {Entry("TOP", Pad("CIRCLE", 0.5, 0.5)), Entry("BOT", Pad("CIRCLE", 0.5, 0.5))});
    g_options.g_nTranslatePads = 0;
    EXPECT_EQ(Library(), DataFile("qfx/PadStackSection/WithoutPadsOnlyHeadsAndEndsArePrinted.txt"));
    EXPECT_EQ(Mirrored(), ".PadStackDef V_Mirrd 1.000000e-01mm\n\n.EndPadStackDef\n\n");
}

TEST_F(PadStackSectionTest, PadStacksFollowTheMapsBucketOrder) {
    fixtures::MakeLayerStack({{"TOP", S}});
    // With 17 buckets: A (65) and R (82) share bucket 14, B (66) is in 15, Q (81) in 13.
    for (const char* key : {"A", "B", "R", "Q"}) AddStack(key, -1.0, {Entry("TOP", nullptr)});
    std::string text = Library();
    std::vector<std::string> heads;
    for (const std::string& line : SplitLines(text))
        if (line.rfind(".PadStackDef", 0) == 0) heads.push_back(line);
    EXPECT_EQ(heads, (std::vector<std::string>{".PadStackDef Q", ".PadStackDef R", ".PadStackDef A",
                                               ".PadStackDef B"}));
    heads.clear();
    for (const std::string& line : SplitLines(Mirrored()))
        if (line.rfind(".PadStackDef", 0) == 0) heads.push_back(line);
    EXPECT_EQ(heads, (std::vector<std::string>{".PadStackDef Q_Mirrd", ".PadStackDef R_Mirrd",
                                               ".PadStackDef A_Mirrd", ".PadStackDef B_Mirrd"}));
}

TEST_F(PadStackSectionTest, PadLinesOfEveryShapeWithAndWithoutOffsets) {
    fixtures::MakeLayerStack({{"TOP", S}, {"D1", D}, {"BOT", S}});
    auto poly = Pad("POLYGON", 0, 0);
    poly->points = {{0.1, 0.2}, {0.3, 0.2}, {0.2, 0.4}};
    auto polyOffset = Pad("poly", 0, 0, 0.05, 0.0);
    polyOffset->points = poly->points;
    auto twoPoints = Pad("POLYGON", 0, 0);
    twoPoints->points = {{0.1, 0.2}, {0.3, 0.2}};
    AddStack("S", -1.0,
             {Entry("TOP", Pad("rect", 0.6, 0.4, 0.1, 0.0)), Entry("TOP", Pad("SQUARE", 0.5, 0.5)),
              Entry("TOP", Pad("CIRC", 0.5, 0.5, 0.0, -0.2), Pad("SQUARE", 0.9, 0.9)),
              Entry("TOP", Pad("OBLONG_X", 0.7, 0.3), Pad("OVAL_X", 1.0, 0.5)),
              Entry("TOP", Pad("OVAL_Y", 0.3, 0.7, 0.00001, 0.0), Pad("RoundedRect_Y", 0.5, 1.0)),
              Entry("TOP", poly, Pad("POLYGON", 1, 1)), Entry("TOP", polyOffset),
              Entry("TOP", twoPoints), Entry("TOP", Pad("DONUT", 1, 1)),
              Entry("D1", Pad("CIRCLE", 1, 1)), Entry("", Pad("CIRCLE", 1, 1)),
              Entry("XYZ", nullptr, Pad("RECTANGLE", 1, 2))});
    EXPECT_EQ(Library(),
              DataFile("qfx/PadStackSection/PadLinesOfEveryShapeWithAndWithoutOffsets.txt"));
}

TEST_F(PadStackSectionTest, MirroredPadsDropOffsetsAndMirrorPolygonPoints) {
    fixtures::MakeLayerStack({{"TOP", S}, {"BOT", S}});
    auto poly = Pad("POLYGON", 0, 0, 0.05, 0.0);
    poly->points = {{0.1, 0.2}, {-0.3, 0.2}, {0.0, 0.4}};
    AddStack("M", -1.0, {Entry("TOP", Pad("RECTANGLE", 0.6, 0.4, 0.1, 0.1)), Entry("BOT", poly)});
    Library();
    EXPECT_EQ(Mirrored(),
              DataFile("qfx/PadStackSection/MirroredPadsDropOffsetsAndMirrorPolygonPoints.txt"));
}

TEST_F(PadStackSectionTest, AnAffixNamesEverythingAndLeavesMirroredCopiesEmpty) {
    fixtures::MakeLayerStack({{"TOP", S}, {"BOT", S}});
    AddStack("P", -1.0, {Entry("TOP", Pad("CIRCLE", 0.5, 0.5))});
    g_options.g_strNameAffix = "A_";
    EXPECT_EQ(
        Library(),
        DataFile("qfx/PadStackSection/AnAffixNamesEverythingAndLeavesMirroredCopiesEmpty.txt"));
    EXPECT_EQ(Mirrored(), ".PadStackDef A_P_Mirrd\n\n.EndPadStackDef\n\n");
}

TEST_F(PadStackSectionTest, PackageEndWritesBothLibrariesBeforeEndPackage) {
    fixtures::MakeLayerStack({{"TOP", S}});
    AddStack("P", -1.0, {Entry("TOP", Pad("CIRCLE", 0.5, 0.5))});
    EXPECT_EQ(CaptureOutput([](FILE* f) { WritePackageEnd(f); }),
              DataFile("qfx/PadStackSection/PackageEndWritesBothLibrariesBeforeEndPackage.txt"));
    WritePadStackLibrary(nullptr);
    WriteMirroredPadStacks(nullptr);
}

}  // namespace
