// The Settings dialog: each control of the options page shows its field and OK writes it
// back, the page's handlers and browsers, the net choice with its colours and a loaded log's
// selection, and what Cancel leaves.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTabWidget>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "Fixtures.h"
#include "TestSupport.h"
#include "app/LogLoader.h"
#include "dialogs/Ndd2QfxSetting.h"
#include "dialogs/forms/ControlIds.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/ScriptedModals.h"
#include "ui/MessageBox.h"
#include "ui/UiControls.h"
#include "ui/UiListCtrl.h"

namespace {

using namespace testing_support;

std::string Num(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", v);
    return text;
}

// What the dialog may change in the record, as one text.
std::string Record() {
    const TranslationOptions& o = g_options;
    std::string s;
    for (int v : {o.g_bTranslateShapes, o.g_bTranslateLayers, o.g_bTranslateTraces,
                  o.g_bTranslateVias, o.g_nTranslatePads, o.g_bAllowSignalOnPlane,
                  o.g_bAllowPatches, o.g_bAddPseudoPlane, o.g_nIncludeNoNetEtches,
                  o.g_bAppendNetName, o.g_bColorShapesByNet, o.g_bExcludeVoidEnclosingVia,
                  o.g_bSpatialLimit, o.g_bTranslateLinkages, o.g_bWriteLinkages,
                  o.g_nSelectedNetCount, o.g_bAllNets, o.g_bSelectedOnly, o.g_bLogLoaded})
        s += std::to_string(v) + " ";
    for (double v :
         {o.g_dbVoidAreaLimit, o.g_dbViaVoidArea, o.g_dbTraceUnionLength, o.g_dbMaxArcLength,
          o.g_dbSpatialMinX, o.g_dbSpatialMinY, o.g_dbSpatialMaxX, o.g_dbSpatialMaxY})
        s += Num(v) + " ";
    for (const std::string* t : {&o.g_strNameAffix, &o.g_strTraceGapPercent, &o.g_strValueFieldName,
                                 &o.g_strTraceFile, &o.g_strHkpFile})
        s += *t + "|";
    for (int v : o.g_pSelectedNets) s += " n" + std::to_string(v);
    for (int v : o.g_pNetColors) s += " c" + std::to_string(v);
    return s;
}

// "NAME:colour" for every row of a list.
std::vector<std::string> Rows(CUiListCtrl* list) {
    std::vector<std::string> rows;
    for (int r = 0; r < list->GetItemCount(); ++r)
        rows.push_back(list->GetItemText(r, 0).toStdString() + ":" +
                       std::to_string(list->GetItemImage(r)));
    return rows;
}

std::vector<int> SelectedRows(CUiListCtrl* list) {
    QVector<int> rows = list->GetSelectedRows();
    return std::vector<int>(rows.begin(), rows.end());
}

void Select(CUiListCtrl* list, int row, bool on) {
    list->SetItemSelected(row, on);
    QCoreApplication::processEvents();
}

class SettingsDialogTest : public ::testing::Test {
  protected:
    // Table order, without case: CLK 0, DATA 1, GND 2, VCC 3; colours 1 to 4.
    void SetUp() override {
        ResetGlobals();
        fixtures::MakeNets({"GND", "CLK", "VCC", "DATA"});
    }

    // Runs the dialog with a script in place of the person; the dialog's result.
    int Run(const std::function<void(CNdd2QfxSetting&)>& script) {
        ScriptedModals modals({[&](CUiDialog& d) { script(static_cast<CNdd2QfxSetting&>(d)); }});
        CNdd2QfxSetting settings(nullptr, answers.Make());
        return settings.DoModal();
    }
    static void Press(CUiDialog& d, int id) { d.OnCmdMsg(id, kCodeClicked, nullptr, false); }

