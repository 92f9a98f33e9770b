#pragma once

#include "frame/real.h"

namespace tavrin {

// The gage pin that fits a diamond of diagonals one and two.
Real GagePinInDiamond(Real one, Real two);

}  // namespace tavrin
