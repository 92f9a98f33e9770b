#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Angle Radius Angle: a line rising at a1 turns through the radius r into a
// line rising at a2. B and E run across and up from the first tangency to the
// sharp corner, D and F from the corner to the second tangency, C and H from
// one tangency to the other. The six answer lines.
QString AraAnswer(Real a1, Real a2, Real r, int decPlace);

}  // namespace tavrin
