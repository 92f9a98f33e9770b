#include "frame/real.h"

#include <limits>

namespace tavrin {

namespace {

Real Finite(double r) {
    if (!std::isfinite(r)) {
        Raise(ErrorNumber::Overflow);
    }
    return Real(r);
}

}  // namespace

Real Sqr(Real x) {
    if (x.value() < 0.0) {
        Raise(ErrorNumber::InvalidCall);
    }
    return Real(std::sqrt(x.value()));
}

Real Log(Real x) {
    if (x.value() <= 0.0) {
        Raise(ErrorNumber::InvalidCall);
    }
    return Real(std::log(x.value()));
}

Real Exp(Real x) {
    return Finite(std::exp(x.value()));
}
Real Sin(Real x) {
    return Finite(std::sin(x.value()));
}
Real Cos(Real x) {
    return Finite(std::cos(x.value()));
}
Real Tan(Real x) {
    return Finite(std::tan(x.value()));
}
Real Atn(Real x) {
    return Real(std::atan(x.value()));
}
Real Abs(Real x) {
    return Real(std::fabs(x.value()));
}
Real Int(Real x) {
    return Real(std::floor(x.value()));
}
Real Fix(Real x) {
    return Real(std::trunc(x.value()));
}

Real Power(Real base, Real exponent) {
    const double b = base.value();
    const double e = exponent.value();
    if (b < 0.0 && e != std::trunc(e)) {
        Raise(ErrorNumber::InvalidCall);
    }
    if (b == 0.0 && e < 0.0) {
        Raise(ErrorNumber::DivisionByZero);
    }
    return Finite(std::pow(b, e));
}

std::int16_t ToInt16(Real x) {
    const double r = std::nearbyint(x.value());
    if (!(r >= -32768.0 && r <= 32767.0)) {
        Raise(ErrorNumber::Overflow);
    }
    return static_cast<std::int16_t>(r);
}

std::int32_t ToInt32(Real x) {
    const double r = std::nearbyint(x.value());
    if (!(r >= -2147483648.0 && r <= 2147483647.0)) {
        Raise(ErrorNumber::Overflow);
    }
    return static_cast<std::int32_t>(r);
}

void Step16(std::int16_t& counter, int by) {
    const int next = counter + by;
    if (next < std::numeric_limits<std::int16_t>::min() ||
        next > std::numeric_limits<std::int16_t>::max()) {
        Raise(ErrorNumber::Overflow);
    }
    counter = static_cast<std::int16_t>(next);
}

}  // namespace tavrin
