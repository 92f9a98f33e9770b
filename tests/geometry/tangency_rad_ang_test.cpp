#include <gtest/gtest.h>

#include "geometry/tangency_rad_ang.h"
#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code.
namespace tavrin {
namespace {

TEST(RadAngSolver, Rows) {
    EXPECT_EQ(RadAngAnswer(.25, 30, 4), "C=  .067\r\nD=  .125\r\nE=  .0335");
    EXPECT_EQ(RadAngAnswer(.25, 180, 4), "C=  0\r\nD=  0\r\nE=  0");  // no division at 180
    EXPECT_EQ(RadAngAnswer(1, 32, 1), "C=  .3\r\nD=  .5\r\nE=  .1");  // E from the rounded D
}

TEST(RadAng, DmsFlagFatalAndClearAll) {
    testing::Harness h;
    h.app.tangencyDms = true;
    Form& f = h.run("frmRadAng", {"txtradar=.25", "txtangar=29.6", "Command1"});
    EXPECT_EQ(f.text("txtansar"), "C=  .067\r\nD=  .125\r\nE=  .0335");  // 29 degrees 60 minutes
    h.run("frmRadAng", {"Command2"});
    EXPECT_EQ(f.text("txtradar") + f.text("txtangar") + f.text("txtansar"), "");
    h.run("frmRadAng", {"txtradar=1E300", "txtangar=90", "Command1"});
    EXPECT_EQ(h.lastBox(), "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("txtansar"), "Calculating...");
}

}  // namespace
}  // namespace tavrin
