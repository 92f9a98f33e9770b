#include <gtest/gtest.h>

#include "cutting/cusp.h"
#include "cutting/ipm_ipr.h"
#include "cutting/tool_radius.h"
#include "tests/support/harness.h"

// Feeds, cusps, nose radius and arc centres: figures worked apart from the code.
namespace tavrin {
namespace {

// A fresh window, "earlier" in the answer, the job, the row's steps, Calculate:
// "box shown|answer".
void ExpectRows(const char* window, const QString& shown, const QStringList& job,
                std::initializer_list<std::pair<QStringList, QString>> rows) {
    for (const auto& [steps, answer] : rows) {
        const QStringList all = QStringList{shown + "=earlier"} + job + steps << "Command1";
        EXPECT_EQ(testing::Outcome(window, all, shown), answer) << steps.join(' ');
    }
}

TEST(FeedSolver, EachWayAndEachSpeed) {
    // cutter, feed, teeth, speed, rpm entered, to IPM
    EXPECT_EQ(
        FeedAnswer({.5, .005, 2, 100, false, true}, 4),
        "Inches per Minute=  3.8197\r\nFeed Per Tooth=  .0025\r\nRevolutions per Minute=  764");
    EXPECT_EQ(
        FeedAnswer({.5, 10, 2, 100, false, false}, 4),
        "Feed Per Tooth=  .0065\r\nInches per Revolution=  .0131\r\nRevolutions per Minute=  764");
    EXPECT_TRUE(
        FeedAnswer({.5, 10, 2, 760, true, false}, 4).endsWith("\nSurface Feet per Minute=  99"));
    EXPECT_EQ(
        FeedAnswer({.375, .004, 3, 1000, true, true}, 6),
        "Inches per Minute=  4.000011\r\nFeed Per Tooth=  .001333\r\nSurface Feet per Minute=  98");
}

TEST(IpmIpr, MessagesLeaveTheAnswerAndTheCaptionsFollow) {
    ExpectRows("frmIpmIpr", "lblAns",
               {"txtCutter=.5", "txtChipLoad=1", "txtFlutes=2", "txtSfm2=100"},
               {
                   {{"txtSfm2="}, "You must fill all four data fields.|earlier"},
                   {{"txtFlutes=0"}, "Error, Values must be greater than zero|earlier"},
               });
    testing::Harness h;
    Form& f = h.open("frmIpmIpr");
    const auto captions = [&f] { return f.caption("lblChipLoad") + f.caption("lblRpmOrSfm"); };
    EXPECT_EQ(captions(), "Inches per MinuteSurface Feet Per Minute");
    h.run("frmIpmIpr", {"optIpm", "chkRevPerMin"});
    EXPECT_EQ(captions(), "Inches per RevolutionRevolutions Per Minute");
    h.run("frmIpmIpr", {"optIpr", "chkRevPerMin"});
    EXPECT_EQ(captions(), "Inches per MinuteSurface Feet Per Minute");
}

TEST(Cusp, CalculateRows) {
    const QString fill =
        "Error, Please fill both data fields with values greater than zero.|earlier";
    ExpectRows("frmCusp", "txtCuspAns", {"txtRadCusp=.25", "txtStepOrCusp=.1"},
               {
                   {{}, "|Cusp Height=  .0051"},
                   {{"optStep", "txtStepOrCusp=.005"}, "|Step Over=  .0995"},
                   {{"txtStepOrCusp=.5"}, "|Cusp Height=  .25"},  // S = 2R passes
                   {{"txtStepOrCusp=.5001"}, "Error, Invalid input.|earlier"},
                   {{"txtStepOrCusp="}, fill},
                   {{"txtRadCusp="}, fill},
                   {{"txtRadCusp=-1", "txtStepOrCusp=-3"},
                    "Run-time error '5':\r\n\r\nInvalid procedure call or argument|earlier"},
               });
    testing::Harness h;
    EXPECT_EQ(h.run("frmCusp", {"optStep"}).caption("lblCuspOrStep"), "Cusp Height");
    EXPECT_EQ(h.run("frmCusp", {"optCusp"}).caption("lblCuspOrStep"), "Step Over");
}

TEST(ToolRadiusSolver, TheTenLinesMillCrosswise) {
    EXPECT_EQ(
        ToolRadiusAnswer(.1, 30, 4),
        "***Lathe***\r\nX=  .0423\r\nZ=  .0732\r\nX Doubled=  .0845\r\n***Mill***\r\nX=  .0732\r\n"
        "Y=  .0423\r\n***Cross Over***\r\nVertical=  .0577\r\nHorizontal=  .0268");
}

TEST(ToolRadius, CalculateRows) {
    const QStringList job{"txtTrc1=.1", "txtTrc2=30"};
    EXPECT_TRUE(testing::Outcome("frmTRC",
                                 job + QStringList{"chkDMStrc", "txtTrc2=30.3", "Command1"},
                                 "Field1230")
                    .startsWith("|***Lathe***\r\nX=  .0428\r\nZ=  .0727\r\n"));  // 30.5 degrees
    ExpectRows("frmTRC", "Field1230", job,
               {
                   {{"txtTrc1="}, "Error, Please fill both data fields.|earlier"},
                   {{"txtTrc1=0"}, "Error, Values must be greater than zero.|earlier"},
                   {{"txtTrc2=0"}, "Error, Values must be greater than zero.|earlier"},
               });
    testing::Harness h;
    EXPECT_EQ(h.run("frmTRC", {"chkDMStrc"}).caption("Field3079"),
              QString::fromUtf8("enter 22° 3' 22\" as 22.0322"));
    EXPECT_EQ(h.run("frmTRC", {"chkDMStrc"}).caption("Field3079"), "");
}

// Distances equal to the radius pass.
TEST(ArcCenter, CalculateRows) {
    const QString pairs = "|Use of the following pairs depending on G02 or G03\r\n";
    ExpectRows(
        "frmIK", "txtansik", {"txtXik=.1", "txtZik=.2", "txtradik=.25"},
        {
            {{"txtXik=.25", "optMillIK"}, pairs + "I=  .195 J=  .245\r\nI=  .005 J=  .005"},
            {{"txtXik=.26"}, "Error, Distance values cannot be greater than radius.|earlier"},
            {{"txtZik=.25"}, pairs + "I=  .2456 K=  .3956\r\nI=  .1456 K=  .1456"},
            {{"txtZik=0"}, "Run-time error '11':\r\n\r\nDivision by zero|Calculating..."},
            {{"txtZik=", "txtXik="}, "Run-time error '6':\r\n\r\nOverflow|Calculating..."},
            {{"txtXik=-1"},  // a radius too small for the distances
             "Run-time error '5':\r\n\r\nInvalid procedure call or argument|Calculating..."},
        });
    testing::Harness h;
    Form& f = h.run("frmIK", {"optMillIK"});
    EXPECT_EQ(f.caption("Label2696") + f.caption("Label2697"), "Y DistanceX Distance");
    h.run("frmIK", {"optLatheIK"});
    EXPECT_EQ(f.caption("Label2696") + f.caption("Label2697"), "X DistanceZ Distance");
}

}  // namespace
}  // namespace tavrin
