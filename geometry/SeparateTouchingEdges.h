#pragma once
// Two shapes on one layer that share a stretch of an edge would give the solver a seam of zero
// width; such edges are moved into their own polygons.

// Cross products of the two edges, (D - A) x (B - A) and (C - A) x (B - A), strictly within this
// count as "on one line".
constexpr double kTouchingEdgeCross = 5e-13;
// How far a marked edge moves into its polygon, in mm, whatever the board's scale.
constexpr double kTouchingEdgeMove = 0.1;
// Shortest edge that is moved.
constexpr double kShortestMovedEdge = 1e-9;
// A line intersection with a denominator within this is taken as parallel.
constexpr double kParallelDenominator = 1e-21;

// Enters every polygon edge on a layer with a grid into the 256 x 256 cells it crosses, marks
// the pairs of edges of two shapes that overlap on one line (not two voids, not two shapes of
// one net and polarity), then moves every marked edge of a shape other than a void
// kTouchingEdgeMove into its polygon. Voids (polarity 3) never move but still mark.
void SeparateTouchingEdges();
