#pragma once

#include "frame/real.h"

namespace tavrin {

// The straight distance from (x1, y1) to (x2, y2), not rounded.
Real DistanceTwoPoints(Real x1, Real y1, Real x2, Real y2);

}  // namespace tavrin
