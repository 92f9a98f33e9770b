#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Rad pRad Rad: a crown of radius r1 standing the height h above a flat,
// blended into the flat by two radii r2. TD runs between the tangencies on
// the flat, D2 and D1 across and up from one of them to the tangency of the
// two radii.

// The crown's height from the entry v: v itself, or the height of a chord of
// r1 as wide as v.
Real RadPRadRadHeight(Real r1, Real v, bool width);
// The three answer lines.
QString RadPRadRadAnswer(Real r1, Real r2, Real h, int decPlace);

}  // namespace tavrin
