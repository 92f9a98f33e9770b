#include <gtest/gtest.h>

#include "geometry/tangency_ara.h"
#include "geometry/tangency_ara2.h"
#include "geometry/tangency_rad_ang.h"
#include "geometry/tangency_tip_loss.h"
#include "tests/support/harness.h"

// The tangency hub and its seven solvers. Figures worked step by step in
// doubles, apart from the code.
namespace tavrin {
namespace {

TEST(Tangency, TheFlagOutlivesTheHubUntilTheBoxIsClickedTwice) {
    testing::Harness h;
    h.app.userClose(h.run("frmTangency", {"chkDMStp"}));
    Form& again = h.open("frmTangency");
    EXPECT_FALSE(again.value("chkDMStp"));  // the box opens cleared, the flag stays
    EXPECT_TRUE(h.app.tangencyDms);
    h.click(again, "chkDMStp");
    EXPECT_TRUE(h.app.tangencyDms);
    h.click(again, "chkDMStp");
    EXPECT_FALSE(h.app.tangencyDms);
}

TEST(Tangency, EachItemOpensItsSolver) {
    const char* const solvers[] = {"frmradpRadrad", "frmARA",     "frmAra2",    "frmRadAng",
                                   "frmRadToRad",   "frmTipLoss", "frmTwoAngle"};
    for (int i = 0; i < 7; ++i) {
        testing::Harness h;
        h.run("frmTangency", {"lstTpoints#" + QString::number(i)});
        ASSERT_NE(h.app.find(solvers[i]), nullptr) << i;
        EXPECT_EQ(h.app.loadedForms().size(), 3u) << i;  // the home window, the hub, one solver
    }
}

// Radius 1 is 1 (-1 where radius 2 is negative); "H" or "W" is the option set.
TEST(RadPRadRad, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
        {"H", ".5", ".5", "", "TD=  2.236\r\nD2=  .3727\r\nD1=  .1667"},
        {"W", ".5", "1.6", "", "TD=  2.0396\r\nD2=  .3399\r\nD1=  .1333"},
        {"H", ".5", "1.5", "", "TD=  3\r\nD2=  .5\r\nD1=  .5"},           // r1 + r2 passes
        {"W", ".5", "2", "", "TD=  2.8284\r\nD2=  .4714\r\nD1=  .3333"},  // 2 * r1 too
        {"H", "1", ".5", "Error, Radius #2 cannot be equal or larger than Radius #1", "earlier"},
        {"H", ".5", "1.6", "Error, Height cannot be more than radius #1 + radius #2.", "earlier"},
        {"W", ".5", "2.1", "Error, Width cannot be more than two times radius #1.", "earlier"},
        // a height of 0 meets the pole of the arc sine
        {"H", ".5", "", "Run-time error '11':\r\n\r\nDivision by zero", "Calculating..."},
        // the width's square root fails before the answer box is touched
        {"W", "-2", "-3", "Run-time error '5':\r\n\r\nInvalid procedure call or argument",
         "earlier"},
    };
    for (const auto& [mode, r2, entry, said, answer] : rows) {
        testing::Harness h;
        const bool width = *mode == 'W';
        Form& f = h.run("frmradpRadrad",
                        {width ? "optWidthrrr" : "optHeightrrr", "txtansrrr=earlier",
                         *r2 == '-' ? "txtRad1RR=-1" : "txtRad1RR=1", QString("txtRad2RR=") + r2,
                         QString("txtHorWRR=") + entry, "Command1"});
        EXPECT_EQ(h.lastBox() + "|" + f.text("txtansrrr"), QString(said) + "|" + answer) << entry;
        EXPECT_EQ(f.caption("Label2558"), width ? "Width" : "Height");
    }
}

TEST(AraSolver, EitherOrderOfTheAngles) {
    EXPECT_EQ(AraAnswer(20, 60, .5, 4),
              "B=  .171\r\nC=  .262\r\nE=  .0622\r\nH=  .2198\r\nD=  .091\r\nF=  .1576");
    EXPECT_EQ(AraAnswer(60, 20, .5, 4),  // the other branch, the same half turn of 20
              "B=  .091\r\nC= -.262\r\nE=  .1576\r\nH= -.2198\r\nD=  .171\r\nF=  .0622");
}

TEST(Ara, DmsHelpAndAFailureAfterCalculating) {
    testing::Harness h;
    h.app.tangencyDms = true;
    Form& f = h.run("frmARA", {"txtA1ara=19.6", "txtA2ara=60", "txtRadara=.5", "Command1"});
    EXPECT_TRUE(f.text("txtAnsara").startsWith("B=  .171\r\n"));  // 19 degrees 60 minutes
    h.run("frmARA", {"Command3"});
    EXPECT_EQ(h.lastBox(),
              "The second angle does not have to be more than the first angle, "
              "Angle 1= 35 Angle 2= 15 is OK (G02 or G03 change).");
    h.run("frmARA", {"txtA1ara=1E400", "Command1"});
    EXPECT_EQ(h.lastBox(), "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("txtAnsara"), "Calculating...");
}

TEST(Ara2Solver, Rows) {
    EXPECT_EQ(Ara2Answer(1, 30, 1.5, 45, .25, 4),
              "\r\n@1to@2 Hgt= .9665\r\n@1to@2 Len= 1.674\r\n@2to@3 Hgt= .0335\r\n"
              "@2to@3 Len= .125\r\n@3to@4 Hgt= .0732\r\n@3to@4 Len= .1768\r\n"
              "@4to@5 Hgt= 1.4268\r\n@4to@5 Len= 1.4268\r\nOverAll Len= 3.4026");
    // 180 is no zero divisor in doubles: the tangent is about -3.2E-15
    EXPECT_TRUE(
        Ara2Answer(1, 180, 1.5, 45, .25, 4).contains("\r\n@1to@2 Len=-154746581404481\r\n"));
}

TEST(Ara2, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"-1", "30", "", "\r\n@1to@2 Hgt=-1.0335\r\n"},  // negative values go through
        {"1", "29.6", "", "\r\n@1to@2 Hgt= .9665\r\n"},  // 29 degrees 60 minutes
        {"1", "-1.6000", "Run-time error '11':\r\n\r\nDivision by zero", "Calculating..."},
        {"0", "30", "Error, Values must be greater than zero.", ""},
        {"1", "x", "Error, Values must be greater than zero.", ""},
    };
    for (const auto& [h1, a1, box, answer] : rows) {
        testing::Harness h;
        h.app.tangencyDms = true;
        Form& f = h.run("frmAra2", {"txtAnsRar2=earlier", QString("txtHgt1Rar2=") + h1,
                                    QString("txtAng1Rar2=") + a1, "txtHgt2Rar2=1.5",
                                    "txtAng2Rar2=45", "txtRadRar2=.25", "Command1"});
        EXPECT_EQ(h.lastBox(), box) << h1 << " " << a1;
        const QString shown = f.text("txtAnsRar2");
        EXPECT_EQ(*answer ? shown.left(QString(answer).size()) : shown, answer) << h1 << " " << a1;
    }
}

