// The pin mapping dialog run as a user runs it: groups opened by their pictures, pins dragged
// between groups, groups added and deleted with the questions answered by the test, signal
// pins linked to groups, and the file saved or left alone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>

#include "dialogs/PowerPinSelector.h"
#include "dialogs/SignalPinRows.h"
#include "ibis/IbisReader.h"
#include "model/ReportMessage.h"
#include "tests/dialogs/DialogTestSupport.h"

namespace {

using namespace testing_support;

const std::string kBuffer = NDD2QFX_SOURCE_DIR "/tests/data/ibis/dialog/buf2.ibs";
constexpr char kSaveQuestion[] = "Do You want to save the File ?";

void Mouse(CUiListCtrl& list, QEvent::Type type, const QPoint& at, Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &event);
}

int Row(CUiListCtrl& list, const std::string& text) {
    int row = list.FindItem(QString::fromStdString(text));
    EXPECT_GE(row, 0) << text;
    return row;
}

// A press and release on the top left corner of a row: a group's picture.
void ClickPicture(CUiListCtrl& list, const std::string& text) {
    QPoint at = list.GetRowRect(Row(list, text)).topLeft() + QPoint(3, 3);
    Mouse(list, QEvent::MouseButtonPress, at, Qt::LeftButton);
    Mouse(list, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void Drag(CUiListCtrl& list, const std::string& from, const std::string& onto) {
    QPoint start = list.GetRowRect(Row(list, from)).center();
    QPoint end = list.GetRowRect(Row(list, onto)).center();
    Mouse(list, QEvent::MouseButtonPress, start, Qt::LeftButton);
    Mouse(list, QEvent::MouseMove, end, Qt::LeftButton);
    Mouse(list, QEvent::MouseButtonRelease, end, Qt::NoButton);
}

// "pin|pulldown|pullup|gndclamp|powerclamp|check" of every signal pin row.
std::vector<std::string> PinRows(CPowerPinSelector& d) {
    return CheckedRows(d.PinList(), kColPin, kLastRefColumn);
}

// Part BUF2 with the five pins of buf2.ibs, read from file.
ComponentRec Buffer(const std::string& file) {
    ComponentRec part;
    part.isActive = 1;
    part.partNumber = "BUF2";
    for (const char* name : {"1", "2", "3", "4", "5"}) part.pins.emplace_back().name = name;
    part.ibisFile = file;
    ParseIbisFile(part);
    return part;
}

class PinMappingDialogTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ResetGlobals();
        part = Buffer(dir.Write("buf2.ibs", ReadFile(kBuffer)));
    }

    // Runs the dialog; its first script is the person at the dialog, further ones answer the
    // group selector.
    int Run(std::vector<ScriptedModals::Script> scripts) {
        auto first = scripts.front();
        scripts.front() = [first](CUiDialog& d) {
            d.GetHandle()->show();
            QApplication::processEvents();
            first(d);
        };
        ScriptedModals modals(std::move(scripts));
        CPowerPinSelector dialog(part);
        return dialog.DoModal();
    }
    static CPowerPinSelector& Pins(CUiDialog& d) { return static_cast<CPowerPinSelector&>(d); }

    ScratchDir dir;
    ComponentRec part;
};

struct Refusal {
    std::vector<const char*> chosen;
    const char* message;
};

const Refusal kRefusals[] = {
    {{"PWRGRP0"},
     "This Group : PWRGRP0 cannot be deleted\nAteast One Power Group should be there ."},
    {{"GNDGRP0"}, "This Group : GNDGRP0 cannot be deleted\nAteast One Gnd Group should be there ."},
    {{"AVAILABLE PINS"}, "\"AVAILABLE PINS\" Group can't be deleted"},
    {{"4 -  PWR"}, "Pins Can't be Deleted !\nPlease Select a Group"},
    {{"PWRGRP0", "GNDGRP0"},
     "Please Choose Only One Group At a Time !\nNote : Pins can't be deleted "},
};

}  // namespace

