#include "ibis/PinRotation.h"

#include <cmath>

namespace {
constexpr double kPi = 3.14159265358979323846;
}

void RotationCosSin(double angle, double exactAngle, double& c, double& s) {
    if (exactAngle == 0.0 || exactAngle == 360.0) {
        c = 1.0, s = 0.0;
    } else if (exactAngle == 90.0 || exactAngle == 450.0) {
        c = 0.0, s = 1.0;
    } else if (exactAngle == 180.0 || exactAngle == 540.0) {
        c = -1.0, s = 0.0;
    } else if (exactAngle == 270.0) {
        c = 0.0, s = -1.0;
    } else {
        double a = kPi / 180.0 * angle;
        c = std::cos(a);
        s = std::sin(a);
    }
}

void RotateOffset(double libX, double libY, double angle, double exactAngle, double& x, double& y) {
    double r = std::sqrt(libX * libX + libY * libY);
    double ux = 0.0, uy = 0.0;
    if (r != 0.0) {
        ux = libX == 0.0 ? 0.0 : libX / r;
        uy = libY == 0.0 ? 0.0 : libY / r;
    }
    double c = 0.0, s = 0.0;
    RotationCosSin(angle, exactAngle, c, s);
    x = (c * ux - s * uy) * r;
    y = (c * uy + s * ux) * r;
}
