// A whole dialog run with an IBIS model: the example board's active part gets its file's pin
// mapping made again in the pin mapping dialog, the IBIS page's OK lets the part take part,
// and the deck writes the part's block in its active form.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "base/Platform.h"
#include "dialogs/Ndd2QfxSetting.h"
#include "ibis/CircuitForm.h"
#include "model/ReportMessage.h"
#include "tests/dialogs/DialogTestSupport.h"

namespace {

using namespace testing_support;

// The lines of the deck from the part's circuit block to its end.
std::vector<std::string> Block(const std::string& deck, const std::string& head) {
    std::vector<std::string> block;
    for (const std::string& line : SplitLines(deck)) {
        if (block.empty() && line.rfind(head, 0) != 0) continue;
        block.push_back(line);
        if (line == ".EndPartialCkt") break;
    }
    return block;
}

class IbisRunTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        g_bKeepActiveFormForTests = true;
        start = base::CurrentFolder();
        mkdir(dir.File("IBISModels").c_str(), 0755);
        CopyExamples(dir, {"board.ndd", "traces", "layout.hkp", "IBISModels/SN74LVC1G14.ibs"});
    }
    void TearDown() override {
        g_bKeepActiveFormForTests = false;
        base::ChangeFolder(start);
    }

    ScratchDir dir;
    std::string start;
};

}  // namespace

TEST_F(IbisRunTest, APartMappedInTheDialogIsWrittenInItsActiveForm) {
    AnsweredServices answers;
    answers.files = {dir.File("traces"), dir.File("layout.hkp")};
    auto main = OpenMainDialog(answers, dir.File("board.ndd"), dir.File("board.qfx"));
    std::vector<std::string> rows;
    ScriptedModals modals(
        {[&](CUiDialog& s) {
             auto& settings = static_cast<CNdd2QfxSetting&>(s);
             settings.TabControl()->setCurrentIndex(2);
             CUiListCtrl& parts = *settings.IbisPage().ListCtrl().List();
             ASSERT_EQ(parts.GetItemCount(), 1);
             parts.SetFocusedRow(0);
             Press(settings.IbisPage(), IDC_BUTTON_EDIT_IBIS_FILE);
             rows = CheckedRows(&parts, 0, 2);
             Press(s, kIdOk);
         },
         [](CUiDialog& mapping) {
             for (int id : {IDC_BUTTON_RESET_ALL, IDC_BUTTON_CHECK_ALL, IDC_BUTTON_LINK_GROUPS})
                 Press(mapping, id);
             Press(mapping, IDOK);
         },
         [](CUiDialog& groups) { ChooseGroups(groups); }});
    main->OnProperty();
    EXPECT_EQ(modals.Ran(), 3u);
    EXPECT_EQ(rows, std::vector<std::string>{"SN74LVC1G14|" +
                                             dir.File("IBISModels/SN74LVC1G14.ibs") + "|U1, |x"});
    {
        // No traces file was named: its question is the only one, answered No.
        CMessageBoxAnswers boxes({kAnswerNo});
        main->OnOK();
        EXPECT_EQ(boxes.Shown().size(), 1u);
    }
    const std::string model = "+ file='" + dir.File("IBISModels/SN74LVC1G14.ibs") + "' model=";
    EXPECT_EQ(Block(ReadFile(dir.File("board.qfx")), ".PartialCkt  SN74LVC1G14"),
              (std::vector<std::string>{
                  ".PartialCkt  SN74LVC1G14_SOT23-5 ",
                  "b_2_Input VCCBUS GNDBUS nd_in_2_Input gnd_2_Input nd_out_of_in_2_Input",
                  model + "'LVC_IN'",
                  "b_4_Output VCCBUS GNDBUS nd_out_4_Output nd_in_4_Output gnd_4_Output VCCBUS "
                  "GNDBUS",
                  model + "'LVC_OUT'", ".EndPartialCkt"}));
}
