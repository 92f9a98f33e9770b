#include <gtest/gtest.h>

#include <tuple>

#include "frame/numeric_text.h"
#include "geometry/right_triangle.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

TEST(RightTriangleSolver, OneRowPerCaseAndRoundingEdge) {
    // Case, known values, places; a, b, c, Angle B, Angle C as the answer writes them.
    const std::tuple<int, double, double, int, const char*, const char*> rows[] = {
        {0, 5, 3, 4, " 5 3 4 36.869898 53.130102", "a & b: B by arc sine, C from B"},
        {1, 2, 1.15470125978212, 4, " 2.3094 2 1.15470125978212 59.999985 30.000015",
         "the arc tangent's constant to its last digit"},
        {2, 1.2345, 4, 4, " 4 3.8047 1.2345 72.023614 17.976386", "c & a"},
        {3, 30, 10, 4, " 10 5 8.6603 30 60", "B & a: the known angle unrounded"},
        {4, 12.5, 2, 3, " 9.24 2 9.021 12.5 77.5", "B & b: divides by sine and tangent"},
        {5, 55, 3.25, 4, " 5.6662 4.6415 3.25 55 35", "B & c"},
        {6, 62.75, 7, 4, " 7 3.2051 6.2231 27.25 62.75", "C & a"},
        {7, 35, 4, 4, " 4.8831 4 2.8008 55 35", "C & b"},
        {8, 35, 4, 4, " 6.9738 5.7126 4 55 35", "C & c"},
    };
    for (const auto& [index, one, two, decPlace, solved, guards] : rows) {
        const RightTriangle t = SolveRightTriangle(index, one, two, decPlace);
        EXPECT_EQ(
            NumToStr(t.a) + NumToStr(t.b) + NumToStr(t.c) + NumToStr(t.angleB) + NumToStr(t.angleC),
            solved)
            << guards;
    }
}

TEST(RightTriangleSolver, TheElevenAnswerLines) {
    EXPECT_EQ(RightTriangleAnswer(SolveRightTriangle(0, 7.25, 2.5, 4), 4),
              "side a=  7.25\r\nside b=  2.5\r\nside c=  6.8053\r\n"
              "Angle B= 20°  10'  17\"\r\nAngle C= 69°  49'  43\"\r\n"
              "Angle B=  20.171271 Dec. Deg.\r\nAngle C=  69.828729 Dec. Deg.\r\n"
              "Perimeter=  16.5553\r\nArea=  8.5066\r\n"
              "Inscribed CircleØ=  2.0553\r\nCircumscribed CircleØ=  7.25");
}

TEST(RightTriangle, HandlerRows) {
    const char* const notPositive = "Error, Values must be greater than zero";
    // The steps before Calculate; the message, or the answer's fourth line.
    const std::pair<QStringList, const char*> rows[] = {
        // an empty field is worth 0 and meets the sign test first
        {{"txtSideOne=", "txtSideTwo=3"}, notPositive},
        {{"txtSideOne=5", "txtSideTwo=0"}, notPositive},
        {{"txtSideOne=3", "txtSideTwo=3"}, "Error, Side a cannot be less than or equal to Side b."},
        {{"popSides#2", "txtSideOne=5", "txtSideTwo=5"},
         "Error, Side a cannot be less than or equal to Side c."},
        {{"popSides#3", "txtSideOne=90", "txtSideTwo=1"},
         "Error, Angle equal  or greater than 90 degrees"},
        // the packed angle is tested as typed and converted after
        {{"popSides#5", "chkDMS", "txtSideOne=89.6", "txtSideTwo=1"}, "Angle B=  90°  0'  0\""},
        {{"popSides#3", "chkDMS", "txtSideOne=30.3", "txtSideTwo=10"}, "Angle B= 30°  30'  0\""},
        // a side is never packed
        {{"chkDMS", "txtSideOne=7.25", "txtSideTwo=2.5"}, "Angle B= 20°  10'  17\""},
        // an angle of 1 passes; the area overflows after "Calculating..."
        {{"popSides#3", "txtSideOne=1", "txtSideTwo=1E304"}, "Run-time error '6':\r\n\r\nOverflow"},
    };
    for (const auto& [steps, expected] : rows) {
        Harness h;
        Form& f = h.run("frmTrig", steps + QStringList{"Command1"});
        const QString said = h.lastBox();
        const QString box = f.text("field2747");
        const bool answered = said.isEmpty();
        EXPECT_EQ(answered ? box.section("\r\n", 3, 3) : said, expected) << steps.join(' ');
        EXPECT_EQ(h.ui.shown.size(), answered ? 0U : 1U);
        EXPECT_EQ(f.control("field2747").visible, answered);
        EXPECT_EQ(f.control("txtSideOne").visible, !answered);
        // A fatal in the answer leaves its first word in the box.
        EXPECT_TRUE(answered || box == (said.startsWith("Run-time") ? "Calculating..." : ""));
    }
}

TEST(RightTriangle, CaptionsNameTheChosenPairAndDoneGivesBackTheEntries) {
    Harness h;
    Form& f = h.open("frmTrig");
    for (int i = 8; i >= 0; --i) {
        h.run("frmTrig", {"popSides#" + QString::number(i)});
        // "Angle B & side c" is captioned "B" and "c".
        const QStringList pair = f.listText("popSides").split(" & ");
        EXPECT_EQ(f.caption("lblSideOne") + f.caption("lblSideTwo"),
                  pair.value(0).right(1) + pair.value(1).right(1));
    }
    h.run("frmTrig", {"txtSideOne=5", "txtSideTwo=3", "Command1", "Command3"});
    EXPECT_FALSE(f.control("field2747").visible);
    EXPECT_TRUE(f.control("Command1").visible);
    EXPECT_EQ(f.text("field2747") + f.text("txtSideOne") + f.text("txtSideTwo"), "53");
    h.run("frmTrig", {"Command4"});
    EXPECT_EQ(h.app.find("frmTrig"), nullptr);
}

}  // namespace
}  // namespace tavrin
