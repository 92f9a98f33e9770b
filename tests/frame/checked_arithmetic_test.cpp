#include <gtest/gtest.h>

#include <functional>

#include "frame/real.h"

namespace tavrin {
namespace {

struct FailureCase {
    const char* what;
    std::function<void()> step;
    ErrorNumber expected;
};

TEST(CheckedArithmetic, RaisesTheNumberedFailureAtTheFailingStep) {
    const Real zero = 0;
    const std::vector<FailureCase> cases{
        {"1 / 0", [&] { (void)(Real(1) / zero); }, ErrorNumber::DivisionByZero},
        {"-1 / 0", [&] { (void)(Real(-1) / zero); }, ErrorNumber::DivisionByZero},
        {"0 / 0", [&] { (void)(zero / zero); }, ErrorNumber::Overflow},
        {"1e308 * 10", [] { (void)(Real(1e308) * 10); }, ErrorNumber::Overflow},
        {"1e308 + 1e308", [] { (void)(Real(1e308) + 1e308); }, ErrorNumber::Overflow},
        {"-1e308 - 1e308", [] { (void)(Real(-1e308) - 1e308); }, ErrorNumber::Overflow},
        {"1e300 / 1e-300", [] { (void)(Real(1e300) / 1e-300); }, ErrorNumber::Overflow},
        {"Sqr(-1)", [] { Sqr(-1); }, ErrorNumber::InvalidCall},
        {"Log(0)", [] { Log(0); }, ErrorNumber::InvalidCall},
        {"Log(-2)", [] { Log(-2); }, ErrorNumber::InvalidCall},
        {"Exp(1000)", [] { Exp(1000); }, ErrorNumber::Overflow},
        {"(-8) ^ 0.5", [] { Power(-8, 0.5); }, ErrorNumber::InvalidCall},
        {"ToInt16(32767.5)", [] { ToInt16(32767.5); }, ErrorNumber::Overflow},
        {"ToInt16(-32769)", [] { ToInt16(-32769); }, ErrorNumber::Overflow},
        {"ToInt32(2147483648)", [] { ToInt32(2147483648.0); }, ErrorNumber::Overflow},
    };
    for (const FailureCase& c : cases) {
        try {
            c.step();
            ADD_FAILURE() << c.what << " did not fail";
        } catch (const RunTimeError& e) {
            EXPECT_EQ(e.number(), c.expected) << c.what;
        }
    }
}

TEST(CheckedArithmetic, KeepsTheOrderOfOperationsAsWritten) {
    // (a + b) + c and a + (b + c) differ in doubles; the written one stands.
    const Real a = 0.1;
    const Real b = 0.2;
    const Real c = 0.3;
    EXPECT_EQ(((a + b) + c).value(), 0.6000000000000001);
    EXPECT_EQ((a + (b + c)).value(), 0.6);
    // No fused multiply-add: x * y - z rounds the product first.
    const Real x = 1.0 + 1e-8;
    const Real p = x * x;
    EXPECT_EQ((x * x - p).value(), 0.0);
}

TEST(CheckedArithmetic, ConvertsToWholeNumbersHalfToEven) {
    EXPECT_EQ(ToInt16(32766.5), 32766);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(-3.5), -4);
    EXPECT_EQ(ToInt32(-2147483648.0), -2147483647 - 1);
    std::int16_t counter = 32766;
    Step16(counter);
    EXPECT_EQ(counter, 32767);
    try {
        Step16(counter);
        ADD_FAILURE();
    } catch (const RunTimeError& e) {
        EXPECT_EQ(e.number(), ErrorNumber::Overflow);
        EXPECT_EQ(counter, 32767);
    }
}

TEST(CheckedArithmetic, FatalTextNamesNumberAndText) {
    EXPECT_EQ(RunTimeError(ErrorNumber::DivisionByZero).fatalText(),
              "Run-time error '11':\r\n\r\nDivision by zero");
    EXPECT_EQ(RunTimeError(ErrorNumber::SubscriptOutOfRange).fatalText(),
              "Run-time error '9':\r\n\r\nSubscript out of range");
    EXPECT_EQ(RunTimeError(ErrorNumber::TypeMismatch).text(), "Type mismatch");
    EXPECT_EQ(RunTimeError(ErrorNumber::InvalidCall).text(), "Invalid procedure call or argument");
    EXPECT_EQ(RunTimeError(ErrorNumber::Overflow).text(), "Overflow");
}

}  // namespace
}  // namespace tavrin
