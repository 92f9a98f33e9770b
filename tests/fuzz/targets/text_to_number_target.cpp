// Text to number: ValOf, IsNumberText, the strict conversion and IsDigitText on
// any text. ValOf is read again by patterns and the standard library's
// conversion, and must agree with that reading.

#include <QStringList>

#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

struct Outcome {
    int error = 0;  // the run-time error raised, or 0
    double value = 0;
    bool operator==(const Outcome& o) const {
        return error == o.error && (error != 0 || value == o.value);
    }
};

QString Describe(const Outcome& o) {
    return o.error != 0 ? QStringLiteral("error %1").arg(o.error)
                        : QString::number(o.value, 'g', 17);
}

Outcome ReadByValOf(const QString& text, const QString& input) {
    Outcome o;
    o.error =
        ErrorOf([&] { o.value = ValOf(text).value(); }, {6}, "ValOf raises only Overflow", input);
    return o;
}

// "&H", "&O" or a bare "&": the digits as a 16-bit pattern when short, else
// 32-bit; beyond 32 bits an overflow.
Outcome ReadRadix(const QString& s) {
    static const QRegularExpression hex(QStringLiteral("\\A&[Hh]([0-9A-Fa-f]+)"));
    static const QRegularExpression octal(QStringLiteral("\\A&[Oo]?([0-7]+)"));
    int base = 16;
    QRegularExpressionMatch m = hex.match(s);
    if (!m.hasMatch()) {
        base = 8;
        m = octal.match(s);
    }
    if (!m.hasMatch()) {
        return {};  // no digit: worth 0
    }
    const QString digits = m.captured(1);
    QString significant = digits;
    while (significant.startsWith(u'0')) {
        significant.remove(0, 1);
    }
    if (significant.size() > (base == 16 ? 8 : 11)) {
        return {6, 0};
    }
    const quint64 v = significant.isEmpty() ? 0 : significant.toULongLong(nullptr, base);
    if (v > 0xFFFFFFFFu) {
        return {6, 0};
    }
    const bool short16 = base == 16 ? digits.size() <= 4 : (digits.size() <= 6 && v <= 0xFFFF);
    return {0, short16 ? static_cast<double>(static_cast<qint16>(static_cast<quint16>(v)))
                       : static_cast<double>(static_cast<qint32>(static_cast<quint32>(v)))};
}

// Sign, digits, one point, digits, an exponent of E or D with digits.
Outcome ReadDecimal(const QString& s) {
    static const QRegularExpression decimal(
        QStringLiteral("\\A([+-]?)([0-9]*)(?:\\.([0-9]*))?(?:[EeDd]([+-]?[0-9]+))?"));
    const QRegularExpressionMatch m = decimal.match(s);
    const QString whole = m.captured(2);
    const QString fraction = m.captured(3);
    if (whole.isEmpty() && fraction.isEmpty()) {
        return {};  // no digit: worth 0
    }
    std::string text = (m.captured(1) == u'-' ? "-" : "") +
                       (whole.isEmpty() ? QStringLiteral("0") : whole).toStdString() + '.' +
                       (fraction.isEmpty() ? QStringLiteral("0") : fraction).toStdString();
    if (m.hasCaptured(4)) {
        text += 'e' + m.captured(4).toStdString();
    }
    double v = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec == std::errc::result_out_of_range) {
        // Too large is an overflow, too small is worth 0: which one, by the
        // decimal exponent of the first significant digit.
        const QString digits = whole + fraction;
        const qsizetype first = digits.indexOf(QRegularExpression(QStringLiteral("[1-9]")));
        const QString exponent = m.captured(4);
        const bool negativeExponent = exponent.startsWith(u'-');
        const double e =
            (exponent.size() > 12 ? (negativeExponent ? -1e12 : 1e12) : exponent.toDouble()) +
            static_cast<double>(whole.size() - first);
        return e > 0 ? Outcome{6, 0} : Outcome{};
    }
    return {0, v};
}

Outcome ReadByPattern(const QString& text) {
    QString s = text;
    s.remove(u' ').remove(u'\t').remove(u'\n');
    return s.startsWith(u'&') ? ReadRadix(s) : ReadDecimal(s);
}

void Check(const QString& text) {
    const Outcome read = ReadByValOf(text, text);
    const Outcome expected = ReadByPattern(text);
    FUZZ_EXPECT(read == expected, text, Describe(read) + " against " + Describe(expected));

    // Reading stops at a character that cannot continue the number, and
    // blanks, tabs and line feeds count for nothing wherever they stand.
    const Outcome stopped = ReadByValOf(text + QStringLiteral("x9"), text);
    FUZZ_EXPECT(stopped == read, text, Describe(stopped));
    QString spaced = text;
    spaced.insert(text.size() / 2, QStringLiteral(" \t\n"));
    const Outcome blanks = ReadByValOf(spaced, text);
    FUZZ_EXPECT(blanks == read, text, Describe(blanks));

    // Only digits, one full stop and a leading minus; no digit needed.
    const int number = IsNumberText(text);
    FUZZ_EXPECT(number == (Matches(text, QStringLiteral("-?[0-9]*(?:\\.[0-9]*)?")) ? 1 : 0), text,
                QString::number(number));

    // The strict conversion refuses only what is no number; what IsNumberText
    // accepts with a digit in it is a number, worth what ValOf reads.
    Outcome strict;
    strict.error = ErrorOf([&] { strict.value = StrictNumber(text).value(); }, {6, 13},
                           "the strict conversion raises only Overflow or Type mismatch", text);
    if (number == 1 && text.contains(QRegularExpression(QStringLiteral("[0-9]")))) {
        FUZZ_EXPECT(strict == read, text, Describe(strict));
    }
    if (strict.error == 0) {
        FUZZ_EXPECT(strict == ReadByValOf(text.trimmed(), text), text, Describe(strict));
    }
    // The settings are read so: a number in the 16-bit range, nearest, ties
    // to even; beyond it an overflow.
    Outcome int16;
    int16.error = ErrorOf([&] { int16.value = StrictInt16(text); }, {6, 13},
                          "StrictInt16 raises only Overflow or Type mismatch", text);
    Outcome expected16 = strict;
    if (strict.error == 0) {
        expected16.value = std::nearbyint(strict.value);
        expected16.error = expected16.value < -32768 || expected16.value > 32767 ? 6 : 0;
    }
    FUZZ_EXPECT(int16 == expected16, text, Describe(int16));

    // IsDigitText shortens its argument to the first character.
    QString shortened = text;
    int digit = -1;
    const int error = ErrorOf([&] { digit = IsDigitText(shortened); }, {5},
                              "IsDigitText raises only an invalid call", text);
    FUZZ_EXPECT(error == (text.isEmpty() ? 5 : 0), text, QString::number(error));
    if (!text.isEmpty()) {
        FUZZ_EXPECT(shortened == text.left(1), text, shortened);
        FUZZ_EXPECT(digit == (text[0] >= u'0' && text[0] <= u'9' ? 1 : 0), text,
                    QString::number(digit));
    }
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tavrin::fuzz::Check(tavrin::fuzz::TextOf(data, size));
    return 0;
}
