#include <gtest/gtest.h>

#include "geometry/polar.h"
#include "tests/geometry/calculated.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

TEST(PolarSolver, QuadrantsOfRectangularToPolar) {
    const std::tuple<double, double, double, double, double> rows[] = {
        {1, 2, 2.2360679774997823, 63.43494882292198, -296.56505117707803},  // dx / dy, not dx * dy
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

TEST(Polar, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtPolarInput1=2", "txtPolarInput2=30.3", "txtXPolarPresent=-1", "txtYPolarPresent=1",
          "chkDMSpolar"},
         "X=  .7233\r\nY=  2.0151"},
        // the third quadrant of the table above, and no DMS in this mode
        {{"popPolar#1", "txtPolarInput1=0", "txtPolarInput2=0", "txtXPolarPresent=1",
          "txtYPolarPresent=1", "chkDMSpolar"},
         "Radius=  1.4142\r\nAngle DD= -135.000000\r\nAngle DMS= -135°  0'  0\"\r\n"
         "[ Angle DD= 225.000000 ]\r\n[ Angle DMS=  225°  0'  0\" ]"},
        {{"txtPolarInput1=2", "txtPolarInput2=30", "txtYPolarPresent="},
         "Error, Please fill all data fields."},
        {{"txtPolarInput1=2", "txtPolarInput2=3E1"}, "Error, Invalid data entered"},
    };
    for (const auto& [steps, shown] : rows) {
        EXPECT_EQ(testing::Calculated("frmPolar", steps, {"txtPolarAns"}), shown);
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
