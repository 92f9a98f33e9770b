#pragma once

#include <QString>
#include <cstdint>

#include "frame/real.h"

namespace tavrin {

// Reads as much of the text as forms a number; blanks, tabs and line feeds are
// skipped wherever they stand. Never fails on letters; a number too large for a
// double is an overflow.
Real ValOf(const QString& text);

// Rounds to n places, a half going to the even neighbour of x * 10^n.
Real RoundTo(Real x, int n);

// The answer form: 15 significant digits, a blank in the sign column, no zero
// in front of the point (" .5", "-.5", " 3.33333333333333E-02").
QString NumToStr(Real x);
QString NumToStr(double x);  // so that a double never goes to the integer form
QString NumToStr(int x);
// As NumToStr, but no sign column and "0.5" for a half.
QString NumToText(Real x);
QString NumToText(double x);
QString NumToText(int x);

// Writes x by a picture of "#", "0" and "." places; halves go away from zero.
QString FormatNum(Real x, const QString& pattern);

// 1 when the text holds only digits, one full stop and a leading minus sign.
std::int16_t IsNumberText(const QString& text);
// Shortens the text to its first character and tells whether that is a digit.
std::int16_t IsDigitText(QString& text);

// The strict conversions: the whole text, less surrounding blanks, must be a
// number, or the conversion is a type mismatch.
Real StrictNumber(const QString& text);
std::int16_t StrictInt16(const QString& text);
// NumToStr of a text that is converted strictly first.
QString NumToStr(const QString& numberText);

}  // namespace tavrin
