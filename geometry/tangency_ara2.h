#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Angle Radius Angle 2: the radius r joins two lines that rise at a1 and a2
// to the heights h1 and h2 above the bottom of the radius. The points 1 to 5
// run along the contour: the top of the first line, its tangency, the bottom,
// the second tangency, the top of the second line. The answer: an empty line,
// then the height and length of each stretch and the overall length.
QString Ara2Answer(Real h1, Real a1, Real h2, Real a2, Real r, int decPlace);

}  // namespace tavrin
