#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The stock shapes, in the order of the Shape drop-down.
enum class Stock { Round, Flat, Square, Hexagon, Octagon };

// The weight in pounds of one piece of the given length, cut to two places,
// as the shape's helper has always handed it on: as text read back. Height
// counts for flat stock only.
Real PieceWeight(Stock shape, bool steel, Real size, Real height, Real length);

// The six answer lines for the whole weight w of qty pieces of that length at
// that cost per pound; three and four places and the cost pattern, whatever
// DecPlace says.
QString WeightAnswer(Real w, Real length, Real qty, Real cost);

}  // namespace tavrin