    AnsweredServices answers;
};

// One control: what it shows of the record below, what the test types, the field it is bound
// to and what that field holds after OK.
struct Binding {
    int id;
    const char* shown;
    const char* typed;
    std::string (*field)();
    const char* applied;
};

#define FIELD(expr) +[]() -> std::string { return expr; }
const Binding kBindings[] = {
    {IDC_SHAPE, "0", "1", FIELD(std::to_string(g_options.g_bTranslateShapes)), "1"},
    {IDC_LAYER, "0", "1", FIELD(std::to_string(g_options.g_bTranslateLayers)), "1"},
    {IDC_TRACE, "1", "0", FIELD(std::to_string(g_options.g_bTranslateTraces)), "0"},
    {IDC_VIA, "0", "1", FIELD(std::to_string(g_options.g_bTranslateVias)), "1"},
    {IDC_CHECK_TRANSLATE_PAD, "0", "1", FIELD(std::to_string(g_options.g_nTranslatePads)), "1"},
    {IDC_NO_EMBEDPLANE, "0", "1", FIELD(std::to_string(g_options.g_bAllowSignalOnPlane)), "1"},
    {IDC_ADD_PLANE, "0", "1", FIELD(std::to_string(g_options.g_bAddPseudoPlane)), "1"},
    {IDC_ELIMINATE, "0", "1", FIELD(std::to_string(g_options.g_nIncludeNoNetEtches)), "0"},
    {IDC_OUTPUT_PATCH, "0", "1", FIELD(std::to_string(g_options.g_bAllowPatches)), "1"},
    {IDC_SHAPE_COLOR, "0", "1", FIELD(std::to_string(g_options.g_bColorShapesByNet)), "1"},
    {IDC_TRANSLATE_ACTIVE_COMPONENTS, "0", "1",
     FIELD(std::to_string(g_options.g_bTranslateLinkages) +
           std::to_string(g_options.g_bWriteLinkages)),
     "11"},
    {IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA, "1", "0",
     FIELD(std::to_string(g_options.g_bExcludeVoidEnclosingVia)), "0"},
    {IDC_VIA_HOLE, "2.5", "3", FIELD(Num(g_options.g_dbViaVoidArea)), "3"},
    {IDC_FACTOR, "0.5", "1.5", FIELD(Num(g_options.g_dbVoidAreaLimit)), "1.5"},
    {IDC_FACTOR_TRACE, "0.25", "0.5", FIELD(Num(g_options.g_dbTraceUnionLength)), "0.5"},
    {IDC_ARC_LENGTH, "0.1", "0.3", FIELD(Num(g_options.g_dbMaxArcLength)), "0.3"},
    {IDC_EDIT_TRACE_VOID_CLEARANCE, "20", "30", FIELD(g_options.g_strTraceGapPercent), "30"},
    // An empty box keeps the name in force.
    {IDC_EDIT_PROPERTY_VALUE, "VAL", "", FIELD(g_options.g_strValueFieldName), "VAL"},
    {IDC_AFFIX, "AB", "XY", FIELD(g_options.g_strNameAffix), "XY"},
    {IDC_APPEND_NET_NAME, "0", "1", FIELD(std::to_string(g_options.g_bAppendNetName)), "1"},
    {IDC_BOUNDARY_LIMIT, "1", "0", FIELD(std::to_string(g_options.g_bSpatialLimit)), "0"},
    // A text that is no number reads as 0.
    {IDC_MIN_X, "-1", "abc", FIELD(Num(g_options.g_dbSpatialMinX)), "0"},
    {IDC_MIN_Y, "-2", "-3", FIELD(Num(g_options.g_dbSpatialMinY)), "-3"},
    {IDC_MAX_X, "100", "1e6", FIELD(Num(g_options.g_dbSpatialMaxX)), "1e+06"},
    {IDC_MAX_Y, "200", "300", FIELD(Num(g_options.g_dbSpatialMaxY)), "300"},
    {IDC_EDIT_TRACE_FILE_PATH, "/t/traces", "/t/traces2", FIELD(g_options.g_strTraceFile),
     "/t/traces2"},
    {IDC_EDIT_HKP_FILE_PATH, "/h/layout.hkp", "", FIELD(g_options.g_strHkpFile), ""},
};
#undef FIELD

bool IsCheckBox(CUiWnd* control) {
    return control->GetHandle()->inherits("QCheckBox");
}

TEST_F(SettingsDialogTest, EveryControlShowsItsFieldAndOkWritesItBack) {
    TranslationOptions& o = g_options;
    o.g_bTranslateShapes = o.g_bTranslateLayers = o.g_bTranslateVias = o.g_nTranslatePads = 0;
    o.g_bAllowSignalOnPlane = o.g_bAddPseudoPlane = o.g_bAllowPatches = 0;
    o.g_bColorShapesByNet = o.g_bTranslateLinkages = o.g_bWriteLinkages = o.g_bAppendNetName = 0;
    o.g_nIncludeNoNetEtches = 1;
    o.g_dbViaVoidArea = 2.5;
    o.g_dbVoidAreaLimit = 0.5;
    o.g_dbTraceUnionLength = 0.25;
    o.g_dbMaxArcLength = 0.1;
    o.g_strTraceGapPercent = "20";
    o.g_strValueFieldName = "VAL";
    o.g_strNameAffix = "AB";
    o.g_bSpatialLimit = 1;
    o.g_dbSpatialMinX = -1, o.g_dbSpatialMinY = -2, o.g_dbSpatialMaxX = 100,
    o.g_dbSpatialMaxY = 200;
    o.g_strTraceFile = "/t/traces";
    o.g_strHkpFile = "/h/layout.hkp";
    int result = Run([](CNdd2QfxSetting& d) {
        CDialogProperty& page = d.PropertyPage();
        for (const Binding& b : kBindings) {
            CUiWnd* control = page.GetDlgItem(b.id);
            ASSERT_TRUE(control) << b.id;
            if (IsCheckBox(control)) {
                EXPECT_EQ(std::to_string(control->GetCheck()), b.shown) << b.id;
                control->SetCheck(std::string(b.typed) == "1");
            } else {
                EXPECT_EQ(control->GetWindowText(), b.shown) << b.id;
                control->SetWindowText(b.typed);
            }
        }
        Press(d, kIdOk);
    });
    EXPECT_EQ(result, kIdOk);
    for (const Binding& b : kBindings) EXPECT_EQ(b.field(), b.applied) << b.id;
    // The passive linkage box is read and dropped; nothing else changed.
    EXPECT_EQ(g_options.g_bAllNets, 1);
}

TEST_F(SettingsDialogTest, CancelLeavesTheRecordTheSelectionAndTheColours) {
    g_options.g_pSelectedNets = {1};
    g_options.g_nSelectedNetCount = 1;
    g_options.g_bAllNets = 0;
    g_options.g_bSelectedOnly = 1;
    const std::string before = Record();
    answers.colours = {9};
    int result = Run([](CNdd2QfxSetting& d) {
        CUiListCtrl* all = d.NetChoicePage().NetList();
        CUiListCtrl* chosen = d.NetChoicePage().ChoiceList();
        EXPECT_EQ(Rows(chosen), std::vector<std::string>{"DATA:2"});
        EXPECT_EQ(SelectedRows(all), std::vector<int>{1});
        Select(all, 3, true);
        emit chosen->itemClicked(1, 0, QPoint());
        EXPECT_EQ(Rows(chosen), (std::vector<std::string>{"DATA:2", "VCC:9"}));
        d.PropertyPage().CheckDlgButton(IDC_SHAPE, 0);
        d.PropertyPage().SetDlgItemText(IDC_EDIT_TRACE_FILE_PATH, "/t/traces");
        Press(d, kIdCancel);
    });
    EXPECT_EQ(result, kIdCancel);
    EXPECT_EQ(Record(), before);
}

TEST_F(SettingsDialogTest, AColourChangedWithNoRowSelectedKeepsAllNetsMode) {
    answers.colours = {7, -1};
    int result = Run([](CNdd2QfxSetting& d) {
        CUiListCtrl* all = d.NetChoicePage().NetList();
        CUiListCtrl* chosen = d.NetChoicePage().ChoiceList();
        EXPECT_EQ(Rows(all), (std::vector<std::string>{"CLK:1", "DATA:2", "GND:3", "VCC:4"}));
        EXPECT_TRUE(Rows(chosen).empty());
        Select(all, 2, true);
        emit chosen->itemClicked(0, 0, QPoint());
        // A cancelled picker changes nothing.
        emit chosen->itemClicked(0, 0, QPoint());
        EXPECT_EQ(Rows(chosen), std::vector<std::string>{"GND:7"});
        Select(all, 2, false);
        EXPECT_TRUE(Rows(chosen).empty());
        Press(d, kIdOk);
    });
    EXPECT_EQ(result, kIdOk);
    EXPECT_EQ(g_options.g_bAllNets, 1);
    EXPECT_EQ(g_options.g_bSelectedOnly, 0);
    EXPECT_EQ(g_options.g_nSelectedNetCount, 0);
    EXPECT_EQ(g_options.g_pNetColors, (std::vector<int32_t>{1, 2, 7, 4}));
}

TEST_F(SettingsDialogTest, OkTakesTheSelectedRowsInTheirOrderWithTheirColours) {
    answers.colours = {11};
    Run([](CNdd2QfxSetting& d) {
        CUiListCtrl* all = d.NetChoicePage().NetList();
        CUiListCtrl* chosen = d.NetChoicePage().ChoiceList();
        Select(all, 3, true);
        Select(all, 0, true);
        EXPECT_EQ(Rows(chosen), (std::vector<std::string>{"CLK:1", "VCC:4"}));
        emit chosen->itemClicked(1, 0, QPoint());
        EXPECT_EQ(Rows(all), (std::vector<std::string>{"CLK:1", "DATA:2", "GND:3", "VCC:11"}));
        Press(d, kIdOk);
    });
    EXPECT_EQ(g_options.g_pSelectedNets, (std::vector<int32_t>{0, 3}));
    EXPECT_EQ(g_options.g_nSelectedNetCount, 2);
    EXPECT_EQ(g_options.g_bSelectedOnly, 1);
    EXPECT_EQ(g_options.g_bAllNets, 0);
    EXPECT_EQ(g_options.g_pNetColors, (std::vector<int32_t>{1, 2, 3, 11}));
}

TEST_F(SettingsDialogTest, ALoadedLogsSelectionShowsAtTheFirstOpeningAndConsumesTheFlag) {
    ScratchDir dir;
    std::string board = dir.Write("b.ndd",
                                  "%port a \"GND\";\n%port b \"CLK\";\n%port c \"VCC\";\n"
                                  "%port d \"DATA\";\n");
    dir.Write("b.log",
              "Ndd2Qfx Version 1\nFrom file : b.ndd\n\nNets Translated : \n"
              "\tVCC\tdarkred\n\tclk\tDefault\n");
    std::string input, output;
    ASSERT_TRUE(LoadLogFile(dir.File("b.log"), input, output));
    ASSERT_EQ(g_options.g_bLogLoaded, 1);
    const std::vector<std::string> shown = {"VCC:9", "CLK:0"};
    for (int opening = 0; opening < 2; ++opening) {
        Run([&](CNdd2QfxSetting& d) {
            CUiListCtrl* all = d.NetChoicePage().NetList();
            EXPECT_EQ(Rows(d.NetChoicePage().ChoiceList()), shown);
            EXPECT_EQ(Rows(all), (std::vector<std::string>{"CLK:0", "DATA:2", "GND:3", "VCC:9"}));
            EXPECT_EQ(SelectedRows(all), (std::vector<int>{0, 3}));
            EXPECT_EQ(g_options.g_bLogLoaded, 0);
            Press(d, kIdCancel);
        });
        EXPECT_EQ(g_options.g_pSelectedNets, (std::vector<int32_t>{3, 0}));
    }
}

TEST_F(SettingsDialogTest, TheAreaBoxOffAndOnKeepsItsNumbers) {
    g_options.g_bSpatialLimit = 1;
    g_options.g_dbSpatialMinX = 1, g_options.g_dbSpatialMaxX = 9;
    Run([](CNdd2QfxSetting& d) {
        CDialogProperty& page = d.PropertyPage();
        auto* box = static_cast<CUiButton*>(page.GetDlgItem(IDC_BOUNDARY_LIMIT));
        auto edits = [&page] {
            std::string s;
            for (int id : {IDC_MIN_X, IDC_MIN_Y, IDC_MAX_X, IDC_MAX_Y})
                s += page.GetDlgItemText(id) +
                     (page.GetDlgItem(id)->IsWindowEnabled() ? "+ " : "- ");
            return s;
        };
        EXPECT_EQ(edits(), "1+ -1e+38+ 9+ 1e+38+ ");
        page.SetDlgItemText(IDC_MIN_X, "2");
        box->Click();
        EXPECT_EQ(edits(), "2- -1e+38- 9- 1e+38- ");
        box->Click();
        EXPECT_EQ(edits(), "2+ -1e+38+ 9+ 1e+38+ ");
        EXPECT_EQ(page.Page().minX, 2);
        Press(d, kIdOk);
    });
    EXPECT_EQ(g_options.g_bSpatialLimit, 1);
    EXPECT_EQ(g_options.g_dbSpatialMinX, 2);
}

TEST_F(SettingsDialogTest, MinAboveMaxShowsTheMaxRaisedToTheMin) {
    g_options.g_dbSpatialMinX = 5, g_options.g_dbSpatialMaxX = 2;
    g_options.g_dbSpatialMinY = 7, g_options.g_dbSpatialMaxY = 3;
    Run([](CNdd2QfxSetting& d) {
        EXPECT_EQ(d.PropertyPage().GetDlgItemText(IDC_MAX_X), "5");
        EXPECT_EQ(d.PropertyPage().GetDlgItemText(IDC_MAX_Y), "7");
        Press(d, kIdCancel);
    });
    EXPECT_EQ(g_options.g_dbSpatialMaxX, 2);
}

TEST_F(SettingsDialogTest, TheViaVoidBoxEnablesItsAreaAndShowsOffWithoutAnArea) {
    // The initial pair: the flag on with no area.
    Run([](CNdd2QfxSetting& d) {
        CDialogProperty& page = d.PropertyPage();
        CUiWnd* area = page.GetDlgItem(IDC_VIA_HOLE);
        EXPECT_EQ(page.IsDlgButtonChecked(IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA), 0);
        EXPECT_FALSE(area->IsWindowEnabled());
        static_cast<CUiButton*>(page.GetDlgItem(IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA))->Click();
        EXPECT_TRUE(area->IsWindowEnabled());
        area->SetWindowText("0");
        Press(d, kIdOk);
    });
    // An area of 0 clears the flag whatever the box says.
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 0);
}

