#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Sharp Corner To Radius, one angle: a radius r in the corner of the angle
// a (at most 90). E, D, C and B run from the sharp corner to the near side of
// the radius, its tangency on the angle, its centre and its far side. The four
// answer lines.
QString TipLossAnswer(Real r, Real a, int decPlace);

}  // namespace tavrin
