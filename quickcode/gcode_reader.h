#pragma once

#include <QString>
#include <vector>

namespace tavrin {

// A small reader of the G-code the Quick Code windows write, so that a
// program can be drawn: G00 G01 G02 G03 (I J K or R), G17 G18 G19, G90 G91,
// G40 G41 G42 (read, the path stays the programmed one), G92 as the lathe's
// threading cycle, N F M S T words, comments in parentheses, and the hole
// lists (" 1] X0.0Y1.0" or "X0.0Y1.0" before any motion word). Any text
// gives moves and problems; a line with a problem moves nothing.

enum class MoveKind { Rapid, Feed, ArcCw, ArcCcw, Hole };
enum class ArcPlane { XY, ZX, YZ };  // G17, G18, G19

struct Point3 {
    double x = 0;
    double y = 0;
    double z = 0;
    friend bool operator==(const Point3&, const Point3&) = default;
};

struct PathMove {
    MoveKind kind = MoveKind::Rapid;
    Point3 from;
    Point3 to;
    int line = 0;  // from 1
    // Arcs: the centre (at the start's height across the plane), the radius
    // at the start and the angle swept, counter-clockwise positive, in radians.
    Point3 centre;
    double radius = 0;
    double sweep = 0;
    ArcPlane plane = ArcPlane::XY;
    int number = 0;  // holes: the number the list gives, or their count
};

struct PathProblem {
    int line = 0;
    QString text;
    friend bool operator==(const PathProblem&, const PathProblem&) = default;
};

struct PathReading {
    std::vector<PathMove> moves;
    std::vector<PathProblem> problems;
};

PathReading ReadPath(const QString& program);

// The move as points, from its start to its end: two for a line or a hole,
// an arc in steps of at most a turn divided by `perTurn`.
std::vector<Point3> PointsAlong(const PathMove& move, int perTurn = 96);

// "rapid", "feed", "cw", "ccw", "hole".
QString MoveKindName(MoveKind kind);

// How a program is best looked at: holes in plan, a milling program in plan
// and from the side, a lathe program in the Z-X plane.
enum class PathView { Holes, Mill, Lathe };

struct PathPlot {
    QString title;
    PathView view = PathView::Holes;
    PathReading reading;
};

}  // namespace tavrin
