#include <gtest/gtest.h>

#include "geometry/middle_two_points.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(MiddleTwoPointsSolver, BothLines) {
    EXPECT_EQ(MiddleTwoPoints(1, 2, 3, 6, 4), "X middle=  2\r\nY middle=  4");
    EXPECT_EQ(MiddleTwoPoints(1, 2, 2, 3.5, 1), "X middle=  1.5\r\nY middle=  2.8");  // even
}

TEST(MiddleTwoPoints, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtX1M=1", "txtY1M=-2", "txtX2M=3", "txtY2M=6"}, "X middle=  2\r\nY middle=  2"},
        {{"txtX1M=1", "txtY1M=2", "txtX2M=3"}, "Error, Please fill all four data fields."},
        {{"txtX1M=1", "txtY1M=2", "txtX2M=3", "txtY2M=1E2"},
         "Error, Invalid data in one or more data fields."},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmMidTwoPoints", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox().isEmpty() ? f.text("txtMidTwoPointsAns") : h.lastBox(), shown);
    }
}

TEST(MiddleTwoPoints, ImageShowsItsPictureAndClearAllEmpties) {
    testing::Harness h;
    Form& f = h.run("frmMidTwoPoints", {"txtX1M=1", "txtY1M=2", "txtX2M=3", "txtY2M=4", "Command1",
                                        "Command2", "Command3"});
    EXPECT_EQ(f.text("txtX1M") + f.text("txtY1M") + f.text("txtX2M") + f.text("txtY2M") +
                  f.text("txtMidTwoPointsAns"),
              "");
    EXPECT_EQ(h.ui.shownWindows.last(), "frmMiddleView");
}

}  // namespace
}  // namespace tavrin
