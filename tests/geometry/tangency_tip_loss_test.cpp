#include <gtest/gtest.h>

#include "geometry/tangency_tip_loss.h"
#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code.
namespace tavrin {
namespace {

TEST(TipLossSolver, Rows) {
    EXPECT_EQ(TipLossAnswer(.1, 30, 4), "E=  .2731\r\nD=  .3231\r\nC=  .3731\r\nB=  .4731");
    EXPECT_EQ(TipLossAnswer(.1, 90, 4), "E=  0\r\nD=  0\r\nC=  .1\r\nB=  .2");   // b of 0
    EXPECT_EQ(TipLossAnswer(.1, -90, 4), "E=  0\r\nD=  0\r\nC=  .1\r\nB=  .2");  // c stepped round
}

TEST(TipLoss, MessagesReadTheAngleAsTyped) {
    const std::pair<const char*, const char*> rows[] = {
        {"0", "Error, Angle cannot have a zero value."},
        {"90.3000", "Error, Angle can not be more than 90 degrees."},  // 90.5 as DMS
        {"90", ""},
    };
    for (const auto& [angle, box] : rows) {
        testing::Harness h;
        h.app.tangencyDms = true;
        Form& f = h.run("frmTipLoss", {"txtanstl=earlier", "txtradtl=.1",
                                       QString("txtangtl=") + angle, "Command1"});
        EXPECT_EQ(h.lastBox(), box) << angle;
        EXPECT_EQ(f.text("txtanstl").left(2), *box ? "ea" : "E=") << angle;  // kept on a message
    }
}

TEST(TipLoss, DmsAndClearAll) {
    testing::Harness h;
    h.app.tangencyDms = true;
    Form& f = h.run("frmTipLoss", {"txtradtl=.1", "txtangtl=29.6", "Command1"});
    EXPECT_EQ(f.text("txtanstl"), "E=  .2731\r\nD=  .3231\r\nC=  .3731\r\nB=  .4731");
    h.run("frmTipLoss", {"Command2"});
    EXPECT_EQ(f.text("txtradtl") + f.text("txtangtl") + f.text("txtanstl"), "");
}

}  // namespace
}  // namespace tavrin
