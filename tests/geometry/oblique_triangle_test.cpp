#include <gtest/gtest.h>

#include "frame/numeric_text.h"
#include "geometry/oblique_triangle.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

const char* const kInvalid = "Error, Invalid Input";

// Sides to four places, angles to `anglePlaces`, the area to four.
QString Brief(const ObliqueTriangle& t, Real area, int anglePlaces) {
    const Real values[] = {t.a, t.b, t.c, t.A, t.B, t.C, area};
    QString text;
    for (int i = 0; i < 7; ++i) {
        text += NumToStr(RoundTo(values[i], i >= 3 && i <= 5 ? anglePlaces : 4));
    }
    return text;
}

// The solver's steps in the window's order: the triangle (its angles to seven
// places), then the second one after " |"; or the refusal.
QString Solved(ObliqueTriangle t) {
    Ambiguous pending;
    QString refusal = SolveOblique(t, pending);
    Real area;
    if (refusal.isEmpty()) {
        SolveFirstOfTwo(t, pending);
        refusal = MeasureOblique(t, "flat", area);
    }
    if (!refusal.isEmpty()) {
        return refusal;
    }
    const SecondSolution& s = pending.second;
    return Brief(t, area, 7) + (s.exists ? " |" + Brief(s.t, s.area, 4) : QString());
}

struct SolverRow {
    ObliqueTriangle known;  // a, b, c, A, B, C; 0 is unknown
    const char* solved;
    const char* guards = "";
};

TEST(ObliqueSolver, OneRowPerKnownTripleBranchAndMessage) {
    const SolverRow rows[] = {
        {{5, 0, 0, 40, 60, 0}, " 5 6.7365 7.6604 40 60 80 16.5853", "a A B"},
        {{5, 7, 0, 0, 0, 49}, " 5 7 5.2987 45.4116939 85.5883061 49 13.2074", "a b C"},
        {{7.5, 6.25, 4.125, 0, 0, 0}, " 7.5 6.25 4.125 90.190986 56.44221 33.366803 12.8906"},
        {{9, 0, 8, 40, 0, 0}, " 9 13.5146 8 40 105.1544105 34.8455895 34.7481", "a c A"},
        {{0, 4.5, 0, 0, 35, 95}, " 6.01 4.5 7.8157 50 35 95 13.4711", "b B C"},
        {{5, 6, 0, 0, 40, 0}, " 5 6 8.8968 32.3884338 40 107.6115662 14.2969", "a b B"},
        {{4, 0, 6, 0, 120, 0}, " 4 8.7178 6 23.4132244 120 36.5867756 10.3923", "a c B"},
        {{2.75, 0, 0, 0, 20, 30}, " 2.75 1.2278 1.7949 130 20 30 .8441", "a B C"},
        {{10, 0, 0, 100, 0, 79.5}, " 10 .0886 9.9842 100 .5 79.5 .4356", "a A C, B under 1"},
        {{5, 0, 6, 0, 0, 40}, " 5 8.8968 6 32.3884338 107.6115662 40 14.2969", "a c C"},
        {{0, 5, 7, 49, 0, 0}, " 5.2987 5 7 49 45.4116939 85.5883061 13.2074", "b c A"},
        {{0, 9, 8, 0, 40, 0}, " 13.5146 9 8 105.1544105 40 34.8455895 34.7481", "b c B"},
        {{0, 12, 0, 45, 45, 0}, " 12 12 16.9706 45 45 90 72", "b A B"},
        {{0, 12, 0, 70, 0, 50}, " 13.0208 12 10.6146 70 60 50 59.8469", "b A C"},
        {{0, 5, 6, 0, 0, 40}, " 8.8968 5 6 107.6115662 32.3884338 40 14.2969", "b c C"},
        {{0, 0, 3, 20, 30, 0}, " 1.3394 1.9581 3 20 30 130 1.0046", "c A B"},
        {{0, 0, 3, 20, 0, 30}, " 2.0521 4.5963 3 20 130 30 2.358", "c A C"},
        {{0, 0, 3, 0, 20, 30}, " 4.5963 2.0521 3 130 20 30 2.358", "c B C"},
        {{8, 8, 0, 40, 0, 0}, " 8 8 12.2567 40 40 100 31.5138", "equal sides: one triangle"},
        {{7.9, 8, 0, 100, 0, 0}, kInvalid, "a second triangle with no third angle"},
        {{0, 5, 0, 0, -10, 180}, kInvalid, "bBC guard, before the third angle"},
        {{5, 7, 0, 0, 0, 180}, kInvalid, "abC guard, before its cosine test"},
        {{5, 7, 0, 0, 0, 1E-7}, "Error, Invalid Input.", "abC cosine of 1"},
        {{2, 1, 0, 0, 0, 1E-7}, "Error, Invalid Input.", "abC cosine of -1"},
        {{5, 0, 7, 0, 180.5, 0}, kInvalid, "acB guard"},
        {{5, 0, 7, 0, 1E-7, 0}, kInvalid, "acB cosine of 1"},
        {{2, 0, 1, 0, 1E-7, 0}, kInvalid, "acB cosine of -1"},
        {{0, 5, 7, 180, 0, 0}, kInvalid, "bcA guard"},
        {{0, 5, 7, 1E-7, 0, 0}, "Error, Invalid Input.", "bcA cosine of 1"},
        {{0, 2, 1, 1E-7, 0, 0}, "Error, Invalid Input.", "bcA cosine of -1"},
        {{5, 0, 0, 100, 80, 0}, kInvalid, "no third angle left"},
        {{1, 2, 3, 0, 0, 0}, kInvalid, "three sides: cosine of 1"},
        {{2, 1, 1, 0, 0, 0}, kInvalid, "three sides: cosine of -1"},
        {{0, 1, 2, 1E-6, 0, 0}, "flat", "flat with the third side the longest"},
        {{5, 0, 0, 0, 0, 0}, "flat", "no known triple, as a packed 0 leaves"},
        {{.5, .75, .75, 0, 0, 0}, " .5 .75 .75 38.942441 70.528779 70.528779 .1768", "s of 1"},
    };
    for (const SolverRow& r : rows) {
        EXPECT_EQ(Solved(r.known), r.solved) << r.guards;
    }
}

