#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Small ball s and large ball l in an angle a per side measured d: the two
// answer lines when the small one goes in for the large (mode 1) or the
// large for the small (mode 2).
QString BallSubstitute(Real s, Real l, Real a, Real d, int mode, int decPlace);

}  // namespace tavrin
