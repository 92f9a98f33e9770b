// FormatNum: a number (its text on the first line, "0x..." for an exact
// hexadecimal one) by a pattern (the rest). Any pattern at all raises nothing;
// a pattern of the kind the windows use ("#" places, then at most one "0",
// a point, "0" places, then "#" places) is checked digit by digit against
// printf's fifteen digits rounded half away from zero.

#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

// The fifteen digits of |x| rounded to `places` behind the point, halves away
// from zero: the whole digits (no leading zero) and the fraction digits.
std::pair<std::string, std::string> RoundedDigits(double x, int places) {
    std::string whole;
    std::string fraction;
    if (x != 0) {
        const Digits d = FifteenDigits(x);
        if (d.exponent >= 0) {
            std::string all = d.digits + std::string(std::max(0, d.exponent + 1 - 15), '0');
            whole = all.substr(0, d.exponent + 1);
            fraction = all.substr(d.exponent + 1);
        } else {
            fraction = std::string(-d.exponent - 1, '0') + d.digits;
        }
    }
    fraction.resize(std::max<std::size_t>(fraction.size(), places + 1), '0');
    bool up = fraction[places] >= '5';
    fraction.resize(places);
    std::string digits = whole + fraction;
    for (std::size_t i = digits.size(); up; --i) {
        if (i == 0) {
            digits.insert(0, "1");
            break;
        }
        up = digits[i - 1] == '9';
        digits[i - 1] = up ? '0' : static_cast<char>(digits[i - 1] + 1);
    }
    whole = digits.substr(0, digits.size() - places);
    fraction = digits.substr(digits.size() - places);
    whole.erase(0, whole.find_first_not_of('0'));
    return {whole, fraction};
}

void Check(const QString& input, double x, const QString& pattern) {
    QString got;
    ErrorOf([&] { got = FormatNum(x, pattern); }, {}, "FormatNum raises nothing", input);
    static const QRegularExpression usual(QStringLiteral("\\A(#*)(0?)(?:\\.(0*)(#*))?\\z"));
    const QRegularExpressionMatch m = usual.match(pattern);
    if (!m.hasMatch()) {
        return;
    }
    const bool forceWhole = !m.captured(2).isEmpty();
    const int forced = static_cast<int>(m.captured(3).size());
    const int places = forced + static_cast<int>(m.captured(4).size());
    auto [whole, fraction] = RoundedDigits(x, places);
    if (whole.empty() && forceWhole) {
        whole = "0";
    }
    // "#" places show up to the last digit that is not a trailing zero.
    while (static_cast<int>(fraction.size()) > forced && fraction.back() == '0') {
        fraction.pop_back();
    }
    std::string expected = x < 0 ? "-" : "";
    expected += whole;
    if (!fraction.empty() || forced > 0) {
        expected += '.' + fraction;
    }
    FUZZ_EXPECT(got == QString::fromStdString(expected), input, got);

    // With places enough, the pattern writes what NumToText writes in fixed
    // notation.
    const QString text = NumToText(x);
    if (!text.contains(u'E') && forceWhole && places >= 15 && forced == 0) {
        FUZZ_EXPECT(got == text, input, got + " against " + text);
    }
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::size_t line = input.find('\n');
    double x = 0;
    if (line != std::string::npos && tavrin::fuzz::ReadDouble(input.substr(0, line), x)) {
        tavrin::fuzz::Check(QString::fromStdString(input), x,
                            QString::fromUtf8(input.substr(line + 1)));
    }
    return 0;
}
