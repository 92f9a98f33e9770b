#pragma once

#include <QString>
#include <QStringList>

#include "frame/real.h"
#include "reference/conversion_table.h"

namespace tavrin {

// The list texts of one type's pairs, "in->cm" and so on, in table order.
QStringList PairTexts(UnitType type);

// The pair-th conversion of the type applied to x, unrounded; 0 when the type
// has no such pair.
Real Converted(UnitType type, int pair, Real x);

// "cm=  2.54": the unit behind the first ">" of the pair text and r to four
// places, whatever DecPlace says.
QString ConversionAnswer(const QString& pairText, Real r);

}  // namespace tavrin
