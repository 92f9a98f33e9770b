#pragma once

#include <QString>
#include <functional>

#include "frame/real.h"

namespace tavrin {

// A grid of holes as typed: the first hole, the holes in a row and the rows
// (rounded to 16 bits when counted), and the two steps, whose signs set the
// directions.
struct GridJob {
    Real x0;
    Real y0;
    Real holesX;
    Real holesY;
    Real stepX;
    Real stepY;
    bool noNumbers;
};

// The hole list, rows walked back and forth, each position rounded to
// decPlace and built on by the next. keepGoing is asked once a pair of rows;
// when it says no (the window was closed), the list stops and comes back
// empty. Counts that write no hole can go on without end, until then.
QString GridList(const GridJob& job, int decPlace, const std::function<bool()>& keepGoing);

}  // namespace tavrin
