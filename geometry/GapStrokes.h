#pragma once
// The gap around area fills on plane layers.

// For every polygon on a layer of kind "P" (g_mapLayerKind), an AddGapStroke of the given
// width along each pair of consecutive outline points; the edge from the last point back to the
// first gets none. The outlines are gathered before any stroke is added.
void AddGapStrokesOnPlaneLayers(double width);
