#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The two lines of X and Y, from a distance and an angle in decimal degrees
// about the present position.
QString PolarToRectangular(Real distance, Real angle, Real px, Real py, int decPlace);

// The radius as it comes (its size is written) and the main and alternate
// angles, of a point dx, dy away from the present position.
struct PolarFigures {
    Real radius;
    Real main;
    Real alternate;
};

PolarFigures RectangularToPolar(Real dx, Real dy);
// The five lines of the radius and both angles, in decimal degrees and DMS.
QString PolarAnswer(const PolarFigures& p, int decPlace);

}  // namespace tavrin
