#pragma once

#include "frame/real.h"

namespace tavrin {

// Spindle speed from surface speed and diameter, and back, to one place.
Real SpindleRpm(Real sfm, Real diameter);
Real SurfaceFeet(Real rpm, Real diameter);

}  // namespace tavrin
