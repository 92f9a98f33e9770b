#pragma once

#include <QString>
#include <optional>

#include "frame/real.h"

namespace tavrin {

// A gauge ball in a cone of angle a per side. Heights are from the face,
// positive above it.

// The ball of radius r in the cone whose face diameter is x, with thru hole t.
struct BallSeat {
    Real drop;  // top of the ball above the face
    Real best;  // the ball that stands flush
    Real ytan;  // height of the circle of tangency
    Real xtan;  // diameter of that circle
    Real tip;   // height where the ball crosses the thru hole
};
BallSeat SolveSeat(Real a, Real r, Real x, Real t);

// S\C Diameter (mode 1, x the drop), Ball Drop (mode 2, x the sharp corner)
// and Hole Depth (mode 3, x the hole diameter, d the measured drop): the
// answer lines for ball b and thru hole t, or nothing when the measured drop
// lies above the ball's own.
std::optional<QString> BallSeatAnswer(Real a, Real b, Real x, Real t, Real d, int mode,
                                      int decPlace);

// Angle Length, from the measured drop x, thru hole t and the longest angle l,
// in two steps: the sharp corner and the length first, as they are checked.
struct AngleLengthFigures {
    Real r;      // the ball's radius
    Real sc;     // the sharp corner
    Real len;    // the angle's length along the axis
    Real maxsc;  // the sharp corner that l allows
};
AngleLengthFigures SolveAngleLength(Real a, Real b, Real x, Real t, Real l);
// The message when the longest angle cannot reach the sharp corner, to four places.
QString AngleLengthOversize(const AngleLengthFigures& found);
// The answer once the sharp corner fits, with the seat at that sharp corner;
// an angle longer than l gives the error text.
QString AngleLengthAnswer(const AngleLengthFigures& found, const BallSeat& seat, Real t, Real l,
                          int decPlace);

// Chamfer Diameter, the ball b resting on the edge of a chamfer of at most m.
enum class ChamferBall { TooSmall, NearMinimum, Fine };
ChamferBall CheckChamferBall(Real a, Real m, Real b);
struct ChamferFigures {
    Real diameter;
    bool oversize;  // the drop d reaches below the largest chamfer
};
ChamferFigures SolveChamfer(Real d, Real m, Real b);
QString ChamferAnswer(const ChamferFigures& found, int decPlace);

// The ball limits message of the Chamfer Diameter mode, and of the Angle
// Length mode, whose longest angle l counts along the wall.
QString ChamferBallLimits(Real a, Real m, int decPlace);
QString AngleLengthBallLimits(Real a, Real l, Real t, int decPlace);

}  // namespace tavrin
