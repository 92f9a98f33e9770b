#include <gtest/gtest.h>

#include "geometry/incline_of_line.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(InclineOfLineSolver, LinesAndEdges) {
    EXPECT_EQ(InclineOfLine(0, 0, 2, -2, 4),
              "Slope= -1\r\nAngle1 DD=  45\r\nAngle1 DMS=  45°  0'  0\"\r\nAngle2 DD=  45\r\n"
              "Angle2 DMS=  45°  0'  0\"\r\nSlope Length=  2.8284\r\nY (Rise)=  2\r\nX (Run)=  2");
    // parallel to the Y axis: no division, a slope of 0
    EXPECT_EQ(InclineOfLine(1, 1, 1, 4, 4),
              "Slope=  0\r\nAngle1 DD=  0\r\nAngle1 DMS=  0°  0'  0\"\r\nAngle2 DD=  90\r\n"
              "Angle2 DMS=  90°  0'  0\"\r\nSlope Length=  0\r\nY (Rise)=  3\r\nX (Run)=  0");
    const QStringList lines = InclineOfLine(2, 1, 0, 0, 3).split("\r\n");
    EXPECT_EQ(lines.mid(0, 6), QStringList({"Slope=  .5", "Angle1 DD=  26.565051",
                                            "Angle1 DMS= 26°  33'  54\"", "Angle2 DD=  63.434949",
                                            "Angle2 DMS= 63°  26'  6\"", "Slope Length=  2.236"}));
    // rise and run are not rounded
    EXPECT_TRUE(InclineOfLine(0, 0, .123456789, -1.23456789, 2)
                    .endsWith("Y (Rise)=  1.23456789\r\nX (Run)=  .123456789"));
}

TEST(InclineOfLine, HandlerRows) {
    const QStringList points{"txtXIncline1=0", "txtYIncline1=0", "txtXIncline2=2"};
    const std::pair<QStringList, const char*> rows[] = {
        {points + QStringList{"txtYIncline2=-2"}, "Slope= -1"},
        // the characters are tested before the emptiness
        {{"txtXIncline1=a"}, "Error, Invalid Input."},
        {points, "Error, Please fill all data fields."},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmInclineOfLine", {"txtInclineLineAns=earlier"});
        h.run("frmInclineOfLine", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox().isEmpty() ? f.text("txtInclineLineAns").section("\r\n", 0, 0)
                                        : h.lastBox() + f.text("txtInclineLineAns"),
                  shown);
    }
}

TEST(InclineOfLine, ClearAllEmpties) {
    testing::Harness h;
    Form& f =
        h.run("frmInclineOfLine", {"txtXIncline1=1", "txtYIncline2=2", "Command1", "Command2"});
    EXPECT_EQ(f.text("txtXIncline1") + f.text("txtYIncline2") + f.text("txtInclineLineAns"), "");
}

}  // namespace
}  // namespace tavrin
