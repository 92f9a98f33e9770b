// Text to number: ValOf, IsNumberText and the strict conversions on any text.

#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

// The value, or minus the number of the error raised: two readings agree when
// both are the same.
double Read(const QString& text, const QString& input) {
    double v = 0;
    const int error = ErrorOf([&] { v = ValOf(text).value(); }, {6}, input);
    return error != 0 ? -1e300 * error : v;
}

void Check(const QString& text) {
    const double read = Read(text, text);
    // Reading stops where the number cannot go on, and blanks, tabs and line
    // feeds count for nothing wherever they stand.
    FUZZ_EXPECT(Read(text + QStringLiteral("x9"), text) == read, text, QString::number(read));
    QString spaced = text;
    spaced.insert(text.size() / 2, QStringLiteral(" \t\n"));
    FUZZ_EXPECT(Read(spaced, text) == read, text, spaced);

    // A plain decimal is worth what the standard library reads.
    const std::string plain = text.toStdString();
    double exact = 0;
    if (Matches(text, QStringLiteral("-?[0-9]{1,300}(\\.[0-9]{1,300})?")) &&
        std::from_chars(plain.data(), plain.data() + plain.size(), exact).ec == std::errc()) {
        FUZZ_EXPECT(read == exact, text, QString::number(read, 'g', 17));
    }

    // Only digits, one full stop and a leading minus; no digit needed.
    const int number = IsNumberText(text);
    FUZZ_EXPECT(number == (Matches(text, QStringLiteral("-?[0-9]*(\\.[0-9]*)?")) ? 1 : 0), text,
                QString::number(number));

    // What IsNumberText accepts with a digit in it, the strict conversion
    // reads as ValOf does; and the 16-bit one is that, nearest, ties to even.
    double strict = 0;
    const int strictError = ErrorOf([&] { strict = StrictNumber(text).value(); }, {6, 13}, text);
    if (number == 1 && text.contains(QRegularExpression(QStringLiteral("[0-9]")))) {
        FUZZ_EXPECT((strictError == 0 ? strict : -1e300 * strictError) == read, text,
                    QString::number(strict));
    }
    double int16 = 0;
    const int int16Error = ErrorOf([&] { int16 = StrictInt16(text); }, {6, 13}, text);
    if (strictError != 0) {
        FUZZ_EXPECT(int16Error == strictError, text, QString::number(int16Error));
    } else if (std::fabs(std::nearbyint(strict)) <= 32767) {
        FUZZ_EXPECT(int16Error == 0 && int16 == std::nearbyint(strict), text,
                    QString::number(int16));
    }
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tavrin::fuzz::Check(tavrin::fuzz::TextOf(data, size));
    return 0;
}
