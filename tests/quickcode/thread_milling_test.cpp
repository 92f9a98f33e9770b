#include <gtest/gtest.h>

#include "quickcode/thread_milling.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

// X, Y, Z start, depth, major, tool, pitch, feed; tool type, thread type, "N" numbers.
TEST(ThreadMillSolver, OneWholeProgramPerLayout) {
    const struct {
        ThreadMillJob job;
        QStringList lines;
    } layouts[] = {
        // Q is 0.015625 written away from zero, and line 4 sums that text
        {{0, 0, .1, .5, 1, .5, .0625, 5, 0, 0, false},
         {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X1.0", "G01 G90 Z-0.35937 F5.0",
          "G01 G91 G41 Y0.25", "G03 X-0.25 Y-0.25 Z-0.01563 I0.0 J-0.25", "G02 Z-0.0625 I-0.75",
          "G02 Z-0.0625 I-0.75", "G03 X0.25 Y-0.25 Z-0.01563 I0.25 J0.0", "G01 G40 Y0.25",
          "G00 G90 Z0.1", "X0.0 Y0.0"}},
        // From here on a seventh place of 49 or so goes up twice: to six places, then five
        {{1.25, -2.5, .1, .75, .500098, .3750082, .0500196, 12.5, 0, 1, true},
         {"N10 G00 G90 X1.25 Y-2.5", "N15 Z0.1", "N20 G00 G91 X0.02501", "N25 G01 G90 Z-0.75 F12.5",
          "N30 G01 G91 G41 Y-0.03754", "N35 G03 X0.03754 Y0.03754 Z0.01251 I0.0 J0.03754",
          "N40 G03 Z0.05002 I-0.06255", "N45 G03 Z0.05002 I-0.06255",
          "N50 G03 X-0.03754 Y0.03754 Z0.01251 I-0.03754 J0.0", "N55 G01 G40 Y-0.03754",
          "N60 G00 G90 X1.25 Y-2.5", "N65 Z0.1"}},
        // D / P + 1 is 4.54: five turns, where a first rounding to 4.5 would give four
        {{0, 0, .1, .4426131, 1, .5000098, .1250196, 5, 1, 0, false},
         {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X1.00001", "G01 G90 Z0.21375 F5.0",
          "G01 G91 G41 Y0.25001", "G03 X-0.25001 Y-0.25001 Z-0.03126 I0.0 J-0.25001",
          "G02 Z-0.12502 I-0.75001", "G02 Z-0.12502 I-0.75001", "G02 Z-0.12502 I-0.75001",
          "G02 Z-0.12502 I-0.75001", "G02 Z-0.12502 I-0.75001",
          "G03 X0.25001 Y-0.25001 Z-0.03126 I0.25001 J0.0", "G01 G40 Y0.25001", "G00 G90 Z0.1",
          "X0.0 Y0.0"}},
        {{-1, 2, 1, .4375, .625, .4999902, .0625, 7.5, 1, 1, true},
         {"N10 G00 G90 X-1.0 Y2.0", "N15 Z1.0", "N20 G00 G91 X0.03125", "N25 G01 G90 Z-0.4375 F7.5",
          "N30 G01 G91 G41 Y-0.03126", "N35 G03 X0.03126 Y0.03126 Z0.01563 I0.0 J0.03126",
          "N40 G03 Z0.0625 I-0.06251", "N45 G03 Z0.0625 I-0.06251", "N50 G03 Z0.0625 I-0.06251",
          "N55 G03 Z0.0625 I-0.06251", "N60 G03 Z0.0625 I-0.06251", "N65 G03 Z0.0625 I-0.06251",
          "N70 G03 Z0.0625 I-0.06251", "N75 G03 Z0.0625 I-0.06251",
          "N80 G03 X-0.03126 Y0.03126 Z0.01563 I-0.03126 J0.0", "N85 G01 G40 Y-0.03126",
          "N90 G00 G90 X-1.0 Y2.0", "N95 Z1.0"}},
    };
    for (const auto& layout : layouts) {
        BlockLabels labels;
        EXPECT_EQ(ThreadMillProgram(layout.job, labels).program, layout.lines.join("\r\n"));
    }
    BlockLabels labels;
    EXPECT_TRUE(ThreadMillProgram({0, 0, .1, .5000049, 1, .5000049, .125, 5, 0, 0, false}, labels)
                    .program.contains("G00 G91 X1.00001\r\nG01 G90 Z-0.21876 F5.0"));
}

