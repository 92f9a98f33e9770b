#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The increment head and one line a position, from the start angle in
// decimal degrees round the circle in `positions` equal steps. The count is
// 16-bit: more than 32767 positions is an overflow.
QString CircleDivisions(Real start, Real positions);

}  // namespace tavrin
