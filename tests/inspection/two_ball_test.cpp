#include <gtest/gtest.h>

#include "inspection/two_ball.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

using testing::Harness;

TEST(TwoBallSolver, Rows) {
    EXPECT_EQ(BallToBallAnswer(.25, .5, 1),
              "DD=  8.213211\r\nDMS= 8°  12'  48\"\r\nIncluded Angle DD=  16.426421\r\n"
              "Included Angle DMS= 16°  25'  35\"");
    EXPECT_EQ(FaceToBallAnswer(.25, .5, -.1, .2),
              "Angle per Side DD=  45.584691\r\nAngle per Side DMS= 45°  35'  5\"\r\n"
              "Sharp Corner Dia.=  .8165\r\nIncluded Angle DD=  91.169383\r\n"
              "Included Angle DMS= 91°  10'  10\"");
    EXPECT_TRUE(BallToBallAnswer(.25, .5, -1).startsWith("DD= -6.37937\r\n"));
    EXPECT_TRUE(BallToBallAnswer(.5, .5, 1).startsWith("DD=  0\r\nDMS=  0°"));  // equal balls
    EXPECT_EQ(BallToBallAnswer(.25, .5, .1), "Invalid Input");                  // above 1
    EXPECT_EQ(BallToBallAnswer(.25, .75, .2), "Invalid Input");                 // below -1
    EXPECT_EQ(FaceToBallAnswer(.25, .5, .1, .2), "Invalid Input");
    EXPECT_THROW(BallToBallAnswer(.25, .5, .125), RunTimeError);    // the size between is v 0
    EXPECT_THROW(FaceToBallAnswer(.25, .5, .5, .5), RunTimeError);  // -1 meets the pole
}

struct Row {
    const char* form;
    QStringList steps;
    QString answer;  // the box shown, then the first line
};

TEST(TwoBall, CalculateRows) {
    const char* const zero = "Error, Values must be greater than zero.";
    const char* const larger = "Error, Small ball larger than Large ball.";
    const char* const b2b = "frmBallToBall";
    const char* const f2b = "frmFaceToBall";
    const Row rows[] = {
        {b2b, {"txtSizeBetween=1"}, "|DD=  8.213211"},
        {b2b, {"txtSizeBetween=.1"}, "|Invalid Input"},
        {b2b, {"txtSB2=.5", "txtLB2=.5", "txtSizeBetween=.5"}, "Error, Invalid Input.|earlier"},
        {b2b, {"txtSB2=.6", "txtSizeBetween=0"}, QString(larger) + "|earlier"},
        {b2b, {"txtSizeBetween="}, QString(zero) + "|earlier"},
        {b2b, {"txtSB2=0", "txtSizeBetween=1"}, QString(zero) + "|earlier"},
        {b2b, {"txtSB2=-.25", "txtLB2=0", "txtSizeBetween=1"}, QString(zero) + "|earlier"},
        {b2b,
         {"txtSizeBetween=.125"},
         "Run-time error '11':\r\n\r\nDivision by zero|Calculating..."},
        {f2b, {"txtSBpos=-.1", "txtLBpos=.2"}, "|Angle per Side DD=  45.584691"},
        {f2b, {"txtSBpos=.1", "txtLBpos=.2"}, "|Invalid Input"},
        {f2b, {"txtSB=.6", "txtSBpos=0"}, QString(larger) + "|earlier"},
        {f2b, {"txtSBpos=-.1"}, QString(zero) + "|earlier"},
        {f2b, {"txtLBpos=.2"}, QString(zero) + "|earlier"},
        {f2b, {"txtSB=0", "txtSBpos=1", "txtLBpos=1"}, QString(zero) + "|earlier"},
        {f2b, {"txtLB=0", "txtSB=-1", "txtSBpos=1", "txtLBpos=1"}, QString(zero) + "|earlier"},
        {f2b,
         {"txtSBpos=.25", "txtLBpos=.5"},
         "Error, Ball sizes and positions are the same.|earlier"},
        {f2b, {"txtSBpos=.25", "txtLBpos=.2"}, "|Angle per Side DD= -45.584691"},
        {f2b,
         {"txtSBpos=.1x", "txtLBpos=.2"},
         "Error, Invalid data entered in field #3 or #4|earlier"},
        {f2b,
         {"txtSBpos=.1", "txtLBpos=.2 "},
         "Error, Invalid data entered in field #3 or #4|earlier"},
        {f2b,
         {"txtSBpos=.5", "txtLBpos=.5"},
         "Run-time error '11':\r\n\r\nDivision by zero|Calculating..."},
    };
    for (const Row& row : rows) {
        Harness h;
        const QString answer = row.form == b2b ? "txtBBans" : "txtFaceBall";
        const QString small = row.form == b2b ? "txtSB2=.25" : "txtSB=.25";
        const QString large = row.form == b2b ? "txtLB2=.5" : "txtLB=.5";
        Form& f = h.run(row.form, {answer + "=earlier", small, large});
        h.run(row.form, row.steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text(answer).section("\r\n", 0, 0), row.answer)
            << row.form << " " << row.steps.join(' ');
    }
}

TEST(TwoBall, HelpPicturesAndClearAll) {
    Harness h;
    Form& b = h.run("frmBallToBall", {"txtSB2=1", "txtLB2=2", "txtSizeBetween=3", "txtBBans=4",
                                      "Command2", "Command3"});
    EXPECT_EQ(b.text("txtSB2") + b.text("txtLB2") + b.text("txtSizeBetween") + b.text("txtBBans"),
              "");
    Form& f = h.run("frmFaceToBall", {"txtSB=1", "txtLB=2", "txtSBpos=3", "txtLBpos=4",
                                      "txtFaceBall=5", "Command2", "Command3", "Command4"});
    EXPECT_EQ(f.text("txtSB") + f.text("txtLB") + f.text("txtSBpos") + f.text("txtLBpos") +
                  f.text("txtFaceBall"),
              "");
    EXPECT_EQ(
        h.ui.shownWindows.mid(h.ui.shownWindows.size() - 4),
        QStringList({"frmBallToBall", "frmBallToBallHelp", "frmFaceToBall", "frmFaceToBallHelp"}));
    EXPECT_EQ(h.lastBox(),
              "Enter negative values for below the face and positive values for above the face.");
}

}  // namespace
}  // namespace tavrin
