#pragma once
// The circuit description behind ".EndPackage": one ".PartialCkt" block per block name. A
// passive element is one element line; an active component (never written so, see
// CircuitForm.h) is one IBIS instance per signal pin.
#include <cstdio>
#include <string>

#include "model/ComponentRecords.h"

class ModelAssignment;

// Prints the whole section; nothing when both linkage options are off. models may be null.
void WriteCircuitDescription(FILE* out, ModelAssignment* models);

// The passive block text of a component: header with sorted terminals, element line,
// ".EndPartialCkt".
std::string PassiveBlockText(const ComponentRec& component);
// The element line: kind letter, pin names in list order (a break behind every tenth), value.
// Empty when the kind is not R, L or C.
std::string PassiveElementLine(const ComponentRec& component);
// The active block text; empty when no pin gives an instance.
std::string ActiveBlockText(const ComponentRec& component);