TEST_F(PinMappingDialogTest, DeleteGroupRefusesWithTheDialogsWordsAndCancelKeepsTheFile) {
    const std::string before = ReadFile(part.ibisFile);
    for (const Refusal& refusal : kRefusals) {
        CMessageBoxAnswers boxes({1, kAnswerNo});
        std::vector<std::string> rows;
        int result = Run({[&](CUiDialog& d) {
            CUiListCtrl& list = *Pins(d).GroupList();
            ClickPicture(list, "PWRGRP0");
            rows = Rows(Pins(d).GroupList());
            for (const char* text : refusal.chosen) list.SetItemSelected(Row(list, text), true);
            Press(d, IDC_BUTTON_DELETE_GROUP);
            EXPECT_EQ(Rows(Pins(d).GroupList()), rows);
            Press(d, IDCANCEL);
        }});
        EXPECT_EQ(rows, (std::vector<std::string>{"PWRGRP0:1", "4 -  PWR:9", "GNDGRP0:3",
                                                  "AVAILABLE PINS:6"}));
        EXPECT_EQ(Texts(boxes), (std::vector<std::string>{refusal.message, kSaveQuestion}));
        EXPECT_EQ(result, kIdCancel);
    }
    EXPECT_EQ(ReadFile(part.ibisFile), before);
}

TEST_F(PinMappingDialogTest, AddedGroupsTakeTheFirstFreeName) {
    CMessageBoxAnswers boxes({kAnswerYes, kAnswerNo});
    Run({[&](CUiDialog& d) {
        for (int id : {IDC_BUTTON_ADD_GROUP, IDC_BUTTON_ADD_GROUP, IDC_BUTTON_ADD_GND_GROUP,
                       IDC_BUTTON_ADD_PC_GROUP, IDC_BUTTON_ADD_GC_GROUP})
            Press(d, id);
        CUiListCtrl& list = *Pins(d).GroupList();
        list.SetItemSelected(Row(list, "PWRGRP1"), true);
        Press(d, IDC_BUTTON_DELETE_GROUP);
        Press(d, IDC_BUTTON_ADD_GROUP);
        EXPECT_EQ(
            Rows(Pins(d).GroupList()),
            (std::vector<std::string>{"PWRGRP0:0", "GNDGRP0:3", "PWRGRP2:2", "GNDGRP1:5",
                                      "PC_GRP0:2", "GC_GRP0:5", "PWRGRP1:2", "AVAILABLE PINS:6"}));
        Press(d, IDCANCEL);
    }});
    EXPECT_EQ(Texts(boxes), (std::vector<std::string>{
                                "Are you sure , you want to\ndelete this Group ?", kSaveQuestion}));
}

// Pin 1 (an input: clamps only) is linked to both groups; the power pin then goes to the
// ground group, which empties the power group and the cell that named it.
TEST_F(PinMappingDialogTest, DroppedPinMovesAndItsEmptiedGroupIsClearedEverywhere) {
    CMessageBoxAnswers boxes;
    int result = Run(
        {[&](CUiDialog& d) {
             CPowerPinSelector& pins = Pins(d);
             pins.PinList()->SetCheck(0, true);
             Press(d, IDC_BUTTON_LINK_GROUPS);
             EXPECT_EQ(PinRows(pins),
                       (std::vector<std::string>{"1|||GNDGRP0|PWRGRP0|x", "2|||||-"}));
             CUiListCtrl& list = *pins.GroupList();
             ClickPicture(list, "PWRGRP0");
             Drag(list, "4 -  PWR", "GNDGRP0");
             EXPECT_EQ(Rows(pins.GroupList()),
                       (std::vector<std::string>{"PWRGRP0:2", "GNDGRP0:3", "AVAILABLE PINS:6"}));
             ClickPicture(list, "GNDGRP0");
             EXPECT_EQ(Rows(pins.GroupList()),
                       (std::vector<std::string>{"PWRGRP0:2", "GNDGRP0:4", "4 -  PWR:9",
                                                 "3 -  GND:9", "AVAILABLE PINS:6"}));
             EXPECT_EQ(PinRows(pins), (std::vector<std::string>{"1|||GNDGRP0||-", "2|||||-"}));
             Press(d, IDOK);
         },
         [](CUiDialog& d) { ChooseGroups(d); }});
    EXPECT_EQ(result, kIdOk);
    EXPECT_TRUE(boxes.Shown().empty());
    std::vector<std::string> read;
    for (const PinRec& pin : Buffer(part.ibisFile).pins)
        read.push_back(pin.name + " " + std::to_string(pin.pinClass) + " " +
                       pin.Model().groundGroup + " " + pin.Model().gndClampRef);
    EXPECT_EQ(read, (std::vector<std::string>{"1 0  GNDGRP0", "2 0  ", "3 2 GNDGRP0 ",
                                              "4 2 GNDGRP0 ", "5 -1  "}));
}
