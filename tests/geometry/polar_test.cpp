#include <gtest/gtest.h>

#include "geometry/polar.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

TEST(PolarSolver, QuadrantsOfRectangularToPolar) {
    const std::tuple<double, double, double, double, double> rows[] = {
        {1, 1, 1.4142135623730927, 44.99999999999996, -315.00000000000006},
        {-1, -1, -1.4142135623730927, -135.00000000000006, 224.99999999999994},
        {0, -2, -2, -90, 270},
        {-2, 0, -2, 180, -180},
        {2, 0, 2, 0, -360},
        {0, 2, 2, 90, -270},  // stays from the first step
        {0, 0, 0, 0, 0},
    };
    for (const auto& [dx, dy, radius, main, alternate] : rows) {
        const PolarFigures p = RectangularToPolar(dx, dy);
        EXPECT_EQ(std::tuple(p.radius.value(), p.main.value(), p.alternate.value()),
                  std::tuple(radius, main, alternate))
            << dx << "," << dy;
    }
}

TEST(PolarSolver, AnswerTexts) {
    EXPECT_EQ(PolarToRectangular(2, 30, -1, 1, 2), "X=  .73\r\nY=  2");
    EXPECT_EQ(PolarAnswer({-1.4142135623730927, -135.00000000000006, 224.99999999999994}, 4),
              "Radius=  1.4142\r\nAngle DD= -135.000000\r\nAngle DMS= -135°  0'  0\"\r\n"
              "[ Angle DD= 225.000000 ]\r\n[ Angle DMS=  225°  0'  0\" ]");
}

TEST(Polar, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtPolarInput1=2", "txtPolarInput2=30.3", "chkDMSpolar"}, "X=  1.7233"},
        {{"popPolar#1", "txtPolarInput1=4", "txtPolarInput2=30.3", "txtXPolarPresent=1",
          "txtYPolarPresent=1", "chkDMSpolar"},
         "Radius=  29.4532"},  // no DMS in this mode
        {{"txtPolarInput1=2", "txtPolarInput2=30", "txtYPolarPresent="},
         "Error, Please fill all data fields."},
        {{"txtPolarInput1=2", "txtPolarInput2=3E1"}, "Error, Invalid data entered"},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmPolar", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + f.text("txtPolarAns").section("\r\n", 0, 0), shown);
    }
}

TEST(Polar, CaptionsFollowTheModeAndATypedModeComputesNothing) {
    testing::Harness h;
    Form& f = h.run("frmPolar", {"popPolar#1"});
    EXPECT_EQ(f.caption("Label1214") + f.caption("Label1215"), "X AxisY Axis");
    h.run("frmPolar", {"popPolar#0", "txtPolarInput1=1", "txtPolarInput2=1"});
    EXPECT_EQ(f.caption("Label1214") + f.caption("Label1215"), "DistanceAngle");
    h.app.userType(f, "popPolar", "x");
    h.run("frmPolar", {"Command1"});
    EXPECT_EQ(f.text("txtPolarAns"), "Calculating...");
}

}  // namespace
}  // namespace tavrin
