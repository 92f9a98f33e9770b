#include "frame/numeric_text.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tavrin {

namespace {

bool IsSkipped(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n';
}
bool IsDecimalDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}
bool IsOctalDigit(QChar c) {
    return c >= u'0' && c <= u'7';
}

int HexDigitValue(QChar c) {
    if (IsDecimalDigit(c)) {
        return c.unicode() - u'0';
    }
    const char16_t u = c.toUpper().unicode();
    if (u >= u'A' && u <= u'F') {
        return u - u'A' + 10;
    }
    return -1;
}

// The outcome of reading a number from the front of a text.
struct Scan {
    Real value;
    int end = 0;          // index of the first character not read
    bool digits = false;  // at least one digit of the number was read
};

// "&H1F", "&O17", "&17": a 16-bit pattern when short enough, else 32-bit.
Scan ScanRadix(const QString& s, int pos) {
    Scan scan;
    int i = pos + 1;
    int base = 8;
    if (i < s.size() && (s[i] == u'H' || s[i] == u'h')) {
        base = 16;
        ++i;
    } else if (i < s.size() && (s[i] == u'O' || s[i] == u'o')) {
        ++i;
    } else if (i >= s.size() || !IsOctalDigit(s[i])) {
        scan.end = pos;
        return scan;
    }
    std::uint64_t value = 0;
    int count = 0;
    bool tooLarge = false;
    for (; i < s.size(); ++i) {
        const int digit =
            base == 16 ? HexDigitValue(s[i]) : (IsOctalDigit(s[i]) ? s[i].unicode() - u'0' : -1);
        if (digit < 0) {
            break;
        }
        value = value * base + digit;
        if (value > 0xFFFFFFFFull) {
            tooLarge = true;
            value &= 0xFFFFFFFFFull;  // keep it bounded; the number is refused anyway
        }
        ++count;
    }
    scan.end = i;
    scan.digits = count > 0;
    if (tooLarge) {
        Raise(ErrorNumber::Overflow);
    }
    const bool short16 = base == 16 ? count <= 4 : (count <= 6 && value <= 0xFFFF);
    if (short16) {
        scan.value =
            static_cast<double>(static_cast<std::int16_t>(static_cast<std::uint16_t>(value)));
    } else {
        scan.value =
            static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
    }
    return scan;
}

// Sign, digits, one full stop, digits, then an exponent of E or D.
Scan ScanDecimal(const QString& s, int pos) {
    Scan scan;
    std::string text;
    int i = pos;
    if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) {
        text += static_cast<char>(s[i].unicode());
        ++i;
    }
    for (; i < s.size() && IsDecimalDigit(s[i]); ++i) {
        text += static_cast<char>(s[i].unicode());
        scan.digits = true;
    }
    if (i < s.size() && s[i] == u'.') {
        text += '.';
        for (++i; i < s.size() && IsDecimalDigit(s[i]); ++i) {
            text += static_cast<char>(s[i].unicode());
            scan.digits = true;
        }
    }
    if (!scan.digits) {
        scan.end = pos;
        return scan;
    }
    if (i < s.size() && QStringLiteral("EeDd").contains(s[i])) {
        int j = i + 1;
        std::string exponent = "e";
        if (j < s.size() && (s[j] == u'+' || s[j] == u'-')) {
            exponent += static_cast<char>(s[j].unicode());
            ++j;
        }
        const int firstDigit = j;
        for (; j < s.size() && IsDecimalDigit(s[j]); ++j) {
            exponent += static_cast<char>(s[j].unicode());
        }
        if (j > firstDigit) {
            text += exponent;
            i = j;
        }
    }
    scan.end = i;
    errno = 0;
    const double v = std::strtod(text.c_str(), nullptr);
    if (std::isinf(v)) {
        Raise(ErrorNumber::Overflow);
    }
    scan.value = v;
    return scan;
}

