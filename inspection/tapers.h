#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The answer of a taper case (the index of the drop-down) for the values of
// the three fields in order; case 6 takes its angle per side in degrees.
QString TaperAnswer(int taperCase, Real one, Real two, Real three, int decPlace);

}  // namespace tavrin
