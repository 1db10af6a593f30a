#pragma once
// Pin offsets turned by a component's rotation. Exact sine and cosine are used at the
// quarter turns that placements really use, so that a pin at 90 or 270 degrees lands on the
// same coordinates as the layout tool prints; every other angle goes through cos and sin.

// Cosine and sine of angle (degrees); exactAngle decides whether the exact pair is taken,
// which it is at 0 and 360, 90 and 450, 180 and 540, and 270, and at no other value.
void RotationCosSin(double angle, double exactAngle, double& c, double& s);

// Offset (libX, libY) turned by angle: radius and unit vector, then the turned unit vector
// times the radius. exactAngle as above.
void RotateOffset(double libX, double libY, double angle, double exactAngle, double& x, double& y);
