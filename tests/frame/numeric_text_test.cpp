#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "frame/numeric_text.h"
#include "frame/real.h"
#include "tests/frame/raises.h"

namespace tavrin {
namespace {

// Each row: what goes in (texts split at "|"), what comes out, and the fault it
// guards against.

TEST(ValOf, ReadsTheNumberAtTheFront) {
    const std::tuple<const char*, double, const char*> rows[] = {
        {"|.E2|--7|&8|&", 0, "no digit at the front (8 is none after &): worth 0"},
        {"1 000|\t1\n000", 1000, "blanks, tabs and line feeds inside are skipped"},
        {"-.5", -0.5, "a minus sign, no whole digits"},
        {"+7", 7, "a plus sign"},
        {"1.2.3", 1.2, "a second point ends the number"},
        {"2.5E1x|250d-1", 25, "an exponent after E or d, and a negative one"},
        {"&haf|&HAFG", 175, "either case of h and of A to F; G is no hexadecimal digit"},
        {"&HFFFF|&HFFFFFFFF|&O177777", -1, "4 or 8 hexadecimal, 6 octal digits: a signed pattern"},
        {"&H0FFFF|&O0177777", 65535, "one digit more is a 32-bit pattern, whatever the value"},
        {"&O17|&o17|&17", 15, "octal after &O, &o or a bare &"},
    };
    for (const auto& [texts, value, guards] : rows) {
        for (const QString& text : QString(texts).split(u'|')) {
            EXPECT_EQ(ValOf(text).value(), value) << '"' << text << "\": " << guards;
        }
    }
    for (const char* text : {"1E400", "-1E309", "1D999", "&H123456789", "&O77777777777"}) {
        EXPECT_EQ(ErrorOf([&] { ValOf(text); }), 6) << text << " is too large";
    }
}

TEST(RoundTo, RoundsTheScaledValueHalfToEven) {
    const std::tuple<double, int, double, const char*> rows[] = {
        {2.5, 0, 2, "a tie goes to the even neighbour, down here"},
        {2.675, 2, 2.68, "the scaled double decides: 267.5 exactly, up to even"},
        {1.005, 2, 1, "the scaled double falls short of 100.5"},
        {-0.04, 1, 0, "a negative value rounding to zero gives +0"},
    };
    for (const auto& [x, places, expected, guards] : rows) {
        const double got = RoundTo(x, places).value();
        EXPECT_EQ(got, expected) << x << " to " << places << ": " << guards;
        EXPECT_EQ(std::signbit(got), std::signbit(expected)) << x << ": " << guards;
    }
    EXPECT_EQ(ErrorOf([] { RoundTo(1.5, -1); }), 5);
    EXPECT_EQ(ErrorOf([] { RoundTo(1e305, 4); }), 6);
}

TEST(NumToStr, WritesFifteenDigitsWithAndWithoutTheSignColumn) {
    const std::tuple<double, QString, QString, const char*> rows[] = {
        {-0.0, " 0", "0", "zero, and a negative zero is no negative"},
        {0.5, " .5", "0.5", "no zero before the point, unless NumToText"},
        {-0.1, "-.1", "-0.1", "the sign of a fraction; 0.1 is no zero"},
        {1.0 / 30, " 3.33333333333333E-02", "3.33333333333333E-02", "16 places: E notation"},
        {1e-15, " .000000000000001", "0.000000000000001", "15 places stay fixed"},
        {1.5e-15, " 1.5E-15", "1.5E-15", "16 places do not"},
        {1e14, " 100000000000000", "100000000000000", "exponent 14 is fixed"},
        {1e15, " 1E+15", "1E+15", "exponent 15 is not, and has two digits"},
        {1234567890123445, " 1.23456789012344E+15", "1.23456789012344E+15", "ties to even"},
    };
    for (const auto& [x, str, text, guards] : rows) {
        EXPECT_EQ(NumToStr(x), str) << guards;
        EXPECT_EQ(NumToText(x), text) << guards;
    }
    EXPECT_EQ(NumToStr(0) + NumToStr(-32768) + NumToText(-7), " 0-32768-7");  // integers
    EXPECT_EQ(NumToStr(QString(" 3 ")), " 3");  // a text is converted strictly
}

TEST(FormatNum, WritesByThePattern) {
    const std::tuple<double, const char*, QString, const char*> rows[] = {
        {2, "####0.0#####", "2.0", "\"#\" places drop trailing zeros, \"0\" places not"},
        {0.1, "####0.0###", "0.1", "a \"0\" before the point forces one digit"},
        {0, "########.00", ".00", "only \"#\" before the point: no whole digit"},
        {0.5, ".00", ".50", "nothing before the point: no whole digit either"},
        {1e15, "####0.0", "1000000000000000.0", "whole digits beyond the fifteen"},
        {12345678901234.5, "####0.0", "12345678901234.5", "the fifteenth digit behind the point"},
        {1.005, "########.00", "1.01", "rounds the 15-digit text, not the double"},
        {2.5, "#", "3", "halves away from zero; no point"},
        {9.9999999, "####0.0#####", "10.0", "the carry makes a new whole digit"},
        {0.0000005, "####0.0#####", "0.000001", "rounds up into the last place"},
        {-0.0000001, "##0.000000", "-0.000000", "the sign stays on a rounded zero"},
        {-0.0, "##0.000000", "0.000000", "but a negative zero has none"},
        {2.5, "#.##", "2.5", "\"#\" places alone show their digits"},
        {2, "#.##", "2", "and no point without them"},
    };
    for (const auto& [x, pattern, expected, guards] : rows) {
        EXPECT_EQ(FormatNum(x, pattern), expected) << x << " by " << pattern << ": " << guards;
    }
}

TEST(TextTests, IsNumberTextAndIsDigitText) {
    for (const char* yes : {"-12.5", "", "-", ".", "-."}) {
        EXPECT_EQ(IsNumberText(yes), 1) << '"' << yes << '"';
    }
    for (const char* no : {"1.2.3", "--1", "1-", "1 ", "+1", "1E5", "1,5"}) {
        EXPECT_EQ(IsNumberText(no), 0) << no;
    }
    // The argument is shortened to its first character; only 0 to 9 count.
    for (const auto& [text, expected] :
         {std::pair{"5abc", 1}, {"0", 1}, {"9", 1}, {":", 0}, {"\u0663", 0}}) {
        QString shortened = QString::fromUtf8(text);
        EXPECT_EQ(IsDigitText(shortened), expected) << text;
        EXPECT_EQ(shortened, QString::fromUtf8(text).left(1));
    }
    QString empty;
    EXPECT_EQ(ErrorOf([&] { IsDigitText(empty); }), 5);
}

TEST(StrictInt16, RefusesWhatIsNoNumber) {
    const std::tuple<QString, int, int, const char*> rows[] = {
        {" 42 ", 42, 0, "surrounding blanks are allowed"},
        {"&H10", 16, 0, "hexadecimal is a number"},
        {"1E2", 100, 0, "an exponent is part of the number"},
        {"|4x|&H|1E", 0, 13, "empty, not all read, no hexadecimal digit, a bare exponent"},
        {"32768", 0, 6, "beyond 16 bits"},
    };
    for (const auto& [texts, value, error, guards] : rows) {
        for (const QString& text : texts.split(u'|')) {
            int got = 0;
            EXPECT_EQ(ErrorOf([&] { got = StrictInt16(text); }), error) << text << ": " << guards;
            EXPECT_EQ(got, value) << text << ": " << guards;
        }
    }
}

TEST(CheckedArithmetic, RaisesTheNumberedFailureAndItsTextOrRoundsHalfToEven) {
    const Real zero = 0;
    std::int16_t counter = 32767;
    const std::tuple<const char*, int, int> rows[] = {
        {"1 / 0", ErrorOf([&] { Real(1) / zero; }), 11},
        {"0 / 0 is an invalid operation", ErrorOf([&] { zero / zero; }), 6},
        {"Exp(1000)", ErrorOf([] { Exp(1000); }), 6},
        {"(-8) ^ 0.5", ErrorOf([] { Power(-8, 0.5); }), 5},
        {"0 ^ -1", ErrorOf([] { Power(0, -1); }), 11},
        {"ToInt16(32767.5) rounds to 32768", ErrorOf([] { ToInt16(32767.5); }), 6},
        {"ToInt32(2147483648)", ErrorOf([] { ToInt32(2147483648.0); }), 6},
        {"Step16 past 32767", ErrorOf([&] { Step16(counter); }), 6},
        {"the failed step leaves the counter as it was", counter, 32767},
        {"ToInt16(2.5) ties to even", ToInt16(2.5), 2},
        {"ToInt16(-32768.5) ties to the even edge", ToInt16(-32768.5), -32768},
    };
    for (const auto& [what, got, expected] : rows) {
        EXPECT_EQ(got, expected) << what;
    }
    EXPECT_EQ(RunTimeError(ErrorNumber::SubscriptOutOfRange).fatalText() + '|' +
                  RunTimeError(ErrorNumber::DivisionByZero).text(),
              "Run-time error '9':\r\n\r\nSubscript out of range|Division by zero");
}

TEST(CheckedArithmetic, KeepsTheOrderOfOperationsAsWritten) {
    EXPECT_EQ(((Real(0.1) + 0.2) + 0.3).value(), 0.6000000000000001);  // not regrouped
    const Real x = 1.0 + 1e-8;
    const Real p = x * x;
    EXPECT_EQ((x * x - p).value(), 0.0);  // no fused multiply-add
}

}  // namespace
}  // namespace tavrin
