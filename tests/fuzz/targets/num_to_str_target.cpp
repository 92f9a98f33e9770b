// Number to text: NumToStr and NumToText of any finite double (the input is
// its text, "0x..." for exact bits).

#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

void Check(const QString& input, double x) {
    const QString s = NumToStr(x);
    // A sign column, then "0", a fixed number with no zero before its point,
    // or E notation with a signed exponent.
    FUZZ_EXPECT(Matches(s, QStringLiteral("[ -](0|[1-9][0-9]*(\\.[0-9]*[1-9])?|"
                                          "\\.[0-9]*[1-9]|[1-9](\\.[0-9]*[1-9])?E[+-][0-9]{2,3})")),
                input, s);
    FUZZ_EXPECT((s[0] == u'-') == (x < 0), input, s);

    // Fifteen significant digits, as printf rounds them.
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.14e", x);
    FUZZ_EXPECT(ValOf(s).value() == std::strtod(digits, nullptr), input, s + " against " + digits);

    // NumToText: no sign column, and a zero in front of a bare point.
    const QString body = s.mid(1).startsWith(u'.') ? "0" + s.mid(1) : s.mid(1);
    FUZZ_EXPECT(NumToText(x) == (x < 0 ? "-" : "") + body, input, NumToText(x));

    // Written again, the text read back is the same text.
    FUZZ_EXPECT(NumToStr(ValOf(s)) == s, input, NumToStr(ValOf(s)));
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    double x = 0;
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (tavrin::fuzz::ReadDouble(text, x) && std::fabs(x) < 1.7976931348623e308) {
        tavrin::fuzz::Check(QString::fromStdString(text), x);
    }
    return 0;
}