TEST(ObliqueSolver, EachAmbiguousTripleSolvesBothAndGuardsItsAngleAndRatioStrictly) {
    // The mode's letters: the other side, the side facing the angle, the angle. Facing 6,
    // other 8, angle 40: both triangles, the facing side being short.
    const std::tuple<const char*, const char*, const char*> triples[] = {
        {"baA", kInvalid,
         " 6 8 9.2198 40 58.9869695 81.0130305 23.7054 | 6 8 3.037 40 121.013 18.987 7.8085"},
        {"caA", kInvalid,
         " 6 9.2198 8 40 81.0130305 58.9869695 23.7054 | 6 3.037 8 40 18.987 121.013 7.8085"},
        {"abB", "Invalid Input",
         " 8 6 9.2198 58.9869695 40 81.0130305 23.7054 | 8 6 3.037 121.013 40 18.987 7.8085"},
        {"acC", kInvalid,
         " 8 9.2198 6 58.9869695 81.0130305 40 23.7054 | 8 3.037 6 121.013 18.987 40 7.8085"},
        {"cbB", "Invalid Input",
         " 9.2198 6 8 81.0130305 40 58.9869695 23.7054 | 3.037 6 8 18.987 40 121.013 7.8085"},
        {"bcC", "Invalid Input",
         " 9.2198 8 6 81.0130305 58.9869695 40 23.7054 | 3.037 8 6 18.987 121.013 40 7.8085"},
    };
    for (const auto& [mode, refusal, both] : triples) {
        const auto known = [mode](Real facing, Real other, Real angle) {
            ObliqueTriangle t{};
            t[QChar(mode[0])] = other;
            t[QChar(mode[1])] = facing;
            t[QChar(mode[2])] = angle;
            return Solved(t);
        };
        EXPECT_EQ(known(6, 8, 40), both) << mode;
        // a ratio of exactly 1 or -1 never reaches the arc sine's pole
        EXPECT_EQ(known(8, 8, 90), refusal) << mode;
        EXPECT_EQ(known(8, -8, 90), refusal) << mode;
        EXPECT_EQ(known(8, 6, 180.5), kInvalid) << mode;
    }
}

struct HandlerRow {
    QStringList steps;
    QStringList said;  // every box, in order
    const char* box;   // what the answer box then holds, or one of its lines
};

