#pragma once

#include "frame/real.h"

namespace tavrin {

// Countersink: of included angle A, diameter D and depth H, the third from the
// other two, with this window's own 3.1416 and .0174533. Depth and diameter go
// to decPlace; the angle to one place always.
Real CountersinkDepth(Real angle, Real diameter, int decPlace);
Real CountersinkDiameter(Real angle, Real depth, int decPlace);
Real CountersinkAngle(Real diameter, Real depth);

}  // namespace tavrin
