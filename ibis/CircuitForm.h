#pragma once
// Which form the component sections take. Every component is written in the passive form:
// the node binding, the circuit writer and the linkage writer each clear the component's
// active flag before they test it, and that one assignment is what keeps IBIS circuit
// output off. The active form is complete behind it; tests reach it through the switch.
#include "model/ComponentRecords.h"

// Test builds only: when set, components keep their active flag.
extern bool g_bKeepActiveFormForTests;

inline void TakePassiveForm(ComponentRec& component) {
    if (!g_bKeepActiveFormForTests) component.isActive = 0;
}
