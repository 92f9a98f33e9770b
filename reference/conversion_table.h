#pragma once

#include <vector>

#include "frame/real.h"

namespace tavrin {

// The kinds of quantity, in the order of the Conversions drop-down.
enum class UnitType {
    Length,
    Force,
    Angle,
    Power,
    Speed,
    Volume,
    Temperature,
    Pressure,
    Area,
    Mass
};

// One directed pair: x times the factor, or, where a formula is given, the
// formula of x.
struct Conversion {
    UnitType type;
    const char* from;
    const char* to;
    double factor;
    Real (*formula)(Real x) = nullptr;
};

// Every pair, grouped by type, each group in the order of its list.
const std::vector<Conversion>& ConversionTable();

}  // namespace tavrin
