#pragma once

#include "frame/real.h"

namespace tavrin {

enum PolygonShape { SquareShape, HexagonShape, OctagonShape };
// The three sizes, in the order of the window's fields.
enum PolygonSize { AcrossPoints, AcrossFlats, SizeOfFlat };

struct PolygonSizes {
    Real points;
    Real flats;
    Real flat;
};

// The other two sizes from the known one, rounded to decPlace; the known
// size comes back as given.
PolygonSizes SolvePolygon(int shape, int known, Real value, int decPlace);

}  // namespace tavrin
