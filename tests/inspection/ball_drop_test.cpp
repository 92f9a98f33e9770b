#include <gtest/gtest.h>

#include "inspection/ball_drop.h"
#include "tests/support/harness.h"

// Expected figures are worked in doubles, step by step, apart from the code. An
// angle of 45 per side and a ball of .5, unless a row says otherwise.
namespace tavrin {
namespace {

TEST(BallDropSolver, Edges) {
    EXPECT_TRUE(BallSeatAnswer(45, .5, .625, .25, 0.29105339059327356, 3, 4)
                    ->startsWith("Hole Depth=  0\r\n"));  // read at its own drop
    const AngleLengthFigures fit = SolveAngleLength(45, .5, .2, .25, .5);
    EXPECT_EQ(AngleLengthAnswer(fit, SolveSeat(45, fit.r, fit.sc, .25), .25, fit.len, 4).left(6),
              "Angle ");  // a length equal to the longest fits
}

struct Row {
    int mode;
    const char *angle, *ball, *third, *thru, *measured;
    const char* boxes;   // every box shown, joined by " | "
    const char* answer;  // "earlier" where the answer box keeps its text
    const char* click = "Command1";
};

const char* const kDrop =  // no thru hole
    "Ball Drop=  .2911\r\nBest Ball=  .2589\r\nX Tan=  .3536\r\nY Tan= -.1357\r\n"
    "TIP= No thru hole entered.";
const char* const kNearMinimum = "Ball diameter is less than 10% over absolute minimum.";
const char* const kNotPositive = "Error, angle and max dia must be greater than zero.";

TEST(BallDrop, CalculateAndToleranceRows) {
    const Row rows[] = {
        {1, "45", ".5", ".625", "", "", "", kDrop},
        {0, "30", ".5", ".1", ".5", "", "",  // a thru hole as large as the ball passes
         "SC Dia.=  .7506\r\nBest Ball=  .4333\r\nX Tan=  .433\r\nY Tan= -.275\r\nTIP= -.15"},
        {2, "45", ".5", ".625", ".25", ".2", "",
         "Hole Depth= -.0911\r\nBest Ball=  .2589\r\nX Tan=  .3536\r\nY Tan= -.2268\r\nTIP= "
         "-.2665"},
        {2, "45", ".5", ".625", ".25", ".3", "Error, invalid drop value.", ""},
        {4, "30", ".5", ".5", ".25", ".2", "",
         "Angle Length=  .3335\r\nS/C Dia.=  .6351\r\nBest Ball=  .3667\r\nX Tan=  .433\r\n"
         "Y Tan= -.175\r\nTIP= -.2665"},
        {4, "30", ".5", ".3", ".25", ".2",
         "Error, Invalid input or oversize.\r\nLength=  .3335\r\nMax S/C Dia.=  .5964\r\n"
         "S/C Dia. is=  .6351",
         ""},
        // one step short of the angle's own length, yet its sharp corner fits exactly
        {4, "45", ".5", "0.3035533905932738", ".2", ".2", "Angle length is oversize.",
         "ERROR!\r\nOversize or incorrect value.\r\nAngle Length=  .3036"},
        // on the ball limits: minimum plus .001, and plus ten percent
        {3, "45", "0.7081067811865469", ".7", ".5", "", kNearMinimum, "S\\C Chamfer Dia.=  .1507"},
        {3, "45", ".75", ".1", ".5", "",
         "Ball diameter is less than 10% over absolute minimum. | Drop value too great, chamfer "
         "is oversize.",
         "ERROR!\r\nOversize or incorrect value, check data or part.\r\nS\\C Chamfer Dia.=  .5099"},
        {3, "45", ".7", ".3", ".5", "", "Error, Invalid ball diameter.", ""},
        {3, "45", "0.7778174593052016", ".75", ".5", "", "", "S\\C Chamfer Dia.=  .2889"},
        {2, "45", ".5", ".5", ".25", "",
         "Error, Ball dia. cannot be equal or greater than hole dia.", "earlier"},
        {3, "45", ".5", ".5", ".25", "",
         "Error, Drop cannot be greater than ball dia. in chamfer selection", "earlier"},
        {3, "45", ".5", "-.1", ".25", "",
         "Error, Drop cannot be a negative value in chamfer selection", "earlier"},
        {1, "45", ".5", ".625", ".6", "", "Error, Ball dia. smaller than thru hole.", "earlier"},
        // the chamfer mode does not test the thru hole
        {3, "45", ".5", "x", ".6", "", "Error, Invalid data in field #3", "earlier"},
        {1, "45", "0", ".625", "", "", "Error, Only the thru hole value can be zero.", "earlier"},
        {1, "0", ".5", ".625", "", "", "Error, Only the thru hole value can be zero.", "earlier"},
        {0, "0", ".5", ".1", "", "", "Run-time error '11':\r\n\r\nDivision by zero",
         "Calculating..."},
        // Ball Tolerance; the longest angle counts along the wall in mode 4
        {1, "45", "", ".625", ".25", "", "Min.Ball Size=  .3536\r\nMax.Ball Size=  .8839",
         "earlier", "cmdMinBall"},
        {3, "45", "", "", ".5", "",
         "Absolute Min.Ball Dia.=  .7081\nMin. recommended ball dia.=  .7778", "earlier",
         "cmdMinBall"},
        {3, "0", "", "", ".25", "", kNotPositive, "earlier", "cmdMinBall"},
        {3, "45", "", "", "0", "", kNotPositive, "earlier", "cmdMinBall"},
        {4, "45", "", ".5", ".25", "", "Min.Ball Size=  .3536\r\nMax.Ball Size=  1.3536", "earlier",
         "cmdMinBall"},
        {0, "45", "", "", ".25", "", "", "earlier", "cmdMinBall"},
    };
    for (const Row& row : rows) {
        testing::Harness h;
        Form& f = h.run("frmBallDrop", {"popSelDropOrDia#" + QString::number(row.mode)});
        f.setText("txtDropAns", "earlier");
        h.run("frmBallDrop",
              {QString("txtAngDrop=") + row.angle, QString("txtBallDrop=") + row.ball,
               QString("txtDropOrDia=") + row.third, QString("txtThruHole=") + row.thru,
               QString("txtHoleDepth=") + row.measured, row.click});
        QStringList boxes;
        for (const auto& box : h.ui.shown) {
            boxes << box.text;
        }
        EXPECT_EQ(boxes.join(" | "), row.boxes) << row.mode << " " << row.third;
        EXPECT_EQ(f.text("txtDropAns"), row.answer) << row.mode << " " << row.third;
    }
}

TEST(BallDrop, DmsHelpAndModes) {
    testing::Harness h;
    Form& f =
        h.run("frmBallDrop", {"chkDMSbd", "chkDMSbd", "Command4", "chkDMSbd", "txtAngDrop=44.6",
                              "txtBallDrop=.5", "txtDropOrDia=.625", "Command1"});
    EXPECT_EQ(
        h.ui.messageTexts().mid(0, 2),  // clearing the box says nothing
        QStringList({QStringLiteral("Enter 22° 3' 22\" as 22.0322 (always use a leading zero "
                                    "for minutes or seconds less than 10)"),
                     "Enter positive drop values for above the face and negative for below."}));
    EXPECT_EQ(f.text("txtDropAns"), kDrop);  // 44 degrees 60 minutes
    h.run("frmBallDrop", {"popSelDropOrDia#4"});
    EXPECT_TRUE(f.control("txtHoleDepth").visible && f.control("Field4322").visible);
    EXPECT_EQ(f.caption("lblDiaOrDrop"), "Max Angle Length");
    h.run("frmBallDrop", {"popSelDropOrDia#3"});
    EXPECT_EQ(f.caption("Label1541") + "|" + f.caption("lblDiaOrDrop"), "Max S/C Dia.|Ball Drop");
    EXPECT_FALSE(f.control("txtHoleDepth").visible || f.control("Field4322").visible);
    h.run("frmBallDrop", {"popSelDropOrDia#0"});
    EXPECT_FALSE(f.control("cmdMinBall").visible);
    EXPECT_EQ(f.caption("Label1541"), "Thru Hole Dia.");
}

TEST(MinMaxBall, GivesBothBallsAndTheDmsHint) {
    testing::Harness h;
    Form& f = h.run("frmMinMaxBall", {"txtThruMinMax=.25", "txtSCMinMax=.625", "chkDMSmin",
                                      "txtAngMinMax=44.6", "Command1"});
    EXPECT_EQ(f.text("txtMMans"), "Min.Ball Size=  .3536\r\nMax.Ball Size=  .8839");
    EXPECT_EQ(f.caption("Field3160"), QStringLiteral("enter 22° 3' 22\" as 22.0322"));
    h.run("frmMinMaxBall", {"chkDMSmin", "txtAngMinMax=90", "Command1"});
    EXPECT_EQ(f.caption("Field3160"), "");
    EXPECT_TRUE(h.ui.fatalTexts().isEmpty());  // the cosine of the short pi is not quite 0
}

TEST(BallDropImage, ShowsOnePictureAMode) {
    testing::Harness h;
    h.run("frmBallDrop", {"Command3"});
    const char* pictures[] = {"imgSC", "imgHoledepth", "imgChamfer", "imgAngDist"};
    for (int chosen : {0, 2, 3, 1}) {
        Form& f = h.run("frmBDImage", chosen == 0
                                          ? QStringList{}
                                          : QStringList{"cboBallView#" + QString::number(chosen)});
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(f.control(pictures[i]).visible, i == chosen) << chosen << " " << i;
        }
    }
}

}  // namespace
}  // namespace tavrin
