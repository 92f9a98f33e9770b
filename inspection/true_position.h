#pragma once

#include "frame/real.h"

namespace tavrin {

// The diameter of the position zone that holds a hole off by x and y.
Real TruePosition(Real x, Real y);

}  // namespace tavrin
