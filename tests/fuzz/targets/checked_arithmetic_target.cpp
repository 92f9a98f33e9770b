// The checked arithmetic and the degree helpers. An input is an operation's
// letter and one or two numbers ("/ 1 0", "r 2.675 2", "S 0x1p+0"); the step
// gives the plain double result when that is finite, else exactly the numbered
// failure that belongs to it.

#include <sstream>

#include "frame/angles.h"
#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

constexpr int kOverflow = 6;

void Check(const QString& input, char op, double a, double b) {
    double got = 0;
    // Runs the step; its failure must be `expected`, and without one the
    // result must be `plain` (when given: NaN stands for "any finite").
    const auto expect = [&](int expected, double plain, auto&& step) {
        const int error = ErrorOf([&] { got = step().value(); }, {expected}, input);
        FUZZ_EXPECT(error == expected, input, QString::number(got, 'g', 17));
        FUZZ_EXPECT(error != 0 || (std::isnan(plain) ? std::isfinite(got) : got == plain), input,
                    QString::number(got, 'g', 17));
    };
    const auto finite = [](double r) { return std::isfinite(r) ? 0 : kOverflow; };
    const double any = std::nan("");
    switch (op) {
        case '+':
            return expect(finite(a + b), a + b, [&] { return Real(a) + b; });
        case '-':
            return expect(finite(a - b), a - b, [&] { return Real(a) - b; });
        case '*':
            return expect(finite(a * b), a * b, [&] { return Real(a) * b; });
        case '/':  // 0 / 0 is an overflow, anything else over 0 a division by zero
            return expect(b == 0 ? (a == 0 ? kOverflow : 11) : finite(a / b), b == 0 ? any : a / b,
                          [&] { return Real(a) / b; });
        case 'q':
            return expect(a < 0 ? 5 : 0, std::sqrt(a), [&] { return Sqr(a); });
        case 'l':
            return expect(a <= 0 ? 5 : 0, std::log(a), [&] { return Log(a); });
        case 'i': {  // nearest whole number, ties to even, in the 16-bit range
            const double whole = std::nearbyint(a);
            const int error = whole < -32768 || whole > 32767 ? kOverflow : 0;
            return expect(error, whole, [&] { return Real(ToInt16(a)); });
        }
        case 'r': {  // places below 0 are an invalid call; a whole number has no sign
            if (std::fabs(b) > 300 || b != std::trunc(b)) {
                return;
            }
            const double scale = std::pow(10.0, b);
            const double whole = std::nearbyint(a * scale);
            return expect(b < 0 ? 5 : finite(a * scale), whole == 0 ? 0.0 : whole / scale,
                          [&] { return RoundTo(a, static_cast<int>(b)); });
        }
        case 'S': {  // 1 - x * x under a root divides: 0 at 1 and -1, invalid beyond
            const double size = std::fabs(a);
            return expect(size < 1             ? 0
                          : size == 1          ? 11
                          : finite(a * a) == 0 ? 5
                                               : kOverflow,
                          any, [&] { return ArcSinDeg(a); });
        }
        case 's':
            return expect(finite(3.14159265358979 * a), any, [&] { return SinDeg(a); });
        default:
            return;
    }
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    std::istringstream words(input);
    std::string op;
    std::string first;
    std::string second = "0";
    words >> op >> first >> second;
    double a = 0;
    double b = 0;
    if (op.size() == 1 && tavrin::fuzz::ReadDouble(first, a) &&
        tavrin::fuzz::ReadDouble(second, b)) {
        tavrin::fuzz::Check(QString::fromStdString(input), op[0], a, b);
    }
    return 0;
}
