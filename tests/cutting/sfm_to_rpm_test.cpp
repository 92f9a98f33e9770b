#include <gtest/gtest.h>

#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

struct SfmCase {
    bool findSfm;
    const char* speed;
    const char* diameter;
    const char* answer;
};

class SfmToRpmAnswers : public ::testing::TestWithParam<SfmCase> {};

TEST_P(SfmToRpmAnswers, WritesTheAnswerLine) {
    const SfmCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    if (c.findSfm) {
        h.click(f, "optSfm");
    }
    h.set(f, "txtSfm", c.speed);
    h.set(f, "txtDia", c.diameter);
    h.click(f, "Command1");
    EXPECT_EQ(f.text("lblRpm"), QString::fromLatin1(c.answer));
    EXPECT_TRUE(h.ui.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, SfmToRpmAnswers,
    ::testing::Values(SfmCase{false, "300", "0.5", "Revolutions Per Minute =  2291.8"},
                      SfmCase{false, "300", ".5", "Revolutions Per Minute =  2291.8"},
                      SfmCase{true, "2000", "0.5", "Surface Feet Per Minute =  261.8"},
                      SfmCase{false, "-300", "0.5", "Revolutions Per Minute = -2291.8"},
                      SfmCase{false, "300", "-.5", "Revolutions Per Minute = -2291.8"},
                      // 3.1416, not pi: with pi the answer would be 2291.8 too, but here it is not
                      SfmCase{false, "100", "1", "Revolutions Per Minute =  382"},
                      SfmCase{true, "1000", "1", "Surface Feet Per Minute =  261.8"},
                      SfmCase{true, "12", "1", "Surface Feet Per Minute =  3.1"},
                      SfmCase{false, "1 200", "2in", "Revolutions Per Minute =  2291.8"},
                      SfmCase{false, "&H12C", "0.5", "Revolutions Per Minute =  2291.8"},
                      SfmCase{true, "1E6", "1E6", "Surface Feet Per Minute =  261800000000"},
                      SfmCase{false, "1", "1E20", "Revolutions Per Minute =  0"}));

TEST(SfmToRpm, UsesOnePlaceWhateverDecPlaceSays) {
    Harness h;
    h.app.decPlace = 6;
    Form& f = h.open("frmSfmToRpm");
    h.set(f, "txtSfm", "300");
    h.set(f, "txtDia", "0.5");
    h.click(f, "Command1");
    EXPECT_EQ(f.text("lblRpm"), "Revolutions Per Minute =  2291.8");
}

struct RefusalCase {
    const char* speed;
    const char* diameter;
    const char* message;
};

class SfmToRpmRefusals : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(SfmToRpmRefusals, ShowsTheMessageAndChangesNothing) {
    const RefusalCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    h.set(f, "txtSfm", "300");
    h.set(f, "txtDia", "0.5");
    h.click(f, "Command1");
    h.set(f, "txtSfm", c.speed);
    h.set(f, "txtDia", c.diameter);
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.messages.size(), 1u);
    EXPECT_EQ(h.ui.messages[0].title, "Program Message");
    EXPECT_EQ(h.ui.messages[0].text, QString::fromLatin1(c.message));
    EXPECT_EQ(f.text("lblRpm"), "Revolutions Per Minute =  2291.8");
    EXPECT_EQ(f.text("txtSfm"), QString::fromLatin1(c.speed));
    EXPECT_EQ(f.text("txtDia"), QString::fromLatin1(c.diameter));
}

INSTANTIATE_TEST_SUITE_P(
    Table, SfmToRpmRefusals,
    ::testing::Values(RefusalCase{"", "0.5", "You must fill both data fields."},
                      RefusalCase{"300", "", "You must fill both data fields."},
                      RefusalCase{"", "", "You must fill both data fields."},
                      // emptiness is tested before zero, a blank is not empty
                      RefusalCase{"0", "", "You must fill both data fields."},
                      RefusalCase{" ", "0.5", "Error, Values must be greater than zero."},
                      RefusalCase{"300", "abc", "Error, Values must be greater than zero."},
                      RefusalCase{"0", "0.5", "Error, Values must be greater than zero."},
                      RefusalCase{"300", "-0", "Error, Values must be greater than zero."},
                      RefusalCase{"1E-400", "1", "Error, Values must be greater than zero."}));

TEST(SfmToRpm, OptionsChangeTheCaptionAndLeaveTheAnswer) {
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    EXPECT_TRUE(f.value("optRpm"));
    EXPECT_EQ(f.caption("Label2"), "Surface Feet Per Minute");
    h.set(f, "txtSfm", "300");
    h.set(f, "txtDia", "0.5");
    h.click(f, "Command1");
    h.click(f, "optSfm");
    EXPECT_FALSE(f.value("optRpm"));
    EXPECT_EQ(f.caption("Label2"), "Revolutions Per Minute");
    EXPECT_EQ(f.text("lblRpm"), "Revolutions Per Minute =  2291.8");
    EXPECT_EQ(f.text("txtSfm"), "300");
    h.click(f, "optRpm");
    EXPECT_EQ(f.caption("Label2"), "Surface Feet Per Minute");
}

TEST(SfmToRpm, ClearAllEmptiesFieldsAndAnswerOnly) {
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    h.click(f, "optSfm");
    h.set(f, "txtSfm", "2000");
    h.set(f, "txtDia", "0.5");
    h.click(f, "Command1");
    h.click(f, "Command2");
    EXPECT_EQ(f.text("txtSfm"), "");
    EXPECT_EQ(f.text("txtDia"), "");
    EXPECT_EQ(f.text("lblRpm"), "");
    EXPECT_TRUE(f.value("optSfm"));
    EXPECT_EQ(f.caption("Label2"), "Revolutions Per Minute");
}

TEST(SfmToRpm, AnOverflowInAFieldIsFatalAndLeavesTheAnswer) {
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    h.set(f, "txtSfm", "300");
    h.set(f, "txtDia", "0.5");
    h.click(f, "Command1");
    h.set(f, "txtDia", "1E400");
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].title, "Tavrin");
    EXPECT_EQ(h.ui.fatals[0].text, "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("lblRpm"), "Revolutions Per Minute =  2291.8");
    EXPECT_TRUE(h.app.ended());
    // Nothing runs after the fatal box.
    h.click(f, "Command2");
    EXPECT_EQ(f.text("txtSfm"), "300");
}

TEST(SfmToRpm, AProductBeyondADoubleIsAnOverflow) {
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    h.set(f, "txtSfm", "1E308");
    h.set(f, "txtDia", "1");
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("lblRpm"), "");
}

}  // namespace
}  // namespace tavrin
