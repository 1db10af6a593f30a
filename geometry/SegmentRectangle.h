#pragma once
// Void rectangles around segments: trace gaps and the gap around fills on plane layers.
#include <cstdint>

// Appends a five-point polygon around the segment, polarity 3, undiscardable. Half the width
// lies on each side; with extendEnds it also reaches half the width past each end.
void AddSegmentRectangle(double x1, double y1, double x2, double y2, double width, int32_t layer,
                         int32_t net, bool extendEnds);

// One piece of a gap along an outline: a void circle of radius width/2 at (x2, y2), then the
// segment's rectangle without extended ends.
void AddGapStroke(double x1, double y1, double x2, double y2, double width, int32_t layer,
                  int32_t net);
