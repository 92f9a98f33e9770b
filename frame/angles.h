#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The shared degree arithmetic. The order of every operation is part of the
// answer, down to the last digit.

// 3.14159265358979: fifteen digits, short of the closest double to pi.
Real Pi();
Real Negate(Real x);  // x - (x + x)
Real Square(Real x);
Real SquareOfText(const QString& text);
Real PercentOf(Real a, Real b);
Real SinDeg(Real degrees);
Real CosDeg(Real degrees);
Real TanDeg(Real degrees);
Real AtanDeg(Real x);
// Built on the arc tangent; 1 and -1 divide by zero, beyond them the square
// root is an invalid call.
Real ArcSinDeg(Real x);
Real ArcCosDeg(Real x);

// Packed DD.MMSS text to decimal degrees, as answer text (" 22.056111").
QString DmsTextToDd(const QString& text);
// Decimal degrees text to degrees, minutes and seconds (22°  3'  22").
QString DdToDmsText(const QString& text);

const QChar kDegreeSign(0x00B0);

}  // namespace tavrin
