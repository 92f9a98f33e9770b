#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Two balls in a taper, small s and large l. The answer lines, or the text
// "Invalid Input" when the ratio of the sine lies beyond 1.

// Ball to Ball: g is the size between the two balls.
QString BallToBallAnswer(Real s, Real l, Real g);

// Face to Ball: ps and pl are the balls' positions over the face.
QString FaceToBallAnswer(Real s, Real l, Real ps, Real pl);

}  // namespace tavrin
