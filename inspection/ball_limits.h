#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The smallest and largest ball a countersink of angle a per side takes,
// from its thru hole t and its sharp corner s: two answer lines.
QString BallLimits(Real a, Real t, Real s, int decPlace);

}  // namespace tavrin
