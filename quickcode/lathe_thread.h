#pragma once

#include <QString>

#include "frame/block_labels.h"
#include "frame/real.h"

namespace tavrin {

// A G92 threading job as the fields stand after their repairs.
struct LatheThreadJob {
    Real major;
    Real threadsPerUnit;  // per inch, or the pitch in mm when metric
    Real xStart;
    Real zStart;
    Real zEnd;
    QString mCode;
    bool metric;
    bool manualDepth;
    Real depth;  // single depth of thread, inches, when manual
    bool manualPasses;
    Real passes;  // when manual
};

// The program: approach, G92 block, one X block a pass by the square root
// law, the clean up pass and the retract left for the user. The labels are
// written into the shared table first. A failing step raises its error.
QString LatheThreadProgram(const LatheThreadJob& job, BlockLabels& labels);

}  // namespace tavrin
