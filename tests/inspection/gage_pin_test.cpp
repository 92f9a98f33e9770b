#include <gtest/gtest.h>

#include "inspection/gage_pin.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

using testing::Harness;

TEST(GagePinSolver, Rows) {
    EXPECT_EQ(GagePinInDiamond(1, 2).value(), 0.8944271909999159);
    EXPECT_EQ(GagePinInDiamond(-1, 2).value(), 0.8944271909999159);  // a negative side passes
    EXPECT_EQ(GagePinInDiamond(1, -2).value(), -0.8944271909999159);
}

TEST(GagePin, CalculateRows) {
    const char* const fill = "Error, Please fill both data fields with values greater than zero.";
    const std::pair<QStringList, QString> rows[] = {
        {{"txtDiamond2=1"}, "|Gage Pin Diameter=  .707"},  // DecPlace 3
        {{"txtDiamond2="}, QString(fill) + "|"},
        {{"txtDiamond1=", "txtDiamond2=1"}, QString(fill) + "|"},
        {{"txtDiamond2=x"}, QString(fill) + "|"},
        {{"txtDiamond1=x", "txtDiamond2=1"}, QString(fill) + "|"},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        h.app.decPlace = 3;
        Form& f = h.run("frmPinInaDiamond", {"txtDiamondAns=earlier", "txtDiamond1=1"});
        h.run("frmPinInaDiamond", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtDiamondAns"), answer) << steps.join(' ');
    }
    Harness h;
    Form& f = h.run("frmPinInaDiamond",
                    {"txtDiamond1=1", "txtDiamond2=1", "Command1", "Command2", "Command3"});
    EXPECT_NE(h.app.find("frmPinView"), nullptr);
    EXPECT_EQ(f.text("txtDiamond1") + f.text("txtDiamond2") + f.text("txtDiamondAns"), "");
}

}  // namespace
}  // namespace tavrin
