// The grid's cell table must keep every list through its growth, and tell a key it never got.
#include <gtest/gtest.h>

#include "geometry/CellTable.h"

TEST(CellTable, KeepsEveryListThroughGrowthAndKnowsNoOtherKey) {
    CellTable table;
    NodeRec nodes[3];
    // Keys that share their low bits or their high bits crowd one home slot.
    const int count = 5000;
    auto keyOf = [](int i) { return (static_cast<uint64_t>(i) << 40) | (i % 7); };
    for (int i = 0; i < count; ++i) table.Get(keyOf(i)).push_back(&nodes[i % 3]);
    table.Get(keyOf(17)).push_back(&nodes[2]);
    int wrong = 0;
    for (int i = 0; i < count; ++i) {
        const CellTable::List* list = table.Find(keyOf(i));
        const size_t want = i == 17 ? 2 : 1;
        if (!list || list->size() != want || (*list)[0] != &nodes[i % 3]) ++wrong;
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(table.Find(keyOf(count)), nullptr);
    EXPECT_EQ(table.Find(12345), nullptr);
    table.Clear();
    EXPECT_EQ(table.Find(keyOf(3)), nullptr);
}
