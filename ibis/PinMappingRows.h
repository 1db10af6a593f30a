#pragma once
// What the pin mapping dialog hands to the IBIS rewrite: the four references of each signal
// pin, as its left list shows them, and the power and ground groups with their pins. Stored
// into the component's pins, they are what PinMappingWriter writes.
#include <string>
#include <vector>

#include "model/ComponentRecords.h"

// The group that holds the pins that are in no power or ground group.
constexpr char kAvailablePinsGroup[] = "AVAILABLE PINS";

// One signal pin row of the dialog: the pin and its four reference cells.
struct SignalPinRefs {
    std::string pin;
    std::string pulldown, pullup, gndClamp, powerClamp;
};

// A reference names a real bus when it is set and is no "NC".
bool IsRealReference(const std::string& ref);
// A signal pin is mapped completely when one pair of opposite references is real: pullup
// with pulldown, power clamp with gnd clamp, pullup with gnd clamp, or pulldown with power
// clamp.
bool HasOpposingReferences(const PinRec& pin);

// Puts the rows' references into the pins and sets mappingComplete when every row is
// complete. Then the groups: a "PU" group makes its pins power pins of that group, a "PD"
// group ground pins, and the available-pins group no-connect pins. Other groups, and names
// that are no pin of the component, change nothing.
void StoreMappingRows(ComponentRec& component, const std::vector<SignalPinRefs>& rows,
                      const std::vector<GroupRec>& groups);
