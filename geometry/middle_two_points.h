#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The two lines of the middle of (x1, y1) and (x2, y2).
QString MiddleTwoPoints(Real x1, Real y1, Real x2, Real y2, int decPlace);

}  // namespace tavrin