TEST(RadAngSolver, Rows) {
    EXPECT_EQ(RadAngAnswer(.25, 30, 4), "C=  .067\r\nD=  .125\r\nE=  .0335");
    EXPECT_EQ(RadAngAnswer(.25, 180, 4), "C=  0\r\nD=  0\r\nE=  0");  // no division at 180
    EXPECT_EQ(RadAngAnswer(1, 32, 1), "C=  .3\r\nD=  .5\r\nE=  .1");  // E from the rounded D
}

TEST(RadAng, DmsFlagAndAFailureAfterCalculating) {
    testing::Harness h;
    h.app.tangencyDms = true;
    Form& f = h.run("frmRadAng", {"txtradar=.25", "txtangar=29.6", "Command1"});
    EXPECT_EQ(f.text("txtansar"), "C=  .067\r\nD=  .125\r\nE=  .0335");  // 29 degrees 60 minutes
    h.run("frmRadAng", {"txtradar=1E300", "txtangar=90", "Command1"});
    EXPECT_EQ(h.lastBox(), "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("txtansar"), "Calculating...");
}

TEST(RadToRad, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {".5", "2", "1", "C=  .3333\r\nD=  .4714\r\nE=  .6667\r\nF=  .1144\r\nHeight=  .5858"},
        {".5", "2", ".5", "C=  .5\r\nD=  .5\r\nE=  0\r\nF=  0\r\nHeight=  .5"},  // length r1
        // length r2: the pole stepped round, C as it stands
        {".12345", "1", "1", "C=  .87655\r\nD=  0\r\nE=  0\r\nF=  0\r\nHeight=  1"},
        {".5", "2", ".4", "Error, Length cannot be less than radius #1."},
        {".5", "2", "2.1", "Error, Length cannot be greater than radius #2."},
        {"1", "1", "1", "Error, Radius #1 cannot be larger than or equal to radius #2."},
    };
    for (const auto& [r1, r2, l, answer] : rows) {
        testing::Harness h;
        Form& f = h.run("frmRadToRad",
                        {"txtRRans=earlier", QString("txtRR1=") + r1, QString("txtRR2=") + r2,
                         QString("txtRRLength=") + l, "Command1"});
        const QString said = h.lastBox();
        EXPECT_EQ(said.isEmpty() ? f.text("txtRRans") : said, answer) << r1 << " " << l;
        EXPECT_EQ(f.text("txtRRans") == "earlier", !said.isEmpty()) << r1 << " " << l;
    }
}

