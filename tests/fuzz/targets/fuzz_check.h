#pragma once

// What the libFuzzer targets share: the input as text, a broken property
// reported with the input that broke it, and the numbered failures a step may
// raise.

#include <QRegularExpression>
#include <QString>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include "frame/run_time_error.h"

namespace tavrin::fuzz {

inline QString TextOf(const std::uint8_t* data, std::size_t size) {
    return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

// Aborts, so that libFuzzer keeps the input as a crash file.
[[noreturn]] inline void Broken(const char* property, const QString& input, const QString& got) {
    std::fprintf(stderr, "\nbroken: %s\n  input: \"%s\"\n  got:   \"%s\"\n", property,
                 qUtf8Printable(input), qUtf8Printable(got));
    std::abort();
}

#define FUZZ_EXPECT(holds, input, got)                  \
    do {                                                \
        if (!(holds)) {                                 \
            ::tavrin::fuzz::Broken(#holds, input, got); \
        }                                               \
    } while (false)

// Runs a step and gives the number of the run-time error it raised, 0 for
// none; a number outside `allowed` is a broken property. Any other exception
// leaves the target, and libFuzzer reports it.
template <typename Step>
int ErrorOf(Step&& step, std::initializer_list<int> allowed, const char* what,
            const QString& input) {
    try {
        step();
    } catch (const RunTimeError& e) {
        for (int number : allowed) {
            if (e.code() == number) {
                return number;
            }
        }
        Broken(what, input, e.fatalText());
    }
    return 0;
}

// The whole text matches the pattern (anchored at both ends; "$" alone would
// let a final line feed through).
inline bool Matches(const QString& text, const QString& pattern) {
    const QRegularExpression re(QStringLiteral("\\A(?:") + pattern + QStringLiteral(")\\z"));
    return re.match(text).hasMatch();
}

// A double written in the C locale's plain form, read by the standard library
// rather than by the code under test; false when the text is none or not finite.
inline bool ReadDouble(const std::string& text, double& value) {
    const char* first = text.data();
    const char* last = first + text.size();
    auto format = std::chars_format::general;
    if (text.rfind("0x", 0) == 0) {  // hexadecimal, for exact bit patterns
        first += 2;
        format = std::chars_format::hex;
    }
    const auto [end, ec] = std::from_chars(first, last, value, format);
    return ec == std::errc() && end == last && std::isfinite(value);
}

// The 15 significant digits of |x| and the exponent of the first, from printf
// (the C library's correctly rounded conversion, ties to even).
struct Digits {
    std::string digits;
    int exponent = 0;
};
inline Digits FifteenDigits(double x) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(x));
    Digits d;
    const std::string text(buffer);
    d.digits = text.substr(0, 1) + text.substr(2, 14);
    d.exponent = std::atoi(text.c_str() + text.find('e') + 1);
    return d;
}

}  // namespace tavrin::fuzz
