#include <gtest/gtest.h>

#include "cutting/cusp.h"
#include "cutting/ipm_ipr.h"
#include "cutting/tool_radius.h"
#include "tests/support/harness.h"

// Feeds, cusps, nose radius and arc centres: figures worked apart from the code.
namespace tavrin {
namespace {

using testing::Harness;

TEST(FeedSolver, EachWayAndEachSpeed) {
    // cutter, feed, teeth, speed, rpm entered, to IPM
    EXPECT_EQ(
        FeedAnswer({.5, .005, 2, 100, false, true}, 4),
        "Inches per Minute=  3.8197\r\nFeed Per Tooth=  .0025\r\nRevolutions per Minute=  764");
    EXPECT_EQ(
        FeedAnswer({.5, 10, 2, 100, false, false}, 4),
        "Feed Per Tooth=  .0065\r\nInches per Revolution=  .0131\r\nRevolutions per Minute=  764");
    // the spindle speed goes round through the surface speed
    EXPECT_TRUE(
        FeedAnswer({.5, 10, 2, 764, true, false}, 4).endsWith("\nSurface Feet per Minute=  100"));
    EXPECT_EQ(
        FeedAnswer({.375, .004, 3, 1000, true, true}, 6),
        "Inches per Minute=  4.000011\r\nFeed Per Tooth=  .001333\r\nSurface Feet per Minute=  98");
}

TEST(IpmIpr, MessagesLeaveTheAnswerAndTheCaptionsFollow) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtSfm2="}, "You must fill all four data fields."},
        {{"txtFlutes=0"}, "Error, Values must be greater than zero"},
        {{"txtCutter=-.5"}, "Error, Values must be greater than zero"},
    };
    const QStringList job{"lblAns=earlier", "txtCutter=.5", "txtChipLoad=1", "txtFlutes=2",
                          "txtSfm2=100"};
    for (const auto& [steps, box] : rows) {
        EXPECT_EQ(testing::Outcome("frmIpmIpr", job + steps << "Command1", "lblAns", 4),
                  QString(box) + "|earlier");
    }
    Harness h;
    Form& f = h.open("frmIpmIpr");
    const auto captions = [&f] {
        return f.caption("lblChipLoad") + '|' + f.caption("lblRpmOrSfm");
    };
    EXPECT_EQ(captions(), "Inches per Minute|Surface Feet Per Minute");
    h.run("frmIpmIpr", {"optIpm", "chkRevPerMin"});
    EXPECT_EQ(captions(), "Inches per Revolution|Revolutions Per Minute");
    h.run("frmIpmIpr", {"optIpr", "chkRevPerMin"});
    EXPECT_EQ(captions(), "Inches per Minute|Surface Feet Per Minute");
}

TEST(Cusp, CalculateRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtRadCusp=.25", "txtStepOrCusp=.1"}, "|Cusp Height=  .0051"},
        {{"optStep", "txtRadCusp=.25", "txtStepOrCusp=.005"}, "|Step Over=  .0995"},
        {{"txtRadCusp=.25", "txtStepOrCusp=.5"}, "|Cusp Height=  .25"},  // S = 2R passes
        {{"txtRadCusp=.25", "txtStepOrCusp=.5001"}, "Error, Invalid input.|earlier"},
        {{"txtRadCusp=.25"},
         "Error, Please fill both data fields with values greater than zero.|earlier"},
        {{"txtStepOrCusp=.1"},
         "Error, Please fill both data fields with values greater than zero.|earlier"},
        {{"txtRadCusp=-1", "txtStepOrCusp=-3"},
         "Run-time error '5':\r\n\r\nInvalid procedure call or argument|earlier"},
    };
    for (const auto& [steps, answer] : rows) {
        EXPECT_EQ(
            testing::Outcome("frmCusp", QStringList{"txtCuspAns=earlier"} + steps << "Command1",
                             "txtCuspAns", 4),
            answer)
            << steps.join(' ');
    }
    Harness h;
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
    const std::pair<QStringList, const char*> rows[] = {
        {{"chkDMStrc", "txtTrc2=30.3"}, "|***Lathe***\r\nX=  .0428\r\nZ=  .0727\r\n"},  // 30.5
        {{"txtTrc1="}, "Error, Please fill both data fields.|earlier"},
        {{"txtTrc2="}, "Error, Please fill both data fields.|earlier"},
        {{"txtTrc1=0"}, "Error, Values must be greater than zero.|earlier"},
        {{"txtTrc2=0"}, "Error, Values must be greater than zero.|earlier"},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        Form& f = h.run("frmTRC", QStringList{"Field1230=earlier", "txtTrc1=.1", "txtTrc2=30"} +
                                      steps + QStringList{"Command1"});
        EXPECT_TRUE((h.lastBox() + '|' + f.text("Field1230")).startsWith(answer))
            << steps.join(' ');
    }
    Harness h;
    EXPECT_EQ(h.run("frmTRC", {"chkDMStrc"}).caption("Field3079"),
              QString::fromUtf8("enter 22° 3' 22\" as 22.0322"));
    EXPECT_EQ(h.run("frmTRC", {"chkDMStrc"}).caption("Field3079"), "");
}

TEST(ArcCenter, CalculateRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtXik=.25", "optMillIK"},
         "|Use of the following pairs depending on G02 or G03\r\n"
         "I=  .195 J=  .245\r\nI=  .005 J=  .005"},  // equal passes
        {{"txtXik=.26"}, "Error, Distance values cannot be greater than radius.|earlier"},
        {{"txtZik=.26"}, "Error, Distance values cannot be greater than radius.|earlier"},
        {{"txtZik=.25"},
         "|Use of the following pairs depending on G02 or G03\r\nI=  .2456 K=  .3956\r\n"
         "I=  .1456 K=  .1456"},
        {{"txtXik=-.1"},  // the other side of the centre
         "|Use of the following pairs depending on G02 or G03\r\nI=  .15 K=  .45\r\nI=  .25 K=  "
         ".25"},
        {{"txtZik=0"}, "Run-time error '11':\r\n\r\nDivision by zero|Calculating..."},
        {{"txtZik=", "txtXik="}, "Run-time error '6':\r\n\r\nOverflow|Calculating..."},
        {{"txtXik=-1"},  // a radius too small for the distances
         "Run-time error '5':\r\n\r\nInvalid procedure call or argument|Calculating..."},
    };
    const QStringList job{"txtansik=earlier", "txtXik=.1", "txtZik=.2", "txtradik=.25"};
    for (const auto& [steps, answer] : rows) {
        EXPECT_EQ(testing::Outcome("frmIK", job + steps << "Command1", "txtansik", 4), answer)
            << steps.join(' ');
    }
    Harness h;
    Form& f = h.run("frmIK", {"optMillIK"});
    EXPECT_EQ(f.caption("Label2696") + f.caption("Label2697"), "Y DistanceX Distance");
    h.run("frmIK", {"optLatheIK"});
    EXPECT_EQ(f.caption("Label2696") + f.caption("Label2697"), "X DistanceZ Distance");
}

}  // namespace
}  // namespace tavrin
