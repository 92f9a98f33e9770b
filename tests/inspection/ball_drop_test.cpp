#include <gtest/gtest.h>

#include "tests/support/drive_session.h"
#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

struct DropCase {
    int mode;
    const char* angle;
    const char* ball;
    const char* third;
    const char* thru;
    const char* measured;
    const char* answer;
    const char* messages;  // joined by " | ", or empty
};

class BallDropAnswers : public ::testing::TestWithParam<DropCase> {};

TEST_P(BallDropAnswers, WritesTheAnswerLines) {
    const DropCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmBallDrop");
    h.app.userSelect(f, "popSelDropOrDia", c.mode);
    h.set(f, "txtAngDrop", c.angle);
    h.set(f, "txtBallDrop", c.ball);
    h.set(f, "txtDropOrDia", c.third);
    h.set(f, "txtThruHole", c.thru);
    h.set(f, "txtHoleDepth", c.measured);
    h.click(f, "Command1");
    EXPECT_EQ(f.text("txtDropAns"), QString::fromLatin1(c.answer));
    EXPECT_EQ(h.ui.messageTexts().join(" | "), QString::fromLatin1(c.messages));
    EXPECT_TRUE(h.ui.fatals.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Modes, BallDropAnswers,
    ::testing::Values(
        DropCase{1, "45", ".5", ".625", ".25", "",
                 "Ball Drop=  .2911\r\nBest Ball=  .2589\r\nX Tan=  .3536\r\nY Tan= -.1357\r\n"
                 "TIP= -.1755",
                 ""},
        DropCase{0, "45", ".5", ".1", ".25", "",
                 "SC Dia.=  1.0071\r\nBest Ball=  .4172\r\nX Tan=  .3536\r\nY Tan= -.3268\r\n"
                 "TIP= -.3665",
                 ""},
        DropCase{2, "45", ".5", ".625", ".25", ".2",
                 "Hole Depth= -.0911\r\nBest Ball=  .2589\r\nX Tan=  .3536\r\nY Tan= -.2268\r\n"
                 "TIP= -.2665",
                 ""},
        DropCase{2, "45", ".5", ".625", ".25", ".3", "", "Error, invalid drop value."},
        DropCase{1, "45", ".5", ".625", "", "",
                 "Ball Drop=  .2911\r\nBest Ball=  .2589\r\nX Tan=  .3536\r\nY Tan= -.1357\r\n"
                 "TIP= No thru hole entered.",
                 ""},
        DropCase{3, "45", ".75", ".7", ".5", "", "S\\C Chamfer Dia.=  .3742",
                 "Ball diameter is less than 10% over absolute minimum."},
        DropCase{3, "45", ".75", ".1", ".5", "",
                 "ERROR!\r\nOversize or incorrect value, check data or part.\r\n"
                 "S\\C Chamfer Dia.=  .5099",
                 "Ball diameter is less than 10% over absolute minimum. | Drop value too great, "
                 "chamfer is oversize."},
        DropCase{3, "45", ".7", ".3", ".5", "", "", "Error, Invalid ball diameter."},
        DropCase{3, "45", ".8", ".75", ".5", "", "S\\C Chamfer Dia.=  .3873", ""}));

struct RefusalCase {
    int mode;
    const char* ball;
    const char* third;
    const char* thru;
    const char* message;
};

TEST(BallDrop, ChecksComeInTheirOrderAndLeaveTheAnswer) {
    const std::vector<RefusalCase> cases{
        {2, ".5", ".5", ".25", "Error, Ball dia. cannot be equal or greater than hole dia."},
        {3, ".5", ".5", ".25", "Error, Drop cannot be greater than ball dia. in chamfer selection"},
        {3, ".5", "-.1", ".25", "Error, Drop cannot be a negative value in chamfer selection"},
        {1, ".5", ".625", ".6", "Error, Ball dia. smaller than thru hole."},
        {3, ".5", "x", ".6", "Error, Invalid data in field #3"},  // thru hole is not tested here
        {1, ".5", "1E1", ".25", "Error, Invalid data in field #3"},
        {0, ".5", ".1 ", ".25", "Error, Invalid data in field #3"},
        {1, "0", ".625", "", "Error, Only the thru hole value can be zero."},
        {1, ".5", "0", "", "Error, Only the thru hole value can be zero."},
    };
    for (const RefusalCase& c : cases) {
        Harness h;
        Form& f = h.open("frmBallDrop");
        h.app.userSelect(f, "popSelDropOrDia", c.mode);
        f.setText("txtDropAns", "earlier");
        h.set(f, "txtAngDrop", "45");
        h.set(f, "txtBallDrop", c.ball);
        h.set(f, "txtDropOrDia", c.third);
        h.set(f, "txtThruHole", c.thru);
        h.click(f, "Command1");
        EXPECT_EQ(h.ui.messageTexts(), QStringList{QString::fromLatin1(c.message)}) << c.message;
        EXPECT_EQ(f.text("txtDropAns"), "earlier") << c.message;
    }
}

TEST(BallDrop, AngleLengthMode) {
    struct Case {
        const char* maxLength;
        const char* answer;
        const char* message;
    };
    // Ball .5 in a 45 degree taper, read .2 above the face, thru hole .25.
    const std::vector<Case> cases{
        {".5",
         "Angle Length=  .2786\r\nS/C Dia.=  .8071\r\nBest Ball=  .3343\r\nX Tan=  .3536\r\n"
         "Y Tan= -.2268\r\nTIP= -.2665",
         ""},
        {".2", "",
         "Error, Invalid input or oversize.\r\nLength=  .2786\r\nMax S/C Dia.=  .65\r\n"
         "S/C Dia. is=  .8071"},
    };
    for (const Case& c : cases) {
        Harness h;
        Form& f = h.open("frmBallDrop");
        h.app.userSelect(f, "popSelDropOrDia", 4);
        h.set(f, "txtAngDrop", "45");
        h.set(f, "txtBallDrop", ".5");
        h.set(f, "txtDropOrDia", c.maxLength);
        h.set(f, "txtThruHole", ".25");
        h.set(f, "txtHoleDepth", ".2");
        h.click(f, "Command1");
        EXPECT_EQ(f.text("txtDropAns"), QString::fromLatin1(c.answer));
        EXPECT_EQ(h.ui.messageTexts().join(" | "), QString::fromLatin1(c.message));
    }
}

TEST(BallDrop, ModesDressTheWindow) {
    Harness h;
    Form& f = h.open("frmBallDrop");
    EXPECT_EQ(f.listIndex("popSelDropOrDia"), 1);
    EXPECT_EQ(f.caption("lblDiaOrDrop"), "Sharp Corner Dia.");
    EXPECT_FALSE(f.control("txtHoleDepth").visible);
    struct Look {
        int mode;
        const char* field;
        const char* thru;
        bool measured;
        bool tolerance;
    };
    for (const Look& l :
         std::vector<Look>{{0, "Ball Drop", "Thru Hole Dia.", false, false},
                           {2, "Hole Diameter", "Thru Hole Dia.", true, true},
                           {3, "Ball Drop", "Max S/C Dia.", false, true},
                           {4, "Max Angle Length", "Thru Hole Dia.", true, true},
                           {1, "Sharp Corner Dia.", "Thru Hole Dia.", false, true}}) {
        h.app.userSelect(f, "popSelDropOrDia", l.mode);
        EXPECT_EQ(f.caption("lblDiaOrDrop"), l.field) << l.mode;
        EXPECT_EQ(f.caption("Label1541"), l.thru) << l.mode;
        EXPECT_EQ(f.control("txtHoleDepth").visible, l.measured) << l.mode;
        EXPECT_EQ(f.control("Field4322").visible, l.measured) << l.mode;
        EXPECT_EQ(f.control("cmdMinBall").visible, l.tolerance) << l.mode;
    }
}

TEST(BallDrop, BallToleranceByMode) {
    struct Case {
        int mode;
        const char* angle;
        const char* third;
        const char* thru;
        const char* message;
    };
    const std::vector<Case> cases{
        {1, "45", ".625", ".25", "Min.Ball Size=  .3536\r\nMax.Ball Size=  .8839"},
        {3, "45", "", ".5", "Absolute Min.Ball Dia.=  .7081\nMin. recommended ball dia.=  .7778"},
        {3, "0", "", ".5", "Error, angle and max dia must be greater than zero."},
        {3, "45", "", "-1", "Error, angle and max dia must be greater than zero."},
        {4, "45", ".5", ".25", "Min.Ball Size=  .3536\r\nMax.Ball Size=  1.3536"},
    };
    for (const Case& c : cases) {
        Harness h;
        Form& f = h.open("frmBallDrop");
        h.app.userSelect(f, "popSelDropOrDia", c.mode);
        h.set(f, "txtAngDrop", c.angle);
        h.set(f, "txtDropOrDia", c.third);
        h.set(f, "txtThruHole", c.thru);
        h.click(f, "cmdMinBall");
        EXPECT_EQ(h.ui.messageTexts(), QStringList{QString::fromLatin1(c.message)}) << c.mode;
        EXPECT_EQ(f.text("txtDropAns"), "");
    }
}

TEST(BallDrop, DmsEntryHelpAndClearAll) {
    Harness h;
    Form& f = h.open("frmBallDrop");
    h.click(f, "chkDMSbd");
    h.click(f, "chkDMSbd");  // clearing shows nothing
    h.click(f, "Command4");
    EXPECT_EQ(
        h.ui.messageTexts(),
        QStringList({QStringLiteral("Enter 22° 3' 22\" as 22.0322 (always use a leading zero "
                                    "for minutes or seconds less than 10)"),
                     "Enter positive drop values for above the face and negative for below."}));
    h.click(f, "chkDMSbd");
    h.set(f, "txtAngDrop", "44.6");  // 44 degrees 60 minutes: 45
    h.set(f, "txtBallDrop", ".5");
    h.set(f, "txtDropOrDia", ".625");
    h.set(f, "txtThruHole", ".25");
    h.set(f, "txtHoleDepth", ".2");
    h.click(f, "Command1");
    EXPECT_TRUE(f.text("txtDropAns").startsWith("Ball Drop=  .2911\r\n"));
    h.click(f, "Command2");
    for (const char* name :
         {"txtAngDrop", "txtBallDrop", "txtDropOrDia", "txtThruHole", "txtDropAns"}) {
        EXPECT_EQ(f.text(name), "") << name;
    }
    EXPECT_EQ(f.text("txtHoleDepth"), ".2");
    EXPECT_TRUE(f.value("chkDMSbd"));
}

TEST(BallDrop, AnAngleOfZeroWhereNothingTestsItIsFatal) {
    Harness h;
    Form& f = h.open("frmBallDrop");
    h.app.userSelect(f, "popSelDropOrDia", 0);
    h.set(f, "txtAngDrop", "0");
    h.set(f, "txtBallDrop", ".5");
    h.set(f, "txtDropOrDia", ".1");
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, "Run-time error '11':\r\n\r\nDivision by zero");
    EXPECT_EQ(f.text("txtDropAns"), "Calculating...");
}

