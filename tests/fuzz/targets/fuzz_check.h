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
#define FUZZ_EXPECT(holds, input, got)                                                       \
    do {                                                                                     \
        if (!(holds)) {                                                                      \
            std::fprintf(stderr, "\nbroken: %s\n  input: \"%s\"\n  got:   \"%s\"\n", #holds, \
                         qUtf8Printable(input), qUtf8Printable(got));                        \
            std::abort();                                                                    \
        }                                                                                    \
    } while (false)

// Runs a step and gives the number of the run-time error it raised, 0 for
// none; a number outside `allowed` breaks the property. Any other exception
// leaves the target, and libFuzzer reports it.
template <typename Step>
int ErrorOf(Step&& step, std::initializer_list<int> allowed, const QString& input) {
    try {
        step();
    } catch (const RunTimeError& e) {
        for (int number : allowed) {
            if (e.code() == number) {
                return number;
            }
        }
        FUZZ_EXPECT(!"a numbered failure of this step", input, e.fatalText());
    }
    return 0;
}

// The whole text matches the pattern.
inline bool Matches(const QString& text, const QString& pattern) {
    return QRegularExpression(QStringLiteral("\\A(?:") + pattern + QStringLiteral(")\\z"))
        .match(text)
        .hasMatch();
}

// A finite double written in the C locale's plain form ("0x..." for exact
// bits), read by the standard library rather than by the code under test.
inline bool ReadDouble(const std::string& text, double& value) {
    const bool hex = text.rfind("0x", 0) == 0;
    const char* last = text.data() + text.size();
    const auto [end, ec] =
        std::from_chars(text.data() + (hex ? 2 : 0), last, value,
                        hex ? std::chars_format::hex : std::chars_format::general);
    return ec == std::errc() && end == last && std::isfinite(value);
}

}  // namespace tavrin::fuzz
