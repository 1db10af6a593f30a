#include "geometry/EquivalentRadius.h"

namespace {
constexpr double kRoundedTwoPi = 6.283186;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kRadiusFactor = 0.7;
}  // namespace

double EquivalentRadiusCircle(double diameter) {
    return diameter * 0.5 * kRadiusFactor;
}

double EquivalentRadiusRectangle(double a, double b) {
    return (2 * a + 2 * b) * kRadiusFactor / kRoundedTwoPi;
}

double EquivalentRadiusRoundLine(double a, double b, double w) {
    return (2 * a + 2 * b + kRoundedTwoPi * w) * kRadiusFactor / kRoundedTwoPi;
}

double EquivalentRadiusPolygon(double perimeter) {
    return perimeter / kTwoPi * kRadiusFactor;
}
