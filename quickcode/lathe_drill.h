#pragma once

#include <QString>
#include <functional>

#include "frame/real.h"

namespace tavrin {

// A pecking drill job as the fields stand after their repairs.
struct LatheDrillJob {
    Real x;
    Real zStart;
    Real depth;
    Real feed;
    Real rPlane;
    Real peck;
    Real chipClear;
    Real percent;  // of the peck before, in the percent cycle
    Real minPeck;  // smallest peck, in the percent cycle
    int cycle;     // 0 chip break, 1 deep hole, 2 percent pecks; -1 for one typed
};

// The program, every block numbered and every line closed. yield is called
// once a pass of a loop. More pecks or blocks than 16 bits hold overflow.
QString LatheDrillProgram(const LatheDrillJob& job, const std::function<void()>& yield);

// Removes the block numbers: a word that starts with N, in either case, goes
// with its blank; any other word holding an N loses its tail from the N on.
// An N with no blank after it loses the rest of the text.
QString StripN(QString text);

}  // namespace tavrin
