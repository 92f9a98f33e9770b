#pragma once

#include "frame/real.h"

namespace tavrin {

// The ridge a ball cutter of radius r leaves at a step over s, and the step
// over that leaves a ridge of height s; unrounded.
Real CuspHeight(Real r, Real s);
Real StepOver(Real r, Real s);

}  // namespace tavrin
