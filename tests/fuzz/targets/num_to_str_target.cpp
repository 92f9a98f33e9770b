// Number to text: NumToStr and NumToText of any finite double (the input is
// its text, "0x..." for an exact hexadecimal one). The digits are checked
// against printf's, the choice of notation against the rule of places, and the
// text must read back to itself.

#include <limits>

#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

void Check(const QString& input, double x) {
    const QString s = NumToStr(x);
    // A sign column, then "0", a fixed number with no zero before its point,
    // or E notation with a signed exponent of two or three digits.
    FUZZ_EXPECT(
        Matches(s, QStringLiteral("[ -](?:0|[1-9][0-9]*(?:\\.[0-9]*[1-9])?|"
                                  "\\.[0-9]*[1-9]|[1-9](?:\\.[0-9]*[1-9])?E[+-][0-9]{2,3})")),
        input, s);
    FUZZ_EXPECT((s[0] == u'-') == (x < 0), input, s);

    // The significant digits are printf's fifteen, trailing zeros dropped.
    const qsizetype ePos = s.indexOf(u'E');
    QString mantissa = s.mid(1, ePos < 0 ? -1 : ePos - 1);
    mantissa.remove(u'.');
    while (mantissa.endsWith(u'0') && mantissa.size() > 1) {
        mantissa.chop(1);  // the zeros of a whole number
    }
    const qsizetype firstDigit = mantissa.indexOf(QRegularExpression(QStringLiteral("[1-9]")));
    if (x != 0) {
        const Digits d = FifteenDigits(x);
        QString digits = QString::fromStdString(d.digits);
        while (digits.endsWith(u'0')) {
            digits.chop(1);
        }
        FUZZ_EXPECT(mantissa.mid(firstDigit) == digits, input, s + " against " + digits);
        // Fixed notation for exponents 0 to 14 and for fractions of at most
        // 15 places; E notation otherwise.
        const int k = static_cast<int>(digits.size());
        const int e = d.exponent;
        const bool fixed = (e >= 0 && e <= 14) || (e < 0 && k - e - 1 <= 15);
        FUZZ_EXPECT(fixed == (ePos < 0), input, s);
        if (ePos >= 0) {
            FUZZ_EXPECT(s.mid(ePos + 1).toInt() == e, input, s);
        }
    } else {
        FUZZ_EXPECT(s == QStringLiteral(" 0"), input, s);
    }

    // NumToText: no sign column, and a zero in front of a bare point.
    QString body = s.mid(1);
    if (body.startsWith(u'.')) {
        body.prepend(u'0');
    }
    const QString text = NumToText(x);
    FUZZ_EXPECT(text == (s[0] == u'-' ? "-" + body : body), input, text);

    // Whole numbers in the integer range are written as the integer form is.
    if (x == std::trunc(x) && std::fabs(x) <= std::numeric_limits<int>::max()) {
        const QString integer = NumToStr(static_cast<int>(x));
        FUZZ_EXPECT(integer == s, input, integer);
    }

    // The text reads back to itself; only fifteen digits rounded up past the
    // largest double are too large to read.
    double y = 0;
    const int error =
        ErrorOf([&] { y = ValOf(s).value(); }, {6}, "ValOf raises only Overflow", input);
    const Digits d = FifteenDigits(x);
    const bool beyond = d.exponent == 308 && d.digits >= "179769313486232";
    FUZZ_EXPECT((error == 6) == beyond, input, s);
    if (error == 0) {
        const QString again = NumToStr(y);
        FUZZ_EXPECT(again == s, input, again);
        const QString textAgain = NumToText(ValOf(text));
        FUZZ_EXPECT(textAgain == text, input, textAgain);
    }
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    double x = 0;
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (tavrin::fuzz::ReadDouble(text, x)) {
        tavrin::fuzz::Check(QString::fromStdString(text), x);
    }
    return 0;
}
