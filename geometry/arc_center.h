#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// Either the answer lines or, when `refusal` is not empty, the message that
// takes their place and leaves the answer box empty.
struct ArcCenterAnswer {
    QString refusal;
    QString lines;
};

// The centre and radius of the arc through three points, from the bisectors
// of the chords from the first point.
ArcCenterAnswer ArcCenter(Real x1, Real y1, Real x2, Real y2, Real x3, Real y3, int decPlace);

}  // namespace tavrin