// What a run ends in: its refusal, the lines of its program, or the failure.
QString Outcome(const ThreadMillJob& job, BlockLabels& labels) {
    try {
        const ThreadMillAnswer answer = ThreadMillProgram(job, labels);
        const qsizetype lines = answer.program.count("\r\n") + 1;
        return answer.refusal + (answer.program.isEmpty() ? "" : QString("%1 lines").arg(lines));
    } catch (const RunTimeError& e) {
        return e.text();
    }
}

TEST(ThreadMillSolver, OutcomeRows) {
    const char* const kTooLarge = "Error, Tool Diameter greater than 90% of Major.";
    const struct {
        ThreadMillJob job;
        const char* outcome;
        const char* fault;
    } rows[] = {
        // Ten lines beside the turns
        {{0, 0, .1, .4375, 1, .5, .125, 5, 1, 0, false}, "14 lines", "D / P 3.5: 4.5 turns to 4"},
        {{0, 0, .1, .5625, 1, .5, .125, 5, 1, 0, false}, "16 lines", "D / P 4.5: 5.5 turns to 6"},
        {{0, 0, .1, .5, 1, .9, .125, 5, 0, 1, false}, "12 lines", "a tool of 90% passes"},
        {{0, 0, .1, .5, 1, .9000001, .125, 5, 1, 1, true}, kTooLarge, "above 90%"},
        {{0, 0, .1, 281, 1, .5, 1, 5, -1, 0, false}, "", "a typed tool: twelve labels, no program"},
        {{0, 0, .1, 280, 1, .5, 1, 5, 1, 0, false}, "291 lines", "D / P 280: up to label 300"},
        {{0, 0, .1, 281, 1, 3, 1, 5, 0, 0, true}, "12 lines", "hob: 12 labels, no limit outside"},
        {{0, 0, .1, 281, 1, .95, 1, 5, 1, 1, false}, "Subscript out of range", "label 301, first"},
        {{0, 0, .1, 281, 1E308, 1E308, 1, 5, 1, 0, false}, "Overflow", "derived texts first"},
        {{0, 0, .1, -289, 1, .5, 1, -5, 1, 0, false}, "300 lines", "a flipped depth: label 300"},
        {{0, 0, .1, -290, 1, .5, 1, -5, 1, 0, false}, "Subscript out of range", "behind the run"},
        {{0, 0, .1, -295, 1, .5, 1, -5, 1, 0, false}, "Subscript out of range", "in the run"},
        {{0, 0, .1, 40000, 1, .5, 1, 5, 1, 0, false}, "Overflow", "Int(D / P + 20) in 16 bits"},
    };
    for (const auto& row : rows) {
        BlockLabels labels;
        EXPECT_EQ(Outcome(row.job, labels), row.outcome) << row.fault;
    }
}

TEST(ThreadMillSolver, TheLabelTableCarriesOverBetweenRuns) {
    BlockLabels labels;
    // 17 turns, numbered: labels 1 to 36 written; then a typed thread type
    // writes no program but empties 1 to 12 all the same.
    ThreadMillProgram({0, 0, .1, 1, 1, .5, .0625, 5, 1, 0, true}, labels);
    EXPECT_EQ(ThreadMillProgram({0, 0, .1, 1, 1, .5, .0625, 5, 0, -1, false}, labels).program, "");
    // A depth of -1 writes Int(-16 + 20) = 4 labels; from label 13 on the
    // turns take the numbers of the first run.
    const QStringList lines =
        ThreadMillProgram({0, 0, .1, -1, 1, .5, .0625, -5, 1, 0, false}, labels)
            .program.split("\r\n");
    ASSERT_EQ(lines.size(), 27);
    EXPECT_EQ(lines[3], "G01 G90 Z0.07813 F-5.0");
    EXPECT_EQ(lines[11], "G02 Z-0.0625 I-0.75");
    EXPECT_EQ(lines[12], "N70 G02 Z-0.0625 I-0.75");
    EXPECT_EQ(lines[26], "N140 X0.0 Y0.0");
}

