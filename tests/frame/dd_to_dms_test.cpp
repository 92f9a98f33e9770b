#include <gtest/gtest.h>

#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

struct ConversionCase {
    bool findDd;  // optDD on: the entry is packed DMS
    const char* entry;
    const char* answer;
};

void PrintTo(const ConversionCase& c, std::ostream* os) {
    *os << (c.findDd ? "DD of " : "DMS of ") << '"' << c.entry << '"';
}

class DdToDmsAnswers : public ::testing::TestWithParam<ConversionCase> {};

TEST_P(DdToDmsAnswers, WritesTheAnswerLine) {
    const ConversionCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmDDtoDMS");
    if (c.findDd) {
        h.click(f, "optDD");
    }
    h.set(f, "txtDD1", QString::fromUtf8(c.entry));
    h.click(f, "Command1");
    EXPECT_EQ(f.text("txtDDans"), QString::fromUtf8(c.answer)) << c.entry;
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_EQ(f.text("txtDD1"), QString::fromUtf8(c.entry));
}

INSTANTIATE_TEST_SUITE_P(
    Table, DdToDmsAnswers,
    ::testing::Values(ConversionCase{false, "22.056111", "DMS= 22°  3'  22\""},
                      ConversionCase{false, "45.2625", "DMS= 45°  15'  45\""},
                      ConversionCase{false, "-22.5", "DMS= -22°  30'  0\""},
                      ConversionCase{false, "-0.25", "DMS= -0°  15'  0\""},  // the degrees as typed
                      ConversionCase{false, "10.99999", "DMS= 10°  59'  60\""},
                      ConversionCase{false, "33.3333333", "DMS= 33°  19'  60\""},
                      ConversionCase{false, "1e2",
                                     "DMS= 1e2°  0'  0\""},  // no full stop: the text stands
                      ConversionCase{false, "22.", "DMS= 22°  0'  0\""},
                      ConversionCase{true, "22.0322", "DD=  22.056111"},
                      ConversionCase{true, "22.032", "DD=  22.055556"},
                      ConversionCase{true, "22.3", "DD=  22.5"},
                      ConversionCase{true, "-22.3", "DD= -21.5"},
                      ConversionCase{true, "45.1530", "DD=  45.258333"},
                      ConversionCase{true, "10.5959", "DD=  10.999722"},
                      ConversionCase{true, "22.6000", "DD=  23"}));

struct RefusalCase {
    const char* entry;
    const char* message;
};

void PrintTo(const RefusalCase& c, std::ostream* os) {
    *os << '"' << c.entry << '"';
}

class DdToDmsRefusals : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(DdToDmsRefusals, ShowsTheMessageAndLeavesTheAnswer) {
    const RefusalCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmDDtoDMS");
    h.set(f, "txtDD1", "22.5");
    h.click(f, "Command1");
    ASSERT_EQ(f.text("txtDDans"), "DMS= 22°  30'  0\"");
    h.set(f, "txtDD1", QString::fromUtf8(c.entry));
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.messages.size(), 1u);
    EXPECT_EQ(h.ui.messages[0].title, "Program Message");
    EXPECT_EQ(h.ui.messages[0].text, QString::fromUtf8(c.message));
    EXPECT_EQ(f.text("txtDDans"), "DMS= 22°  30'  0\"");
    EXPECT_EQ(f.text("txtDD1"), QString::fromUtf8(c.entry));
}

INSTANTIATE_TEST_SUITE_P(Table, DdToDmsRefusals,
                         ::testing::Values(RefusalCase{"", "Error, Please enter data."},
                                           RefusalCase{"0", "Value must be greater than zero."},
                                           RefusalCase{"abc", "Value must be greater than zero."},
                                           RefusalCase{" ", "Value must be greater than zero."},
                                           RefusalCase{"-0.0000",
                                                       "Value must be greater than zero."},
                                           RefusalCase{".", "Value must be greater than zero."}));

TEST(DdToDms, StartsWithDmsAndABlankAnswer) {
    Harness h;
    Form& f = h.open("frmDDtoDMS");
    EXPECT_EQ(f.title(), "DD<-->DMS");
    EXPECT_EQ(f.caption("Frame1"), "Find");
    EXPECT_TRUE(f.value("optDMS"));
    EXPECT_FALSE(f.value("optDD"));
    EXPECT_EQ(f.caption("Label1242"), "Decimal Degrees");
    EXPECT_EQ(f.caption("field1262"), "");
    EXPECT_EQ(f.text("txtDDans"), " ");
    EXPECT_TRUE(f.control("txtDDans").locked);
    EXPECT_FALSE(f.control("txtDDans").tabStop);
    EXPECT_EQ(f.caption("Command1"), "Calculate");
    EXPECT_EQ(f.caption("Command2"), "Clear All");
}

TEST(DdToDms, TheOptionsSwapTheHintAndEmptyTheAnswerOnly) {
    Harness h;
    Form& f = h.open("frmDDtoDMS");
    h.set(f, "txtDD1", "22.5");
    h.click(f, "Command1");
    h.click(f, "optDD");
    EXPECT_EQ(f.caption("Label1242"), "Deg. Min. Sec.");
    EXPECT_EQ(f.caption("field1262"), "      enter 22° 3' 22\" as 22.0322");
    EXPECT_EQ(f.text("txtDDans"), "");
    EXPECT_EQ(f.text("txtDD1"), "22.5");
    h.click(f, "Command1");
    EXPECT_EQ(f.text("txtDDans"), "DD=  22.833333");  // one digit: tens of minutes
    h.click(f, "optDMS");
    EXPECT_EQ(f.caption("Label1242"), "Decimal Degrees");
    EXPECT_EQ(f.caption("field1262"), "");
    EXPECT_EQ(f.text("txtDDans"), "");
    EXPECT_EQ(f.text("txtDD1"), "22.5");
}

TEST(DdToDms, ClearAllEmptiesEntryAndAnswer) {
    Harness h;
    Form& f = h.open("frmDDtoDMS");
    h.click(f, "optDD");
    h.set(f, "txtDD1", "22.0322");
    h.click(f, "Command1");
    h.click(f, "Command2");
    EXPECT_EQ(f.text("txtDD1"), "");
    EXPECT_EQ(f.text("txtDDans"), "");
    EXPECT_TRUE(f.value("optDD"));
    EXPECT_EQ(f.caption("Label1242"), "Deg. Min. Sec.");
}

TEST(DdToDms, OpensFromItsRowOfTheLaunchList) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    h.app.userSelect(home, "lstSelection", 7);
    EXPECT_NE(h.app.find("frmDDtoDMS"), nullptr);
}

TEST(DdToDms, AnEntryBeyondADoubleIsFatal) {
    Harness h;
    Form& f = h.open("frmDDtoDMS");
    h.set(f, "txtDD1", "1E400");
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("txtDDans"), " ");
}

}  // namespace
}  // namespace tavrin
