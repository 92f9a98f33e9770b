#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// A right triangle: side a is the hypotenuse, Angle B faces side b and
// Angle C faces side c. Angles in decimal degrees.
struct RightTriangle {
    Real a;
    Real b;
    Real c;
    Real angleB;
    Real angleC;
};

// The triangle from the known pair `index`, in the order of the drop-down:
// 0 a & b, 1 b & c, 2 c & a, 3 B & a, 4 B & b, 5 B & c, 6 C & a, 7 C & b,
// 8 C & c. `one` is the first known value (an angle in decimal degrees from
// index 3 on), `two` the second. Angles to six places, computed sides to
// decPlace; the known values stay as entered.
RightTriangle SolveRightTriangle(int index, Real one, Real two, int decPlace);

// The eleven answer lines.
QString RightTriangleAnswer(const RightTriangle& t, int decPlace);

}  // namespace tavrin
