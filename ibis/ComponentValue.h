#pragma once
// Passive or active, and the value of a passive element in the solver's unit letters.
#include "model/ComponentRecords.h"

// Two pins: passive, kind from the designator ("R1" gives "R"), "?" otherwise. Any other
// pin count: active, kind "?".
void ClassifyComponent(ComponentRec& component);
// Number and unit of the value, with the unit rewritten by kind ("0.1uF" on a capacitor
// gives "0.1u"). A two-pin component of unknown kind takes its kind from the unit.
void NormaliseValue(ComponentRec& component);
