#include <gtest/gtest.h>

#include "quickcode/lathe_drill.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

// X 1, Z start .1, feed .004, R plane .05, chip clear .02; lines joined by "|".
QString Drill(int cycle, Real depth, Real peck, Real zStart = .1, Real percent = 0,
              Real minPeck = 0) {
    const QString text =
        LatheDrillProgram({1, zStart, depth, .004, .05, peck, .02, percent, minPeck, cycle}, [] {});
    return QString(text).replace("\r\n", "|");
}

TEST(LatheDrillSolver, EachCycleBlockByBlock) {
    const char* const head = "N10 G00 X1.0 Z0.15|N15 Z0.12|";
    EXPECT_EQ(Drill(0, .5, .2), QString(head) +
                                    "N20 G01 Z-0.1 F0.004|N25 G00 Z-0.08|N30 G01 Z-0.3 F0.004|"
                                    "N35 G00 Z-0.28|N40 G01 Z-0.4 F0.004|N45 G00 Z0.15|");
    EXPECT_EQ(Drill(1, .5, .2), QString(head) +
                                    "N20 G01 Z-0.1 F0.004|N25 G00 Z0.15|N30 Z-0.08|"
                                    "N35 G01 Z-0.3 F0.004|N40 G00 Z0.15|N45 Z-0.28|"
                                    "N50 G01 Z-0.4 F0.004|N55 G00 Z0.15|");
    // one peck and a remainder: the last two share a number
    EXPECT_TRUE(Drill(0, .75, .5).endsWith("N30 G01 Z-0.65 F0.004|N30 G00 Z0.15|"));
    EXPECT_TRUE(Drill(0, .4, .2).endsWith("N30 G01 Z-0.3 F0.004|N40 G00 Z0.15|"));  // clean
    EXPECT_TRUE(Drill(1, .4, .2).endsWith("N35 G01 Z-0.3 F0.004|N40 G00 Z0.15|"));
    EXPECT_TRUE(Drill(0, .2, .5).endsWith("N20 G01 Z-0.1 F0.004|N25 G00 Z0.15|"));  // Q to D
    EXPECT_EQ(Drill(-1, .5, .2), head);              // a typed cycle writes the approach only
    EXPECT_THROW(Drill(0, 4000, .1), RunTimeError);  // 40000 pecks
}

TEST(LatheDrillSolver, PercentPecksShrinkToTheMinimumAndEndAtTheDepth) {
    EXPECT_EQ(Drill(2, .5, .2, 0, 50, .05),
              "N10 G00 X1.0 Z0.05|N15 Z0.02|N20 G01 Z-0.2 F0.004|N25 G00 Z0.05|N30 Z-0.18|"
              "N35 G01 Z-0.3 F0.004|N40 G00 Z0.05|N45 Z-0.28|N50 G01 Z-0.35 F0.004|"
              "N55 G00 Z0.05|N60 Z-0.33|N65 G01 Z-0.4 F0.004|N70 G00 Z0.05|N75 Z-0.38|"
              "N80 G01 Z-0.45 F0.004|N85 G00 Z0.05|N90 Z-0.43|N95 G01 Z-0.5 F0.004|"
              "N100 G00 Z0.05|");
    EXPECT_EQ(Drill(2, .5, .5, 0, 50, .05).count('|'), 4);  // one peck to the depth, out
    // 150 percent: pecks grow, and the last one stops at the bottom
    EXPECT_TRUE(Drill(2, .5, .2, 0, 150, .05).endsWith("N35 G01 Z-0.5 F0.004|N40 G00 Z0.05|"));
}

TEST(LatheDrillSolver, StripNTakesEveryWordFromItsN) {
    // Either case; an N inside a word cuts its tail; no blank after: the rest goes.
    EXPECT_EQ(StripN("X0.4387 (CLEAN UP PASS) n5 G01 END"), "X0.4387 (CLEAUP PASS) G01 E");
}

// A program was written ("earlier"); the box shown, then what the answer holds.
TEST(LatheDrill, ChecksRepairsAndQuestions) {
    const QStringList job{"fldx_start=1",   "fldz_start=.1",         "fldz_depth=.5",
                          "fldq_peck=.2",   "fld_chipclearance=.02", "fld_feedrate=.004",
                          "fldr_plane=.05", "popDrillType#2",        "fldPer_peck=50",
                          "fldMinPeck=.05"};
    const std::pair<QStringList, const char*> rows[] = {
        {{"fldx_start=1a"}, "Invalid data in X Start field|"},
        {{"fld_chipclearance=+1"}, "Invalid data in Chip Clear Start field|"},
        {{"fldz_start=1 "}, "Invalid data in Z Start field|"},
        {{"fldr_plane=0"}, "Error, R Plane cannot have a zero value.|"},
        {{"fldz_depth=x"}, "Error, Z depth cannot have a zero value.|"},
        {{"fldq_peck="}, "Error, peck cannot have a zero value.|"},
        {{"fld_feedrate=-0"}, "Error, feedrate should not have a zero value.|"},
        {{"fldMinPeck=0"}, "Error, Minimum peck value must be greater than zero.|"},
        {{"fldPer_peck=49.9"}, "Error, Percent peck value must be 50% or greater.|"},
        {{"fldMinPeck=.25"}, "Error, Minimum peck cannot be greater than Q Peck.|"},
        {{"fldMinPeck=.02"}, "Minimum peck value is less than .03, is this correct?|"},
        {{"fldMinPeck=.02", "yes"},
         "Minimum peck value is less than .03, is this correct?|N10 G00 X1.0 Z0.15"},
        {{"popDrillType#0", "fldMinPeck=0"}, "|N10 G00 X1.0 Z0.15"},  // only the percent cycle
    };
    for (const auto& [steps, answer] : rows) {
        testing::Harness h;
        Form& f = h.run("frmLatheDrill", job);
        QStringList typed = steps;
        h.ui.answers.push_back(typed.removeAll("yes") > 0);
        h.run("frmLatheDrill", typed + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("fld_lathe_drill_ans").left(18), answer)
            << steps.join(' ');
    }
    testing::Harness h;
    Form& f =
        h.run("frmLatheDrill", job + QStringList{"popDrillType#0", "fldz_start=", "fldMinPeck=-.04",
                                                 "fld_feedrate=-.004", "Command1"});
    EXPECT_EQ(f.text("fldz_start") + '|' + f.text("fldq_peck") + '|' + f.text("fldMinPeck"),
              "0|.04|-.04")
        << "repaired into the peck field, the last one winning";
    EXPECT_TRUE(f.text("fld_lathe_drill_ans").contains(" F-0.004\r\n"));
    h.run("frmLatheDrill", {"popDrillType#2"});
    EXPECT_EQ(f.focus(), "fldPer_peck");
    h.run("frmLatheDrill", {"popDrillType#1"});
    EXPECT_EQ(f.text("fldMinPeck") + f.text("fldPer_peck"), "");
    EXPECT_FALSE(f.control("fldMinPeck").visible || f.control("Label1189").visible);
    h.run("frmLatheDrill", {"Command3", "Command3"});
    EXPECT_TRUE(f.text("fld_lathe_drill_ans").startsWith("G00 X1.0 Z0.05\r\nZ0.02\r\n"));
}

}  // namespace
}  // namespace tavrin
