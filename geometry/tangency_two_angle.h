#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Sharp Corner To Radius, two angles: a radius r in a vee whose sides stand
// a1 and a2 off its axis. B, C and D run along the axis from the sharp corner
// to the far side of the radius, its centre and its near side. The three
// answer lines.
QString TwoAngleAnswer(Real a1, Real a2, Real r, int decPlace);

}  // namespace tavrin
