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

}  // namespace
}  // namespace tavrin
