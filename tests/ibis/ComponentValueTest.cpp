#include "ibis/ComponentValue.h"

#include <gtest/gtest.h>

namespace {

// Each row: a designator, a value and a pin count; what classifying and then normalising, as
// the model step does, leaves: "kind value active".
TEST(ComponentValue, ClassifyThenNormalise) {
    const struct {
        const char *refDes, *value;
        size_t pins;
        const char* want;
    } rows[] = {
        // Two pins are passive and the designator gives the kind; lower case is no kind.
        {"R12", "", 2, "R  0"},
        {"X1", "", 2, "?  0"},
        {"c1", "", 2, "?  0"},
        {"R1", "", 3, "?  1"},
        // The unit decides the kind of an unnamed two-pin part.
        {"X1", "0.1uF", 2, "C 0.1u 0"},
        {"X1", "10", 2, "R 10 0"},
        {"X2", " 22nH ", 2, "L 22n 0"},
        {"X3", "4k7", 2, "? 4k7 0"},
        // Resistor units are case sensitive on their first letter; a unit cut short by a mark
        // keeps only the "M" rule, and the tail goes.
        {"R1", "10K", 2, "R 10K 0"},
        {"R1", "10k", 2, "R 10k 0"},
        {"R1", "2M2", 2, "R 2Meg 0"},
        {"R1", "47ohm", 2, "R 47 0"},
        {"R1", "47Ohm", 2, "R 47Ohm 0"},
        {"R1", "1M_1%", 2, "R 1Meg 0"},
        {"R1", "10K 1%", 2, "R 10K 0"},
        {"R1", "33o/5%", 2, "R 33o 0"},
        // Capacitor and inductor units lose their last letter.
        {"C1", "100PF", 2, "C 100p 0"},
        {"C1", "4.7uF/50V", 2, "C 4.7u 0"},
        {"C1", "100u", 2, "C 100u 0"},
        {"C1", "100", 2, "C 100 0"},
        {"L1", "10uH", 2, "L 10u 0"},
        {"L1", "1mh", 2, "L 1m 0"},
        {"C1", "", 2, "C  0"},
    };
    for (const auto& row : rows) {
        ComponentRec c;
        c.refDes = row.refDes;
        c.value = row.value;
        c.isActive = 1;
        c.pins.resize(row.pins);
        ClassifyComponent(c);
        NormaliseValue(c);
        EXPECT_EQ(c.kind + " " + c.value + " " + std::to_string(c.isActive), row.want)
            << row.refDes << " " << row.value;
    }
}

}  // namespace