const char* const kFields[] = {"fld_TM_Xpos",  "fld_TM_Ypos",    "fld_TM_ZStart", "fld_TM_Depth",
                               "fld_TM_Major", "fld_TM_ToolDia", "fld_TM_Pitch",  "fld_TM_Feed"};

// "X|Y|Z start|depth|major|tool|pitch|feed|more steps" run on the window.
Form& Mill(testing::Harness& h, const QString& steps) {
    QStringList all = steps.split('|');
    for (int i = 0; i < 8; ++i) {
        all[i] = QString(kFields[i]) + "=" + all[i];
    }
    return h.run("frmThdMill", all);
}

QString Fields(const Form& f) {
    QStringList texts;
    for (const char* name : kFields) {
        texts << f.text(name);
    }
    return texts.join('|');
}

TEST(ThreadMilling, HandlerRows) {
    const struct {
        const char* steps;
        const char* said;             // the message, or the start of the program
        const char* after = nullptr;  // the fields afterwards when repaired
    } rows[] = {
        {"1a|y|z|0|0|0|0|0", "Invalid data in X Pos field"},
        {"|+2|z|-1|0|0|0|0", "Invalid data in Y Pos field"},
        {"|| .1|-1|0|0|0|0", "Invalid data in Z Start field"},
        {"|-0||-.5|-1|-.5|0|0", "Error, pitch cannot have a zero value.", "0|0|0|.5|1|.5|0|0"},
        {"1|2|.1|abc|1|.5|-.0625|5", "Error, depth cannot have a zero value.",
         "1|2|.1|abc|1|.5|.0625|5"},
        {"1|2|.1|.5|0||.0625|", "Error, Tool Diameter cannot have a zero value."},
        {"1|2|.1|.5|x|.5|.0625|0", "Error, Major cannot have a zero value."},
        {"1|2|.1|-.25|1|.5|.0625|0", "Error, Feedrate should not have a zero value.",
         "1|2|.1|.25|1|.5|.0625|0"},
        {"0|0|.1|.5|1|.91|.125|5|popTM_Thread#1",
         "Error, Tool Diameter greater than 90% of Major."},
        {"0|0|.1|.5|1|.5|.125|-5|popTM_Tool#1|Checkbox1208",
         "N10 G00 G90 X0.0 Y0.0\r\nN15 Z0.1\r\nN20 G00 G91 X1.0\r\nN25 G01 G90 Z0.15625 F-5.0\r\n",
         "0|0|.1|-.5|1|.5|.125|-5"},
        {"0|0|.1|.5|1|.5|.125|5|popTM_Thread=Ext.", "Calculating..."},
    };
    for (const auto& row : rows) {
        testing::Harness h;
        Form& f = Mill(h, row.steps + QString("|Command1"));
        if (h.ui.messageTexts().isEmpty()) {
            EXPECT_TRUE(f.text("fld_TM_Answer").startsWith(row.said)) << row.steps;
        } else {
            EXPECT_EQ(h.ui.messageTexts(), QStringList{row.said}) << row.steps;
            EXPECT_EQ(f.text("fld_TM_Answer"), "") << row.steps;
        }
        EXPECT_EQ(Fields(f), row.after ? row.after : QString(row.steps).section('|', 0, 7))
            << row.steps;
    }
}

TEST(ThreadMilling, LoadsWithTheFirstItemsAndClearAllLeavesTheChoices) {
    testing::Harness h;
    Form& f = h.open("frmThdMill");
    EXPECT_EQ(f.title() + f.text("popTM_Tool") + f.text("popTM_Thread"),
              "Thread MillingHob-MillExt.");
    h.run("frmThdMill", {"popTM_Tool#1", "popTM_Thread#1", "Command2"});
    EXPECT_EQ(f.text("popTM_Tool") + f.text("popTM_Thread"), "Single Pt.Int.");
}

}  // namespace
}  // namespace tavrin
