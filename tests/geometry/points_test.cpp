#include <gtest/gtest.h>

#include "geometry/arc_center.h"
#include "geometry/incline_of_line.h"
#include "geometry/intersect.h"
#include "tests/geometry/calculated.h"

// The five point windows. Expected figures worked in doubles apart from the code.
namespace tavrin {
namespace {

template <typename Answer>
QString Shown(const Answer& a) {
    return a.refusal + a.lines;
}

TEST(PointsSolvers, ArcCenterAndItsRefusals) {
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 4, 0, 4)),
              "X Arc Center=  2\r\nY Arc Center= -1\r\nRadius=  2.2361");
    EXPECT_EQ(Shown(ArcCenter(0, 0, 0, 1, 4, 0, 4)), "Error, Invalid input.");  // X2 on X1
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 0, 4, 4)), "Error, Invalid input.");  // X3 on X1
}

TEST(PointsSolvers, IntersectionShortcutsAndRefusals) {
    // a level first line answers with its first point, a level second with its height
    EXPECT_EQ(Shown(IntersectTwoLines(0, 1, 2, 1, 0, 0, 1, 2, 4)).left(19), "Intersection X=  0\r");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 2, 2, 0, 3, 5, 3, 4)).right(4), "=  3");
    EXPECT_EQ(Shown(IntersectTwoLines(1, 0, 1, 2, 3, 0, 3, 5, 4)), "Error, Invalid Input.");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 1, 2, 1, 0, 3, 5, 3, 4)), "Error, Invalid Input.");
    EXPECT_THROW(IntersectTwoLines(0, 0, 1, 1, 3, 0, 3, 5, 4), RunTimeError);
}

TEST(PointsSolvers, InclineOfALineParallelToTheYAxis) {  // no division, a slope of 0
    EXPECT_TRUE(
        InclineOfLine(1, 1, 1, 4, 4).endsWith("Slope Length=  0\r\nY (Rise)=  3\r\nX (Run)=  0"));
}

// Each window: its name, then the steps before each row (the answer box
// first, set to "earlier"); and rows of steps with the box then the answer.
struct Window {
    QStringList opening;
    std::vector<std::pair<QStringList, QString>> rows;
};

TEST(Points, HandlerRows) {
    const Window windows[] = {
        {{"frmDistTwoPoints", "txtDisTwoPointsAns=earlier", "txtX1D=1", "txtY1D=1", "txtX2D=3"},
         {{{"txtY2D=3"}, "Distance=  2.8284"},
          {{}, "Error, Please fill all four data fields.earlier"},
          {{"txtY2D=3 "}, "Error, Invalid data in one or more data fields.earlier"}}},
        {{"frmMidTwoPoints", "txtMidTwoPointsAns=earlier", "txtX1M=1", "txtY1M=-2", "txtX2M=4"},
         {{{"txtY2M=8"}, "X middle=  2.5\r\nY middle=  3"},
          {{}, "Error, Please fill all four data fields.earlier"},
          {{"txtY2M=1E2"}, "Error, Invalid data in one or more data fields.earlier"}}},
        {{"frmArcCenter", "txtArcCenter=earlier", "txtX1A=0", "txtY1A=1", "txtX2A=1", "txtY2A=2",
          "txtX3A=2"},
         {{{"txtY3A=1"}, "X Arc Center=  1\r\nY Arc Center=  1\r\nRadius=  1"},
          {{}, "Error, Please fill all data fields.earlier"},
          {{"txtY3A=+1"}, "Error, Invalid data in one or more fields.earlier"},
          {{"txtY3A=3"}, "Error, Straight Line."}}},
        {{"frmIntersect", "txtIntAns=earlier", "txtX1=0", "txtY1=0", "txtX2=2", "txtY2=2",
          "txtX3=0", "txtY3=2", "txtX4=2"},
         {{{"txtY4=0"}, "Intersection X=  1\r\nIntersection Y=  1"},
          {{}, "Error, Please fill all eight data fields.earlier"},
          {{"txtY4=x"}, "Error, One or more data fields contain invalid data.earlier"},
          {{"txtY4=4"}, "Error, Invalid Input."},
          {{"txtX2=0", "txtY4=0"}, "Run-time error '11':\r\n\r\nDivision by zero"}}},
        // the characters are tested before the emptiness, and both empty the box
        {{"frmInclineOfLine", "txtInclineLineAns=earlier", "txtXIncline1=2", "txtYIncline1=1",
          "txtXIncline2=0"},
         {{{"txtYIncline2=0"},
           "Slope=  .5\r\nAngle1 DD=  26.565051\r\nAngle1 DMS= 26°  33'  54\"\r\n"
           "Angle2 DD=  63.434949\r\nAngle2 DMS= 63°  26'  6\"\r\nSlope Length=  2.2361\r\n"
           "Y (Rise)=  1\r\nX (Run)=  2"},
          {{"txtXIncline1=a"}, "Error, Invalid Input."},
          {{}, "Error, Please fill all data fields."}}},
    };
    for (const Window& w : windows) {
        for (const auto& [steps, shown] : w.rows) {
            const QStringList all = w.opening.mid(1) + steps;
            EXPECT_EQ(testing::Calculated(w.opening[0], all, {all[0].section('=', 0, 0)}), shown)
                << w.opening[0] << " " << steps.join(' ');
        }
    }
}

// What the circle, polygon and point windows share: Image shows the picture.
TEST(GeometryWindows, ImageShowsThePicture) {
    const std::pair<const char*, const char*> pictures[] = {
        {"frmCircSegments", "frmCircSegImage"}, {"frmDistTwoPoints", "frmDistancetwoPointsView"},
        {"frmMidTwoPoints", "frmMiddleView"},   {"frmArcCenter", "frmThreePointView"},
        {"frmPolar", "frmPolarView"},
    };
    for (const auto& [window, picture] : pictures) {
        testing::Harness h;
        h.run(window, {"Command3"});
        EXPECT_EQ(h.ui.shownWindows.last(), picture);
    }
}

}  // namespace
}  // namespace tavrin
