#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/numeric_text.h"

namespace tavrin {
namespace {

struct ValCase {
    const char* text;
    double value;
};

class ValOfTest : public ::testing::TestWithParam<ValCase> {};

TEST_P(ValOfTest, ReadsTheNumberAtTheFront) {
    const ValCase& c = GetParam();
    EXPECT_EQ(ValOf(QString::fromUtf8(c.text)).value(), c.value) << "ValOf(\"" << c.text << "\")";
}

INSTANTIATE_TEST_SUITE_P(
    Decimal, ValOfTest,
    ::testing::Values(ValCase{"", 0}, ValCase{"abc", 0}, ValCase{"-", 0}, ValCase{".", 0},
                      ValCase{"$5", 0}, ValCase{",5", 0}, ValCase{"1,5", 1}, ValCase{"1,234", 1},
                      ValCase{"  3.5 mm", 3.5}, ValCase{"1 2", 12}, ValCase{"1 000", 1000},
                      ValCase{"- 5", -5}, ValCase{" 12", 12}, ValCase{"\t4\n2", 42},
                      ValCase{"\r5", 0},  // a carriage return is not skipped
                      ValCase{"2.5in", 2.5}, ValCase{".5", 0.5}, ValCase{"-.5", -0.5},
                      ValCase{"+7", 7}, ValCase{"--7", 0}, ValCase{"1.2.3", 1.2},
                      ValCase{"2.5E1x", 25}, ValCase{"1E", 1}, ValCase{"1E+", 1},
                      ValCase{"1D3", 1000}, ValCase{"1d-2", 0.01}, ValCase{"1e 2", 100},
                      ValCase{"3.E2", 300}, ValCase{".E2", 0}, ValCase{"1E-400", 0},
                      ValCase{"1.7976931348623157E308", 1.7976931348623157E308},
                      ValCase{"123456789012345678901234567890", 1.2345678901234568e29},
                      ValCase{"0.1000000000000000055511151231257827", 0.1}));

INSTANTIATE_TEST_SUITE_P(HexAndOctal, ValOfTest,
                         ::testing::Values(ValCase{"&H10", 16}, ValCase{"&h1f", 31},
                                           ValCase{"&HFFFF", -1}, ValCase{"&H8000", -32768},
                                           ValCase{"&H7FFF", 32767}, ValCase{"&HFFFFF", 1048575},
                                           ValCase{"&H0000FFFF", 65535}, ValCase{"&HFFFFFFFF", -1},
                                           ValCase{"&H7FFFFFFF", 2147483647}, ValCase{"&H1G", 1},
                                           ValCase{"&H", 0}, ValCase{"&Hz", 0}, ValCase{"&O17", 15},
                                           ValCase{"&o17", 15}, ValCase{"&17", 15},
                                           ValCase{"&O177777", -1}, ValCase{"&O200000", 65536},
                                           ValCase{"&O1777777", 524287}, ValCase{"&8", 0},
                                           ValCase{"&", 0}, ValCase{"& H10", 16}));

TEST(ValOf, LongTextOfDigitsIsCorrectlyRounded) {
    const QString text = "0.1" + QString(2000, u'0') + "1";
    EXPECT_EQ(ValOf(text).value(), 0.1);
    EXPECT_EQ(ValOf(QString(400, u'9') + "E-400").value(), 1.0);
}

TEST(ValOf, TooLargeIsAnOverflow) {
    for (const char* text : {"1E400", "-1E309", "1D999", "&H123456789", "&O77777777777"}) {
        try {
            ValOf(QString::fromLatin1(text));
            ADD_FAILURE() << text << " read without a failure";
        } catch (const RunTimeError& e) {
            EXPECT_EQ(e.number(), ErrorNumber::Overflow) << text;
        }
    }
}

struct RoundCase {
    double x;
    int places;
    double expected;
};

class RoundToTest : public ::testing::TestWithParam<RoundCase> {};

TEST_P(RoundToTest, RoundsTheScaledValueHalfToEven) {
    const RoundCase& c = GetParam();
    EXPECT_EQ(RoundTo(c.x, c.places).value(), c.expected) << c.x << " to " << c.places;
}

INSTANTIATE_TEST_SUITE_P(
    Table, RoundToTest,
    ::testing::Values(RoundCase{2.5, 0, 2}, RoundCase{3.5, 0, 4}, RoundCase{-2.5, 0, -2},
                      RoundCase{0.5, 0, 0}, RoundCase{1.5, 0, 2}, RoundCase{-3.5, 0, -4},
                      RoundCase{0.125, 2, 0.12}, RoundCase{0.375, 2, 0.38},
                      RoundCase{2.675, 2, 2.68},  // 2.675 * 100 is exactly 267.5
                      RoundCase{1.005, 2, 1},     // 1.005 * 100 falls short of 100.5
                      RoundCase{1.2345, 3, 1.234}, RoundCase{0.00015, 4, 0.0001},
                      RoundCase{2291.825821237586, 1, 2291.8}, RoundCase{261.8, 1, 261.8},
                      RoundCase{-2291.825821237586, 1, -2291.8},
                      RoundCase{123.456789, 6, 123.456789}, RoundCase{1e300, 4, 1e300}));

TEST(RoundTo, NeverGivesANegativeZero) {
    for (double x : {-0.04, -0.0, -0.4, -1e-300}) {
        const double r = RoundTo(x, x == -0.4 ? 0 : 1).value();
        EXPECT_EQ(r, 0.0);
        EXPECT_FALSE(std::signbit(r)) << x;
    }
}

TEST(RoundTo, NegativePlacesAndHugeScalesFail) {
    try {
        RoundTo(1.5, -1);
        ADD_FAILURE();
    } catch (const RunTimeError& e) {
        EXPECT_EQ(e.number(), ErrorNumber::InvalidCall);
    }
    try {
        RoundTo(1e305, 4);
        ADD_FAILURE();
    } catch (const RunTimeError& e) {
        EXPECT_EQ(e.number(), ErrorNumber::Overflow);
    }
}

struct TextCase {
    double x;
    const char* str;
    const char* text;
};

class NumberTextTest : public ::testing::TestWithParam<TextCase> {};

TEST_P(NumberTextTest, WritesFifteenDigitsWithAndWithoutTheSignColumn) {
    const TextCase& c = GetParam();
    EXPECT_EQ(NumToStr(c.x), QString::fromLatin1(c.str)) << c.x;
    EXPECT_EQ(NumToText(c.x), QString::fromLatin1(c.text)) << c.x;
}

INSTANTIATE_TEST_SUITE_P(
    Table, NumberTextTest,
    ::testing::Values(
        TextCase{0, " 0", "0"}, TextCase{-0.0, " 0", "0"}, TextCase{0.5, " .5", "0.5"},
        TextCase{-0.5, "-.5", "-0.5"}, TextCase{12, " 12", "12"}, TextCase{1.5, " 1.5", "1.5"},
        TextCase{1.0 / 3, " .333333333333333", "0.333333333333333"},
        TextCase{2.0 / 3, " .666666666666667", "0.666666666666667"},
        TextCase{1.0 / 30, " 3.33333333333333E-02", "3.33333333333333E-02"},
        TextCase{0.00001, " .00001", "0.00001"}, TextCase{1e-16, " 1E-16", "1E-16"},
        TextCase{1e-15, " .000000000000001", "0.000000000000001"},
        TextCase{1.5e-15, " 1.5E-15", "1.5E-15"}, TextCase{1.23e-5, " .0000123", "0.0000123"},
        TextCase{100000000000000, " 100000000000000", "100000000000000"},
        TextCase{1e15, " 1E+15", "1E+15"}, TextCase{1e100, " 1E+100", "1E+100"},
        TextCase{-2.5e-200, "-2.5E-200", "-2.5E-200"},
        TextCase{1234567890123456, " 1.23456789012346E+15", "1.23456789012346E+15"},
        TextCase{123456789012345.6, " 123456789012346", "123456789012346"},
        TextCase{999999999999999.5, " 1E+15", "1E+15"}, TextCase{0.1 + 0.2, " .3", "0.3"},
        TextCase{2291.8, " 2291.8", "2291.8"}, TextCase{-2291.8, "-2291.8", "-2291.8"},
        TextCase{-0.04999, "-.04999", "-0.04999"},
        // An exact half at the sixteenth digit goes to the even fifteenth.
        TextCase{1234567890123445, " 1.23456789012344E+15", "1.23456789012344E+15"},
        TextCase{1234567890123455, " 1.23456789012346E+15", "1.23456789012346E+15"}));

TEST(NumToStr, IntegersArePlainDigits) {
    EXPECT_EQ(NumToStr(5), " 5");
    EXPECT_EQ(NumToStr(-32768), "-32768");
    EXPECT_EQ(NumToText(0), "0");
    EXPECT_EQ(NumToStr(RoundTo(0.04999, 1)), " 0");
    EXPECT_EQ(NumToStr(RoundTo(-0.04, 1)), " 0");
}

TEST(NumToStr, OfATextConvertsStrictly) {
    EXPECT_EQ(NumToStr(QString("2")), " 2");
    EXPECT_EQ(NumToStr(QString(" 3 ")), " 3");
    try {
        NumToStr(QString("two"));
        ADD_FAILURE();
    } catch (const RunTimeError& e) {
        EXPECT_EQ(e.number(), ErrorNumber::TypeMismatch);
    }
}

struct FormatCase {
    double x;
    const char* pattern;
    const char* expected;
};

class FormatNumTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(FormatNumTest, WritesByThePattern) {
    const FormatCase& c = GetParam();
    EXPECT_EQ(FormatNum(c.x, QString::fromLatin1(c.pattern)), QString::fromLatin1(c.expected))
        << c.x << " by " << c.pattern;
}

INSTANTIATE_TEST_SUITE_P(
    PatternsInUse, FormatNumTest,
    ::testing::Values(
        FormatCase{3.14159265, "####0.0#####", "3.141593"}, FormatCase{2, "####0.0#####", "2.0"},
        FormatCase{3.14159265, "####0.0######", "3.1415927"}, FormatCase{2, "####0.0######", "2.0"},
        FormatCase{3.14159265, "##0.000000", "3.141593"}, FormatCase{2, "##0.000000", "2.000000"},
        FormatCase{3.14159265, "####0.000000", "3.141593"},
        FormatCase{2, "####0.000000", "2.000000"}, FormatCase{3.14159265, "########.00", "3.14"},
        FormatCase{2, "########.00", "2.00"}, FormatCase{3.14159265, "#########0.0000", "3.1416"},
        FormatCase{2, "#########0.0000", "2.0000"},
        FormatCase{3.14159265, "####0.0####", "3.14159"}, FormatCase{2, "####0.0####", "2.0"},
        FormatCase{3.14159265, "####0.0###", "3.1416"}, FormatCase{2, "####0.0###", "2.0"}));

INSTANTIATE_TEST_SUITE_P(
    EdgeCases, FormatNumTest,
    ::testing::Values(
        FormatCase{0, "########.00", ".00"}, FormatCase{0.5, "########.00", ".50"},
        FormatCase{1234567.891, "########.00", "1234567.89"},
        FormatCase{123456789, "####0.0#####", "123456789.0"},
        FormatCase{1.005, "########.00", "1.01"},  // rounds the 15-digit text, not the double
        FormatCase{2.5, "#", "3"}, FormatCase{-2.5, "0", "-3"},
        FormatCase{12.345675, "####0.0####", "12.34568"},
        FormatCase{-0.0000001, "##0.000000", "-0.000000"},
        FormatCase{-0.0, "##0.000000", "0.000000"}, FormatCase{0, "####0.0#####", "0.0"},
        FormatCase{0.99999999, "####0.0#####", "1.0"},
        FormatCase{9.9999999, "####0.0#####", "10.0"},
        FormatCase{0.0000005, "####0.0#####", "0.000001"},
        FormatCase{0.0000004, "####0.0#####", "0.0"}, FormatCase{-1.5, "####0.0###", "-1.5"},
        FormatCase{1.10, "####0.0###", "1.1"}, FormatCase{0.25, "####0.0###", "0.25"},
        FormatCase{1e20, "####0.0#####", "100000000000000000000.0"},
        FormatCase{-12.5, "#########0.0000", "-12.5000"}));

TEST(IsNumberText, AcceptsOnlyPlainNumberCharacters) {
    for (const char* yes : {"-12.5", "", "-", ".", "-.", "12", "0.5", "-0"}) {
        EXPECT_EQ(IsNumberText(QString::fromLatin1(yes)), 1) << yes;
    }
    for (const char* no : {"1.2.3", "--1", "1-", "1 ", " 1", "+1", "1E5", "1,5", "..", "a"}) {
        EXPECT_EQ(IsNumberText(QString::fromLatin1(no)), 0) << no;
    }
}

TEST(IsDigitText, ShortensItsArgumentToTheFirstCharacter) {
    QString text = "5abc";
    EXPECT_EQ(IsDigitText(text), 1);
    EXPECT_EQ(text, "5");
    text = "x9";
    EXPECT_EQ(IsDigitText(text), 0);
    EXPECT_EQ(text, "x");
    text = QString::fromUtf8("\u0663");  // an Arabic-Indic three is no digit here
    EXPECT_EQ(IsDigitText(text), 0);
    text.clear();
    try {
        IsDigitText(text);
        ADD_FAILURE();
    } catch (const RunTimeError& e) {
        EXPECT_EQ(e.number(), ErrorNumber::InvalidCall);
    }
}

TEST(StrictNumber, RefusesWhatIsNoNumber) {
    EXPECT_EQ(StrictInt16(" 42 "), 42);
    EXPECT_EQ(StrictInt16("&H10"), 16);
    EXPECT_EQ(StrictInt16("2.5"), 2);
    EXPECT_EQ(StrictInt16("3.5"), 4);
    for (const char* text : {"", "abc", "4x", "1 2", "-"}) {
        try {
            StrictInt16(QString::fromLatin1(text));
            ADD_FAILURE() << text;
        } catch (const RunTimeError& e) {
            EXPECT_EQ(e.number(), ErrorNumber::TypeMismatch) << text;
        }
    }
    try {
        StrictInt16("32768");
        ADD_FAILURE();
    } catch (const RunTimeError& e) {
        EXPECT_EQ(e.number(), ErrorNumber::Overflow);
    }
}

}  // namespace
}  // namespace tavrin