Scan ScanNumber(const QString& s, int pos) {
    if (pos < s.size() && s[pos] == u'&') {
        return ScanRadix(s, pos);
    }
    return ScanDecimal(s, pos);
}

// x to 15 significant digits, correctly rounded (exact ties go to the even
// digit): the 15 digits, and the decimal exponent of the first.
struct Digits15 {
    std::string digits;
    int exponent = 0;
};

Digits15 ToDigits15(double magnitude) {
    // The digits of printf's "%.14e", without its locale and its heap: long
    // programs write two numbers a line.
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific, 14);
    const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t e = std::min(text.find('e'), text.size());
    Digits15 d;
    d.digits.push_back(text.front());
    for (std::size_t i = 2; i < e; ++i) {
        d.digits.push_back(text[i]);
    }
    if (e + 2 < text.size()) {
        std::from_chars(text.data() + e + 2, text.data() + text.size(), d.exponent);
        d.exponent = text[e + 1] == '-' ? -d.exponent : d.exponent;
    }
    return d;
}

QString ExponentText(int exponent) {
    QString t = QString::number(std::abs(exponent));
    if (t.size() < 2) {
        t.prepend(u'0');
    }
    return (exponent < 0 ? QStringLiteral("E-") : QStringLiteral("E+")) + t;
}

// The body of NumToStr and NumToText; the caller adds the sign or its column.
QString DoubleMagnitudeText(double magnitude, bool zeroBeforePoint) {
    if (magnitude == 0.0) {
        return QStringLiteral("0");
    }
    Digits15 d = ToDigits15(magnitude);
    while (d.digits.size() > 1 && d.digits.back() == '0') {
        d.digits.pop_back();
    }
    const int k = static_cast<int>(d.digits.size());
    const int e = d.exponent;
    const bool fixed = (e >= 0 && e <= 14) || (e < 0 && k - e - 1 <= 15);
    if (!fixed) {
        QString t = QString::fromLatin1(d.digits.substr(0, 1));
        if (k > 1) {
            t += u'.' + QString::fromLatin1(d.digits.substr(1));
        }
        return t + ExponentText(e);
    }
    if (e >= 0) {
        std::string whole = d.digits.substr(0, std::min(k, e + 1));
        whole.append(static_cast<std::size_t>(std::max(0, e + 1 - k)), '0');
        const std::string fraction = k > e + 1 ? d.digits.substr(e + 1) : std::string();
        QString t = QString::fromLatin1(whole);
        if (!fraction.empty()) {
            t += u'.' + QString::fromLatin1(fraction);
        }
        return t;
    }
    const std::string fraction = std::string(static_cast<std::size_t>(-e - 1), '0') + d.digits;
    return (zeroBeforePoint ? QStringLiteral("0.") : QStringLiteral(".")) +
           QString::fromLatin1(fraction);
}

bool IsTrulyNegative(double x) {
    return x < 0.0;
}

}  // namespace

Real ValOf(const QString& text) {
    QString s;
    s.reserve(text.size());
    for (QChar c : text) {
        if (!IsSkipped(c)) {
            s += c;
        }
    }
    const Scan scan = ScanNumber(s, 0);
    return scan.digits ? scan.value : Real(0.0);
}

Real RoundTo(Real x, int n) {
    if (n < 0) {
        Raise(ErrorNumber::InvalidCall);
    }
    const Real scale = std::pow(10.0, n);
    const Real y = x * scale;
    const double whole = std::nearbyint(y.value());
    // A whole number has no sign: zero comes back as +0.
    if (whole == 0.0) {
        return Real(0.0);
    }
    return Real(whole) / scale;
}

QString NumToStr(Real x) {
    const double v = x.value();
    const QString body = DoubleMagnitudeText(std::fabs(v), false);
    return (IsTrulyNegative(v) ? QStringLiteral("-") : QStringLiteral(" ")) + body;
}

QString NumToStr(double x) {
    return NumToStr(Real(x));
}

QString NumToStr(int x) {
    return (x < 0 ? QStringLiteral("-") : QStringLiteral(" ")) +
           QString::number(std::abs(static_cast<long long>(x)));
}

