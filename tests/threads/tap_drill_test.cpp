#include <gtest/gtest.h>

#include "tests/support/harness.h"
#include "threads/tap_drill.h"

namespace tavrin {
namespace {

TEST(TapDrillSolver, EachTapItsConstant) {
    EXPECT_EQ(TapMinorDiameter(false, false, true, 10, 24, 75).value(), 0.149375);  // screw #10
    EXPECT_EQ(TapMinorDiameter(true, false, false, 10, 1.5, 75).value(), 8.538581449727202);
    EXPECT_EQ(TapMinorDiameter(true, true, false, 8, 1.25, 65).value(), 7.44750441996464);
    // just below the tie at .20125: both lines from the unrounded diameter
    EXPECT_EQ(TapDrillAnswer(0.20124999999999998, false, 4), "Minor Dia.=  .2012\r\n[ 5.1117 mm]");
    EXPECT_EQ(TapDrillAnswer(5.025720966484801, true, 4), "Minor Dia.=  .1979\r\n[ 5.0257 mm]");
}

// The box shown, then the answer; "earlier" where it stands.
TEST(TapDrill, CalculateRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtTapSize=.25", "txtPitch=20"}, "|Minor Dia.=  .20125\r\n[ 5.11175 mm]"},
        {{"popTypeTap#1", "txtTapSize=.25", "txtPitch=20"}, "|Minor Dia.=  .2245\r\n[ 5.7023 mm]"},
        {{"popTypeTap=Forming Tap", "txtTapSize=.25", "txtPitch=20"}, "|Minor Dia.=  0\r\n[ 0 mm]"},
        {{"txtTapSize=.25"}, "Error, Please fill all three data fields.|earlier"},
        {{"txtPitch=20", "Command2", "txtPitch=20", "txtTapSize=1"},
         "Error, Please fill all three data fields.|"},  // no 75 comes back
        {{"txtTapSize=.25", "txtPitch=x"}, "Error, Pitch value must be greater than zero.|earlier"},
        {{"txtTapSize=.25", "txtPitch=20", "txtPercent=0"},
         "Error, Percent value must be greater than zero.|earlier"},
    };
    for (const auto& [steps, answer] : rows) {
        EXPECT_EQ(testing::Outcome("frmTap", QStringList{"txtTapAns=earlier"} + steps << "Command1",
                                   "txtTapAns", 5),
                  answer)
            << steps.join(' ');
    }
}

TEST(TapDrill, TheTwoBoxesExcludeEachOtherAndSetTheCaptions) {
    testing::Harness h;
    Form& f = h.open("frmTap");
    const auto state = [&f] {
        return f.caption("Field1994") + '|' + f.caption("Label1273") + '|' +
               QString::number(f.value("chkMetTap")) + QString::number(f.value("chkTapNo"));
    };
    QStringList seen;
    for (const char* click : {"chkTapNo", "chkMetTap", "chkTapNo", "chkTapNo"}) {
        seen << state();
        h.run("frmTap", {click});
    }
    EXPECT_EQ(
        seen.join(' ') + ' ' + state(),
        "Tap Diameter|TPI|00 Tap #|TPI|01 Tap Diameter|Pitch|10 Tap #|TPI|01 Tap Diameter|TPI|00");
}

}  // namespace
}  // namespace tavrin
