#include <gtest/gtest.h>

#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

struct ThreadCase {
    const char* x;
    const char* y;
    const char* z;
    const char* depth;
    const char* major;
    const char* tool;
    const char* pitch;
    const char* feed;
    int toolType;    // 0 hob mill, 1 single point
    int threadType;  // 0 external, 1 internal
    bool numbered;
    QStringList lines;
};

void Fill(Harness& h, Form& f, const ThreadCase& c) {
    h.set(f, "fld_TM_Xpos", c.x);
    h.set(f, "fld_TM_Ypos", c.y);
    h.set(f, "fld_TM_ZStart", c.z);
    h.set(f, "fld_TM_Depth", c.depth);
    h.set(f, "fld_TM_Major", c.major);
    h.set(f, "fld_TM_ToolDia", c.tool);
    h.set(f, "fld_TM_Pitch", c.pitch);
    h.set(f, "fld_TM_Feed", c.feed);
    h.app.userSelect(f, "popTM_Tool", c.toolType);
    h.app.userSelect(f, "popTM_Thread", c.threadType);
    if (f.value("Checkbox1208") != c.numbered) {
        h.click(f, "Checkbox1208");
    }
}

class ThreadMillingPrograms : public ::testing::TestWithParam<ThreadCase> {};

TEST_P(ThreadMillingPrograms, WritesEveryLineInOrder) {
    const ThreadCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmThdMill");
    Fill(h, f, c);
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.messages.empty()) << h.ui.messageTexts().join('|').toStdString();
    EXPECT_TRUE(h.ui.fatals.empty());
    EXPECT_EQ(f.text("fld_TM_Answer").split("\r\n"), c.lines);
    // CR LF between lines, none behind the last
    EXPECT_EQ(f.text("fld_TM_Answer"), c.lines.join("\r\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Table, ThreadMillingPrograms,
    ::testing::Values(
        // the worked example: Q rounds away from zero
        ThreadCase{
            "0",
            "0",
            ".1",
            ".5",
            "1",
            ".5",
            ".0625",
            "5",
            0,
            0,
            false,
            {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X1.0", "G01 G90 Z-0.35937 F5.0",
             "G01 G91 G41 Y0.25", "G03 X-0.25 Y-0.25 Z-0.01563 I0.0 J-0.25", "G02 Z-0.0625 I-0.75",
             "G02 Z-0.0625 I-0.75", "G03 X0.25 Y-0.25 Z-0.01563 I0.25 J0.0", "G01 G40 Y0.25",
             "G00 G90 Z0.1", "X0.0 Y0.0"}},
        // numbered from N10 by fives
        ThreadCase{"0",
                   "0",
                   ".1",
                   ".5",
                   "1",
                   ".5",
                   ".0625",
                   "5",
                   0,
                   0,
                   true,
                   {"N10 G00 G90 X0.0 Y0.0", "N15 Z0.1", "N20 G00 G91 X1.0",
                    "N25 G01 G90 Z-0.35937 F5.0", "N30 G01 G91 G41 Y0.25",
                    "N35 G03 X-0.25 Y-0.25 Z-0.01563 I0.0 J-0.25", "N40 G02 Z-0.0625 I-0.75",
                    "N45 G02 Z-0.0625 I-0.75", "N50 G03 X0.25 Y-0.25 Z-0.01563 I0.25 J0.0",
                    "N55 G01 G40 Y0.25", "N60 G00 G90 Z0.1", "N65 X0.0 Y0.0"}},
        // internal hob mill
        ThreadCase{"1.25",
                   "-2.5",
                   ".1",
                   ".75",
                   ".5",
                   ".375",
                   ".05",
                   "12.5",
                   0,
                   1,
                   true,
                   {"N10 G00 G90 X1.25 Y-2.5", "N15 Z0.1", "N20 G00 G91 X0.025",
                    "N25 G01 G90 Z-0.75 F12.5", "N30 G01 G91 G41 Y-0.0375",
                    "N35 G03 X0.0375 Y0.0375 Z0.0125 I0.0 J0.0375", "N40 G03 Z0.05 I-0.0625",
                    "N45 G03 Z0.05 I-0.0625", "N50 G03 X-0.0375 Y0.0375 Z0.0125 I-0.0375 J0.0",
                    "N55 G01 G40 Y-0.0375", "N60 G00 G90 X1.25 Y-2.5", "N65 Z0.1"}},
        // five turns
        ThreadCase{
            "0",
            "0",
            ".1",
            ".5",
            "1",
            ".5",
            ".125",
            "5",
            1,
            0,
            false,
            {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X1.0", "G01 G90 Z0.15625 F5.0",
             "G01 G91 G41 Y0.25", "G03 X-0.25 Y-0.25 Z-0.03125 I0.0 J-0.25", "G02 Z-0.125 I-0.75",
             "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75",
             "G03 X0.25 Y-0.25 Z-0.03125 I0.25 J0.0", "G01 G40 Y0.25", "G00 G90 Z0.1",
             "X0.0 Y0.0"}},
        // eight turns, numbered
        ThreadCase{
            "3",
            "4",
            ".25",
            ".6",
            ".75",
            ".5",
            ".0833",
            "8",
            1,
            0,
            true,
            {"N10 G00 G90 X3.0 Y4.0", "N15 Z0.25", "N20 G00 G91 X0.875",
             "N25 G01 G90 Z0.08723 F8.0", "N30 G01 G91 G41 Y0.25",
             "N35 G03 X-0.25 Y-0.25 Z-0.02083 I0.0 J-0.25", "N40 G02 Z-0.0833 I-0.625",
             "N45 G02 Z-0.0833 I-0.625", "N50 G02 Z-0.0833 I-0.625", "N55 G02 Z-0.0833 I-0.625",
             "N60 G02 Z-0.0833 I-0.625", "N65 G02 Z-0.0833 I-0.625", "N70 G02 Z-0.0833 I-0.625",
             "N75 G02 Z-0.0833 I-0.625", "N80 G03 X0.25 Y-0.25 Z-0.02083 I0.25 J0.0",
             "N85 G01 G40 Y0.25", "N90 G00 G90 Z0.25", "N95 X3.0 Y4.0"}},
        // internal single point
        ThreadCase{
            "-1",
            "2",
            "1",
            ".4375",
            ".625",
            ".5",
            ".0625",
            "7.5",
            1,
            1,
            true,
            {"N10 G00 G90 X-1.0 Y2.0", "N15 Z1.0", "N20 G00 G91 X0.03125",
             "N25 G01 G90 Z-0.4375 F7.5", "N30 G01 G91 G41 Y-0.03125",
             "N35 G03 X0.03125 Y0.03125 Z0.01563 I0.0 J0.03125", "N40 G03 Z0.0625 I-0.0625",
             "N45 G03 Z0.0625 I-0.0625", "N50 G03 Z0.0625 I-0.0625", "N55 G03 Z0.0625 I-0.0625",
             "N60 G03 Z0.0625 I-0.0625", "N65 G03 Z0.0625 I-0.0625", "N70 G03 Z0.0625 I-0.0625",
             "N75 G03 Z0.0625 I-0.0625", "N80 G03 X-0.03125 Y0.03125 Z0.01563 I-0.03125 J0.0",
             "N85 G01 G40 Y-0.03125", "N90 G00 G90 X-1.0 Y2.0", "N95 Z1.0"}},
        // a tool of exactly 90% passes
        ThreadCase{"0",
                   "0",
                   ".1",
                   ".5",
                   "1",
                   ".9",
                   ".125",
                   "5",
                   0,
                   1,
                   false,
                   {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X0.05", "G01 G90 Z-0.5 F5.0",
                    "G01 G91 G41 Y-0.0", "G03 X0.0 Y0.0 Z0.03125 I0.0 J0.0", "G03 Z0.125 I-0.05",
                    "G03 Z0.125 I-0.05", "G03 X-0.0 Y0.0 Z0.03125 I-0.0 J0.0", "G01 G40 Y-0.0",
                    "G00 G90 X0.0 Y0.0", "Z0.1"}},
        // a negative feed flips the depth
        ThreadCase{"0",
                   "0",
                   ".1",
                   ".5",
                   "1",
                   ".5",
                   ".125",
                   "-5",
                   0,
                   1,
                   false,
                   {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X0.05", "G01 G90 Z0.5 F-5.0",
                    "G01 G91 G41 Y-0.2", "G03 X0.2 Y0.2 Z0.03125 I0.0 J0.2", "G03 Z0.125 I-0.25",
                    "G03 Z0.125 I-0.25", "G03 X-0.2 Y0.2 Z0.03125 I-0.2 J0.0", "G01 G40 Y-0.2",
                    "G00 G90 X0.0 Y0.0", "Z0.1"}},
        // negative entries become positive
        ThreadCase{"0",
                   "0",
                   ".1",
                   "-.5",
                   "-1",
                   "-.5",
                   "-.125",
                   "5",
                   0,
                   0,
                   true,
                   {"N10 G00 G90 X0.0 Y0.0", "N15 Z0.1", "N20 G00 G91 X1.0",
                    "N25 G01 G90 Z-0.21875 F5.0", "N30 G01 G91 G41 Y0.25",
                    "N35 G03 X-0.25 Y-0.25 Z-0.03125 I0.0 J-0.25", "N40 G02 Z-0.125 I-0.75",
                    "N45 G02 Z-0.125 I-0.75", "N50 G03 X0.25 Y-0.25 Z-0.03125 I0.25 J0.0",
                    "N55 G01 G40 Y0.25", "N60 G00 G90 Z0.1", "N65 X0.0 Y0.0"}},
        // D / P 3.5: 4.5 turns tie to 4
        ThreadCase{"0",
                   "0",
                   ".1",
                   ".4375",
                   "1",
                   ".5",
                   ".125",
                   "5",
                   1,
                   0,
                   false,
                   {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X1.0", "G01 G90 Z0.09375 F5.0",
                    "G01 G91 G41 Y0.25", "G03 X-0.25 Y-0.25 Z-0.03125 I0.0 J-0.25",
                    "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75",
                    "G02 Z-0.125 I-0.75", "G03 X0.25 Y-0.25 Z-0.03125 I0.25 J0.0", "G01 G40 Y0.25",
                    "G00 G90 Z0.1", "X0.0 Y0.0"}},
        // D / P 4.5: 5.5 turns tie to 6
        ThreadCase{
            "0",
            "0",
            ".1",
            ".5625",
            "1",
            ".5",
            ".125",
            "5",
            1,
            0,
            false,
            {"G00 G90 X0.0 Y0.0", "Z0.1", "G00 G91 X1.0", "G01 G90 Z0.21875 F5.0",
             "G01 G91 G41 Y0.25", "G03 X-0.25 Y-0.25 Z-0.03125 I0.0 J-0.25", "G02 Z-0.125 I-0.75",
             "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75", "G02 Z-0.125 I-0.75",
             "G02 Z-0.125 I-0.75", "G03 X0.25 Y-0.25 Z-0.03125 I0.25 J0.0", "G01 G40 Y0.25",
             "G00 G90 Z0.1", "X0.0 Y0.0"}}));

struct RefusalCase {
    ThreadCase fields;
    const char* message;
    // The fields after the message: the repairs made before it stay.
    QStringList after;  // X, Y, Z Start, Depth, Major, Tool, Pitch, Feed
};

class ThreadMillingRefusals : public ::testing::TestWithParam<RefusalCase> {};

const char* const kFields[] = {"fld_TM_Xpos",  "fld_TM_Ypos",    "fld_TM_ZStart", "fld_TM_Depth",
                               "fld_TM_Major", "fld_TM_ToolDia", "fld_TM_Pitch",  "fld_TM_Feed"};

TEST_P(ThreadMillingRefusals, ShowsTheMessageAndEmptiesTheProgram) {
    const RefusalCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmThdMill");
    Fill(h, f, ThreadCase{"0", "0", ".1", ".5", "1", ".5", ".0625", "5", 0, 0, false, {}});
    h.click(f, "Command1");
    ASSERT_FALSE(f.text("fld_TM_Answer").isEmpty());
    Fill(h, f, c.fields);
    h.click(f, "Command1");
    EXPECT_EQ(h.ui.messageTexts(), QStringList{c.message});
    EXPECT_EQ(h.ui.messages[0].title, "Program Message");
    EXPECT_EQ(f.text("fld_TM_Answer"), "");
    QStringList after;
    for (const char* name : kFields) {
        after << f.text(name);
    }
    EXPECT_EQ(after, c.after);
    EXPECT_TRUE(h.ui.fatals.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, ThreadMillingRefusals,
    ::testing::Values(
        RefusalCase{{"1a", "y", "z", "0", "0", "0", "0", "0", 0, 0, false, {}},
                    "Invalid data in X Pos field",
                    {"1a", "y", "z", "0", "0", "0", "0", "0"}},
        RefusalCase{{"", "+2", "z", "-1", "0", "0", "0", "0", 0, 0, false, {}},
                    "Invalid data in Y Pos field",
                    {"", "+2", "z", "-1", "0", "0", "0", "0"}},
        RefusalCase{{"", "", " .1", "-1", "0", "0", "0", "0", 0, 0, false, {}},
                    "Invalid data in Z Start field",
                    {"", "", " .1", "-1", "0", "0", "0", "0"}},
        // Positions fill with "0", negatives turn positive, then pitch comes first
        RefusalCase{{"", "-0", "", "-.5", "-1", "-.5", "0", "0", 0, 0, false, {}},
                    "Error, pitch cannot have a zero value.",
                    {"0", "0", "0", ".5", "1", ".5", "0", "0"}},
        RefusalCase{{"1", "2", ".1", "abc", "1", ".5", "-.0625", "5", 0, 0, false, {}},
                    "Error, depth cannot have a zero value.",
                    {"1", "2", ".1", "abc", "1", ".5", ".0625", "5"}},
        RefusalCase{{"1", "2", ".1", ".5", "0", "", ".0625", "", 0, 0, false, {}},
                    "Error, Tool Diameter cannot have a zero value.",
                    {"1", "2", ".1", ".5", "0", "", ".0625", ""}},
        RefusalCase{{"1", "2", ".1", ".5", "x", ".5", ".0625", "0", 0, 0, false, {}},
                    "Error, Major cannot have a zero value.",
                    {"1", "2", ".1", ".5", "x", ".5", ".0625", "0"}},
        RefusalCase{{"1", "2", ".1", "-.25", "1", ".5", ".0625", "0", 0, 0, false, {}},
                    "Error, Feedrate should not have a zero value.",
                    {"1", "2", ".1", ".25", "1", ".5", ".0625", "0"}},
        // A negative depth turns positive, then the negative feed flips it back
        RefusalCase{{"1", "2", ".1", "-.25", "1", "0", ".0625", "-5", 0, 0, false, {}},
                    "Error, Tool Diameter cannot have a zero value.",
                    {"1", "2", ".1", "-.25", "1", "0", ".0625", "-5"}},
        RefusalCase{{"0", "0", ".1", ".5", "1", ".91", ".125", "5", 0, 1, false, {}},
                    "Error, Tool Diameter greater than 90% of Major.",
                    {"0", "0", ".1", ".5", "1", ".91", ".125", "5"}},
        RefusalCase{{"0", "0", ".1", ".5", "1", ".9000001", ".125", "5", 1, 1, true, {}},
                    "Error, Tool Diameter greater than 90% of Major.",
                    {"0", "0", ".1", ".5", "1", ".9000001", ".125", "5"}}));

TEST(ThreadMilling, AnExternalThreadHasNoToolLimit) {
    Harness h;
    Form& f = h.open("frmThdMill");
    Fill(h, f, ThreadCase{"0", "0", ".1", ".5", "1", "3", ".125", "5", 0, 0, false, {}});
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_TRUE(
        f.text("fld_TM_Answer").startsWith("G00 G90 X0.0 Y0.0\r\nZ0.1\r\nG00 G91 X3.5\r\n"));
}

TEST(ThreadMilling, TheLabelTableCarriesOverBetweenRuns) {
    Harness h;
    Form& f = h.open("frmThdMill");
    // 17 turns, numbered: labels 1 to 36 are written, the program uses 27.
    Fill(h, f, ThreadCase{"0", "0", ".1", "1", "1", ".5", ".0625", "5", 1, 0, true, {}});
    h.click(f, "Command1");
    const QStringList first = f.text("fld_TM_Answer").split("\r\n");
    ASSERT_EQ(first.size(), 27);
    EXPECT_EQ(first.back(), "N140 X0.0 Y0.0");
    EXPECT_EQ(h.app.blockLabels[36], "N185 ");
    EXPECT_EQ(h.app.blockLabels.next, 28);
    // The hob mill, box clear: labels 1 to 12 are emptied, the rest stay.
    Fill(h, f, ThreadCase{"0", "0", ".1", "1", "1", ".5", ".0625", "5", 0, 0, false, {}});
    h.click(f, "Command1");
    const QStringList second = f.text("fld_TM_Answer").split("\r\n");
    ASSERT_EQ(second.size(), 12);
    EXPECT_EQ(second.front(), "G00 G90 X0.0 Y0.0");
    EXPECT_EQ(second.back(), "X0.0 Y0.0");
    EXPECT_EQ(h.app.blockLabels[12], "");
    EXPECT_EQ(h.app.blockLabels[13], "N70 ");
    // A negative feed makes the depth -1: only Int(-16 + 20) = 4 labels are
    // written, and the turns take the labels of the first run.
    Fill(h, f, ThreadCase{"0", "0", ".1", "1", "1", ".5", ".0625", "-5", 1, 0, false, {}});
    h.click(f, "Command1");
    EXPECT_EQ(f.text("fld_TM_Depth"), "-1");
    QStringList expected{"G00 G90 X0.0 Y0.0", "Z0.1",
                         "G00 G91 X1.0",      "G01 G90 Z0.07813 F-5.0",
                         "G01 G91 G41 Y0.25", "G03 X-0.25 Y-0.25 Z-0.01563 I0.0 J-0.25"};
    for (int i = 0; i < 6; ++i) {
        expected << "G02 Z-0.0625 I-0.75";
    }
    for (int number = 70; number <= 120; number += 5) {
        expected << "N" + QString::number(number) + " G02 Z-0.0625 I-0.75";
    }
    expected << "N125 G03 X0.25 Y-0.25 Z-0.01563 I0.25 J0.0"
             << "N130 G01 G40 Y0.25"
             << "N135 G00 G90 Z0.1"
             << "N140 X0.0 Y0.0";
    EXPECT_EQ(f.text("fld_TM_Answer").split("\r\n"), expected);
    // The table belongs to the program, not to the window.
    h.app.userClose(f);
    EXPECT_EQ(h.app.blockLabels[13], "N70 ");
}

struct FatalCase {
    const char* depth;
    const char* pitch;
    const char* feed;
    int toolType;
    bool numbered;
    const char* fatal;  // empty: the program is written
};

class ThreadMillingLabelLimit : public ::testing::TestWithParam<FatalCase> {};

TEST_P(ThreadMillingLabelLimit, MoreThan300LabelsIsFatal) {
    const FatalCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmThdMill");
    Fill(h, f,
         ThreadCase{
             "0", "0", ".1", c.depth, "1", ".5", c.pitch, c.feed, c.toolType, 0, c.numbered, {}});
    h.click(f, "Command1");
    if (*c.fatal == '\0') {
        EXPECT_TRUE(h.ui.fatals.empty());
        EXPECT_TRUE(f.text("fld_TM_Answer").startsWith("G00") ||
                    f.text("fld_TM_Answer").startsWith("N10 G00"));
        return;
    }
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, QString::fromLatin1(c.fatal));
    EXPECT_EQ(f.text("fld_TM_Answer"), "Calculating...");
    EXPECT_TRUE(h.app.ended());
}

INSTANTIATE_TEST_SUITE_P(
    Table, ThreadMillingLabelLimit,
    ::testing::Values(
        // D / P 280: 300 labels, 281 turns
        FatalCase{"280", "1", "5", 1, true, ""}, FatalCase{"280", "1", "5", 1, false, ""},
        // D / P 281: label 301
        FatalCase{"281", "1", "5", 1, false, "Run-time error '9':\r\n\r\nSubscript out of range"},
        FatalCase{"28.1", ".1", "5", 1, true, "Run-time error '9':\r\n\r\nSubscript out of range"},
        // The hob mill needs 12 labels whatever the depth
        FatalCase{"281", "1", "5", 0, true, ""},
        // A flipped depth writes no labels; the turns and the lines behind
        // them reach label 300 at D / P 289
        FatalCase{"289", "1", "-5", 1, false, ""},
        FatalCase{"290", "1", "-5", 1, false, "Run-time error '9':\r\n\r\nSubscript out of range"},
        FatalCase{"295", "1", "-5", 1, false, "Run-time error '9':\r\n\r\nSubscript out of range"},
        // Int(D / P + 20) beyond 16 bits
        FatalCase{"40000", "1", "5", 1, false, "Run-time error '6':\r\n\r\nOverflow"}));

TEST(ThreadMilling, TheLongestSinglePointProgram) {
    Harness h;
    Form& f = h.open("frmThdMill");
    Fill(h, f, ThreadCase{"0", "0", ".1", "280", "1", ".5", "1", "5", 1, 0, true, {}});
    h.click(f, "Command1");
    const QStringList lines = f.text("fld_TM_Answer").split("\r\n");
    ASSERT_EQ(lines.size(), 291);
    EXPECT_EQ(lines[3], "N25 G01 G90 Z1.25 F5.0");
    EXPECT_EQ(lines[6], "N40 G02 Z-1.0 I-0.75");
    EXPECT_EQ(lines[286], "N1440 G02 Z-1.0 I-0.75");
    EXPECT_EQ(lines[290], "N1460 X0.0 Y0.0");
    EXPECT_EQ(h.app.blockLabels[300], "N1505 ");
}

TEST(ThreadMilling, ATypedThreadTypeSelectsNoProgram) {
    Harness h;
    Form& f = h.open("frmThdMill");
    Fill(h, f, ThreadCase{"0", "0", ".1", ".5", "1", ".5", ".125", "5", 0, 0, true, {}});
    h.set(f, "popTM_Thread", "Ext.");
    EXPECT_EQ(f.listIndex("popTM_Thread"), -1);
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_EQ(f.text("fld_TM_Answer"), "Calculating...");
    // The labels were written all the same.
    EXPECT_EQ(h.app.blockLabels[12], "N65 ");
}

TEST(ThreadMilling, LoadsWithTheFirstItemsAndClearAllLeavesTheChoices) {
    Harness h;
    Form& f = h.open("frmThdMill");
    EXPECT_EQ(f.title(), "Thread Milling");
    EXPECT_EQ(f.listIndex("popTM_Tool"), 0);
    EXPECT_EQ(f.text("popTM_Tool"), "Hob-Mill");
    EXPECT_EQ(f.listIndex("popTM_Thread"), 0);
    EXPECT_EQ(f.text("popTM_Thread"), "Ext.");
    EXPECT_EQ(f.control("popTM_Tool").items, QStringList({"Hob-Mill", "Single Pt."}));
    EXPECT_EQ(f.control("popTM_Thread").items, QStringList({"Ext.", "Int."}));
    EXPECT_EQ(f.caption("Checkbox1208"), "Use \"N\" numbers");
    Fill(h, f, ThreadCase{"0", "0", ".1", ".5", "1", ".5", ".125", "5", 1, 1, true, {}});
    h.click(f, "Command1");
    h.click(f, "Command2");
    for (const char* name : kFields) {
        EXPECT_EQ(f.text(name), "") << name;
    }
    EXPECT_EQ(f.text("fld_TM_Answer"), "");
    EXPECT_EQ(f.listIndex("popTM_Tool"), 1);
    EXPECT_EQ(f.listIndex("popTM_Thread"), 1);
    EXPECT_TRUE(f.value("Checkbox1208"));
}

TEST(ThreadMilling, TheHubOpensIt) {
    Harness h;
    Form& hub = h.open("frmQuickCode");
    h.click(hub, "Command3");
    EXPECT_NE(h.app.find("frmThdMill"), nullptr);
}

}  // namespace
}  // namespace tavrin
