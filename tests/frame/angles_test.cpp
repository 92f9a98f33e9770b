#include <gtest/gtest.h>

#include <tuple>

#include "frame/angles.h"
#include "tests/frame/raises.h"

namespace tavrin {
namespace {

TEST(DmsText, PacksAndUnpacksDegreesMinutesSeconds) {
    const auto toDd = DmsTextToDd;
    const auto toDms = DdToDmsText;
    const std::tuple<QString (*)(const QString&), const char*, QString, const char*> rows[] = {
        {toDd, "22.3", " 22.5", "one digit is tens of minutes"},
        {toDd, "22.032", " 22.055556", "three digits end in tens of seconds"},
        {toDd, "22.", " 22", "a point at the end: degrees only"},
        {toDd, "1e2", " 100", "no point: the whole text is read"},
        {toDd, "22.6000", " 23", "minutes above 59 stand"},
        {toDd, "22.032299", " 22.056111", "minutes and seconds to six places, the rest ignored"},
        {toDd, "22.3 ", " 22.05", "the tail is trimmed to measure, the 0 goes at the very end"},
        {toDd, "-22.3", "-21.5", "the sign stays with the degrees"},
        {toDms, "22.056111", "22°  3'  22\"", "seconds rounded; NumToStr's blank after each blank"},
        {toDms, "22.", "22°  0'  0\"", "a point at the end is dropped"},
        {toDms, " .5", "0°  30'  0\"", "blank degree digits are 0"},
        {toDms, "10.99999", "10°  59'  60\"", "no carry of 60 seconds"},
        {toDms, "-007.25", "-007°  15'  0\"", "the degrees and their sign as typed"},
        {toDms, " 5 .5", "5°  30'  0\"", "blanks around the degrees are trimmed"},
        {toDms, "1.3499999999999999", "1°  21'  0\"", "minutes split by their 15-digit text"},
    };
    for (const auto& [convert, entry, expected, guards] : rows) {
        EXPECT_EQ(convert(entry), expected) << entry << ": " << guards;
    }
}

TEST(DegreeHelpers, UseTheShortPiInTheirOrderAndFailAtThePoles) {
    const std::tuple<const char*, double, double> rows[] = {
        {"Negate", Negate(2.5).value(), -2.5},
        {"Square", Square(1.5).value(), 2.25},
        {"SquareOfText reads by ValOf", SquareOfText("3in").value(), 9},
        {"PercentOf", PercentOf(250, 12).value(), 30},
        {"SinDeg(30)", SinDeg(30).value(), 0.49999999999999956},
        {"CosDeg(90) is not 0 with the short pi", CosDeg(90).value(), 1.6155445744325867e-15},
        {"TanDeg(90) is huge, no failure", TanDeg(90).value(), 618986325617924.2},
        {"AtanDeg uses its own constant", AtanDeg(1).value(), 44.999999999999986},
        {"ArcSinDeg(0.5)", ArcSinDeg(0.5).value(), 30.000000000000032},
        {"ArcCosDeg(-0.5)", ArcCosDeg(-0.5).value(), 120.00000000000011},
        {"ArcSinDeg(1) divides by zero", ErrorOf([] { ArcSinDeg(1); }), 11},
        {"ArcCosDeg(-1) divides by zero", ErrorOf([] { ArcCosDeg(-1); }), 11},
        {"ArcSinDeg beyond 1 is an invalid root", ErrorOf([] { ArcSinDeg(1.0000001); }), 5},
        {"ArcCosDeg beyond -1 is an invalid root", ErrorOf([] { ArcCosDeg(-2); }), 5},
        {"Negate adds before it subtracts", ErrorOf([] { Negate(1e308); }), 6},
    };
    for (const auto& [what, got, expected] : rows) {
        EXPECT_EQ(got, expected) << what;
    }
}

}  // namespace
}  // namespace tavrin
