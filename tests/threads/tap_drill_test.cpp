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

// A .25 tap of 20 TPI unless a step says otherwise; the box shown, then the answer.
TEST(TapDrill, CalculateRows) {
    const std::pair<QStringList, QString> rows[] = {
        {{}, "|Minor Dia.=  .20125\r\n[ 5.11175 mm]"},
        {{"popTypeTap#1"}, "|Minor Dia.=  .2245\r\n[ 5.7023 mm]"},
        {{"popTypeTap=Forming Tap"}, "|Minor Dia.=  0\r\n[ 0 mm]"},
        {{"txtPitch="}, "Error, Please fill all three data fields.|earlier"},
        {{"Command2", "txtPitch=20", "txtTapSize=1"},  // no 75 comes back
         "Error, Please fill all three data fields.|"},
        {{"txtPitch=x"}, "Error, Pitch value must be greater than zero.|earlier"},
        {{"txtPercent=0"}, "Error, Percent value must be greater than zero.|earlier"},
    };
    const QStringList job{"txtTapAns=earlier", "txtTapSize=.25", "txtPitch=20"};
    for (const auto& [steps, answer] : rows) {
        EXPECT_EQ(testing::Outcome("frmTap", job + steps << "Command1", "txtTapAns", 5), answer)
            << steps.join(' ');
    }
}

// Size and pitch captions and the two boxes, as the window opens and after each click.
TEST(TapDrill, TheTwoBoxesExcludeEachOtherAndSetTheCaptions) {
    testing::Harness h;
    Form& f = h.open("frmTap");
    QStringList seen;
    for (const char* click : {"", "chkTapNo", "chkMetTap", "chkTapNo", "chkTapNo"}) {
        h.run("frmTap", QStringList{click}.filter("chk"));
        seen << f.caption("Field1994") + '|' + f.caption("Label1273") + '|' +
                    QString::number(f.value("chkMetTap")) + QString::number(f.value("chkTapNo"));
    }
    EXPECT_EQ(
        seen.join(' '),
        "Tap Diameter|TPI|00 Tap #|TPI|01 Tap Diameter|Pitch|10 Tap #|TPI|01 Tap Diameter|TPI|00");
}

}  // namespace
}  // namespace tavrin
