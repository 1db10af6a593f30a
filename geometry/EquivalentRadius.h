#pragma once
// One radius standing for a pad outline, for the drill of a via. All forms carry the factor
// 0.7; the rounded 2 pi of the middle two (6.283186) is part of the result and stays.

// "%circle": diameter x 0.5 x 0.7.
double EquivalentRadiusCircle(double diameter);
// "%rectangle" with sides a and b: (2a + 2b) x 0.7 / 6.283186.
double EquivalentRadiusRectangle(double a, double b);
// "%round_endpoint_line" with lengths a, b in x and y and width w:
// (2a + 2b + 6.283186 w) x 0.7 / 6.283186.
double EquivalentRadiusRoundLine(double a, double b, double w);
// "%polygon": perimeter / 2 pi x 0.7.
double EquivalentRadiusPolygon(double perimeter);
