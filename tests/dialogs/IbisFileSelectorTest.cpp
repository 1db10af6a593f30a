// The IBIS file page: which parts it lists and what choosing a file does to a part. A part
// mapped through the pin mapping dialog is in IbisRunTest.
#include <gtest/gtest.h>

#include <algorithm>

#include "Fixtures.h"
#include "dialogs/IBISFileSelector.h"
#include "ibis/ModelAssignment.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/DialogTestSupport.h"

namespace {

using namespace testing_support;

const std::string kBuffer = NDD2QFX_SOURCE_DIR "/tests/data/ibis/dialog/buf2.ibs";

class IbisFileSelectorTest : public ::testing::Test {
  protected:
    // BUF2 (U1, U3) has the five pins of buf2.ibs, SMALL (U2) three of them, RES (R1) two.
    void SetUp() override {
        ResetGlobals();
        fixtures::MakeNets({"N1", "N2"});
        Add("U1", "BUF2", 5, "N2");
        Add("U3", "BUF2", 5, "N2");
        Add("U2", "SMALL", 3, "N1");
        Add("R1", "RES", 2, "N1");
        models.ResolveModels();
        file = dir.Write("buf2.ibs", ReadFile(kBuffer));
    }

    void Add(const std::string& refDes, const std::string& part, int pins, const char* net) {
        ComponentRec& c = table[refDes];
        c.refDes = refDes;
        c.partNumber = part;
        c.packageName = "PKG" + std::to_string(pins);
        for (int p = 1; p <= pins; ++p) {
            PinRec& pin = c.pins.emplace_back();
            pin.name = std::to_string(p);
            pin.net = net;
        }
    }

    void Open() { page.Create(IDD_IBIS_FILE_SELECTION, nullptr, false, "QWidget"); }
    CUiListCtrl& List() { return *page.ListCtrl().List(); }
    int Row(const char* part) { return List().FindItem(part); }

    // "part|file|designators|check", sorted by part.
    std::vector<std::string> Rows() {
        std::vector<std::string> rows = CheckedRows(&List(), 0, 2);
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    base::StringMap<ComponentRec> table{base::kComponentBuckets};
    base::StringMap<std::string> assignments{base::kComponentBuckets};
    ModelAssignment models{&table, "out.qfx", nullptr, nullptr, &assignments, "in.ndd"};
    ScratchDir dir;
    std::string file;
    AnsweredServices answers;
    CIBISFileSelector page{answers.Make(), &models};
};

}  // namespace

TEST_F(IbisFileSelectorTest, ListsActivePartsOfTheChosenNets) {
    Open();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"BUF2||U1, U3, |-", "SMALL||U2, |-"}));
    g_options.g_bSelectedOnly = 1;
    g_options.g_nSelectedNetCount = 1;
    g_options.g_pSelectedNets = {0};
    page.FillList();
    EXPECT_EQ(Rows(), std::vector<std::string>{"SMALL||U2, |-"});
}

TEST_F(IbisFileSelectorTest, ForeignPinsKeepTheOldFileAndAMatchingFileIsTaken) {
    Open();
    answers.files = {file, file};
    CMessageBoxAnswers boxes;
    emit List().itemDoubleClicked(Row("SMALL"), 0);
    emit List().itemDoubleClicked(Row("BUF2"), 0);
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(boxes.Shown()[0].text,
              "Pins in IBIS file : " + file +
                  " \ndo not exist in  Package : PKG3 for the selected Part No\n"
                  "Please assign IBIS file matched to selected Part No :SMALL .");
    EXPECT_EQ(answers.requests[0].title, "Select IBIS File for  Part No: SMALL");
    EXPECT_EQ(answers.requests[0].filter, "ibs Files (*.ibs)");
    EXPECT_EQ(Rows(), (std::vector<std::string>{"BUF2|" + file + "|U1, U3, |-", "SMALL||U2, |-"}));
    EXPECT_EQ(table["U2"].ibisFile, "");
    EXPECT_EQ(table["U3"].ibisFile, file);
    EXPECT_EQ(assignments["BUF2"], file);
    EXPECT_FALSE(assignments.Contains("SMALL"));
}
