#pragma once
// The trace clean-up passes that run after the vias are made and the node array and its index
// are rebuilt for the last time. They work on the flat node array through the node index, not
// on the node set. A deleted trace keeps its record with width kDeletedTraceWidth.

// Deletes every trace that begins and ends on one node; the node loses both references.
void KickOutTrivialTrace();

// Deletes very short traces and merges a free end node into the other end, moving the traces
// of the going node onto the staying one. Nodes with vias or pin labels are held and never go.
// Does nothing unless g_dbTinyTraceLimitSquared is above 0.
void ClearTinyTraces();

// Adds a void rectangle (polarity 3, undiscardable) around every trace neither of whose ends
// lies in copper of its own net, to insulate it from a fill of another net. The gap is the
// trace width plus g_strTraceGapPercent percent of it on each side and reaches half the gap
// past each end. Does nothing when the percentage is empty or reads as 0.
void GenerateTraceGaps();
