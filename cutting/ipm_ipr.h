#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// IPM <--> IPR: the feed converted, the feed per tooth and the speed not
// entered, as the three answer lines.
struct FeedInputs {
    Real cutter;  // diameter, inches
    Real feed;    // the feed to convert
    Real teeth;   // 1 for a lathe
    Real speed;   // surface feet, or revolutions when rpmEntered
    bool rpmEntered;
    bool toIpm;  // convert to inches per minute; otherwise to inches per revolution
};

QString FeedAnswer(const FeedInputs& in, int decPlace);

}  // namespace tavrin
