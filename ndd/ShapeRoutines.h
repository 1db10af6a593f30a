#pragma once
// The shapes of a fill's boundary, each appended to the shape table with the fill's layer and
// net and the role (2 outline, 3 cutout) as its polarity. Coordinates are scaled to mm.
#include <cstdint>
#include <string>
#include <vector>

#include "base/TextFile.h"
#include "model/ShapeRec.h"

// "%circle" x y d: the size is all that follows y on the line except its last three
// characters (taken to be a blank, the ';' and the line feed), so "100;" reads as 10. Stored
// as the centre and (d, d); d serves as the radius.
void AddCircleShape(const std::string& line, int32_t role, int32_t net, int32_t layer);
// "%rectangle" x1 y1 x2 y2: five points from (x1,y1) through (x1,y2), (x2,y2), (x2,y1).
void AddRectangleShape(const std::string& line, int32_t role, int32_t net, int32_t layer);
// "%polygon" and coordinates up to a word holding ';', over as many lines as it takes. An
// outline or cutout first has its slits cut off (SplitPolygonOnRepeats); the ring is closed.
void AddPolygonShape(const std::string& line, base::LineStream& stream, int32_t role, int32_t net,
                     int32_t layer);
// "%round_endpoint_line" x1 y1 x2 y2 w, as the outline that ExpandRoundLine makes.
void AddRoundLineShape(const std::string& line, int32_t role, int32_t net, int32_t layer);
// A path of "%line" (two points) and "%arc" (three points) lines; a line without "%line" is
// read as an arc. The line ahead is looked at first, and one with "%end_boundary" or
// "%cutout" ends the path and is left to be read. The first point closes the ring.
void AddLinePathShape(const std::string& line, base::LineStream& stream, int32_t role, int32_t net,
                      int32_t layer);

// Cuts the rings that a slit joins out of a coordinate word list (x, y, x, y, ...): each run
// between the two visits of a repeated point becomes a polarity 0 shape of its own when it has
// 3 points or more. The words left are the rest of the polygon.
void SplitPolygonOnRepeats(std::vector<std::string>& words, int32_t net, int32_t layer);

// Outline of a segment of width w with round ends, its arcs made of chords whose angle step is
// the maximum arc length over the radius, at most pi/4. Throws std::bad_alloc when that would
// take more than 2^24 points.
std::vector<ShapePoint> ExpandRoundLine(double x1, double y1, double x2, double y2, double w);
