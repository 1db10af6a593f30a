#include "base/StringMap.h"

#include <gtest/gtest.h>

namespace {

TEST(StringMap, HashUsesSignedBytesTimes33) {
    // "ab": (0*33 + 97)*33 + 98 = 3299; 3299 mod 17 = 1.
    EXPECT_EQ(base::StringMapHash("ab", 17), 3299u % 17u);
    // A byte above 127 counts as negative: h = 0*33 + (-1) wraps to 0xFFFFFFFF.
    EXPECT_EQ(base::StringMapHash("\xff", 17), 0xFFFFFFFFu % 17u);
}

TEST(StringMap, WalksBucketsAscendingAndEachChainFromItsNewestEntry) {
    base::StringMap<int> map(17);
    // "a" (97) is in bucket 12, "r" (114) in bucket 12 too, "b" (98) in bucket 13,
    // "A" (65) in bucket 14; "B" (66) in bucket 15... first find keys sharing a bucket.
    ASSERT_EQ(base::StringMapHash("a", 17), base::StringMapHash("r", 17));
    map.Set("b", 1);
    map.Set("a", 2);
    map.Set("r", 3);
    std::vector<std::string> keys = map.Keys();
    ASSERT_EQ(keys.size(), 3u);
    EXPECT_EQ(keys[0], "r");  // newest of bucket 12 first
    EXPECT_EQ(keys[1], "a");
    EXPECT_EQ(keys[2], "b");  // bucket 13
    map.Set("a", 5);          // a new value keeps the entry's place
    EXPECT_EQ(map.Keys(), keys);
    EXPECT_EQ(*map.Find("a"), 5);
    EXPECT_TRUE(map.Remove("r"));
    EXPECT_EQ(map.Keys(), (std::vector<std::string>{"a", "b"}));
}

TEST(StringMap, CopyKeepsTheWalkingOrder) {
    base::StringMap<int> map(10);
    for (int i = 0; i < 50; ++i) map.Set("k" + std::to_string(i), i);
    base::StringMap<int> copy = map;
    EXPECT_EQ(copy.Keys(), map.Keys());
    EXPECT_EQ(copy.BucketCount(), 10u);
    base::StringMap<int> assigned(3);
    assigned.Set("old", 1);
    assigned = map;
    EXPECT_EQ(assigned.Keys(), map.Keys());
    EXPECT_FALSE(assigned.Contains("old"));
}

}  // namespace
