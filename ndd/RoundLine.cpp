#include <cmath>
#include <new>

#include "geometry/ShapeArea.h"
#include "model/TranslationOptions.h"
#include "ndd/ShapeRoutines.h"

namespace {
// Largest angle step of a round end, and the step used when the arc length gives none.
constexpr double kMaxArcStep = 0.7853981633974483;
constexpr double kFallbackArcStep = 0.00038358884659216034;
// More chords than this is a memory failure: no board needs them, a width of 1e300 would ask
// for more than any table holds, and a step below the angle's precision would never advance.
constexpr double kMaxRoundLinePoints = 16777216.0;
}  // namespace

std::vector<ShapePoint> ExpandRoundLine(double x1, double y1, double x2, double y2, double w) {
    double r = w / 2;
    double s = g_options.g_dbMaxArcLength / r;
    if (!(s > 0))
        s = kFallbackArcStep;
    else if (s > kMaxArcStep)
        s = kMaxArcStep;
    double estimate = 4 + 2 * kPi / s;
    if (!(estimate <= kMaxRoundLinePoints)) throw std::bad_alloc();
    double a = std::atan2(y2 - y1, x2 - x1);
    std::vector<ShapePoint> pts;
    pts.reserve(static_cast<size_t>(estimate));
    auto at = [&](double cx, double cy, double ang) {
        pts.push_back({cx + r * std::cos(ang), cy + r * std::sin(ang)});
    };
    double end1 = a + 3 * kPi / 2;
    for (double ang = a + kPi / 2 + s; ang < end1; ang += s) at(x1, y1, ang);
    at(x1, y1, end1);
    for (double ang = a - kPi / 2; ang < a + kPi / 2; ang += s) at(x2, y2, ang);
    at(x2, y2, a + kPi / 2);
    at(x1, y1, a + kPi / 2);
    return pts;
}