TEST(TipLossSolver, Rows) {
    EXPECT_EQ(TipLossAnswer(.1, 30, 4), "E=  .2731\r\nD=  .3231\r\nC=  .3731\r\nB=  .4731");
    EXPECT_EQ(TipLossAnswer(.1, 90, 4), "E=  0\r\nD=  0\r\nC=  .1\r\nB=  .2");   // b of 0
    EXPECT_EQ(TipLossAnswer(.1, -90, 4), "E=  0\r\nD=  0\r\nC=  .1\r\nB=  .2");  // c stepped round
}

TEST(TipLoss, MessagesReadTheAngleAsTyped) {
    const std::pair<const char*, const char*> rows[] = {
        {"0", "Error, Angle cannot have a zero value."},
        {"90.3000", "Error, Angle can not be more than 90 degrees."},  // 90.5 as DMS
        {"90", ""},
        {"29.6", ""},  // 29 degrees 60 minutes
    };
    for (const auto& [angle, box] : rows) {
        testing::Harness h;
        h.app.tangencyDms = true;
        Form& f = h.run("frmTipLoss", {"txtanstl=earlier", "txtradtl=.1",
                                       QString("txtangtl=") + angle, "Command1"});
        EXPECT_EQ(h.lastBox(), box) << angle;
        EXPECT_EQ(f.text("txtanstl").left(2), *box ? "ea" : "E=") << angle;  // kept on a message
    }
}

TEST(TwoAngle, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"19.6", "50", "", "B=  .2684\r\nC=  .1684\r\nD=  .0684"},
        {"0", "30", "", "B=  .4732\r\nC=  .3732\r\nD=  .2732"},  // one zero angle passes
        {"90", "90", "", "B=  .2\r\nC=  .1\r\nD=  0"},
        {"0", "0", "Error, Only one angle can have a zero value.", "earlier"},
        {"30", "90.3", "Error, Angles can not be more than 90 degrees.", "earlier"},  // as typed
        {"30", "-30", "Run-time error '11':\r\n\r\nDivision by zero", "Calculating..."},
    };
    for (const auto& [a1, a2, box, answer] : rows) {
        testing::Harness h;
        h.app.tangencyDms = true;
        Form& f =
            h.run("frmTwoAngle", {"txtansop=earlier", "txtRadop=.1", QString("txtAng1op=") + a1,
                                  QString("txtAng2op=") + a2, "Command1"});
        EXPECT_EQ(h.lastBox(), box) << a1 << " " << a2;
        EXPECT_EQ(f.text("txtansop"), answer) << a1 << " " << a2;
    }
}

}  // namespace
}  // namespace tavrin
