#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "frame/real.h"

namespace tavrin {

// One hole of a bolt circle: the angle it stands at, as the count ran, and
// its position rounded to the places of the answers.
struct BoltHole {
    Real angle;
    Real x;
    Real y;
};

// The start angle as typed: packed degrees, minutes and seconds, or degrees.
Real BoltCircleStartAngle(const QString& typed, bool dms);

// The holes of a circle of `holes` equal steps from the start angle. The
// count is rounded to 16 bits, the step is not.
std::vector<BoltHole> BoltCircleHoles(Real diameter, Real holes, Real xc, Real yc, Real startAngle,
                                      std::int16_t places);

// The list of the holes, one line each, numbered " 1] " or not.
QString BoltCircleList(const std::vector<BoltHole>& holes, bool noNumbers);

}  // namespace tavrin
