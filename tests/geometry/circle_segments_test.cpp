#include <gtest/gtest.h>

#include "geometry/circle_segments.h"
#include "tests/geometry/calculated.h"

#pragma GCC diagnostic ignored "-Wmissing-field-initializers"  // a row names the two known sizes

// Expected figures worked in doubles, step by step, apart from the code: R 5,
// C 8, H 2, L 5.5 and A 70; a solver row gives the value or the refusal. The
// cells that the handler rows reach are not repeated here.
namespace tavrin {
namespace {

const QString kNo = "Error, Solution not possible with ";
const char* const kChordTooLong = "Error, Chord equal to or greater than two times the radius";
const char* const kHeightTooLong = "Error, Height equal to or greater than two times the radius";

TEST(CircleSegmentsSolver, EveryCell) {
    const std::tuple<int, SegmentKnown, double, QString> rows[] = {
        {FindChord, {.l = 5.5, .a = 70}, 5.164285578126637, ""},
        {FindChord, {.r = 5, .l = 5.5}, 5.226890333167944, ""},
        {FindChord, {.h = 2, .a = 70}, 12.686379209452795, ""},
        {FindChord, {.r = 5, .h = 10}, 0, ""},  // "less than": the whole diameter passes
        {FindChord, {.r = 5, .h = 10.5}, 0, "Error, Height greater than two times the radius."},
        {FindRadius, {.h = 2, .l = 5.5}, 0, kNo + "Arc Length and Height only."},
        {FindRadius, {.c = 8, .l = 5.5}, 0, kNo + "Arc Length and Chord only."},
        {FindRadius, {.l = 5.5, .a = 70}, 4.501828571428571, ""},
        {FindRadius, {.c = 8, .a = 70}, 6.973787182484398, ""},
        {FindRadius, {.h = 2, .a = 70}, 11.059013590377306, ""},
        {FindHeight, {.c = 8, .l = 5.5}, 0, kNo + "Arc Length and Chord Length only."},
        {FindHeight, {.c = 8, .a = 70}, 1.2611951555159324, ""},
        {FindHeight, {.r = 5, .l = 5.5}, 0.7373829211083391, ""},
        {FindHeight, {.l = 5.5, .a = 70}, 0.8141464941042642, ""},
        {FindHeight, {.r = 5, .c = 10}, 0, kChordTooLong},  // equality refused here
        {FindHeight, {.r = 5, .a = 70}, 0.9042397785550396, ""},
        {FindArc, {.c = 8, .a = 70}, 8.520088336741187, ""},
        {FindArc, {.r = 5, .c = 8}, 9.272952180016107, ""},
        {FindArc, {.c = 8, .h = 2}, 9.272952180016107, ""},
        {FindArc, {.r = 5, .h = 2}, 9.272952180016107, ""},
        {FindArc, {.r = 5, .h = 10}, 0, kHeightTooLong},
        {FindArc, {.h = 2, .a = 70}, 13.511133942241832, ""},
        {FindAngle, {.h = 2, .l = 5.5}, 0, kNo + "Arc Length and Height only."},
        {FindAngle, {.c = 8, .l = 5.5}, 0, kNo + "Arc Length and Chord Length only."},
        {FindAngle, {.r = 5, .c = 8}, 106.26020470831189, ""},
        {FindAngle, {.r = 5, .c = 10}, 0, QString(kChordTooLong) + "."},
        {FindAngle, {.c = 8, .h = 2}, 106.26020470831189, ""},
        {FindAngle, {.r = 5, .h = 2}, 106.26020470831189, ""},
        {FindAngle, {.r = 5, .h = 10}, 0, kHeightTooLong},
    };
    for (const auto& [sought, known, value, refusal] : rows) {
        const SegmentAnswer answer = SolveSegment(sought, known);
        EXPECT_EQ(std::pair(answer.value.value(), answer.refusal), std::pair(value, refusal));
    }
    // a chord tiny beside the radius leaves a height of exactly 0: the pole of the arc sine
    EXPECT_THROW(SolveSegment(FindAngle, {.r = 1000, .c = .000001}), RunTimeError);
}

TEST(CircleSegments, HandlerRows) {
    const std::pair<QStringList, QString> rows[] = {
        {{"txtRadius=5", "txtAng=60"}, "Chord Length=  5"},
        {{"popSeg#1", "txtRadius=8", "txtHeight=2"}, "Size of Radius=  5"},
        {{"popSeg#2", "txtRadius=5", "txtHeight=8"}, "Segment Height=  2"},
        {{"popSeg#3", "txtRadius=5", "txtHeight=60"}, "Length of Arc=  5.235"},
        {{"popSeg#4", "txtRadius=5", "txtHeight=5.236"}, "Angle=  60.0004"},
        {{"txtArc=1", "txtHeight=1"}, kNo + "Height and Arc Length only."},
        {{"popSeg#3", "txtAng=10", "txtRadius=5"}, kChordTooLong},
        {{"lblAnsSeg=earlier", "txtArc=1"}, "You must fill two data fields.earlier"},
        {{"lblAnsSeg=earlier", "txtArc=1", "txtAng=1", "txtRadius=1"},
         "Error, Only two data fields should be filled.earlier"},
        {{"lblAnsSeg=earlier", "txtArc=1", "txtAng= "},
         "Error, Values must be greater than zero.earlier"},
    };
    for (const auto& [steps, shown] : rows) {
        EXPECT_EQ(testing::Calculated("frmCircSegments", steps, {"lblAnsSeg"}), shown)
            << steps.join(' ');
    }
}

TEST(CircleSegments, CaptionsFollowTheSoughtAndTheFieldsStay) {
    testing::Harness h;
    Form& f = h.run("frmCircSegments", {"txtArc=1", "popSeg#3"});
    auto captions = [&f] {
        return f.caption("lblArc") + "|" + f.caption("lblAng") + "|" + f.caption("lblRadius") +
               "|" + f.caption("lblHeight");
    };
    EXPECT_EQ(captions() + f.text("txtArc"), "Height|Chord Length|Radius|Angle1");
    h.run("frmCircSegments", {"popSeg#2"});
    EXPECT_EQ(captions(), "Arc Length|Angle|Radius|Chord Length");
}

}  // namespace
}  // namespace tavrin
