#pragma once

#include <QString>
#include <functional>

#include "frame/real.h"

namespace tavrin {

// The five fields of the Area / Volume solver as a figure's branch sees them:
// the value of each, and whether its text is non-empty (a typed "0" is).
struct FigureFields {
    Real t[5];
    bool typed[5];
};

// What a branch leaves in the answer box.
struct FigureAnswer {
    enum class Kind { Keep, Empty, Text };
    Kind kind = Kind::Keep;
    QString text;
};

// The boxes a branch may show on its way: program messages, and the one
// warning of the polygon.
struct FigureBoxes {
    std::function<void(const QString&)> message;
    std::function<void(const QString&)> warning;
};

// How many of the five values are not 0; negative ones count.
int CountFilled(const FigureFields& f);

// "Area= 12.5000": the label, then the value to four places by the pattern.
QString FigureLine(const char* label, Real value);

// The branch of figure `number` (the catalogue's row); a number of no figure
// runs no branch. A failing step raises its run-time error.
FigureAnswer SolveFigure(int number, const FigureFields& f, const FigureBoxes& boxes);

// The two halves of the catalogue; both answer false for a number not theirs.
bool SolvePlaneFigure(int number, const FigureFields& f, const FigureBoxes& boxes,
                      FigureAnswer& answer);
bool SolveSolid(int number, const FigureFields& f, const FigureBoxes& boxes, FigureAnswer& answer);

// The branch's own end: a message, then the answer box emptied or left.
FigureAnswer Refuse(const FigureBoxes& boxes, const QString& message, bool emptied);
FigureAnswer Lines(const QString& text);

extern const char* const kDefaultComplaint;

// A figure that needs a least number of filled fields and nothing else.
struct SimpleFigure {
    int number;
    int minimum;
    QString (*lines)(const Real* t);
};

// Runs the simple figure of that number, if the list holds it.
template <std::size_t N>
bool SolveSimple(const SimpleFigure (&figures)[N], int number, const FigureFields& f,
                 const FigureBoxes& boxes, FigureAnswer& answer) {
    for (const SimpleFigure& s : figures) {
        if (s.number == number) {
            answer = CountFilled(f) < s.minimum ? Refuse(boxes, kDefaultComplaint, true)
                                                : Lines(s.lines(f.t));
            return true;
        }
    }
    return false;
}

}  // namespace tavrin
