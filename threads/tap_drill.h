#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The minor diameter, that is the drill, for a tap of the given size (a
// diameter, or a screw number when `numbered`), threads per inch or metric
// pitch, and percent of full thread; unrounded, in the tap's own unit.
Real TapMinorDiameter(bool metric, bool forming, bool numbered, Real size, Real pitch,
                      Real percent);

// "Minor Dia.= " in inches, then "[" in millimetres " mm]", both from the
// unrounded diameter m.
QString TapDrillAnswer(Real m, bool metric, int decPlace);

}  // namespace tavrin
