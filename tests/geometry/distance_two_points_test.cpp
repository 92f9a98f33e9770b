#include <gtest/gtest.h>

#include "geometry/distance_two_points.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(DistanceTwoPointsSolver, Hypotenuse) {
    EXPECT_EQ(DistanceTwoPoints(0, 0, 3, 4).value(), 5.0);
    EXPECT_EQ(DistanceTwoPoints(1, 1, 2, 3).value(), 2.23606797749979);
}

TEST(DistanceTwoPoints, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtX1D=1", "txtY1D=1", "txtX2D=2", "txtY2D=3"}, "Distance=  2.2361"},
        {{"txtX1D=1", "txtY1D=1", "txtX2D=2"}, "Error, Please fill all four data fields."},
        {{"txtX1D=1", "txtY1D=1", "txtX2D=2", "txtY2D=3 "},
         "Error, Invalid data in one or more data fields."},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmDistTwoPoints", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox().isEmpty() ? f.text("txtDisTwoPointsAns") : h.lastBox(), shown);
    }
}

TEST(DistanceTwoPoints, ImageShowsItsPictureAndClearAllEmpties) {
    testing::Harness h;
    Form& f = h.run("frmDistTwoPoints", {"txtX1D=1", "txtY1D=1", "txtX2D=2", "txtY2D=3", "Command1",
                                         "Command2", "Command3"});
    EXPECT_EQ(f.text("txtX1D") + f.text("txtY1D") + f.text("txtX2D") + f.text("txtY2D") +
                  f.text("txtDisTwoPointsAns"),
              "");
    EXPECT_EQ(h.ui.shownWindows.last(), "frmDistancetwoPointsView");
}

}  // namespace
}  // namespace tavrin
