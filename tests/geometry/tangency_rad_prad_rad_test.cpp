#include <gtest/gtest.h>

#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code. Radius 1 is 1
// and radius 2 is .5 unless a row says otherwise.
namespace tavrin {
namespace {

struct Row {
    const char* mode;  // "optWidthrrr" or "optHeightrrr"
    const char *r2, *entry;
    const char* said;    // the box shown
    const char* answer;  // "earlier" where the answer box keeps its text
};

TEST(RadPRadRad, CalculateRows) {
    const Row rows[] = {
        {"optHeightrrr", ".5", ".5", "", "TD=  2.236\r\nD2=  .3727\r\nD1=  .1667"},
        {"optWidthrrr", ".5", "1.6", "", "TD=  2.0396\r\nD2=  .3399\r\nD1=  .1333"},
        {"optHeightrrr", ".5", "1.5", "", "TD=  3\r\nD2=  .5\r\nD1=  .5"},  // r1 + r2 passes
        {"optWidthrrr", ".5", "2", "", "TD=  2.8284\r\nD2=  .4714\r\nD1=  .3333"},  // 2 * r1 too
        {"optHeightrrr", "1", ".5", "Error, Radius #2 cannot be equal or larger than Radius #1",
         "earlier"},
        {"optHeightrrr", ".5", "1.6", "Error, Height cannot be more than radius #1 + radius #2.",
         "earlier"},
        {"optWidthrrr", ".5", "2.1", "Error, Width cannot be more than two times radius #1.",
         "earlier"},
        // a height of 0 meets the pole of the arc sine
        {"optHeightrrr", ".5", "", "Run-time error '11':\r\n\r\nDivision by zero",
         "Calculating..."},
        // the width's square root fails before the answer box is touched
        {"optWidthrrr", "-2", "-3", "Run-time error '5':\r\n\r\nInvalid procedure call or argument",
         "earlier"},
    };
    for (const Row& row : rows) {
        testing::Harness h;
        const QString r1 = *row.r2 == '-' ? "-1" : "1";
        Form& f = h.run("frmradpRadrad", {row.mode, "txtansrrr=earlier", "txtRad1RR=" + r1,
                                          QString("txtRad2RR=") + row.r2,
                                          QString("txtHorWRR=") + row.entry, "Command1"});
        EXPECT_EQ(h.lastBox(), row.said) << row.mode << " " << row.entry;
        EXPECT_EQ(f.text("txtansrrr"), row.answer) << row.mode << " " << row.entry;
    }
}

TEST(RadPRadRad, OptionsNameTheFieldAndClearAllEmptiesTheBoxes) {
    testing::Harness h;
    Form& f = h.run("frmradpRadrad", {"optWidthrrr"});
    EXPECT_EQ(f.caption("Label2558"), "Width");
    h.run("frmradpRadrad",
          {"txtRad1RR=1", "txtRad2RR=.5", "txtHorWRR=.5", "Command1", "Command2", "optHeightrrr"});
    EXPECT_EQ(f.caption("Label2558"), "Height");
    EXPECT_EQ(f.text("txtRad1RR") + f.text("txtRad2RR") + f.text("txtHorWRR") + f.text("txtansrrr"),
              "");
}

}  // namespace
}  // namespace tavrin
