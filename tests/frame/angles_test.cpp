#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "frame/angles.h"
#include "frame/numeric_text.h"

namespace tavrin {
namespace {

struct DmsCase {
    const char* entry;
    const char* expected;
};

class DmsTextToDdTest : public ::testing::TestWithParam<DmsCase> {};

TEST_P(DmsTextToDdTest, UnpacksDegreesMinutesSeconds) {
    EXPECT_EQ(DmsTextToDd(QString::fromUtf8(GetParam().entry)),
              QString::fromUtf8(GetParam().expected))
        << GetParam().entry;
}

INSTANTIATE_TEST_SUITE_P(
    Packing, DmsTextToDdTest,
    ::testing::Values(
        DmsCase{"22.0322", " 22.056111"}, DmsCase{"22.3", " 22.5"}, DmsCase{"22.032", " 22.055556"},
        DmsCase{"22.03", " 22.05"}, DmsCase{"22", " 22"}, DmsCase{"22.", " 22"},
        DmsCase{"22.6000", " 23"},           // minutes above 59 stand
        DmsCase{"22.032299", " 22.056111"},  // digits behind the seconds are ignored
        DmsCase{"22.3 ",
                " 22.05"},  // the tail is trimmed when measured, but the 0 goes at the very end
        DmsCase{"-22.3", "-21.5"},  // the sign stays with the degrees
        DmsCase{"-0.3", " .5"}, DmsCase{".3", " .5"}, DmsCase{"22.0x", " 22"},
        DmsCase{"1e2", " 100"}, DmsCase{"0.0001", " .000278"}, DmsCase{"359.5959", " 359.999722"}));

struct DdCase {
    const char* entry;
    const char* expected;
};

class DdToDmsTextTest : public ::testing::TestWithParam<DdCase> {};

TEST_P(DdToDmsTextTest, WritesDegreesMinutesSeconds) {
    EXPECT_EQ(DdToDmsText(QString::fromUtf8(GetParam().entry)),
              QString::fromUtf8(GetParam().expected))
        << GetParam().entry;
}

INSTANTIATE_TEST_SUITE_P(
    Splitting, DdToDmsTextTest,
    ::testing::Values(DdCase{"22.056111", "22°  3'  22\""}, DdCase{"22", "22°  0'  0\""},
                      DdCase{"22.", "22°  0'  0\""}, DdCase{".5", "0°  30'  0\""},
                      DdCase{"-22.5", "-22°  30'  0\""},
                      DdCase{"10.99999", "10°  59'  60\""},  // no carry of 60 seconds
                      DdCase{"007.25", "007°  15'  0\""},    // the degrees as typed
                      DdCase{" 5.5", "5°  30'  0\""}, DdCase{"1.35", "1°  21'  0\""},
                      DdCase{"45.508333", "45°  30'  30\""}, DdCase{"0.0000001", "0°  0'  0\""}));

TEST(DegreeHelpers, UseTheShortPiInTheirOrder) {
    EXPECT_EQ(Pi().value(), 3.14159265358979);
    EXPECT_NE(Pi().value(), M_PI);
    EXPECT_EQ(Negate(2.5).value(), -2.5);
    EXPECT_EQ(Square(1.5).value(), 2.25);
    EXPECT_EQ(SquareOfText("3in").value(), 9);
    EXPECT_EQ(PercentOf(250, 12).value(), 30);
    EXPECT_EQ(SinDeg(30).value(), std::sin((3.14159265358979 * 30) / 180));
    EXPECT_NEAR(SinDeg(90).value(), 1, 1e-15);
    const double cos90 = CosDeg(90).value();
    EXPECT_GT(cos90, 1e-15);  // not zero: the short pi leaves a little over
    EXPECT_LT(cos90, 2e-15);
    EXPECT_GT(TanDeg(90).value(), 1e14);
    EXPECT_EQ(AtanDeg(1).value(), std::atan(1.0) * 57.2957795130823);
    EXPECT_NEAR(ArcCosDeg(0).value(), 90, 1e-12);
    EXPECT_NEAR(ArcSinDeg(0.5).value(), 30, 1e-12);
    EXPECT_EQ(NumToStr(RoundTo(ArcSinDeg(0.5), 6)), " 30");
    EXPECT_EQ(NumToStr(RoundTo(ArcCosDeg(-0.5), 6)), " 120");
}

TEST(DegreeHelpers, ArcSineAndArcCosineFailAtAndBeyondTheirPoles) {
    const std::vector<std::pair<std::function<void()>, ErrorNumber>> cases{
        {[] { ArcSinDeg(1); }, ErrorNumber::DivisionByZero},
        {[] { ArcSinDeg(-1); }, ErrorNumber::DivisionByZero},
        {[] { ArcCosDeg(1); }, ErrorNumber::DivisionByZero},
        {[] { ArcCosDeg(-1); }, ErrorNumber::DivisionByZero},
        {[] { ArcSinDeg(1.0000001); }, ErrorNumber::InvalidCall},
        {[] { ArcCosDeg(-2); }, ErrorNumber::InvalidCall},
    };
    for (const auto& [step, expected] : cases) {
        try {
            step();
            ADD_FAILURE() << "no failure";
        } catch (const RunTimeError& e) {
            EXPECT_EQ(e.number(), expected);
        }
    }
    EXPECT_GT(ArcSinDeg(0.9999999999).value(), 89.99);
}

}  // namespace
}  // namespace tavrin
