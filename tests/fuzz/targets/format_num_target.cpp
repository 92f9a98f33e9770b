// FormatNum: a number (its text on the first line, "0x..." for exact bits) by
// a pattern (the rest). Any pattern at all raises nothing; a pattern of the
// kind the windows use ("#" places, at most one "0", a point, "0" places, "#"
// places) writes the number rounded to its places.

#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

void Check(const QString& input, double x, const QString& pattern) {
    QString got;
    ErrorOf([&] { got = FormatNum(x, pattern); }, {}, input);
    static const QRegularExpression usual(QStringLiteral("\\A#*(0?)(?:\\.(0*)(#*))?\\z"));
    const QRegularExpressionMatch m = usual.match(pattern);
    if (!m.hasMatch() || std::fabs(x) >= 1e15) {
        return;
    }
    const auto forced = m.captured(2).size();
    const auto places = forced + m.captured(3).size();
    FUZZ_EXPECT(Matches(got, QStringLiteral("-?[0-9]*(\\.[0-9]*)?")), input, got);
    // A "0" before the point writes a whole digit; the "0" places always show.
    FUZZ_EXPECT(m.captured(1).isEmpty() || !got.startsWith(u'.'), input, got);
    const qsizetype point = got.indexOf(u'.');
    const qsizetype shown = point < 0 ? 0 : got.size() - point - 1;
    FUZZ_EXPECT(shown >= forced && shown <= places, input, got);
    // Within half a unit of the last place, give or take the fifteenth digit.
    const double unit = std::pow(10.0, -static_cast<double>(places));
    const double read = ValOf(got).value();
    FUZZ_EXPECT(std::fabs(read - x) <= unit / 2 + std::fabs(x) * 1e-14, input, got);
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
