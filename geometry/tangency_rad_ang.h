#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Radius Angle or Angle Radius: a line meets the radius r and leaves it at
// the angle a. C runs from the tangency on the line to the sharp corner, D
// and E across and up from one tangency to the other. The three answer lines.
QString RadAngAnswer(Real r, Real a, int decPlace);

}  // namespace tavrin
