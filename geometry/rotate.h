#pragma once

#include <QString>
#include <vector>

#include "frame/real.h"

namespace tavrin {

// The rotation in radians from degrees counter-clockwise: the minus sign
// turns the clockwise formula of RotatePoint round.
Real RotationRadians(Real degrees);

struct RotatedPoint {
    Real x;
    Real y;
};

// The point (x, y) moved to the new origin (xo, yo) and rotated by rad.
RotatedPoint RotatePoint(Real x, Real y, Real xo, Real yo, Real rad);

// One line a point, to four places whatever DecPlace says.
QString RotatedPointsText(const std::vector<RotatedPoint>& points);

}  // namespace tavrin
