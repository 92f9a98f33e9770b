#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// A dove tail measured over rolls of diameter d at angle a, size s, the roll
// standing on a riser p: the size over rolls (overRolls) or the sharp corner,
// external or internal, with two angled sides or one.
struct DoveTail {
    bool overRolls = true;
    bool internal = false;
    bool oneSided = false;
};
Real DoveTailSolve(const DoveTail& kind, Real s, Real a, Real d, Real p);

// How a picture file of the program's folder reads.
enum class PictureFile { Found, Missing, Unreadable };
// A bitmap file: present, readable and beginning as a bitmap does.
PictureFile CheckBitmapFile(const QString& path);

}  // namespace tavrin
