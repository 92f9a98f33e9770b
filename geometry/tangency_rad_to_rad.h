#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Rad to Rad: a radius r1 blends a wall, the length l off the axis, into the
// radius r2 centred on that axis. C and D run across and down from the
// tangency of the two radii to the wall's tangency; E and F from the axis and
// from the top of r2 to the tangency of the radii; Height from the top of r2
// to the wall's tangency. The five answer lines.
QString RadToRadAnswer(Real r1, Real r2, Real l, int decPlace);

}  // namespace tavrin