TEST_F(SettingsDialogTest, TheBrowsersAskWithTheirTitlesAndFiltersAndCheckTheLayoutName) {
    struct Case {
        int button;
        const char* chosen;
        const char* box;
        const char* traceField;
        const char* hkpField;
    };
    const Case cases[] = {
        {IDC_BUTTON_TRACE_FILE_BROWSE, "/pcb/traces", "", "/pcb/traces", ""},
        {IDC_BUTTON_TRACE_FILE_BROWSE, "", "", "/pcb/traces", ""},
        {IDC_BUTTON_HKP_FILE_BROWSE, "/pcb/board.hkp", "Please input Layout.hkp file",
         "/pcb/traces", ""},
        {IDC_BUTTON_HKP_FILE_BROWSE, "layout.hkp", "Input file name invalid", "/pcb/traces", ""},
        {IDC_BUTTON_HKP_FILE_BROWSE, "/pcb/Layout.HKP", "", "/pcb/traces", "/pcb/Layout.HKP"},
    };
    for (const Case& c : cases) answers.files.push_back(c.chosen);
    Run([&](CNdd2QfxSetting& d) {
        CDialogProperty& page = d.PropertyPage();
        for (const Case& c : cases) {
            CMessageBoxAnswers boxes;
            static_cast<CUiButton*>(page.GetDlgItem(c.button))->Click();
            EXPECT_EQ(boxes.Shown().empty() ? "" : boxes.Shown()[0].text, c.box) << c.chosen;
            EXPECT_EQ(page.GetDlgItemText(IDC_EDIT_TRACE_FILE_PATH), c.traceField) << c.chosen;
            EXPECT_EQ(page.GetDlgItemText(IDC_EDIT_HKP_FILE_PATH), c.hkpField) << c.chosen;
        }
        Press(d, kIdOk);
    });
    ASSERT_EQ(answers.requests.size(), 5u);
    for (size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(answers.requests[i].title, "Select Input Board Station Trace File.");
        EXPECT_EQ(answers.requests[i].filter,
                  i < 2 ? "trace Files (*.*)" : "Layout.hkp Files (*.hkp)");
    }
    EXPECT_EQ(g_options.g_strTraceFile, "/pcb/traces");
    EXPECT_EQ(g_options.g_strHkpFile, "/pcb/Layout.HKP");
}

