// The G-code reader alone: arcs each way round, holes, modes, and every
// problem it reports instead of a move.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include <QRegularExpression>

#include "quickcode/gcode_reader.h"

namespace tavrin {
namespace {

double Degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

TEST(GcodeReader, ArcRows) {
    const struct {
        const char* program;  // its last move is the arc looked at
        double cx, cy, cz, sweep;
        const char* fault;
        double r = 1;
    } rows[] = {
        {"G00 X1 Y0\nG03 X0 Y1 I-1 J0", 0, 0, 0, 90, "ccw in the first quadrant"},
        {"G00 X0 Y1\nG03 X-1 Y0 J-1", 0, 0, 0, 90, "ccw in the second, I left out"},
        {"G00 X-1 Y0\nG03 X0 Y-1 I1", 0, 0, 0, 90, "ccw across the branch of the angle"},
        {"G00 X0 Y-1\nG03 X1 Y0 J1", 0, 0, 0, 90, "ccw in the fourth"},
        {"G00 X0 Y1\nG02 X1 Y0 J-1", 0, 0, 0, -90, "cw is negative"},
        {"G00 X0 Y-1\nG02 X0 Y1 J1", 0, 0, 0, -180, "cw half turn through X-1"},
        {"G00 X0 Y1\nG03 X0 Y-1 J-1", 0, 0, 0, 180, "ccw half turn through X-1"},
        {"G00 X1 Y0\nG02 I-1", 0, 0, 0, -360, "same ends: a full turn"},
        {"G00 X1 Y0 Z0\nG91 G03 Z-0.1 I-1", 0, 0, 0, 360, "a helix turn"},
        {"G00 X1 Y0\nG03 X0 Y1 R1", 0, 0, 0, 90, "R: the short way"},
        {"G00 X1 Y0\nG03 X0 Y1 R-1", 1, 1, 0, 270, "negative R: the long way"},
        {"G00 X1 Y0\nG02 X0 Y1 R1", 1, 1, 0, -90, "R clockwise turns about the other side"},
        {"G00 X1 Y0\nG02 X0 Y1 R1 I-1", 1, 1, 0, -90, "R outweighs I and J"},
        {"G00 X0 Y0 Z5\nG91 G03 X-1 Y1 I-1", -1, 0, 5, 90,
         "incremental ends, offsets from the start"},
        {"G18 G00 X0 Z1\nG03 X1 Z0 K-1", 0, 0, 0, 90, "G18: K and I, Z towards X"},
        {"G19 G00 Y1 Z0\nG02 Y0 Z1 J-1", 0, 0, 0, -270, "G19: J and K, Y towards Z"},
        {"G00 X1 Y0\nG02 X0 Y1.0009 I-1", 0, 0, 0, -270, "an end within a thousandth is on"},
        {"G00 X1 Y2\nG03 X0 Y3 J1", 1, 3, 0, 270, "J from the start's Y"},
        {"G00 X3 Y1\nG03 X1 Y3 R2", 1, 1, 0, 90, "R off the origin", 2},
        {"G00 X3 Y1\nG02 X1 Y3 R-2", 1, 1, 0, -270, "negative R clockwise", 2},
        {"G00 X0.5 Y0\nG03 X0 Y0.5 R0.5", 0, 0, 0, 90, "R below one is not the long way", 0.5},
        {"G00 X-2 Y0\nG02 X2 Y0 R2", 0, 0, 0, -180, "R across a diameter", 2},
        {"G18 G00 X1 Y0\nG17 G03 X0 Y1 I-1", 0, 0, 0, 90, "G17 takes the plane back"},
        {"G00 X0 Y-1\nG03 J1", 0, 0, 0, 360, "J alone: a full turn where the tool stands"},
    };
    for (const auto& row : rows) {
        const PathReading r = ReadPath(row.program);
        ASSERT_FALSE(r.moves.empty()) << row.fault;
        const PathMove& m = r.moves.back();
        EXPECT_TRUE(r.problems.empty()) << row.fault;
        EXPECT_NEAR(m.centre.x, row.cx, 1e-12) << row.fault;
        EXPECT_NEAR(m.centre.y, row.cy, 1e-12) << row.fault;
        EXPECT_NEAR(m.centre.z, row.cz, 1e-12) << row.fault;
        EXPECT_NEAR(Degrees(m.sweep), row.sweep, 1e-9) << row.fault;
        EXPECT_NEAR(m.radius, row.r, 1e-12) << row.fault;
        EXPECT_EQ(m.kind, row.sweep < 0 ? MoveKind::ArcCw : MoveKind::ArcCcw) << row.fault;
    }
}

TEST(GcodeReader, ProblemRows) {
    const std::string huge(309, '9');
    const std::string big(308, '9');
    const struct {
        std::string program;
        int line;
        const char* problem;
    } rows[] = {
        {"G00 X1 Q5 Y1", 1, "cannot read \"Q5\""},
        {"G00 X? Z?", 1, "X has no number"},
        {"G28 X0", 1, "cannot read \"G28\""},
        {"G1.5 X0", 1, "cannot read \"G1.5\""},
        {"G-1 X0", 1, "cannot read \"G-1\""},
        {"G00 X1;end", 1, "cannot read \";end\""},
        {"G00 X1 (open", 1, "a comment is not closed"},
        {"G00 X1\nG02 X2", 2, "an arc needs I, J, K or R"},
        {"G00 X1\nG02 X2 K1", 2, "an arc needs I, J, K or R"},  // K lies across G17
        {"G00 X1\nG02 R1", 2, "R cannot make a full turn"},
        {"G00 X0 Y0\nG02 X3 Y0 R1", 2, "R1 is too short for an end 3 away"},
        {"G02 X1 Y0 I0 J0", 1, "the arc has no radius"},
        {"G00 X1 Y0\nG03 X0 Y2 I-1", 2, "the arc's end is 1 off its circle"},
        {"G00 X1 Y0\nG03 X0 Y1.0011 I-1", 2, "the arc's end is 0.0011 off its circle"},
        {"G00 X0.6 Z0.1\nG92 X0.5", 2, "G92 needs a Z end"},
        {" 3]", 1, "hole 3 has no position"},
        {"G00 X" + huge, 1, "X is out of range"},
        {"G00 G91 Y" + big + "\nY" + big, 2, "the position is out of range"},
        {"G00 \xc3\xa9"
         "5",
         1,
         "cannot read \"\xc3\xa9"
         "5\""},
    };
    for (const auto& row : rows) {
        const PathReading r = ReadPath(QString::fromStdString(row.program));
        ASSERT_EQ(r.problems.size(), 1u) << row.problem;
        EXPECT_EQ(r.problems[0], (PathProblem{row.line, row.problem}));
    }
}

TEST(GcodeReader, ALineWithAProblemChangesNothing) {
    const PathReading r = ReadPath("G00 X1\nG91 G01 Q1\nX2\nG03 G91 X1 Y1\nX3");
    ASSERT_EQ(r.moves.size(), 3u);
    EXPECT_EQ(r.moves[1].kind, MoveKind::Rapid) << "G01 and G91 of line 2 were not taken";
    EXPECT_EQ(r.moves[1].to, (Point3{2, 0, 0}));
    EXPECT_EQ(r.moves[2].to, (Point3{3, 0, 0})) << "nor those of line 4";
}

TEST(GcodeReader, HolesLinesAndTheThreadingCycle) {
    const PathReading list = ReadPath(" 1] X0.0Y1.0\r\n 12] X-0.866Y-0.5\r\nX2Y3\r\n");
    ASSERT_EQ(list.moves.size(), 3u);
    EXPECT_TRUE(list.problems.empty());
    const PathMove& second = list.moves[1];
    EXPECT_EQ(second.kind, MoveKind::Hole);
    EXPECT_EQ(second.number, 12) << "the number the list gives";
    EXPECT_EQ(list.moves[2].number, 3) << "or the count";
    EXPECT_EQ(second.from, (Point3{0, 1, 0})) << "from the hole before";
    EXPECT_EQ(second.to, (Point3{-0.866, -0.5, 0}));
    EXPECT_EQ(list.moves[0].from, list.moves[0].to) << "the first from nowhere known";
    EXPECT_EQ(list.moves[2].line, 3);
    const PathReading lone = ReadPath("G00 X1 Y0\rG03 X0 Y1 I-1\rG01 Y2");
    EXPECT_EQ(lone.moves.back().line, 3) << "a bare CR ends a line too";
    EXPECT_EQ(lone.moves.back().from, (Point3{0, 1, 0})) << "on from the arc's end";

    const PathReading moves =
        ReadPath("n10 g01 x1 y2 z1 f5 m3 s900 t1 (a comment)\nG91 X1\nG0(c)Y1\nZ1");
    ASSERT_EQ(moves.moves.size(), 4u);
    EXPECT_TRUE(moves.problems.empty());
    EXPECT_EQ(moves.moves[0].kind, MoveKind::Feed) << "not a hole once a motion is set";
    EXPECT_EQ(moves.moves[0].from, moves.moves[0].to);
    EXPECT_EQ(moves.moves[1].to, (Point3{2, 2, 1}));
    EXPECT_EQ(moves.moves[2].kind, MoveKind::Rapid);
    EXPECT_EQ(moves.moves[2].to, (Point3{2, 3, 1}));
    EXPECT_EQ(moves.moves[3].to, (Point3{2, 3, 2})) << "Z alone moves";

    const PathReading thread = ReadPath("G00 X0.6 Z0.1\nG92 X0.5 Z-0.75 F0.05\nX0.4\nG00 X1");
    ASSERT_EQ(thread.moves.size(), 10u);
    const Point3 start{0.6, 0, 0.1};
    const PathMove* pass = &thread.moves[5];
    EXPECT_EQ(pass[0].kind, MoveKind::Rapid);
    EXPECT_EQ(pass[0].from, start);
    EXPECT_EQ(pass[1].kind, MoveKind::Feed);
    EXPECT_EQ(pass[1].from, (Point3{0.4, 0, 0.1}));
    EXPECT_EQ(pass[1].to, (Point3{0.4, 0, -0.75})) << "the Z end stays";
    EXPECT_EQ(pass[2].to, (Point3{0.6, 0, -0.75}));
    EXPECT_EQ(pass[3].to, start);
    EXPECT_EQ(pass[3].line, 3);
    EXPECT_EQ(thread.moves[9].from, start) << "the cycle ends where it began";
}

TEST(GcodeReader, PointsAlongAMoveAndTheNamesOfTheKinds) {
    const PathMove quarter = ReadPath("G00 X1 Y3\nG02 X3 Y1 J-2").moves.back();
    const std::vector<Point3> q = PointsAlong(quarter, 8);
    ASSERT_EQ(q.size(), 3u);
    EXPECT_NEAR(q[1].x, 1 + std::sqrt(2), 1e-12);
    EXPECT_NEAR(q[1].y, 1 + std::sqrt(2), 1e-12);
    EXPECT_EQ(q[2], quarter.to);
    const PathMove turn = ReadPath("G00 X1 Y0 Z1\nG02 Z0.9 I-1").moves.back();
    const std::vector<Point3> t = PointsAlong(turn, 4);
    ASSERT_EQ(t.size(), 5u);
    EXPECT_NEAR(t[1].y, -1, 1e-12) << "clockwise: down first";
    EXPECT_NEAR(t[2].x, -1, 1e-12);
    EXPECT_NEAR(t[2].z, 0.95, 1e-12) << "half the turn, half the fall";
    // Across G18's plane Y rises, across G19's X.
    const PathMove zx = ReadPath("G18 G00 X0 Y0 Z1\nG03 X1 Y1 Z0 K-1").moves.back();
    EXPECT_NEAR(PointsAlong(zx, 8)[1].y, 0.5, 1e-12);
    const PathMove yz = ReadPath("G19 G00 X0 Y1 Z0\nG03 X1 Y0 Z1 J-1").moves.back();
    EXPECT_NEAR(PointsAlong(yz, 4)[1].x, 0.5, 1e-12);
    EXPECT_EQ(PointsAlong(ReadPath("G00 X1 Y0\nG02 X0 Y1 R-1").moves.back(), 1).size(), 4u)
        << "at least four steps a turn";
    EXPECT_EQ(PointsAlong(ReadPath("G01 X1 Y0").moves.back(), 8).size(), 2u);
    const QStringList names{MoveKindName(MoveKind::Rapid), MoveKindName(MoveKind::Feed),
                            MoveKindName(MoveKind::ArcCw), MoveKindName(MoveKind::ArcCcw),
                            MoveKindName(MoveKind::Hole)};
    EXPECT_EQ(names, QStringList({"rapid", "feed", "cw", "ccw", "hole"}));
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
            EXPECT_TRUE(m.line >= 1 && m.line <= lines) << text;
            EXPECT_TRUE(std::isfinite(m.to.x + m.to.y + m.to.z)) << text;
        }
        for (const PathProblem& p : r.problems) {
            EXPECT_TRUE(p.line >= 1 && p.line <= lines && !p.text.isEmpty()) << text;
        }
    }
}

}  // namespace
}  // namespace tavrin
