#include <gtest/gtest.h>

#include "geometry/arc_center.h"
#include "geometry/distance_two_points.h"
#include "geometry/incline_of_line.h"
#include "geometry/intersect.h"
#include "geometry/middle_two_points.h"
#include "tests/support/harness.h"

// The five point windows. Expected figures worked in doubles apart from the code.
namespace tavrin {
namespace {

template <typename Answer>
QString Shown(const Answer& a) {
    return a.refusal + a.lines;
}

TEST(PointsSolvers, DistanceAndMiddle) {
    EXPECT_EQ(DistanceTwoPoints(1, 1, 2, 3).value(), 2.23606797749979);
    EXPECT_EQ(MiddleTwoPoints(1, 2, 2, 3.5, 1), "X middle=  1.5\r\nY middle=  2.8");  // even
}

TEST(PointsSolvers, ArcCenterAndItsRefusals) {
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 4, 0, 4)),
              "X Arc Center=  2\r\nY Arc Center= -1\r\nRadius=  2.2361");
    EXPECT_EQ(Shown(ArcCenter(0, 0, 0, 1, 4, 0, 4)), "Error, Invalid input.");  // X2 on X1
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 0, 4, 4)), "Error, Invalid input.");  // X3 on X1
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 2, 2, 4)), "Error, Straight Line.");
}

TEST(PointsSolvers, IntersectionShortcutsAndRefusals) {
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 2, 2, 0, 2, 2, 0, 4)),
              "Intersection X=  1\r\nIntersection Y=  1");
    // a level first line answers with its first point, a level second with its height
    EXPECT_EQ(Shown(IntersectTwoLines(0, 1, 2, 1, 0, 0, 1, 2, 4)).left(19), "Intersection X=  0\r");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 2, 2, 0, 3, 5, 3, 4)).right(4), "=  3");
    EXPECT_EQ(Shown(IntersectTwoLines(1, 0, 1, 2, 3, 0, 3, 5, 4)), "Error, Invalid Input.");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 1, 2, 1, 0, 3, 5, 3, 4)), "Error, Invalid Input.");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 1, 1, 0, 2, 1, 3, 4)), "Error, Invalid Input.");
    EXPECT_THROW(IntersectTwoLines(0, 0, 1, 1, 3, 0, 3, 5, 4), RunTimeError);
}

TEST(PointsSolvers, InclineOfLine) {
    EXPECT_EQ(InclineOfLine(0, 0, 2, -2, 4),
              "Slope= -1\r\nAngle1 DD=  45\r\nAngle1 DMS=  45°  0'  0\"\r\nAngle2 DD=  45\r\n"
              "Angle2 DMS=  45°  0'  0\"\r\nSlope Length=  2.8284\r\nY (Rise)=  2\r\nX (Run)=  2");
    // parallel to the Y axis: no division, a slope of 0
    EXPECT_TRUE(
        InclineOfLine(1, 1, 1, 4, 4).endsWith("Slope Length=  0\r\nY (Rise)=  3\r\nX (Run)=  0"));
    EXPECT_EQ(InclineOfLine(2, 1, 0, 0, 3).split("\r\n").mid(0, 6),
              QStringList({"Slope=  .5", "Angle1 DD=  26.565051", "Angle1 DMS= 26°  33'  54\"",
                           "Angle2 DD=  63.434949", "Angle2 DMS= 63°  26'  6\"",
                           "Slope Length=  2.236"}));
    EXPECT_TRUE(InclineOfLine(0, 0, .123456789, -1.23456789, 2)  // not rounded
                    .endsWith("Y (Rise)=  1.23456789\r\nX (Run)=  .123456789"));
}

struct Row {
    const char* window;
    const char* answerBox;
    QStringList steps;
    const char* shown;  // the box then the answer's first line
};

const QStringList kDist{"txtX1D=1", "txtY1D=1", "txtX2D=2"};
const QStringList kMid{"txtX1M=1", "txtY1M=-2", "txtX2M=3"};
const QStringList kArc{"txtX1A=0", "txtY1A=1", "txtX2A=1", "txtY2A=2", "txtX3A=2"};
const QStringList kLines{"txtX1=0", "txtY1=0", "txtX2=2", "txtY2=2",
                         "txtX3=0", "txtY3=2", "txtX4=2"};
const QStringList kSlope{"txtXIncline1=0", "txtYIncline1=0", "txtXIncline2=2"};

TEST(Points, HandlerRows) {
    const Row rows[] = {
        {"frmDistTwoPoints", "txtDisTwoPointsAns", kDist + QStringList{"txtY2D=3"},
         "Distance=  2.2361"},
        {"frmDistTwoPoints", "txtDisTwoPointsAns", kDist,
         "Error, Please fill all four data fields.earlier"},
        {"frmDistTwoPoints", "txtDisTwoPointsAns", kDist + QStringList{"txtY2D=3 "},
         "Error, Invalid data in one or more data fields.earlier"},
        {"frmMidTwoPoints", "txtMidTwoPointsAns", kMid + QStringList{"txtY2M=6"}, "X middle=  2"},
        {"frmMidTwoPoints", "txtMidTwoPointsAns", kMid,
         "Error, Please fill all four data fields.earlier"},
        {"frmMidTwoPoints", "txtMidTwoPointsAns", kMid + QStringList{"txtY2M=1E2"},
         "Error, Invalid data in one or more data fields.earlier"},
        {"frmArcCenter", "txtArcCenter", kArc + QStringList{"txtY3A=1"}, "X Arc Center=  1"},
        {"frmArcCenter", "txtArcCenter", kArc, "Error, Please fill all data fields.earlier"},
        {"frmArcCenter", "txtArcCenter", kArc + QStringList{"txtY3A=+1"},
         "Error, Invalid data in one or more fields.earlier"},
        {"frmArcCenter", "txtArcCenter", kArc + QStringList{"txtY3A=3"}, "Error, Straight Line."},
        {"frmIntersect", "txtIntAns", kLines + QStringList{"txtY4=0"}, "Intersection X=  1"},
        {"frmIntersect", "txtIntAns", kLines, "Error, Please fill all eight data fields.earlier"},
        {"frmIntersect", "txtIntAns", kLines + QStringList{"txtY4=x"},
         "Error, One or more data fields contain invalid data.earlier"},
        {"frmIntersect", "txtIntAns", kLines + QStringList{"txtY4=4"}, "Error, Invalid Input."},
        {"frmIntersect", "txtIntAns", kLines + QStringList{"txtX2=0", "txtY4=0"},
         "Run-time error '11':\r\n\r\nDivision by zero"},  // the first line upright
        {"frmInclineOfLine", "txtInclineLineAns", kSlope + QStringList{"txtYIncline2=-2"},
         "Slope= -1"},
        // the characters are tested before the emptiness, and both empty the box
        {"frmInclineOfLine", "txtInclineLineAns", {"txtXIncline1=a"}, "Error, Invalid Input."},
        {"frmInclineOfLine", "txtInclineLineAns", kSlope, "Error, Please fill all data fields."},
    };
    for (const Row& row : rows) {
        testing::Harness h;
        Form& f = h.run(row.window, {QString(row.answerBox) + "=earlier"});
        h.run(row.window, row.steps + QStringList{"Command1"});
        const QString answer = f.text(row.answerBox);
        EXPECT_EQ(h.lastBox() + (h.ui.fatalTexts().isEmpty() ? answer.section("\r\n", 0, 0) : ""),
                  row.shown)
            << row.window << " " << row.steps.join(' ');
    }
}

}  // namespace
}  // namespace tavrin
