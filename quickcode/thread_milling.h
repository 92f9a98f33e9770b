#pragma once

#include <QString>

#include "frame/block_labels.h"
#include "frame/real.h"

namespace tavrin {

// A thread milling job as the fields stand after their repairs: every
// number as read, the two list choices (-1 for a type typed into its box)
// and the "N" numbers.
struct ThreadMillJob {
    Real x;
    Real y;
    Real zStart;
    Real depth;
    Real major;
    Real toolDia;
    Real pitch;
    Real feed;
    int tool;    // 0 hob mill, 1 single point
    int thread;  // 0 external, 1 internal
    bool numbered;
};

// What Calculate writes: the program, or the refusal of a tool too large for
// an internal thread. Both are empty when a typed type selects no program.
struct ThreadMillAnswer {
    QString program;
    QString refusal;
};

// Fills the labels in front of the lines, then joins the program of the
// chosen tool and thread. The table keeps what it held beyond the labels
// written, and a label past its end fails where it is reached.
ThreadMillAnswer ThreadMillProgram(const ThreadMillJob& job, BlockLabels& labels);

}  // namespace tavrin
