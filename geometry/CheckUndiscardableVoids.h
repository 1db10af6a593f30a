#pragma once
// Marks the voids that must not be dropped as small: a void that holds a copper island, or
// that a trace on a signal layer runs through, gets undiscardable set. The dropping itself is
// done by the shape writer and by MakeVias. Flags already set stay set; none is cleared.
//
// Runs on the sorted shape table (SortShapes) and the trace table; rebuilds the node index
// first when there are traces, and reads trace ends through it.

enum class VoidCheckMode {
    kNormal,     // the 16 x 16 trace grid for layers of more than 257 traces
    kPlainOnly,  // every void against every trace of its layer, whatever the count
};

void CheckUndiscardableVoids(VoidCheckMode mode = VoidCheckMode::kNormal);
