#include <gtest/gtest.h>

#include "quickcode/lathe_thread.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

// Major .5, 20 a unit, Z .1 to -.75, M24, auto passes and depth unless a
// row says otherwise; lines joined by "|".
QString Thread(Real xStart, bool metric = false, Real major = .5, Real tpu = 20, Real passes = 0) {
    BlockLabels labels;
    const QString text = LatheThreadProgram(
        {major, tpu, xStart, .1, -.75, "M24", metric, false, 0, passes != 0, passes}, labels);
    return QString(text).replace("\r\n", "|");
}

TEST(LatheThreadSolver, OutsideInsideAndMetric) {
    EXPECT_EQ(Thread(.6),
              "N10 G00 X0.6 Z0.1 M24|N15 G92 X0.4783 Z-0.75 F0.05|N20 X0.4693|"
              "N25 X0.4624|N30 X0.4566|N35 X0.4515|N40 X0.4469|N45 X0.4426|"
              "N50 X0.4387|N55 X0.4387 (CLEAN UP PASS)|N60 G00 X? Z?");
    const QString inside = Thread(.4);
    EXPECT_TRUE(inside.contains("|N15 G92 X0.465 Z-0.75 F0.05|N20 X0.4729|"));
    EXPECT_TRUE(inside.endsWith("|N50 X0.5|N55 X0.5 (CLEAN UP PASS)|N60 G00 X? Z?"));
    EXPECT_TRUE(Thread(.6, true, 12, 1.75).contains("|N15 G92 X0.4443 Z-0.75 F0.068898|"));
    // converted, the major equals X start: no depth, the inside program
    EXPECT_TRUE(Thread(.47244, true, 12, 1.75).contains("|N15 G92 X0.4724 Z-0.75 F0.068898|"));
    EXPECT_EQ(Thread(.6, false, .5, 20, 2.5).count('|'), 4) << "2.5 passes are two";
    EXPECT_EQ(Thread(.6, false, .5, 20, 3.5).count('|'), 6) << "3.5 passes are four";
    EXPECT_TRUE(
        Thread(.6, false, .5, 20, 1).endsWith("|N20 X0.4387 (CLEAN UP PASS)|N25 G00 X? Z?"));
    EXPECT_TRUE(Thread(.6, false, .5, -20, 8).contains(" F-0.05|"));
}

TEST(LatheThreadSolver, LabelsStayBeyondWhatIsWritten) {
    BlockLabels labels;
    labels[12] = "old ";
    LatheThreadProgram({.5, 20, .6, .1, -.75, "M24", false, false, 0, true, 2}, labels);
    EXPECT_EQ(labels[10] + labels[11] + labels[12] + QString::number(labels.next), "N55 old 3");
}

// The box shown, then the start of the answer; every refusal empties it.
TEST(LatheThread, ChecksRepairsAndFailuresByNumber) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"popSDT#1"}, "SDT cannot have a zero value.|"},
        {{"fldLT_Major=x"}, "Error, Major cannot have a zero value.|"},
        {{"fldLT_tpu=0"}, "Error, TPU cannot have a zero value.|"},
        {{"fldLT_zstart=+1"}, "Invalid data in Z Start field|"},
        {{"fldLT_zdist=1e2"}, "Invalid data in Z Distance field|"},
        {{"fldLT_xstart=.6."}, "Invalid data in X Start field|"},
        {{"fldLT_xstart=-.5"}, "Error, Thread size and X start cannot be equal.|"},
        {{"popPasses#1", "fld_passes="}, "Error number  11 Division by zero|"},
        {{"popPasses#1", "fld_passes=-3"}, "Error number  5 Invalid procedure call or argument|"},
        {{"popPasses#1", "fld_passes=293"}, "Error number  9 Subscript out of range|"},
        {{"popPasses#1", "fld_passes=32768"}, "Error number  6 Overflow|"},
        {{"popSDT#1", "Field1222=.01", "popMcode#1"},
         "|N10 G00 X0.6 Z0.1 M23\r\nN15 G92 X0.4929 Z-0.75 F0.05"},
        {{"fldLT_Major=-.5", "fldLT_xstart=", "fldLT_zstart="},
         "|N10 G00 X0.0 Z0.0 M24\r\nN15 G92 X0.465 Z-0.75 F0.05"},
    };
    for (const auto& [steps, answer] : rows) {
        testing::Harness h;
        Form& f = h.run("frmLatheThread", {"fldLT_Major=.5", "fldLT_tpu=20", "fldLT_xstart=.6",
                                           "fldLT_zstart=.1", "fldLT_zdist=-.75"});
        h.run("frmLatheThread", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("fldLT_Ans").section("\r\n", 0, 1), answer)
            << steps.join(' ');
    }
    testing::Harness h;
    Form& f = h.run("frmLatheThread", {"fldLT_Major=-.5", "fldLT_xstart=-.6", "popThdUnits#1"});
    EXPECT_EQ(h.lastBox().left(26), "For metric enter 12mm*1.75");
    h.run("frmLatheThread", {"Command1", "popPasses#1", "popSDT#1"});
    EXPECT_EQ(f.text("fldLT_Major") + f.text("fldLT_xstart") + f.text("fldLT_zdist"), ".5.60");
    EXPECT_TRUE(f.control("fld_passes").visible && f.control("Label1221").visible);
    h.run("frmLatheThread", {"popPasses#0"});
    EXPECT_FALSE(f.control("fld_passes").visible || f.control("Label1228").visible);
}

}  // namespace
}  // namespace tavrin
