// The Settings dialog: each control of the options page shows its field and OK writes it
// back, the page's handlers and browsers, the net choice with its colours and a loaded log's
// selection, and what Cancel leaves.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTabWidget>
#include <cstdio>
#include <tuple>

#include "Fixtures.h"
#include "app/LogLoader.h"
#include "dialogs/Ndd2QfxSetting.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "tests/dialogs/DialogTestSupport.h"
#include "ui/UiControls.h"

namespace {

using namespace testing_support;

std::string Text(int32_t v) {
    return std::to_string(v);
}
std::string Text(const std::string& v) {
    return v;
}
std::string Text(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", v);
    return text;
}
void Set(int32_t& field, const char* v) {
    field = std::stoi(v);
}
void Set(double& field, const char* v) {
    field = std::stod(v);
}
void Set(std::string& field, const char* v) {
    field = v;
}

// One control and the field it is bound to: what the field holds before, what the control
// shows of it, what the test types, and what the field holds after OK.
struct Binding {
    int id;
    const char *held, *shown, *typed, *applied;
    std::string (*field)();
    void (*set)(const char*);
};

#define BIND(id, member, held, shown, typed, applied)                           \
    {                                                                           \
        id, held, shown, typed, applied, [] { return Text(g_options.member); }, \
            [](const char* v) { Set(g_options.member, v); }                     \
    }
const Binding kBindings[] = {
    BIND(IDC_SHAPE, g_bTranslateShapes, "0", "0", "1", "1"),
    BIND(IDC_LAYER, g_bTranslateLayers, "0", "0", "1", "1"),
    BIND(IDC_TRACE, g_bTranslateTraces, "1", "1", "0", "0"),
    BIND(IDC_VIA, g_bTranslateVias, "0", "0", "1", "1"),
    BIND(IDC_CHECK_TRANSLATE_PAD, g_nTranslatePads, "0", "0", "1", "1"),
    BIND(IDC_NO_EMBEDPLANE, g_bAllowSignalOnPlane, "0", "0", "1", "1"),
    BIND(IDC_ADD_PLANE, g_bAddPseudoPlane, "0", "0", "1", "1"),
    BIND(IDC_ELIMINATE, g_nIncludeNoNetEtches, "1", "0", "1", "0"),
    BIND(IDC_OUTPUT_PATCH, g_bAllowPatches, "0", "0", "1", "1"),
    BIND(IDC_SHAPE_COLOR, g_bColorShapesByNet, "0", "0", "1", "1"),
    // The box sets both linkage fields; the passive one is read and dropped.
    BIND(IDC_TRANSLATE_ACTIVE_COMPONENTS, g_bTranslateLinkages, "0", "0", "1", "1"),
    BIND(IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA, g_bExcludeVoidEnclosingVia, "1", "1", "0", "0"),
    BIND(IDC_VIA_HOLE, g_dbViaVoidArea, "2.5", "2.5", "3", "3"),
    BIND(IDC_FACTOR, g_dbVoidAreaLimit, "0.5", "0.5", "1.5", "1.5"),
    BIND(IDC_FACTOR_TRACE, g_dbTraceUnionLength, "0.25", "0.25", "0.5", "0.5"),
    BIND(IDC_ARC_LENGTH, g_dbMaxArcLength, "0.1", "0.1", "0.3", "0.3"),
    BIND(IDC_EDIT_TRACE_VOID_CLEARANCE, g_strTraceGapPercent, "20", "20", "30", "30"),
    // An empty box keeps the name in force.
    BIND(IDC_EDIT_PROPERTY_VALUE, g_strValueFieldName, "VAL", "VAL", "", "VAL"),
    BIND(IDC_AFFIX, g_strNameAffix, "AB", "AB", "XY", "XY"),
    BIND(IDC_APPEND_NET_NAME, g_bAppendNetName, "0", "0", "1", "1"),
    BIND(IDC_BOUNDARY_LIMIT, g_bSpatialLimit, "1", "1", "0", "0"),
    // A text that is no number reads as 0.
    BIND(IDC_MIN_X, g_dbSpatialMinX, "-1", "-1", "abc", "0"),
    BIND(IDC_MIN_Y, g_dbSpatialMinY, "-2", "-2", "-3", "-3"),
    BIND(IDC_MAX_X, g_dbSpatialMaxX, "100", "100", "1e6", "1e+06"),
    BIND(IDC_MAX_Y, g_dbSpatialMaxY, "200", "200", "300", "300"),
    BIND(IDC_EDIT_TRACE_FILE_PATH, g_strTraceFile, "/t/traces", "/t/traces", "/t/traces2",
         "/t/traces2"),
    BIND(IDC_EDIT_HKP_FILE_PATH, g_strHkpFile, "/h/layout.hkp", "/h/layout.hkp", "", ""),
};
#undef BIND

void HoldTheTable() {
    for (const Binding& b : kBindings) b.set(b.held);
    g_options.g_bWriteLinkages = 0;
}

// Checks what each control shows and types the test's value into it.
void TypeTheTable(CDialogProperty& page) {
    for (const Binding& b : kBindings) {
        CUiWnd* control = page.GetDlgItem(b.id);
        ASSERT_TRUE(control) << b.id;
        if (control->GetHandle()->inherits("QCheckBox")) {
            EXPECT_EQ(std::to_string(control->GetCheck()), b.shown) << b.id;
            control->SetCheck(std::string(b.typed) == "1");
        } else {
            EXPECT_EQ(control->GetWindowText(), b.shown) << b.id;
            control->SetWindowText(b.typed);
        }
    }
}

// The net choice of the record: modes, selected nets and every net's colour.
std::string NetChoice() {
    const TranslationOptions& o = g_options;
    std::string s = Text(o.g_bAllNets) + Text(o.g_bSelectedOnly) + Text(o.g_bLogLoaded) + " " +
                    Text(o.g_nSelectedNetCount) + " nets";
    for (int v : o.g_pSelectedNets) s += " " + Text(v);
    s += " colours";
    for (int v : o.g_pNetColors) s += " " + Text(v);
    return s;
}

void Select(CUiListCtrl* list, int row, bool on) {
    list->SetItemSelected(row, on);
    QCoreApplication::processEvents();
}

void ClickChosen(CNetChoice& page, int row) {
    emit page.ChoiceList()->itemClicked(row, 0, {});
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

    AnsweredServices answers;
};

TEST_F(SettingsDialogTest, EveryControlShowsItsFieldAndOkWritesItBack) {
    HoldTheTable();
    int result = Run([](CNdd2QfxSetting& d) {
        TypeTheTable(d.PropertyPage());
        Press(d, kIdOk);
    });
    EXPECT_EQ(result, kIdOk);
    for (const Binding& b : kBindings) EXPECT_EQ(b.field(), b.applied) << b.id;
    EXPECT_EQ(g_options.g_bWriteLinkages, 1);
    EXPECT_EQ(g_options.g_bAllNets, 1);
}

TEST_F(SettingsDialogTest, CancelLeavesTheRecordTheSelectionAndTheColours) {
    HoldTheTable();
    g_options.g_pSelectedNets = {1};
    g_options.g_nSelectedNetCount = 1;
    g_options.g_bAllNets = 0;
    g_options.g_bSelectedOnly = 1;
    const std::string before = NetChoice();
    answers.colours = {9};
    int result = Run([](CNdd2QfxSetting& d) {
        TypeTheTable(d.PropertyPage());
        CUiListCtrl* all = d.NetChoicePage().NetList();
        EXPECT_EQ(Rows(d.NetChoicePage().ChoiceList()), std::vector<std::string>{"DATA:2"});
        EXPECT_EQ(all->GetSelectedRows(), QVector<int>{1});
        Select(all, 3, true);
        ClickChosen(d.NetChoicePage(), 1);
        EXPECT_EQ(Rows(d.NetChoicePage().ChoiceList()),
                  (std::vector<std::string>{"DATA:2", "VCC:9"}));
        Press(d, kIdCancel);
    });
    EXPECT_EQ(result, kIdCancel);
    for (const Binding& b : kBindings) EXPECT_EQ(b.field(), b.held) << b.id;
    EXPECT_EQ(NetChoice(), before);
}

TEST_F(SettingsDialogTest, AColourChangedWithNoRowSelectedKeepsAllNetsMode) {
    answers.colours = {7, -1};
    int result = Run([](CNdd2QfxSetting& d) {
        CUiListCtrl* all = d.NetChoicePage().NetList();
        EXPECT_EQ(Rows(all), (std::vector<std::string>{"CLK:1", "DATA:2", "GND:3", "VCC:4"}));
        EXPECT_TRUE(Rows(d.NetChoicePage().ChoiceList()).empty());
        Select(all, 2, true);
        ClickChosen(d.NetChoicePage(), 0);
        ClickChosen(d.NetChoicePage(), 0);  // a cancelled picker changes nothing
        EXPECT_EQ(Rows(d.NetChoicePage().ChoiceList()), std::vector<std::string>{"GND:7"});
        Select(all, 2, false);
        EXPECT_TRUE(Rows(d.NetChoicePage().ChoiceList()).empty());
        Press(d, kIdOk);
    });
    EXPECT_EQ(result, kIdOk);
    EXPECT_EQ(NetChoice(), "100 0 nets colours 1 2 7 4");
}

TEST_F(SettingsDialogTest, OkTakesTheSelectedRowsInTheirOrderWithTheirColours) {
    answers.colours = {11};
    Run([](CNdd2QfxSetting& d) {
        CUiListCtrl* all = d.NetChoicePage().NetList();
        Select(all, 3, true);
        Select(all, 0, true);
        EXPECT_EQ(Rows(d.NetChoicePage().ChoiceList()),
                  (std::vector<std::string>{"CLK:1", "VCC:4"}));
        ClickChosen(d.NetChoicePage(), 1);
        EXPECT_EQ(Rows(all), (std::vector<std::string>{"CLK:1", "DATA:2", "GND:3", "VCC:11"}));
        Press(d, kIdOk);
    });
    EXPECT_EQ(NetChoice(), "010 2 nets 0 3 colours 1 2 3 11");
}

TEST_F(SettingsDialogTest, ALoadedLogsSelectionShowsAtTheFirstOpeningAndConsumesTheFlag) {
    ScratchDir dir;
    dir.Write("b.ndd", "%port a \"GND\";\n%port b \"CLK\";\n%port c \"VCC\";\n%port d \"DATA\";\n");
    dir.Write("b.log",
              "Ndd2Qfx Version 1\nFrom file : b.ndd\n\nNets Translated : \n"
              "\tVCC\tdarkred\n\tclk\tDefault\n");
    std::string input, output;
    ASSERT_TRUE(LoadLogFile(dir.File("b.log"), input, output));
    ASSERT_EQ(g_options.g_bLogLoaded, 1);
    for (int opening = 0; opening < 2; ++opening) {
        Run([&](CNdd2QfxSetting& d) {
            CUiListCtrl* all = d.NetChoicePage().NetList();
            EXPECT_EQ(Rows(d.NetChoicePage().ChoiceList()),
                      (std::vector<std::string>{"VCC:9", "CLK:0"}));
            EXPECT_EQ(Rows(all), (std::vector<std::string>{"CLK:0", "DATA:2", "GND:3", "VCC:9"}));
            EXPECT_EQ(all->GetSelectedRows(), QVector<int>({0, 3}));
            EXPECT_EQ(g_options.g_bLogLoaded, 0);
            Press(d, kIdCancel);
        });
        EXPECT_EQ(g_options.g_pSelectedNets, (std::vector<int32_t>{3, 0}));
    }
}

TEST_F(SettingsDialogTest, TheAreaBoxOffAndOnKeepsItsNumbersAndMinAboveMaxRaisesTheMax) {
    g_options.g_bSpatialLimit = 1;
    g_options.g_dbSpatialMinX = 1, g_options.g_dbSpatialMaxX = 9;
    g_options.g_dbSpatialMinY = 7, g_options.g_dbSpatialMaxY = 3;
    Run([](CNdd2QfxSetting& d) {
        CDialogProperty& page = d.PropertyPage();
        auto edits = [&page] {
            std::string s;
            for (int id : {IDC_MIN_X, IDC_MIN_Y, IDC_MAX_X, IDC_MAX_Y})
                s += page.GetDlgItemText(id) +
                     (page.GetDlgItem(id)->IsWindowEnabled() ? "+ " : "- ");
            return s;
        };
        EXPECT_EQ(edits(), "1+ 7+ 9+ 7+ ");
        page.SetDlgItemText(IDC_MIN_X, "2");
        auto* box = static_cast<CUiButton*>(page.GetDlgItem(IDC_BOUNDARY_LIMIT));
        box->Click();
        EXPECT_EQ(edits(), "2- 7- 9- 7- ");
        box->Click();
        EXPECT_EQ(edits(), "2+ 7+ 9+ 7+ ");
        EXPECT_EQ(page.Page().minX, 2);
        Press(d, kIdOk);
    });
    EXPECT_EQ(g_options.g_bSpatialLimit, 1);
    EXPECT_EQ(g_options.g_dbSpatialMinX, 2);
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
    // The button, the file chosen ("" cancels), then the box shown and the layout box after it.
    const std::tuple<int, const char*, const char*> cases[] = {
        {IDC_BUTTON_TRACE_FILE_BROWSE, "/pcb/traces", "|"},
        {IDC_BUTTON_TRACE_FILE_BROWSE, "", "|"},
        {IDC_BUTTON_HKP_FILE_BROWSE, "/pcb/board.hkp", "Please input Layout.hkp file|"},
        {IDC_BUTTON_HKP_FILE_BROWSE, "layout.hkp", "Input file name invalid|"},
        {IDC_BUTTON_HKP_FILE_BROWSE, "/pcb/Layout.HKP", "|/pcb/Layout.HKP"},
    };
    for (const auto& [button, chosen, shown] : cases) answers.files.push_back(chosen);
    Run([&](CNdd2QfxSetting& d) {
        CDialogProperty& page = d.PropertyPage();
        for (const auto& [button, chosen, shown] : cases) {
            CMessageBoxAnswers boxes;
            static_cast<CUiButton*>(page.GetDlgItem(button))->Click();
            EXPECT_EQ((boxes.Shown().empty() ? "" : boxes.Shown()[0].text) + "|" +
                          page.GetDlgItemText(IDC_EDIT_HKP_FILE_PATH),
                      shown)
                << chosen;
        }
        Press(d, kIdOk);
    });
    const std::string trace = "open Select Input Board Station Trace File.|trace Files (*.*)|";
    const std::string hkp = "open Select Input Board Station Trace File.|Layout.hkp Files (*.hkp)|";
    EXPECT_EQ(answers.Requests(), (std::vector<std::string>{trace, trace, hkp, hkp, hkp}));
    // The cancelled and the refused choices left the fields as they were.
    EXPECT_EQ(g_options.g_strTraceFile + " " + g_options.g_strHkpFile,
              "/pcb/traces /pcb/Layout.HKP");
}

TEST_F(SettingsDialogTest, TabsUnderTheTitleAndTheHelpFormOfEach) {
    Run([](CNdd2QfxSetting& d) {
        QTabWidget* tabs = d.TabControl();
        std::string shown = d.GetHandle()->windowTitle().toStdString();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            shown += "|" + tabs->tabText(tab).toStdString() + ":" + d.GetHelpFormName();
        }
        EXPECT_EQ(shown,
                  "Settings|Translation Options:Ndd2QfxOptions|Net Selection:NddNetChoiceForm"
                  "|IBIS Files:Ndd2QfxOptions");
        Press(d, kIdCancel);
    });
}

}  // namespace
