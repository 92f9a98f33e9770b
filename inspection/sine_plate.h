#pragma once

#include <QString>
#include <optional>

#include "frame/real.h"

namespace tavrin {

// The answer of a sine plate of length l for the entry e: a gage block height
// from an angle, or the incline from a height; nothing when the height is not
// below the length.
std::optional<QString> SinePlateAnswer(bool heightEntered, Real l, Real e, int decPlace);

}  // namespace tavrin
