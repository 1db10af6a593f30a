// The list control's own rules: rows by position, texts by column, and which changes count as a
// change of a row's state.
#include <gtest/gtest.h>

#include "ui/UiListCtrl.h"

namespace {

QString Row(const CUiListCtrl& list, int row) {
    QStringList cells;
    for (int c = 0; c < list.GetColumnCount(); ++c) cells << list.GetItemText(row, c);
    return cells.join('|');
}

}  // namespace

TEST(UiListCtrl, ColumnInsertedBetweenOthersMovesTheTextsBehindIt) {
    CUiListCtrl list;
    list.InsertColumn(0, "Part No", 200);
    list.InsertColumn(1, "List Of RefDes ", 15);
    EXPECT_EQ(list.InsertItem(5, "P1"), 0);  // past the end: appended
    EXPECT_EQ(list.InsertItem(0, "P0"), 0);
    list.SetItemText(1, 1, "U1, U2");
    EXPECT_EQ(list.InsertColumn(1, "IBIS File Path", 15), 1);
    list.SetItemText(1, 1, "a.ibs");
    EXPECT_EQ(Row(list, 0), "P0||");
    EXPECT_EQ(Row(list, 1), "P1|a.ibs|U1, U2");
    EXPECT_FALSE(list.SetItemText(2, 0, "none"));
    EXPECT_EQ(list.FindItem("P1"), 1);
    EXPECT_EQ(list.FindItem("P1", 2), -1);
}

TEST(UiListCtrl, SelectionAndCheckChangesAreStateChangesTextsAreNot) {
    CUiListCtrl list;
    list.SetCheckBoxes(true);
    list.InsertColumn(0, "Net Name", 190);
    for (const char* net : {"A", "B", "C", "D"}) list.InsertItem(list.GetItemCount(), net, 2);
    QList<int> rows;
    QObject::connect(&list, &CUiListCtrl::itemStateChanged, [&rows](int row) { rows << row; });
    list.SetItemSelected(3, true);
    list.SetItemSelected(1, true);
    list.SetCheck(2, true);
    list.SetItemText(0, 0, "A2");
    list.SetItemImage(0, 5);
    list.SetItemData(0, 42);
    EXPECT_EQ(rows, QList<int>({3, 1, 2}));
    EXPECT_EQ(list.GetSelectedRows(), QVector<int>({1, 3}));
    EXPECT_TRUE(list.GetCheck(2));
    EXPECT_FALSE(list.GetCheck(1));
    EXPECT_EQ(list.GetItemImage(0), 5);
    EXPECT_EQ(list.GetItemImage(1), 2);
    EXPECT_EQ(list.GetItemData(0), 42u);
    EXPECT_EQ(list.GetItemData(9), 0u);
}
