#include <gtest/gtest.h>

#include "cutting/sfm_to_rpm.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(SfmToRpmSolver, ShortPiAndOnePlace) {
    EXPECT_EQ(SpindleRpm(100, 1).value(), 382.0);      // 381.97 with the short constant
    EXPECT_EQ(SpindleRpm(1E6, 1).value(), 3819709.7);  // the fourth place of the constant
    EXPECT_EQ(SurfaceFeet(1, 1).value(), 0.3);         // .2618 to one place
}

// The steps, then the answer line or the box shown.
TEST(SfmToRpm, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtSfm=300", "txtDia=0.5"}, "Revolutions Per Minute =  2291.8"},
        {{"optSfm", "txtSfm=-2000", "txtDia=0.5"}, "Surface Feet Per Minute = -261.8"},
        // emptiness is tested before zero, a blank is not empty
        {{"txtSfm=0", "txtDia="}, "You must fill both data fields."},
        {{"txtDia=0.5"}, "You must fill both data fields."},
        {{"txtSfm= ", "txtDia=0.5"}, "Error, Values must be greater than zero."},
        {{"txtSfm=300", "txtDia=-0"}, "Error, Values must be greater than zero."},
        {{"txtSfm=1E308", "txtDia=1"}, "Run-time error '6':\r\n\r\nOverflow"},
    };
    for (const auto& [steps, answer] : rows) {
        testing::Harness h;
        h.app.decPlace = 6;  // not read: one place always
        Form& f = h.run("frmSfmToRpm", steps + QStringList{"Command1"});
        const QString said = h.lastBox();
        EXPECT_EQ(said.isEmpty() ? f.text("lblRpm") : said, answer) << steps.join(' ');
        EXPECT_TRUE(said.isEmpty() || f.text("lblRpm").isEmpty()) << steps.join(' ');
    }
}

TEST(SfmToRpm, OptionsSwapTheCaption) {
    testing::Harness h;
    Form& f = h.run("frmSfmToRpm", {"optSfm"});
    EXPECT_EQ(f.caption("Label2"), "Revolutions Per Minute");
    h.run("frmSfmToRpm", {"optRpm"});
    EXPECT_EQ(f.caption("Label2"), "Surface Feet Per Minute");
}

}  // namespace
}  // namespace tavrin
