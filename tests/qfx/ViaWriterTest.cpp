#include "qfx/ViaWriter.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

namespace {

using testing_support::DataFile;

class ViaWriterTest : public ::testing::Test {
  protected:
    void SetUp() override {
        testing_support::ResetGlobals();
        fixtures::MakeNets({"CLK", "GND"});  // colours 1 and 2
        // Node 0 carries pin label "7"; node 1 has none.
        g_model.g_aNodes.resize(2);
        g_model.g_aNodes[0].id = 0;
        g_model.g_aNodes[0].label = "7";
        g_model.g_aNodes[1].id = 1;
        g_model.g_aNodeIndex = {0, 1};
        stack.name = "VIA20";
    }
    ViaOutRec Stretch(uint32_t number, int32_t net, int32_t upperNet, int32_t lowerNet) {
        ViaOutRec v;
        v.number = number;
        v.upperNode = 0;
        v.lowerNode = 1;
        v.net = net;
        v.upperNet = upperNet;
        v.lowerNet = lowerNet;
        v.padStack = &stack;
        v.rotation = 90;
        return v;
    }
    std::string Vias() {
        return testing_support::CaptureOutput([](FILE* f) { WriteVias(f); });
    }
    PadStackRec stack;
};

TEST_F(ViaWriterTest, LineWithLabelsNetsColourAndPadstack) {
    g_model.g_aViaOut = {Stretch(1, 1, 1, 0)};
    g_options.g_strNameAffix = "A_";
    EXPECT_EQ(Vias(),
              "ViaA_1::GND UpperNode = NodeA_0!!7::GND LowerNode = "
              "NodeA_1::CLK Color = green "
              "PadStack = A_VIA20 AbsoluteRotation = 90.000000\n");
}

TEST_F(ViaWriterTest, NoNetStretchesFollowTheIncludeOption) {
    g_model.g_aViaOut = {Stretch(2, kNoNet, kNoNet, kNoNet), Stretch(3, kNoNetAlt, 0, kNoNetAlt)};
    g_model.g_aViaOut[1].padStack = nullptr;
    // 65535 is left out, 65534 prints, in red, with empty suffixes for no-net
    // ends.
    EXPECT_EQ(Vias(), "Via3 UpperNode = Node0!!7::CLK LowerNode = Node1 Color = red\n");
    g_options.g_nIncludeNoNetEtches = 1;
    g_options.g_bAppendNetName = 0;
    EXPECT_EQ(Vias(), DataFile("qfx/ViaWriter/NoNetStretchesFollowTheIncludeOption.txt"));
}

}  // namespace
