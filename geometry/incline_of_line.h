#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The eight lines of the slope, the two angles and the lengths of the line
// from (x1, y1) to (x2, y2).
QString InclineOfLine(Real x1, Real y1, Real x2, Real y2, int decPlace);

}  // namespace tavrin
