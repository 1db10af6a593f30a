#pragma once
// Reads what the translator needs of a component's IBIS file: the [Pin] table, the
// [Pin Mapping] table and the Model_type of each [Model]. It is a line scanner for these
// three keywords, not an IBIS parser; a file that is no IBIS file at all simply yields no
// pins. The result is stored in the component and its pins.
#include "model/ComponentRecords.h"

// Reads component.ibisFile into an active component; does nothing for a passive one.
void ParseIbisFile(ComponentRec& component);
// How many reads failed (missing file, foreign pin, nameless model) in this translation.
int IbisModelProblemCount();
void ResetIbisModelProblems();
