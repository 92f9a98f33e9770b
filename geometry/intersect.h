#pragma once

#include <QString>
#include "frame/real.h"

namespace tavrin {

// Either the answer lines or, when `refusal` is not empty, the message that
// takes their place and leaves the answer box empty.
struct IntersectAnswer {
    QString refusal;
    QString lines;
};

// Where the line through (x1, y1) and (x2, y2) meets the line through
// (x3, y3) and (x4, y4). A first line alone parallel to the Y axis divides
// by zero.
IntersectAnswer IntersectTwoLines(Real x1, Real y1, Real x2, Real y2, Real x3, Real y3, Real x4,
                                  Real y4, int decPlace);

}  // namespace tavrin
