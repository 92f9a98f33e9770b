#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

// The thread forms in the order of the window's list.
enum ThreadForm { Ansu, Whitworth, SharpV, Acme, Loewenherz, BritishAssoc, IsoMetric };

// Threads per inch from the entry: metric input scales the entry, even a
// count; a pitch is turned into a count.
Real ThreadsPerInch(Real entry, bool metric, bool pitch);

// The three entries of a calculation in inches, the count as threads per inch.
struct WireEntry {
    Real wire;
    Real known;
    Real tpi;
};
WireEntry WireEntryInInches(Real wire, Real known, Real tpi, bool metric, bool pitch);

// The wire in the units its form works in: millimetres for Loewenherz and
// British Association, inches for the others.
Real WorkingWire(int form, Real wire);
// Whether a working wire lies within its form's limits; a wire on a limit does.
bool WireFits(int form, Real workingWire, Real tpi);

// The measurement over wires (find 0), the pitch diameter (1) or the basic
// measurement over wires (2) from the known size, in the form's units.
Real ThreeWireFigure(int form, int find, Real workingWire, Real known, Real tpi);
// Its two answer lines: inches first, then millimetres in brackets.
QString ThreeWireAnswer(int form, int find, Real figure, int decPlace);

// The wires a thread takes, in inches.
struct WireSizes {
    Real best;
    Real smallest;
    Real largest;
};
WireSizes BestWires(int form, Real tpi);
// Best, largest and smallest, in inches and millimetres to five places.
QString BestWireText(const WireSizes& sizes);

// The single depth of thread in inches, and its message to five places.
Real SingleThreadDepth(int form, Real tpi);
QString ThreadDepthText(Real depth);

}  // namespace tavrin