TEST(MinMaxBall, GivesBothBallsAndTheDmsHint) {
    Harness h;
    Form& f = h.open("frmMinMaxBall");
    h.set(f, "txtAngMinMax", "45");
    h.set(f, "txtThruMinMax", ".25");
    h.set(f, "txtSCMinMax", ".625");
    h.click(f, "Command1");
    EXPECT_EQ(f.text("txtMMans"), "Min.Ball Size=  .3536\r\nMax.Ball Size=  .8839");
    h.click(f, "chkDMSmin");
    EXPECT_EQ(f.caption("Field3160"), QStringLiteral("enter 22° 3' 22\" as 22.0322"));
    h.set(f, "txtAngMinMax", "44.6");
    h.click(f, "Command1");
    EXPECT_EQ(f.text("txtMMans"), "Min.Ball Size=  .3536\r\nMax.Ball Size=  .8839");
    h.click(f, "chkDMSmin");
    EXPECT_EQ(f.caption("Field3160"), "");
    h.set(f, "txtAngMinMax", "90");  // the cosine of the short pi is not quite 0
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.fatals.empty());
    h.click(f, "Command2");
    EXPECT_EQ(f.text("txtMMans"), "");
}

TEST(BallDropImage, ShowsOnePictureAMode) {
    Harness h;
    Form& ball = h.open("frmBallDrop");
    h.click(ball, "Command3");
    Form* f = h.app.find("frmBDImage");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->title(), "");
    const char* pictures[] = {"imgSC", "imgHoledepth", "imgChamfer", "imgAngDist"};
    for (int chosen : {0, 2, 3, 1}) {
        if (chosen != 0) {
            h.app.userSelect(*f, "cboBallView", chosen);
        }
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(f->control(pictures[i]).visible, i == chosen) << chosen << " " << i;
        }
    }
}

TEST(BallDrop, DrivenFromAScript) {
    const auto s = testing::Drive(
        "select frmHome.lstSelection 0\n"
        "set frmBallDrop.txtAngDrop \"45\"\n"
        "set frmBallDrop.txtBallDrop \".5\"\n"
        "set frmBallDrop.txtDropOrDia \".625\"\n"
        "set frmBallDrop.txtThruHole \".25\"\n"
        "click frmBallDrop.Command1\n"
        "show frmBallDrop.txtDropAns\n"
        "click frmBallDrop.cmdMinBall\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 2);
    EXPECT_EQ(s.lines[0],
              "{\"control\": \"frmBallDrop.txtDropAns\", \"text\": \"Ball Drop=  .2911\\r\\nBest "
              "Ball=  .2589\\r\\nX Tan=  .3536\\r\\nY Tan= -.1357\\r\\nTIP= -.1755\", \"visible\": "
              "true, \"enabled\": true}");
    EXPECT_EQ(
        s.lines[1],
        "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"Min.Ball Size=  "
        ".3536\\r\\nMax.Ball Size=  .8839\"}");
}

}  // namespace
}  // namespace tavrin