TEST_F(SettingsDialogTest, TabsUnderTheTitleAndTheHelpFormOfEach) {
    Run([](CNdd2QfxSetting& d) {
        QTabWidget* tabs = d.TabControl();
        EXPECT_EQ(d.GetHandle()->windowTitle().toStdString(), "Settings");
        ASSERT_EQ(tabs->count(), 3);
        EXPECT_EQ(tabs->tabText(0).toStdString(), "Translation Options");
        EXPECT_EQ(tabs->tabText(1).toStdString(), "Net Selection");
        EXPECT_EQ(tabs->tabText(2).toStdString(), "IBIS Files");
        EXPECT_EQ(d.GetHelpFormName(), "Ndd2QfxOptions");
        tabs->setCurrentIndex(1);
        EXPECT_EQ(d.GetHelpFormName(), "NddNetChoiceForm");
        tabs->setCurrentIndex(2);
        EXPECT_EQ(d.GetHelpFormName(), "Ndd2QfxOptions");
        Press(d, kIdCancel);
    });
}

// "id name" of the first entries of a class's own chain.
std::vector<std::string> Handlers(const CUiDialog& dialog, size_t count) {
    std::vector<std::string> rows;
    for (const CClassFunctionCall* e = dialog.GetChainHead(); e && rows.size() < count; e = e->next)
        rows.push_back(std::to_string(e->firstId) + " " + e->name);
    return rows;
}

TEST_F(SettingsDialogTest, HandlersAreBoundByTable) {
    EXPECT_EQ(Handlers(CDialogProperty(), 4),
              (std::vector<std::string>{"1027 &CDialogProperty::OnBoundaryLimit",
                                        "1022 &CDialogProperty::OnExcludeVoidShapeEncloseAVia",
                                        "1092 &CDialogProperty::OnBnClickedButtonTraceFileBrowse",
                                        "1095 &CDialogProperty::OnBnClickedButtonHkpFileBrowse"}));
    EXPECT_EQ(Handlers(CNetChoice(), 4),
              (std::vector<std::string>{
                  "0 &CNetChoice::OnDestroy", "1029 &CNetChoice::OnItemchangedNetChoice",
                  "1029 &CNetChoice::OnClickNetChoice", "1028 &CNetChoice::OnItemchangedNetList"}));
}

}  // namespace
