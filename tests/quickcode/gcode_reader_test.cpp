// The G-code reader alone: arcs each way round, holes, modes, and every
// problem it reports instead of a move.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include <QLocale>
#include <QRegularExpression>

#include "quickcode/gcode_reader.h"

namespace tavrin {
namespace {

// A figure to `places` decimals, shortest, so that rows compare texts.
QString Fig(double v, double places = 12) {
    const double unit = std::pow(10.0, places);
    return QString::number(std::round(v * unit) / unit + 0.0, 'g', QLocale::FloatingPointShortest);
}

QString Xyz(const Point3& p) {
    return Fig(p.x) + u',' + Fig(p.y) + u',' + Fig(p.z);
}

// From move `first` on, "kind from>to@line" ("#number" after a hole's kind),
// an arc as "kind centre r<radius> <degrees swept>"; then "line: problem".
QString Trace(const PathReading& r, std::size_t first) {
    QStringList out;
    for (std::size_t i = first; i < r.moves.size(); ++i) {
        const PathMove& m = r.moves[i];
        QString text = MoveKindName(m.kind);
        if (m.kind == MoveKind::ArcCw || m.kind == MoveKind::ArcCcw) {
            text += u' ' + Xyz(m.centre) + " r" + Fig(m.radius) + u' ' +
                    Fig(m.sweep * 180 / std::numbers::pi, 9);
        } else {
            text += (m.kind == MoveKind::Hole ? u'#' + Fig(m.number) : QString()) + u' ' +
                    Xyz(m.from) + u'>' + Xyz(m.to) + u'@' + Fig(m.line);
        }
        out << text;
    }
    for (const PathProblem& p : r.problems) {
        out << Fig(p.line) + ": " + p.text;
    }
    return out.join(" | ");
}

TEST(GcodeReader, MoveAndProblemRows) {
    const std::string huge(309, '9');
    const std::string big(308, '9');
    const struct {
        std::string program;
        std::size_t first;  // the move the trace begins at
        const char* trace;
        const char* fault = "";
    } rows[] = {
        // Arcs.
        {"G00 X1 Y0\nG03 X0 Y1 I-1 J0", 1, "ccw 0,0,0 r1 90", "ccw in the first quadrant"},
        {"G00 X0 Y1\nG03 X-1 Y0 J-1", 1, "ccw 0,0,0 r1 90", "ccw in the second, I left out"},
        {"G00 X-1 Y0\nG03 X0 Y-1 I1", 1, "ccw 0,0,0 r1 90", "ccw across the branch of the angle"},
        {"G00 X0 Y-1\nG02 X0 Y1 J1", 1, "cw 0,0,0 r1 -180", "cw half turn through X-1"},
        {"G00 X1 Y0\nG02 I-1", 1, "cw 0,0,0 r1 -360", "same ends: a full turn"},
        {"G00 X0 Y-1\nG03 J1", 1, "ccw 0,0,0 r1 360", "J alone: a full turn where it stands"},
        {"G00 X1 Y0\nG03 X0 Y1 R1", 1, "ccw 0,0,0 r1 90", "R: the short way"},
        {"G00 X1 Y0\nG03 X0 Y1 R-1", 1, "ccw 1,1,0 r1 270", "negative R: the long way"},
        {"G00 X1 Y0\nG02 X0 Y1 R1 I-1", 1, "cw 1,1,0 r1 -90", "R cw about the other side, not I"},
        {"G00 X3 Y1\nG02 X1 Y3 R-2", 1, "cw 1,1,0 r2 -270", "negative R cw, off the origin"},
        {"G00 X0.5 Y0\nG03 X0 Y0.5 R0.5", 1, "ccw 0,0,0 r0.5 90", "R below one: not the long way"},
        {"G00 X0 Y0 Z5\nG91 G03 X-1 Y1 I-1", 1, "ccw -1,0,5 r1 90", "incremental, from the start"},
        {"G18 G00 X0 Z1\nG03 X1 Z0 K-1", 1, "ccw 0,0,0 r1 90", "G18: K and I, Z towards X"},
        {"G19 G00 Y1 Z0\nG02 Y0 Z1 J-1", 1, "cw 0,0,0 r1 -270", "G19: J and K, Y towards Z"},
        {"G18 G00 X1 Y0\nG17 G03 X0 Y1 I-1", 1, "ccw 0,0,0 r1 90", "G17 takes the plane back"},
        {"G00 X1 Y0\nG02 X0 Y1.0009 I-1", 1, "cw 0,0,0 r1 -270",
         "an end within a thousandth is on"},
        // Lines, holes and the threading cycle.
        {"G00 X1\nG91 G01 Q1\nX2\nG03 G91 X1 Y1\nX3", 0,
         "rapid 1,0,0>1,0,0@1 | rapid 1,0,0>2,0,0@3 | rapid 2,0,0>3,0,0@5 | "
         "2: cannot read \"Q1\" | 4: an arc needs I, J, K or R",
         "a line with a problem takes none of its modes"},
        {" 1] X0.0Y1.0\r\n 12] X-0.866Y-0.5\r\nX2Y3\r\n", 0,
         "hole#1 0,1,0>0,1,0@1 | hole#12 0,1,0>-0.866,-0.5,0@2 | hole#3 -0.866,-0.5,0>2,3,0@3",
         "the list's number or the count, from the hole before, the first from nowhere known"},
        {"G00 X1 Y0\rG03 X0 Y1 I-1\rG01 Y2", 2, "feed 0,1,0>0,2,0@3",
         "a bare CR ends a line; on from the arc's end"},
        {"n10 g01 x1 y2 z1 f5 m3 s900 t1 (a comment)\nG91 X1\nG0(c)Y1\nZ1", 0,
         "feed 1,2,1>1,2,1@1 | feed 1,2,1>2,2,1@2 | rapid 2,2,1>2,3,1@3 | rapid 2,3,1>2,3,2@4",
         "not a hole once a motion is set; words let be; G91; Z alone"},
        {"G00 X0.6 Z0.1\nG92 X0.5 Z-0.75 F0.05\nX0.4\nG00 X1", 5,
         "rapid 0.6,0,0.1>0.4,0,0.1@3 | feed 0.4,0,0.1>0.4,0,-0.75@3 | "
         "rapid 0.4,0,-0.75>0.6,0,-0.75@3 | rapid 0.6,0,-0.75>0.6,0,0.1@3 | "
         "rapid 0.6,0,0.1>1,0,0.1@4",
         "G92's second pass keeps the Z end; the cycle ends where it began"},
        // Problems.
        {"G00 X1 Q5 Y1", 0, "1: cannot read \"Q5\""},
        {"G00 X? Z?", 0, "1: X has no number"},
        {"G28 X0", 0, "1: cannot read \"G28\""},
        {"G1.5 X0", 0, "1: cannot read \"G1.5\""},
        {"G-1 X0", 0, "1: cannot read \"G-1\""},
        {"G00 X1;end", 0, "1: cannot read \";end\""},
        {"G00 é5", 0, "1: cannot read \"é5\""},
        {"G00 X1 (open", 0, "1: a comment is not closed"},
        {"G00 X1\nG02 X2", 1, "2: an arc needs I, J, K or R"},
        {"G00 X1\nG02 X2 K1", 1, "2: an arc needs I, J, K or R", "K lies across G17"},
        {"G00 X1\nG02 R1", 1, "2: R cannot make a full turn"},
        {"G00 X0 Y0\nG02 X3 Y0 R1", 1, "2: R1 is too short for an end 3 away"},
        {"G02 X1 Y0 I0 J0", 0, "1: the arc has no radius"},
        {"G00 X1 Y0\nG03 X0 Y1.0011 I-1", 1, "2: the arc's end is 0.0011 off its circle"},
        {"G00 X0.6 Z0.1\nG92 X0.5", 1, "2: G92 needs a Z end"},
        {" 3]", 0, "1: hole 3 has no position"},
        {"G00 X" + huge, 0, "1: X is out of range"},
        {"G00 G91 Y" + big + "\nY" + big, 1, "2: the position is out of range"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Trace(ReadPath(QString::fromStdString(row.program)), row.first), row.trace)
            << row.fault;
    }
}

TEST(GcodeReader, PointsAlongRows) {
    const struct {
        const char* program;  // its last move is the one looked at
        int perTurn;
        const char* points;
    } rows[] = {
        {"G00 X1 Y3\nG02 X3 Y1 J-2", 8, "1,3,0 2.414213562373,2.414213562373,0 3,1,0"},
        // Clockwise: down first; half the turn, half the fall.
        {"G00 X1 Y0 Z1\nG02 Z0.9 I-1", 4, "1,0,1 0,-1,0.975 -1,0,0.95 0,1,0.925 1,0,0.9"},
        // Across G18's plane Y rises, across G19's X.
        {"G18 G00 X0 Y0 Z1\nG03 X1 Y1 Z0 K-1", 8, "0,0,1 0.707106781187,0.5,0.707106781187 1,1,0"},
        {"G19 G00 X0 Y1 Z0\nG03 X1 Y0 Z1 J-1", 4, "0,1,0 0.5,0.707106781187,0.707106781187 1,0,1"},
        // At least four steps a turn.
        {"G00 X1 Y0\nG02 X0 Y1 R-1", 1, "1,0,0 0,-1,0 -1,0,0 0,1,0"},
        {"G01 X1 Y0", 8, "1,0,0 1,0,0"},
    };
    for (const auto& row : rows) {
        QStringList points;
        for (const Point3& p : PointsAlong(ReadPath(row.program).moves.back(), row.perTurn)) {
            points << Xyz(p);
        }
        EXPECT_EQ(points.join(u' '), row.points) << row.program;
    }
}

// Whatever the user leaves in the box: moves or problems, never a fault.
TEST(GcodeReader, AnyTextGivesMovesOrProblems) {
    std::mt19937 random(20);
    const QString alphabet = QStringLiteral("GXYZIJKRNFM0123456789.-+ ()]\r\n?;gx");
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (int n = static_cast<int>(random() % 40); n > 0; --n) {
            text += alphabet[static_cast<qsizetype>(random() % alphabet.size())];
        }
        const PathReading r = ReadPath(text);
        const int lines = static_cast<int>(text.count(QRegularExpression("\r\n|\n|\r"))) + 1;
        for (const PathMove& m : r.moves) {
            EXPECT_TRUE(m.line >= 1 && m.line <= lines && std::isfinite(m.to.x + m.to.y + m.to.z))
                << text;
        }
        for (const PathProblem& p : r.problems) {
            EXPECT_TRUE(p.line >= 1 && p.line <= lines && !p.text.isEmpty()) << text;
        }
    }
}

}  // namespace
}  // namespace tavrin
