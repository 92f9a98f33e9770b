#pragma once

#include "frame/real.h"

namespace tavrin {

// What Circle Data seeks, in the order of its drop-down.
enum CircleSought { SeekRadius, SeekDiameter, SeekCircumference, SeekArea };

// The sought value from one known value. `lower` is the value of the lower
// field (circumference, or diameter when circumference or area is sought);
// otherwise `known` is the upper field (area, or radius). Not rounded.
Real CircleDataValue(int sought, bool lower, Real known);

}  // namespace tavrin
