#include <gtest/gtest.h>

#include "geometry/tangency_ara.h"
#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code.
namespace tavrin {
namespace {

TEST(AraSolver, EitherOrderOfTheAngles) {
    EXPECT_EQ(AraAnswer(20, 60, .5, 4),
              "B=  .171\r\nC=  .262\r\nE=  .0622\r\nH=  .2198\r\nD=  .091\r\nF=  .1576");
    EXPECT_EQ(AraAnswer(60, 20, .5, 4),  // the other branch, the same half turn of 20
              "B=  .091\r\nC= -.262\r\nE=  .1576\r\nH= -.2198\r\nD=  .171\r\nF=  .0622");
}

TEST(Ara, DmsHelpClearAllAndAFailureAfterCalculating) {
    testing::Harness h;
    h.app.tangencyDms = true;
    Form& f = h.run("frmARA", {"txtA1ara=19.6", "txtA2ara=60", "txtRadara=.5", "Command1"});
    EXPECT_TRUE(f.text("txtAnsara").startsWith("B=  .171\r\n"));  // 19 degrees 60 minutes
    h.run("frmARA", {"Command3", "Command2"});
    EXPECT_EQ(h.lastBox(),
              "The second angle does not have to be more than the first angle, "
              "Angle 1= 35 Angle 2= 15 is OK (G02 or G03 change).");
    EXPECT_EQ(f.text("txtA1ara") + f.text("txtA2ara") + f.text("txtRadara") + f.text("txtAnsara"),
              "");
    h.run("frmARA", {"txtA1ara=1E400", "Command1"});
    EXPECT_EQ(h.lastBox(), "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("txtAnsara"), "Calculating...");
}

}  // namespace
}  // namespace tavrin
