#pragma once
// The linkage description: one ".Connect" block per component, tying the terminals of its
// circuit block to package nodes. A component with fewer than two linked pins is left out
// of the file and counted in the log as "Not Linked".
#include <cstdio>

class ComponentNodes;

// Prints the section to out and the linkage report to log, which may be null. Nothing when
// both linkage options are off. nodes may be null.
void WriteLinkageDescription(FILE* out, FILE* log, ComponentNodes* nodes);
