#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The ten lines of offsets for a tool nose of radius r at a corner of angle a
// (decimal degrees): lathe, mill and cross over.
QString ToolRadiusAnswer(Real r, Real a, int decPlace);

}  // namespace tavrin
