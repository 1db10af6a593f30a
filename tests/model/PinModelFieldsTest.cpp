#include <gtest/gtest.h>

#include "model/ComponentRecords.h"

// Reading makes no fields, writing does, and no copy shares fields with its source.
TEST(PinModelHolder, ReadsMakeNothingAndCopiesAreDeep) {
    PinModelHolder a;
    EXPECT_EQ(a.Get().modelName, "");
    EXPECT_FALSE(a.HasFields());
    a.Edit().modelName = "OUT3";
    EXPECT_TRUE(a.HasFields());

    PinModelHolder built(a), assigned;
    assigned = a;
    built.Edit().modelName = "IN";
    assigned.Edit().modelName = "IO";
    EXPECT_EQ(a.Get().modelName + " " + built.Get().modelName + " " + assigned.Get().modelName,
              "OUT3 IN IO");

    const PinModelHolder& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.Get().modelName, "IO");
    assigned = PinModelHolder();
    EXPECT_FALSE(assigned.HasFields());
}

TEST(PinModelHolder, PinCopiesKeepTheirOwnModel) {
    PinRec templ;
    templ.EditModel().nodeNames = {"nd_out_1_3-state"};
    PinRec placed = templ;
    placed.EditModel().nodeNames.push_back("nd_pu_1_3-state");
    EXPECT_EQ(templ.Model().nodeNames.size(), 1u);

    placed.CopyModelFrom(PinRec());
    EXPECT_TRUE(placed.Model().nodeNames.empty());
}
