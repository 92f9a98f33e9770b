#pragma once

#include <QString>
#include <optional>

#include "frame/real.h"

namespace tavrin {

// What Circle Segments seeks, in the order of its drop-down.
enum SegmentSought { FindChord, FindRadius, FindHeight, FindArc, FindAngle };

// The two known values; the others are left out. Radius, chord, height,
// arc length and the included angle in decimal degrees.
struct SegmentKnown {
    std::optional<Real> r, c, h, l, a;
};

// Either the value (not rounded) or, when `refusal` is not empty, the message
// of a pair with no formula or out of range; the answer box then goes empty.
struct SegmentAnswer {
    QString refusal;
    Real value;
};

SegmentAnswer SolveSegment(int sought, const SegmentKnown& k);

}  // namespace tavrin
