#pragma once

#include "frame/real.h"

namespace tavrin {

// The length of a drill's point of the included angle, less the part a tip
// flat of the given diameter cuts off, rounded to decPlace.
Real DrillTipCompensation(Real diameter, Real angle, Real flat, int decPlace);

}  // namespace tavrin