QString NumToText(Real x) {
    const double v = x.value();
    const QString body = DoubleMagnitudeText(std::fabs(v), true);
    return IsTrulyNegative(v) ? QStringLiteral("-") + body : body;
}

QString NumToText(double x) {
    return NumToText(Real(x));
}

QString NumToText(int x) {
    return QString::number(x);
}

QString FormatNum(Real x, const QString& pattern) {
    const double v = x.value();
    const int point = pattern.indexOf(u'.');
    const QStringView front = point < 0 ? QStringView(pattern) : QStringView(pattern).left(point);
    const QStringView back = point < 0 ? QStringView() : QStringView(pattern).mid(point + 1);
    const int places = static_cast<int>(back.size());
    const int forcedBack = static_cast<int>(back.lastIndexOf(u'0')) + 1;

    // Whole and fraction digits of the 15-digit value.
    std::string whole;
    std::string fraction;
    if (v != 0.0) {
        const Digits15 d = ToDigits15(std::fabs(v));
        const int e = d.exponent;
        if (e >= 0) {
            whole = d.digits.substr(0, std::min<std::size_t>(d.digits.size(), e + 1));
            whole.append(static_cast<std::size_t>(std::max(0, e + 1 - 15)), '0');
            if (e + 1 < 15) {
                fraction = d.digits.substr(e + 1);
            }
        } else {
            fraction = std::string(static_cast<std::size_t>(-e - 1), '0') + d.digits;
        }
    }
    // Round the digit string to the places of the pattern, half away from zero.
    fraction.resize(std::max<std::size_t>(fraction.size(), places + 1), '0');
    const bool roundUp = fraction[places] >= '5';
    fraction.resize(places);
    if (roundUp) {
        std::string all = whole + fraction;
        int i = static_cast<int>(all.size()) - 1;
        for (; i >= 0 && all[i] == '9'; --i) {
            all[i] = '0';
        }
        if (i < 0) {
            all.insert(all.begin(), '1');
        } else {
            ++all[i];
        }
        whole = all.substr(0, all.size() - places);
        fraction = all.substr(all.size() - places);
    }
    whole.erase(0, whole.find_first_not_of('0'));
    if (whole.empty() && front.contains(u'0')) {
        whole.assign(1, '0');
    }
    // "#" places behind the point show only up to the last significant digit.
    int shown = places;
    while (shown > forcedBack && fraction[shown - 1] == '0') {
        --shown;
    }
    std::string t = IsTrulyNegative(v) ? "-" : "";
    t += whole;
    if (shown > 0 || forcedBack > 0) {
        t += '.';
        t.append(fraction, 0, static_cast<std::size_t>(shown));
    }
    return QString::fromLatin1(t);
}

std::int16_t IsNumberText(const QString& text) {
    int stops = 0;
    int minuses = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c != u'.' && c != u'-' && !IsDecimalDigit(c)) {
            return 0;
        }
        if (c == u'.' && ++stops == 2) {
            return 0;
        }
        if (c == u'-' && ++minuses == 2) {
            return 0;
        }
        if (c == u'-' && i != 0) {
            return 0;
        }
    }
    return 1;
}

std::int16_t IsDigitText(QString& text) {
    text = text.left(1);
    if (text.isEmpty()) {
        Raise(ErrorNumber::InvalidCall);
    }
    const char16_t code = text[0].unicode();
    return code >= 48 && code <= 57 ? 1 : 0;
}

Real StrictNumber(const QString& text) {
    const QString s = text.trimmed();
    const Scan scan = ScanNumber(s, 0);
    if (!scan.digits || scan.end != s.size()) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return scan.value;
}

std::int16_t StrictInt16(const QString& text) {
    return ToInt16(StrictNumber(text));
}

QString NumToStr(const QString& numberText) {
    return NumToStr(StrictNumber(numberText));
}

}  // namespace tavrin
