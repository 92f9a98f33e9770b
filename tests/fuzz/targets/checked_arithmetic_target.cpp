// The checked arithmetic and the degree helpers. An input is an operation's
// letter and one or two numbers ("/ 1 0", "r 2.675 2", "S 0x1p+0"); the step
// gives the plain double result when that is finite, else exactly the numbered
// failure that belongs to it.

#include <limits>
#include <sstream>

#include "frame/angles.h"
#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

// Nearest whole number, ties to even, worked out apart from the library's
// rounding.
double NearestTiesToEven(double x) {
    const double below = std::floor(x);
    const double rest = x - below;  // exact: below is within one of x
    if (rest > 0.5) {
        return below + 1;
    }
    if (rest < 0.5) {
        return below;
    }
    return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

struct Expect {
    int error = 0;
    double value = 0;
};

// The plain result when finite, else an overflow.
Expect Finite(double r) {
    return std::isfinite(r) ? Expect{0, r} : Expect{6, 0};
}

// A whole number in range (an integer has no negative zero), else an overflow.
Expect InRange(double whole, double low, double high) {
    return whole >= low && whole <= high ? Expect{0, whole + 0.0} : Expect{6, 0};
}

void Check(const QString& input, char op, double a, double b) {
    double got = 0;
    std::int16_t counter = 0;
    auto run = [&](std::initializer_list<int> allowed, auto&& step) {
        return ErrorOf([&] { got = step(); }, allowed, "only the failures of the operation", input);
    };
    const auto same = [&](const Expect& e, int error) {
        FUZZ_EXPECT(error == e.error, input, QString("error %1, value %2").arg(error).arg(got));
        if (error == 0) {
            FUZZ_EXPECT(got == e.value && std::signbit(got) == std::signbit(e.value), input,
                        QString::number(got, 'g', 17));
        }
    };
    const double big = std::numeric_limits<double>::max();
    switch (op) {
        case '+':
            same(Finite(a + b), run({6}, [&] { return (Real(a) + b).value(); }));
            break;
        case '-':
            same(Finite(a - b), run({6}, [&] { return (Real(a) - b).value(); }));
            break;
        case '*':
            same(Finite(a * b), run({6}, [&] { return (Real(a) * b).value(); }));
            break;
        case '/':
            // 0 / 0 is an invalid operation, any other number over 0 a division by zero.
            same(b == 0 ? Expect{a == 0 ? 6 : 11, 0} : Finite(a / b),
                 run({6, 11}, [&] { return (Real(a) / b).value(); }));
            break;
        case 'q':
            same(a < 0 ? Expect{5, 0} : Expect{0, std::sqrt(a)},
                 run({5}, [&] { return Sqr(a).value(); }));
            break;
        case 'l':
            same(a <= 0 ? Expect{5, 0} : Expect{0, std::log(a)},
                 run({5}, [&] { return Log(a).value(); }));
            break;
        case 'e':
            same(Finite(std::exp(a)), run({6}, [&] { return Exp(a).value(); }));
            break;
        case 'p':
            if (run({5, 6, 11}, [&] { return Power(a, b).value(); }) == 0) {
                FUZZ_EXPECT(std::isfinite(got), input, QString::number(got));
            }
            break;
        case 'i':
            same(InRange(NearestTiesToEven(a), -32768, 32767),
                 run({6}, [&] { return static_cast<double>(ToInt16(a)); }));
            break;
        case 'I':
            same(InRange(NearestTiesToEven(a), -2147483648.0, 2147483647.0),
                 run({6}, [&] { return static_cast<double>(ToInt32(a)); }));
            break;
        case 'n': {
            if (std::fabs(a) > 32768 || std::fabs(b) > 1e6) {
                break;
            }
            counter = static_cast<std::int16_t>(std::clamp(a, -32768.0, 32767.0));
            const int start = counter;
            const int by = static_cast<int>(b);
            const int error = run({6}, [&] {
                Step16(counter, by);
                return static_cast<double>(counter);
            });
            // A failed step leaves the counter as it was.
            same(InRange(start + by, -32768, 32767), error);
            FUZZ_EXPECT(error == 0 || counter == start, input, QString::number(counter));
            break;
        }
        case 'r': {
            const int n = static_cast<int>(std::clamp(b, -2.0, 400.0));
            if (n > 22) {  // 10^n is exact up to 22 places; beyond, only finite or an overflow
                if (run({6}, [&] { return RoundTo(a, n).value(); }) == 0) {
                    FUZZ_EXPECT(std::isfinite(got), input, QString::number(got));
                }
                break;
            }
            double scale = 1;
            for (int i = 0; i < n; ++i) {
                scale *= 10;
            }
            Expect e{5, 0};
            if (n >= 0) {
                // The scaled double decides; a whole number has no sign.
                e = Finite(a * scale);
                const double whole = NearestTiesToEven(e.value);
                e.value = whole == 0 ? 0.0 : whole / scale;
            }
            same(e, run({5, 6}, [&] { return RoundTo(a, n).value(); }));
            break;
        }
        case 'N':
            // x - (x + x): zero of either sign comes out as +0.
            same(std::fabs(a) <= big / 2 ? Expect{0, a == 0 ? 0.0 : -a} : Expect{6, 0},
                 run({6}, [&] { return Negate(a).value(); }));
            break;
        case 's':
        case 'c':
        case 't':
            if (run({6}, [&] {
                    return (op == 's' ? SinDeg(a) : op == 'c' ? CosDeg(a) : TanDeg(a)).value();
                }) == 0) {
                FUZZ_EXPECT(op == 't' || std::fabs(got) <= 1, input, QString::number(got));
            } else {
                FUZZ_EXPECT(std::fabs(a) > big / 4, input, "overflow");  // only Pi * x overflows
            }
            break;
        case 'a':
            run({}, [&] { return AtanDeg(a).value(); });
            FUZZ_EXPECT(std::fabs(got) <= 90.000001, input, QString::number(got));
            break;
        case 'S':
        case 'C': {
            // The square root of 1 - x * x divides: 0 at 1 and -1, invalid beyond,
            // unless x * x overflows first.
            const double size = std::fabs(a);
            const int error =
                run({5, 6, 11}, [&] { return (op == 'S' ? ArcSinDeg(a) : ArcCosDeg(a)).value(); });
            const int expected = size < 1 ? 0 : size == 1 ? 11 : size < 1e150 ? 5 : error;
            FUZZ_EXPECT(error == expected, input, QString("error %1").arg(error));
            if (error == 0) {
                const double low = op == 'S' ? -90.000001 : -0.000001;
                FUZZ_EXPECT(got >= low && got <= low + 180.000002, input, QString::number(got));
            }
            break;
        }
        default:
            break;
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
