#include <gtest/gtest.h>

#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code; the angles are
// packed DMS here, as the hub's box says.
namespace tavrin {
namespace {

TEST(TwoAngle, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"19.6", "50", "", "B=  .2684\r\nC=  .1684\r\nD=  .0684"},
        {"0", "30", "", "B=  .4732\r\nC=  .3732\r\nD=  .2732"},  // one zero angle passes
        {"90", "90", "", "B=  .2\r\nC=  .1\r\nD=  0"},
        {"0", "0", "Error, Only one angle can have a zero value.", "earlier"},
        {"30", "90.3", "Error, Angles can not be more than 90 degrees.", "earlier"},  // as typed
        {"30", "-30", "Run-time error '11':\r\n\r\nDivision by zero", "Calculating..."},
    };
    for (const auto& [a1, a2, box, answer] : rows) {
        testing::Harness h;
        h.app.tangencyDms = true;
        Form& f =
            h.run("frmTwoAngle", {"txtansop=earlier", "txtRadop=.1", QString("txtAng1op=") + a1,
                                  QString("txtAng2op=") + a2, "Command1"});
        EXPECT_EQ(h.lastBox(), box) << a1 << " " << a2;
        EXPECT_EQ(f.text("txtansop"), answer) << a1 << " " << a2;
    }
}

TEST(TwoAngle, ClearAllEmptiesEveryBox) {
    testing::Harness h;
    Form& f = h.run("frmTwoAngle",
                    {"txtAng1op=20", "txtAng2op=50", "txtRadop=.1", "Command1", "Command2"});
    EXPECT_EQ(f.text("txtAng1op") + f.text("txtAng2op") + f.text("txtRadop") + f.text("txtansop"),
              "");
}

}  // namespace
}  // namespace tavrin
