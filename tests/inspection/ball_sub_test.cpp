#include <gtest/gtest.h>

#include "inspection/ball_sub.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

using testing::Harness;

TEST(BallSubSolver, Rows) {
    EXPECT_EQ(BallSubstitute(.25, .5, 30, .3, 1, 4),
              "Plus/Minus Value=  .375\r\nNew Distance= -.075");
    const std::tuple<double, double, int, int, const char*> rows[] = {
        {30, .3, 2, 4, "\r\nNew Distance=  .675"},
        {29, .3, 1, 2, " .38\r\nNew Distance= -.0828"},  // four places for the small ball
        {29, .3, 2, 2, " .38\r\nNew Distance=  .68"},
        {30, 0, 2, 4, " .375\r\nNew Distance= No distance entered."},
        {30, .3, 0, 4, " .375\r\nNew Distance= "},  // a typed mode: no distance
    };
    for (const auto& [a, d, mode, places, tail] : rows) {
        EXPECT_TRUE(BallSubstitute(.25, .5, a, d, mode, places).endsWith(tail)) << tail;
    }
}

TEST(BallSub, CalculateRows) {
    const char* const fill = "Error, Please fill all four data fields.";
    const char* const zero = "Error, Values must be greater than zero.";
    const std::pair<QStringList, QString> rows[] = {
        {{"txtAngBall=30.3", "chkDMSbs"}, "|New Distance= -.0713"},
        {{"popSub#1", "txtDistance=-.3"}, "|New Distance=  .075"},
        {{"txtAngBall=", "txtSmBall=0"}, QString(fill) + "|earlier"},
        {{"txtDistance="}, QString(fill) + "|earlier"},
        {{"txtLaBall="}, QString(fill) + "|earlier"},
        {{"txtDistance=.3x", "txtSmBall=0"}, "Error, Invalid input in data field #4|earlier"},
        {{"txtAngBall=0"}, QString(zero) + "|earlier"},
        {{"txtLaBall=x"}, QString(zero) + "|earlier"},
        {{"txtDistance=0"}, QString(zero) + "|earlier"},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        Form& f = h.run("frmBallSub", {"txtBallSubAns=earlier", "txtSmBall=.25", "txtLaBall=.5",
                                       "txtAngBall=30", "txtDistance=.3"});
        h.run("frmBallSub", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtBallSubAns").section("\r\n", -1), answer)
            << steps.join(' ');
    }
}

TEST(BallSub, HelpAndClearAll) {
    Harness h;
    Form& f = h.run("frmBallSub", {"txtSmBall=1", "txtLaBall=2", "txtAngBall=3", "txtDistance=4",
                                   "txtBallSubAns=5", "popSub#1", "Command2", "Command3"});
    EXPECT_EQ(f.text("txtSmBall") + f.text("txtLaBall") + f.text("txtAngBall") +
                  f.text("txtDistance") + f.text("txtBallSubAns") + f.listText("popSub"),
              "Large Ball");
    EXPECT_EQ(h.lastBox(), QStringLiteral("If entering the angle in Degrees Minutes Seconds enter "
                                          "22° 3' 22\" as 22.0322 (always use a leading zero for "
                                          "minutes or seconds less than 10)"));
}

}  // namespace
}  // namespace tavrin
