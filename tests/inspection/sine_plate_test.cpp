#include <gtest/gtest.h>

#include "inspection/sine_plate.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

using testing::Harness;

TEST(SinePlateSolver, Rows) {
    EXPECT_EQ(*SinePlateAnswer(false, 5, 30, 4), "Gage Block Height=  2.5");
    EXPECT_EQ(*SinePlateAnswer(false, 5, 30.5, 4), "Gage Block Height=  2.5377");
    EXPECT_EQ(*SinePlateAnswer(false, 5, 30.5, 2), "Gage Block Height=  2.54");  // DecPlace
    EXPECT_EQ(*SinePlateAnswer(true, 5, 2.3, 4),
              "Incline of Angle DD=  27.387108\r\nIncline of Angle DMS= 27°  23'  14\"");
    EXPECT_EQ(*SinePlateAnswer(true, 5, 2.5, 1),
              "Incline of Angle DD=  30\r\n"
              "Incline of Angle DMS=  30°  0'  0\"");  // no point: untrimmed
    EXPECT_TRUE(SinePlateAnswer(true, 5, 2.978, 4)->endsWith("36°  33'  20\""));  // from 6 places
    EXPECT_EQ(SinePlateAnswer(true, 5, 5, 4), std::nullopt);  // the pole of the arc sine
    EXPECT_TRUE(SinePlateAnswer(true, 5, 4.999999, 4).has_value());
}

TEST(SinePlate, CalculateRows) {
    const char* const fill = "Error, Please fill both data fields with values greater than zero.";
    const std::pair<QStringList, QString> rows[] = {
        {{"AngleIncline=30.3", "chkDMSsine"}, "|Gage Block Height=  2.5377"},
        {{"AngleIncline=2.3", "chkDMSsine", "optHeight"}, "|Incline of Angle DD=  27.387108"},
        {{"AngleIncline=5", "optHeight"}, "Error, Sine Bar equal or shorter than Height.|"},
        {{"AngleIncline=0"}, QString(fill) + "|earlier"},
        {{"AngleIncline=-1"}, QString(fill) + "|earlier"},
        {{"AngleIncline=1", "SinePlateLength=0"}, QString(fill) + "|earlier"},
        {{"AngleIncline=.5", "SinePlateLength=.5"}, "|Gage Block Height=  .0044"},
        {{"AngleIncline=1E308"}, "Run-time error '6':\r\n\r\nOverflow|Calculating..."},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        Form& f = h.run("frmSinePlate", {"GageBlock=earlier", "SinePlateLength=5"});
        h.run("frmSinePlate", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("GageBlock").section("\r\n", 0, 0), answer)
            << steps.join(' ');
    }
}

TEST(SinePlate, CaptionsHintAndClearAll) {
    Harness h;
    Form& f = h.run("frmSinePlate", {"chkDMSsine", "optHeight", "AngleIncline=1",
                                     "SinePlateLength=2", "GageBlock=x"});
    EXPECT_EQ(f.caption("txtHelpAng") + "|" + f.caption("txtSPtype"),
              QStringLiteral("enter 22° 3' 22\" as 22.0322|Gage Block Height"));
    h.run("frmSinePlate", {"chkDMSsine", "optAngle", "Command2", "Command3"});
    EXPECT_NE(h.app.find("frmSinePlateView"), nullptr);
    EXPECT_EQ(f.caption("txtHelpAng") + "|" + f.caption("txtSPtype"), "|Angle's Incline");
    EXPECT_EQ(f.text("SinePlateLength") + f.text("AngleIncline") + f.text("GageBlock"), "");
}

}  // namespace
}  // namespace tavrin
