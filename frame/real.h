#pragma once

#include <cmath>
#include <compare>
#include <cstdint>

#include "frame/run_time_error.h"

namespace tavrin {

// A double whose every operation is checked, so that a failure is raised at the
// very step that fails and nothing after it runs. The operations are evaluated
// exactly as written: no regrouping, no fused multiply-add.
class Real {
  public:
    constexpr Real() = default;
    constexpr Real(double v) : v_(v) {}  // NOLINT: literals and doubles read as Real
    constexpr double value() const { return v_; }

    friend Real operator+(Real a, Real b) { return Checked(a.v_ + b.v_); }
    friend Real operator-(Real a, Real b) { return Checked(a.v_ - b.v_); }
    friend Real operator*(Real a, Real b) { return Checked(a.v_ * b.v_); }
    friend Real operator/(Real a, Real b) {
        if (b.v_ == 0.0) {
            Raise(a.v_ == 0.0 ? ErrorNumber::Overflow : ErrorNumber::DivisionByZero);
        }
        return Checked(a.v_ / b.v_);
    }
    friend Real operator-(Real a) { return Real(-a.v_); }

    Real& operator+=(Real b) { return *this = *this + b; }
    Real& operator-=(Real b) { return *this = *this - b; }
    Real& operator*=(Real b) { return *this = *this * b; }
    Real& operator/=(Real b) { return *this = *this / b; }

    friend bool operator==(Real a, Real b) { return a.v_ == b.v_; }
    friend std::partial_ordering operator<=>(Real a, Real b) { return a.v_ <=> b.v_; }

  private:
    static Real Checked(double r) {
        if (!std::isfinite(r)) {
            Raise(ErrorNumber::Overflow);
        }
        return Real(r);
    }
    double v_ = 0.0;
};

// The checked library functions of the system.
Real Sqr(Real x);  // square root; a negative argument is an invalid call
Real Log(Real x);  // natural logarithm; zero or less is an invalid call
Real Exp(Real x);
Real Sin(Real x);
Real Cos(Real x);
Real Tan(Real x);
Real Atn(Real x);  // arc tangent in radians
Real Abs(Real x);
Real Int(Real x);  // the largest whole number not above x
Real Fix(Real x);  // the whole part, toward zero
Real Power(Real base, Real exponent);

// Whole-number conversions: nearest, ties to even, out of range is an overflow.
std::int16_t ToInt16(Real x);
std::int32_t ToInt32(Real x);
// Steps a 16-bit counter by one; past 32767 is an overflow.
void Step16(std::int16_t& counter, int by = 1);

}  // namespace tavrin