TEST(Oblique, HandlerRows) {
    const QString fill = "Error, Please fill three data fields with values greater than zero.";
    const QString two = "There are two solutions possible, both will be calculated.";
    const QString overflow = "Run-time error '6':\r\n\r\nOverflow";
    const char* const calc = "Calculating...";
    const HandlerRow rows[] = {
        {{"txtO_Side_a=3", "txtO_Side_b=4"}, {fill}, calc},
        // a typed field worth 0 is caught by the second count
        {{"txtO_Side_a=3", "txtO_Side_b=4", "txtO_Side_c=5", "txtO_Angle_A=abc"}, {fill}, calc},
        {{"txtO_Angle_A=60", "txtO_Angle_B=60", "txtO_Angle_C=60"},
         {"Error, Three angles cannot be entered."},
         calc},
        // negative values count as filled; negative sides fail at the circumscribed circle
        {{"txtO_Side_a=-5", "txtO_Angle_A=40", "txtO_Angle_B=60"}, {kInvalid}, calc},
        {{"txtO_Side_a=1", "txtO_Side_b=2", "txtO_Angle_C=1E-6"}, {"invalid input"}, calc},
        {{"chkDMSObl", "txtO_Side_a=5", "txtO_Angle_A=22.0322", "txtO_Angle_B=60.15"},
         {},
         "Angle A DMS= 22°  3'  22\""},
        // a fatal after the message leaves its words in the box
        {{"txtO_Side_a=1.8E77", "txtO_Side_b=2.4E77", "txtO_Angle_A=40"},
         {two, overflow},
         "Calculating two solutions..."},
        {{"txtO_Side_a=1E300", "txtO_Angle_A=40", "txtO_Angle_B=60"}, {overflow}, calc},
    };
    for (const HandlerRow& row : rows) {
        Harness h;
        Form& f = h.run("frmOblique", row.steps + QStringList{"cmdOblCalc"});
        QStringList said;
        for (const auto& box : h.ui.shown) {
            said << box.text;
        }
        EXPECT_EQ(said, row.said) << row.steps.join(' ');
        EXPECT_TRUE(f.text("txtOblAns").split("\r\n").contains(row.box)) << row.steps.join(' ');
        // Only a refusal gives back the entries; a fatal leaves the answer layout.
        const bool refused = !said.isEmpty() && said.back() != two && said.back() != overflow;
        EXPECT_EQ(f.control("txtOblAns").visible, !refused) << row.steps.join(' ');
        EXPECT_EQ(f.control("cmdOblCalc").visible, refused) << row.steps.join(' ');
    }
}

TEST(Oblique, TheWholeAnswerOfOneTriangleAndOfTwo) {
    Harness h;
    h.app.decPlace = 3;  // the area alone follows it
    Form& f =
        h.run("frmOblique", {"txtO_Side_c=3", "txtO_Angle_A=20", "txtO_Angle_B=30", "cmdOblCalc"});
    EXPECT_EQ(f.text("txtOblAns"),
              "Side a=  1.3394\r\nSide b=  1.9581\r\nSide c=  3\r\nAngle A DD=  20\r\n"
              "Angle A DMS=  20°  0'  0\"\r\nAngle B DD=  30\r\nAngle B DMS=  30°  0'  0\"\r\n"
              "Angle C DD=  130\r\nAngle C DMS=  130°  0'  0\"\r\nArea=  1.005\r\n"
              "Perimeter=  6.2975\r\nInscribed CircleØ=  .6381\r\n"
              "Circumscribed CircleØ=  3.9162\r\n\r\n");
    h.app.decPlace = 4;
    h.run("frmOblique", {"cmdOblDone", "cmdOblClear", "txtO_Side_a=6", "txtO_Side_b=8",
                         "txtO_Angle_A=40", "cmdOblCalc"});
    EXPECT_TRUE(f.text("txtOblAns").contains("Angle B DD=  58.98697\r\n"));  // six places
    EXPECT_EQ(f.text("txtOblAns").section("\r\n\r\n", 1),
              "***Second Solution***\r\nSide a=  6\r\nSide b=  8\r\nSide c=  3.037\r\n"
              "Angle A DD=  40\r\nAngle A DMS=  40°  0'  0\"\r\nAngle B DD=  121.013\r\n"
              "Angle B DMS= 121°  0'  47\"\r\nAngle C=  18.987\r\n"
              "Angle C DMS= 18°  59'  13\"\r\nArea=  7.8085\r\nPerimeter=  17.037\r\n"
              "Inscribed CircleØ=  1.8333\r\nCircumscribed CircleØ=  9.3343");
}

TEST(Oblique, DoneGivesBackTheEntriesTheOtherDoneCloses) {
    Harness h;
    Form& f = h.run("frmOblique", {"chkDMSObl", "txtO_Side_a=3", "txtO_Side_b=4", "txtO_Side_c=5",
                                   "cmdOblCalc", "cmdOblDone"});
    EXPECT_TRUE(f.control("cmdOblCalc").visible && !f.control("txtOblAns").visible);
    EXPECT_EQ(f.text("txtOblAns") + f.text("txtO_Side_a") + f.text("txtO_Side_c"), "35");
    h.run("frmOblique", {"txtO_Angle_C=90", "cmdODone"});
    EXPECT_EQ(h.app.find("frmOblique"), nullptr);
}

}  // namespace
}  // namespace tavrin
