#pragma once

#include <QChar>
#include <QString>

#include "frame/real.h"

namespace tavrin {

// Any triangle: side a faces angle A, and so on. Angles in decimal degrees;
// an unknown value is 0.
struct ObliqueTriangle {
    Real a, b, c;
    Real A, B, C;

    // Sides by their lower-case letter, angles by the upper-case one.
    Real& operator[](QChar letter);
};

// The other triangle of two sides and an angle not between them.
struct SecondSolution {
    bool exists = false;
    ObliqueTriangle t;
    Real area;
};

// How far the ambiguous case has come: its second triangle is answered
// before its first is solved.
struct Ambiguous {
    int row = 0;  // the known triple, 0 when it is not an ambiguous one
    Real ratio;   // the sine of the first solution's unknown angle
    SecondSolution second;
};

// Solves the first of the nineteen known triples whose values are all known.
// Returns the message that refuses the entry, or an empty text. An ambiguous
// triple stops after its second triangle, left in `pending`; then
// SolveFirstOfTwo finishes it.
QString SolveOblique(ObliqueTriangle& t, Ambiguous& pending);
void SolveFirstOfTwo(ObliqueTriangle& t, const Ambiguous& pending);

// The semi-perimeter, area and circumscribed-circle tests: the refusal, or an
// empty text and the area in `area`. `flatMessage` refuses a flat triangle.
QString MeasureOblique(const ObliqueTriangle& t, const QString& flatMessage, Real& area);

// The thirteen answer lines of one triangle. The second solution's decimal
// angles have four places and its Angle C line reads "Angle C= ".
QString ObliqueAnswerLines(const ObliqueTriangle& t, Real area, int decPlace, bool second);

}  // namespace tavrin
