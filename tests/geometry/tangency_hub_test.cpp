#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(Tangency, TheFlagOutlivesTheHubUntilTheBoxIsClickedTwice) {
    testing::Harness h;
    h.app.userClose(h.run("frmTangency", {"chkDMStp"}));
    Form& again = h.open("frmTangency");
    EXPECT_FALSE(again.value("chkDMStp"));  // the box opens cleared, the flag stays
    EXPECT_TRUE(h.app.tangencyDms);
    h.click(again, "chkDMStp");
    EXPECT_TRUE(h.app.tangencyDms);
    h.click(again, "chkDMStp");
    EXPECT_FALSE(h.app.tangencyDms);
}

TEST(Tangency, EachItemOpensItsSolver) {
    const char* const solvers[] = {"frmradpRadrad", "frmARA",     "frmAra2",    "frmRadAng",
                                   "frmRadToRad",   "frmTipLoss", "frmTwoAngle"};
    for (int i = 0; i < 7; ++i) {
        testing::Harness h;
        h.run("frmTangency", {"lstTpoints#" + QString::number(i)});
        EXPECT_NE(h.app.find(solvers[i]), nullptr) << i;
        EXPECT_EQ(h.app.loadedForms().size(), 3u) << i;  // the home window, the hub, one solver
    }
}

}  // namespace
}  // namespace tavrin
