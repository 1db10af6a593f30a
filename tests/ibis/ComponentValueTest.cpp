#include <gtest/gtest.h>

#include "ibis/ComponentValue.h"

namespace {

ComponentRec TwoPin(const std::string& refDes, const std::string& value) {
    ComponentRec c;
    c.refDes = refDes;
    c.value = value;
    c.pins.resize(2);
    return c;
}

// Classify, then normalise, as the model step does.
ComponentRec Normalised(const std::string& refDes, const std::string& value) {
    ComponentRec c = TwoPin(refDes, value);
    ClassifyComponent(c);
    NormaliseValue(c);
    return c;
}

TEST(ClassifyComponent, TwoPinsArePassiveAndTheDesignatorGivesTheKind) {
    ComponentRec r = TwoPin("R12", "");
    r.isActive = 1;
    ClassifyComponent(r);
    EXPECT_EQ(r.isActive, 0u);
    EXPECT_EQ(r.kind, "R");
    ComponentRec x = TwoPin("X1", "");
    ClassifyComponent(x);
    EXPECT_EQ(x.kind, "?");
    ComponentRec lower = TwoPin("c1", "");
    ClassifyComponent(lower);
    EXPECT_EQ(lower.kind, "?");
    ComponentRec u = TwoPin("R1", "");
    u.pins.resize(3);
    ClassifyComponent(u);
    EXPECT_EQ(u.isActive, 1u);
    EXPECT_EQ(u.kind, "?");
}

TEST(NormaliseValue, UnitDecidesTheKindOfAnUnnamedTwoPinPart) {
    ComponentRec c = Normalised("X1", "0.1uF");
    EXPECT_EQ(c.kind, "C");
    EXPECT_EQ(c.value, "0.1u");
    ComponentRec r = Normalised("X1", "10");
    EXPECT_EQ(r.kind, "R");
    EXPECT_EQ(r.value, "10");
    ComponentRec l = Normalised("X2", " 22nH ");
    EXPECT_EQ(l.kind, "L");
    EXPECT_EQ(l.value, "22n");
    ComponentRec unknown = Normalised("X3", "4k7");
    EXPECT_EQ(unknown.kind, "?");
    EXPECT_EQ(unknown.value, "4k7");
}

TEST(NormaliseValue, ResistorUnitsAreCaseSensitiveOnTheirFirstLetter) {
    EXPECT_EQ(Normalised("R1", "10K").value, "10K");
    EXPECT_EQ(Normalised("R1", "10k").value, "10k");
    EXPECT_EQ(Normalised("R1", "2M2").value, "2Meg");
    EXPECT_EQ(Normalised("R1", "47ohm").value, "47");
    EXPECT_EQ(Normalised("R1", "47Ohm").value, "47Ohm");
    // A unit cut short by a mark keeps only the "M" rule; the tail goes.
    EXPECT_EQ(Normalised("R1", "1M_1%").value, "1Meg");
    EXPECT_EQ(Normalised("R1", "10K 1%").value, "10K");
    EXPECT_EQ(Normalised("R1", "33o/5%").value, "33o");
}

TEST(NormaliseValue, CapacitorAndInductorUnitsLoseTheirLastLetter) {
    EXPECT_EQ(Normalised("C1", "100PF").value, "100p");
    EXPECT_EQ(Normalised("C1", "4.7uF/50V").value, "4.7u");
    EXPECT_EQ(Normalised("C1", "100u").value, "100u");
    EXPECT_EQ(Normalised("C1", "100").value, "100");
    EXPECT_EQ(Normalised("L1", "10uH").value, "10u");
    EXPECT_EQ(Normalised("L1", "1mh").value, "1m");
    ComponentRec empty = Normalised("C1", "");
    EXPECT_EQ(empty.value, "");
}

}  // namespace
