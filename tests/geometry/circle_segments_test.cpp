#include <gtest/gtest.h>

#include "geometry/circle_segments.h"
#include "tests/geometry/calculated.h"

// Expected figures worked in doubles, step by step, apart from the code: R 5,
// C 8, H 2, L 5.5 and A 70 unless a row says otherwise. The cells that the
// handler rows reach are not repeated here.
namespace tavrin {
namespace {

// The known pair: two of the letters R, C, H, L and A with their values.
SegmentKnown Known(const char* letters, double one, double two) {
    SegmentKnown k;
    for (const auto& [letter, value] : {std::pair(letters[0], one), std::pair(letters[1], two)}) {
        (letter == 'R'   ? k.r
         : letter == 'C' ? k.c
         : letter == 'H' ? k.h
         : letter == 'L' ? k.l
                         : k.a) = value;
    }
    return k;
}

struct SolverRow {
    int sought;
    const char* letters;
    double one, two;
    double value;
    const char* refusal;  // or empty
};

const char* const kChordTooLong = "Error, Chord equal to or greater than two times the radius";
const char* const kHeightTooLong = "Error, Height equal to or greater than two times the radius";

TEST(CircleSegmentsSolver, EveryCell) {
    const SolverRow rows[] = {
        {FindChord, "HL", 2, 5.5, 0,
         "Error, Solution not possible with Height and Arc Length only."},
        {FindChord, "LA", 5.5, 70, 5.164285578126637, ""},
        {FindChord, "RL", 5, 5.5, 5.226890333167944, ""},
        {FindChord, "HA", 2, 70, 12.686379209452795, ""},
        {FindChord, "RH", 5, 2, 8, ""},
        {FindChord, "RH", 5, 10, 0, ""},  // "less than": the whole diameter passes
        {FindChord, "RH", 5, 10.5, 0, "Error, Height greater than two times the radius."},
        {FindRadius, "HL", 2, 5.5, 0,
         "Error, Solution not possible with Arc Length and Height only."},
        {FindRadius, "CL", 8, 5.5, 0,
         "Error, Solution not possible with Arc Length and Chord only."},
        {FindRadius, "LA", 5.5, 70, 4.501828571428571, ""},
        {FindRadius, "CA", 8, 70, 6.973787182484398, ""},
        {FindRadius, "HA", 2, 70, 11.059013590377306, ""},
        {FindHeight, "CL", 8, 5.5, 0,
         "Error, Solution not possible with Arc Length and Chord Length only."},
        {FindHeight, "CA", 8, 70, 1.2611951555159324, ""},
        {FindHeight, "RL", 5, 5.5, 0.7373829211083391, ""},
        {FindHeight, "LA", 5.5, 70, 0.8141464941042642, ""},
        {FindHeight, "RC", 5, 10, 0, kChordTooLong},  // equality refused here
        {FindHeight, "RA", 5, 70, 0.9042397785550396, ""},
        {FindArc, "CA", 8, 70, 8.520088336741187, ""},
        {FindArc, "RC", 5, 8, 9.272952180016107, ""},
        {FindArc, "RC", 5, 10, 0, kChordTooLong},
        {FindArc, "CH", 8, 2, 9.272952180016107, ""},
        {FindArc, "RH", 5, 2, 9.272952180016107, ""},
        {FindArc, "RH", 5, 10, 0, kHeightTooLong},
        {FindArc, "HA", 2, 70, 13.511133942241832, ""},
        {FindAngle, "HL", 2, 5.5, 0,
         "Error, Solution not possible with Arc Length and Height only."},
        {FindAngle, "CL", 8, 5.5, 0,
         "Error, Solution not possible with Arc Length and Chord Length only."},
        {FindAngle, "RC", 5, 8, 106.26020470831189, ""},
        {FindAngle, "RC", 5, 10, 0, "Error, Chord equal to or greater than two times the radius."},
        {FindAngle, "CH", 8, 2, 106.26020470831189, ""},
        {FindAngle, "RH", 5, 2, 106.26020470831189, ""},
        {FindAngle, "RH", 5, 7, 227.15635695640373, ""},  // above the radius, past 180
        {FindAngle, "RH", 5, 10, 0, kHeightTooLong},
    };
    for (const SolverRow& row : rows) {
        const SegmentAnswer answer = SolveSegment(row.sought, Known(row.letters, row.one, row.two));
        EXPECT_EQ(answer.refusal, row.refusal) << row.sought << " " << row.value;
        if (answer.refusal.isEmpty()) {
            EXPECT_EQ(answer.value.value(), row.value) << row.sought << " " << row.refusal;
        }
    }
    // a chord tiny beside the radius leaves a height of exactly 0: the pole of the arc sine
    EXPECT_THROW(SolveSegment(FindAngle, Known("RC", 1000, .000001)), RunTimeError);
}

TEST(CircleSegments, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtRadius=5", "txtAng=60"}, "Chord Length=  5"},
        {{"popSeg#1", "txtRadius=8", "txtHeight=2"}, "Size of Radius=  5"},
        {{"popSeg#2", "txtRadius=5", "txtHeight=8"}, "Segment Height=  2"},
        {{"popSeg#3", "txtRadius=5", "txtHeight=60"}, "Length of Arc=  5.235"},
        {{"popSeg#4", "txtRadius=5", "txtHeight=5.236"}, "Angle=  60.0004"},
        {{"txtRadius=-5", "txtAng=60"}, "Chord Length= -5"},
        {{"txtArc=1", "txtHeight=1"},
         "Error, Solution not possible with Height and Arc Length only."},
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
