#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The two pairs of arc centre offsets of an arc of radius r whose end lies x
// and z away: I and K for the lathe, I and J for the mill.
QString ArcCenterAnswer(Real x, Real z, Real r, bool lathe, int decPlace);

}  // namespace tavrin
