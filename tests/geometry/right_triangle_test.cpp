#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

const QStringList kEntries{"txtSideOne", "txtSideTwo", "popSides", "Command1",
                           "Command2",   "Command4",   "chkDMS"};

struct RightCase {
    int index;
    const char* one;
    const char* two;
    bool dms;
    int decPlace;
    std::vector<const char*> lines;
};

void PrintTo(const RightCase& c, std::ostream* os) {
    *os << "index " << c.index << " \"" << c.one << "\" \"" << c.two << "\""
        << (c.dms ? " DMS" : "") << " DecPlace " << c.decPlace;
}

// Expected lines worked out in doubles from the window's own steps.
const std::vector<RightCase> kRightCases{
    {0,
     "5",
     "3",
     false,
     4,
     {"side a=  5", "side b=  3", "side c=  4", "Angle B= 36°  52'  12\"", "Angle C= 53°  7'  48\"",
      "Angle B=  36.869898 Dec. Deg.", "Angle C=  53.130102 Dec. Deg.", "Perimeter=  12",
      "Area=  6", "Inscribed CircleØ=  2", "Circumscribed CircleØ=  5"}},
    {0,
     "7.25",
     "2.5",
     false,
     4,
     {"side a=  7.25", "side b=  2.5", "side c=  6.8053", "Angle B= 20°  10'  17\"",
      "Angle C= 69°  49'  43\"", "Angle B=  20.171271 Dec. Deg.", "Angle C=  69.828729 Dec. Deg.",
      "Perimeter=  16.5553", "Area=  8.5066", "Inscribed CircleØ=  2.0553",
      "Circumscribed CircleØ=  7.25"}},
    {0,
     "10",
     "9.999",
     false,
     6,
     {"side a=  10", "side b=  9.999", "side c=  .141418", "Angle B= 89°  11'  23\"",
      "Angle C= 0°  48'  37\"", "Angle B=  89.189709 Dec. Deg.", "Angle C=  .810291 Dec. Deg.",
      "Perimeter=  20.140418", "Area=  .707019", "Inscribed CircleØ=  .140418",
      "Circumscribed CircleØ=  10"}},
    {1,
     "3",
     "4",
     false,
     4,
     {"side a=  5", "side b=  3", "side c=  4", "Angle B= 36°  52'  12\"", "Angle C= 53°  7'  48\"",
      "Angle B=  36.869898 Dec. Deg.", "Angle C=  53.130102 Dec. Deg.", "Perimeter=  12",
      "Area=  6", "Inscribed CircleØ=  2", "Circumscribed CircleØ=  5"}},
    {1,
     "2.5",
     "6.125",
     false,
     2,
     {"side a=  6.62", "side b=  2.5", "side c=  6.125", "Angle B= 22°  12'  13\"",
      "Angle C= 67°  47'  47\"", "Angle B=  22.203479 Dec. Deg.", "Angle C=  67.796521 Dec. Deg.",
      "Perimeter=  15.245", "Area=  7.66", "Inscribed CircleØ=  2",
      "Circumscribed CircleØ=  6.62"}},
    {2,
     "3",
     "5",
     false,
     4,
     {"side a=  5", "side b=  4", "side c=  3", "Angle B= 53°  7'  48\"", "Angle C= 36°  52'  12\"",
      "Angle B=  53.130102 Dec. Deg.", "Angle C=  36.869898 Dec. Deg.", "Perimeter=  12",
      "Area=  6", "Inscribed CircleØ=  2", "Circumscribed CircleØ=  5"}},
    {2,
     "1.2345",
     "4",
     false,
     4,
     {"side a=  4", "side b=  3.8047", "side c=  1.2345", "Angle B= 72°  1'  25\"",
      "Angle C= 17°  58'  35\"", "Angle B=  72.023614 Dec. Deg.", "Angle C=  17.976386 Dec. Deg.",
      "Perimeter=  9.0392", "Area=  2.3485", "Inscribed CircleØ=  1.0392",
      "Circumscribed CircleØ=  4"}},
    {3,
     "30",
     "10",
     false,
     4,
     {"side a=  10", "side b=  5", "side c=  8.6603", "Angle B=  30°  0'  0\"",
      "Angle C=  60°  0'  0\"", "Angle B=  30 Dec. Deg.", "Angle C=  60 Dec. Deg.",
      "Perimeter=  23.6603", "Area=  21.6508", "Inscribed CircleØ=  3.6603",
      "Circumscribed CircleØ=  10"}},
    {3,
     "30.3",
     "10",
     true,
     4,
     {"side a=  10", "side b=  5.0754", "side c=  8.6163", "Angle B= 30°  30'  0\"",
      "Angle C= 59°  30'  0\"", "Angle B=  30.5 Dec. Deg.", "Angle C=  59.5 Dec. Deg.",
      "Perimeter=  23.6917", "Area=  21.8656", "Inscribed CircleØ=  3.6917",
      "Circumscribed CircleØ=  10"}},
    {3,
     "89.9",
     "2",
     false,
     4,
     {"side a=  2", "side b=  2", "side c=  .0035", "Angle B= 89°  54'  0\"",
      "Angle C= 0°  6'  0\"", "Angle B=  89.9 Dec. Deg.", "Angle C=  .1 Dec. Deg.",
      "Perimeter=  4.0035", "Area=  .0035", "Inscribed CircleØ=  .0035",
      "Circumscribed CircleØ=  2"}},
    {3,
     "22.0322",
     "3.5",
     true,
     4,
     {"side a=  3.5", "side b=  1.3143", "side c=  3.2439", "Angle B= 22°  3'  22\"",
      "Angle C= 67°  56'  38\"", "Angle B=  22.056111 Dec. Deg.", "Angle C=  67.943889 Dec. Deg.",
      "Perimeter=  8.0582", "Area=  2.1317", "Inscribed CircleØ=  1.0582",
      "Circumscribed CircleØ=  3.5"}},
    {4,
     "40",
     "5",
     false,
     4,
     {"side a=  7.7786", "side b=  5", "side c=  5.9588", "Angle B=  40°  0'  0\"",
      "Angle C=  50°  0'  0\"", "Angle B=  40 Dec. Deg.", "Angle C=  50 Dec. Deg.",
      "Perimeter=  18.7374", "Area=  14.897", "Inscribed CircleØ=  3.1802",
      "Circumscribed CircleØ=  7.7786"}},
    {4,
     "12.5",
     "2",
     false,
     3,
     {"side a=  9.24", "side b=  2", "side c=  9.021", "Angle B= 12°  30'  0\"",
      "Angle C= 77°  30'  0\"", "Angle B=  12.5 Dec. Deg.", "Angle C=  77.5 Dec. Deg.",
      "Perimeter=  20.261", "Area=  9.021", "Inscribed CircleØ=  1.781",
      "Circumscribed CircleØ=  9.24"}},
    {5,
     "55",
     "3.25",
     false,
     4,
     {"side a=  5.6662", "side b=  4.6415", "side c=  3.25", "Angle B=  55°  0'  0\"",
      "Angle C=  35°  0'  0\"", "Angle B=  55 Dec. Deg.", "Angle C=  35 Dec. Deg.",
      "Perimeter=  13.5577", "Area=  7.5424", "Inscribed CircleØ=  2.2253",
      "Circumscribed CircleØ=  5.6662"}},
    {5,
     "89.6",
     "1",
     true,
     4,
     {"side a=  618986325617924", "side b=  618986325617924", "side c=  1",
      "Angle B=  90°  0'  0\"", "Angle C=  0°  0'  0\"", "Angle B=  90 Dec. Deg.",
      "Angle C=  0 Dec. Deg.", "Perimeter=  1.23797265123585E+15", "Area=  309493162808962",
      "Inscribed CircleØ=  1", "Circumscribed CircleØ=  618986325617924"}},
    {6,
     "30",
     "10",
     false,
     4,
     {"side a=  10", "side b=  8.6603", "side c=  5", "Angle B=  60°  0'  0\"",
      "Angle C=  30°  0'  0\"", "Angle B=  60 Dec. Deg.", "Angle C=  30 Dec. Deg.",
      "Perimeter=  23.6603", "Area=  21.6508", "Inscribed CircleØ=  3.6603",
      "Circumscribed CircleØ=  10"}},
    {6,
     "62.45",
     "7",
     true,
     4,
     {"side a=  7", "side b=  3.2051", "side c=  6.2231", "Angle B= 27°  15'  0\"",
      "Angle C= 62°  45'  0\"", "Angle B=  27.25 Dec. Deg.", "Angle C=  62.75 Dec. Deg.",
      "Perimeter=  16.4282", "Area=  9.9728", "Inscribed CircleØ=  2.4282",
      "Circumscribed CircleØ=  7"}},
    {7,
     "35",
     "4",
     false,
     4,
     {"side a=  4.8831", "side b=  4", "side c=  2.8008", "Angle B=  55°  0'  0\"",
      "Angle C=  35°  0'  0\"", "Angle B=  55 Dec. Deg.", "Angle C=  35 Dec. Deg.",
      "Perimeter=  11.6839", "Area=  5.6016", "Inscribed CircleØ=  1.9177",
      "Circumscribed CircleØ=  4.8831"}},
    {7,
     "1",
     "1",
     false,
     5,
     {"side a=  1.00015", "side b=  1", "side c=  .01746", "Angle B=  89°  0'  0\"",
      "Angle C=  1°  0'  0\"", "Angle B=  89 Dec. Deg.", "Angle C=  1 Dec. Deg.",
      "Perimeter=  2.01761", "Area=  .00873", "Inscribed CircleØ=  .01731",
      "Circumscribed CircleØ=  1.00015"}},
    {8,
     "35",
     "4",
     false,
     4,
     {"side a=  6.9738", "side b=  5.7126", "side c=  4", "Angle B=  55°  0'  0\"",
      "Angle C=  35°  0'  0\"", "Angle B=  55 Dec. Deg.", "Angle C=  35 Dec. Deg.",
      "Perimeter=  16.6864", "Area=  11.4252", "Inscribed CircleØ=  2.7388",
      "Circumscribed CircleØ=  6.9738"}},
    {8,
     "60",
     "2.5",
     false,
     4,
     {"side a=  2.8868", "side b=  1.4434", "side c=  2.5", "Angle B=  30°  0'  0\"",
      "Angle C=  60°  0'  0\"", "Angle B=  30 Dec. Deg.", "Angle C=  60 Dec. Deg.",
      "Perimeter=  6.8302", "Area=  1.8042", "Inscribed CircleØ=  1.0566",
      "Circumscribed CircleØ=  2.8868"}},
    {8,
     "75.1530",
     "6",
     true,
     4,
     {"side a=  6.2042", "side b=  1.5787", "side c=  6", "Angle B= 14°  44'  30\"",
      "Angle C= 75°  15'  30\"", "Angle B=  14.741667 Dec. Deg.", "Angle C=  75.258333 Dec. Deg.",
      "Perimeter=  13.7829", "Area=  4.7361", "Inscribed CircleØ=  1.3745",
      "Circumscribed CircleØ=  6.2042"}},
};

QString Joined(const std::vector<const char*>& lines) {
    QStringList l;
    for (const char* line : lines) {
        l << QString::fromUtf8(line);
    }
    return l.join("\r\n");
}

Form& OpenWithEntries(Harness& h, int index, const char* one, const char* two, bool dms) {
    Form& f = h.open("frmTrig");
    h.app.userSelect(f, "popSides", index);
    if (dms) {
        h.click(f, "chkDMS");
    }
    h.set(f, "txtSideOne", QString::fromUtf8(one));
    h.set(f, "txtSideTwo", QString::fromUtf8(two));
    return f;
}

class RightTriangleAnswers : public ::testing::TestWithParam<RightCase> {};

TEST_P(RightTriangleAnswers, WritesTheElevenLinesAndShowsTheAnswerLayout) {
    const RightCase& c = GetParam();
    Harness h;
    h.app.decPlace = static_cast<std::int16_t>(c.decPlace);
    Form& f = OpenWithEntries(h, c.index, c.one, c.two, c.dms);
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_EQ(f.text("field2747"), Joined(c.lines));
    for (const QString& name : kEntries) {
        EXPECT_FALSE(f.control(name).visible) << name.toStdString();
    }
    EXPECT_TRUE(f.control("field2747").visible);
    EXPECT_TRUE(f.control("Command3").visible);
}

INSTANTIATE_TEST_SUITE_P(Table, RightTriangleAnswers, ::testing::ValuesIn(kRightCases));

struct RightRefusal {
    int index;
    const char* one;
    const char* two;
    bool dms;
    const char* message;
};

void PrintTo(const RightRefusal& c, std::ostream* os) {
    *os << "index " << c.index << " \"" << c.one << "\" \"" << c.two << "\""
        << (c.dms ? " DMS" : "");
}

class RightTriangleRefusals : public ::testing::TestWithParam<RightRefusal> {};

TEST_P(RightTriangleRefusals, ShowsTheMessageAndKeepsTheEntryLayout) {
    const RightRefusal& c = GetParam();
    Harness h;
    Form& f = OpenWithEntries(h, c.index, c.one, c.two, c.dms);
    h.click(f, "Command1");
    EXPECT_EQ(h.ui.messageTexts(), QStringList{QString::fromLatin1(c.message)});
    EXPECT_EQ(h.ui.messages[0].title, "Program Message");
    for (const QString& name : kEntries) {
        EXPECT_TRUE(f.control(name).visible) << name.toStdString();
    }
    EXPECT_FALSE(f.control("field2747").visible);
    EXPECT_FALSE(f.control("Command3").visible);
    EXPECT_EQ(f.text("field2747"), "");
    EXPECT_EQ(f.text("txtSideOne"), QString::fromLatin1(c.one));
}

const char* const kNotPositive = "Error, Values must be greater than zero";
const char* const kSideB = "Error, Side a cannot be less than or equal to Side b.";
const char* const kSideC = "Error, Side a cannot be less than or equal to Side c.";
const char* const kNinety = "Error, Angle equal  or greater than 90 degrees";

INSTANTIATE_TEST_SUITE_P(Table, RightTriangleRefusals,
                         ::testing::Values(RightRefusal{0, "0", "3", false, kNotPositive},
                                           RightRefusal{0, "5", "-1", false, kNotPositive},
                                           // an empty field is worth 0 and meets the first test
                                           RightRefusal{0, "", "3", false, kNotPositive},
                                           RightRefusal{1, "abc", "2", false, kNotPositive},
                                           // the sign test comes before the case tests
                                           RightRefusal{3, "95", "-1", false, kNotPositive},
                                           RightRefusal{0, "3", "3", false, kSideB},
                                           RightRefusal{0, "3", "5", false, kSideB},
                                           RightRefusal{2, "5", "5", false, kSideC},
                                           RightRefusal{2, "6", "5", false, kSideC},
                                           RightRefusal{3, "90", "1", false, kNinety},
                                           RightRefusal{4, "90.0001", "1", false, kNinety},
                                           RightRefusal{5, "90", "1", true, kNinety},
                                           RightRefusal{6, "120", "1", false, kNinety},
                                           RightRefusal{7, "90", "1", false, kNinety},
                                           RightRefusal{8, "90", "1", false, kNinety}));

TEST(RightTriangle, TheDropDownSetsTheCaptionsAndLeavesTheFields) {
    Harness h;
    Form& f = h.open("frmTrig");
    EXPECT_EQ(f.title(), "Right Triangle Trigonometry");
    EXPECT_EQ(f.listIndex("popSides"), 0);
    EXPECT_EQ(f.listCount("popSides"), 9);
    h.set(f, "txtSideOne", "12");
    h.click(f, "chkDMS");
    const std::vector<std::array<const char*, 3>> table{
        {"side a & side b", "a", "b"},  {"side b & side c", "b", "c"},
        {"side c & side a", "c", "a"},  {"Angle B & side a", "B", "a"},
        {"Angle B & side b", "B", "b"}, {"Angle B & side c", "B", "c"},
        {"Angle C & side a", "C", "a"}, {"Angle C & side b", "C", "b"},
        {"Angle C & side c", "C", "c"}};
    for (int i = 8; i >= 0; --i) {
        h.app.userSelect(f, "popSides", i);
        EXPECT_EQ(f.listText("popSides"), table[i][0]);
        EXPECT_EQ(f.caption("lblSideOne"), table[i][1]) << i;
        EXPECT_EQ(f.caption("lblSideTwo"), table[i][2]) << i;
    }
    EXPECT_EQ(f.text("txtSideOne"), "12");
    EXPECT_TRUE(f.value("chkDMS"));
}

TEST(RightTriangle, DoneReturnsToTheEntriesWithTheirTexts) {
    Harness h;
    Form& f = OpenWithEntries(h, 0, "5", "3", false);
    EXPECT_FALSE(f.control("field2747").visible);
    EXPECT_FALSE(f.control("Command3").visible);
    h.click(f, "Command1");
    h.click(f, "Command3");
    for (const QString& name : kEntries) {
        EXPECT_TRUE(f.control(name).visible) << name.toStdString();
    }
    EXPECT_FALSE(f.control("field2747").visible);
    EXPECT_FALSE(f.control("Command3").visible);
    EXPECT_EQ(f.text("field2747"), "");
    EXPECT_EQ(f.text("txtSideOne"), "5");
    EXPECT_EQ(f.text("txtSideTwo"), "3");
    // A corrected entry answers anew.
    h.set(f, "txtSideTwo", "4");
    h.click(f, "Command1");
    EXPECT_TRUE(f.text("field2747").startsWith("side a=  5\r\nside b=  4\r\nside c=  3\r\n"));
}

TEST(RightTriangle, ClearAllEmptiesTheTwoFieldsOnly) {
    Harness h;
    Form& f = OpenWithEntries(h, 4, "40", "5", true);
    h.click(f, "Command1");
    const QString answer = f.text("field2747");
    h.click(f, "Command2");
    EXPECT_EQ(f.text("txtSideOne"), "");
    EXPECT_EQ(f.text("txtSideTwo"), "");
    EXPECT_EQ(f.text("field2747"), answer);
    EXPECT_EQ(f.listIndex("popSides"), 4);
    EXPECT_TRUE(f.value("chkDMS"));
}

TEST(RightTriangle, DecPlaceIsReadAtEveryCalculate) {
    Harness h;
    Form& f = OpenWithEntries(h, 0, "7.25", "2.5", false);
    h.click(f, "Command1");
    EXPECT_TRUE(f.text("field2747").contains("side c=  6.8053\r\n"));
    h.click(f, "Command3");
    h.app.decPlace = 1;
    h.click(f, "Command1");
    EXPECT_TRUE(f.text("field2747").contains("side c=  6.8\r\n"));
}

TEST(RightTriangle, TheOuterDoneClosesTheWindow) {
    Harness h;
    Form& f = h.open("frmTrig");
    h.click(f, "Command4");
    EXPECT_EQ(h.app.find("frmTrig"), nullptr);
}

TEST(TrigChooser, ShowsEitherTriangleWindowAndStaysOpen) {
    Harness h;
    Form& chooser = h.open("frmTrigMain");
    EXPECT_EQ(chooser.title(), "Trigonometry");
    EXPECT_EQ(chooser.caption("Label1"), "Select Triangle Type");
    EXPECT_EQ(chooser.caption("Command1"), "Right Triangle Trigonometry");
    EXPECT_EQ(chooser.caption("Command2"), "Oblique Triangle Trigonometry");
    h.click(chooser, "Command1");
    Form* right = h.app.find("frmTrig");
    ASSERT_NE(right, nullptr);
    h.click(chooser, "Command1");
    EXPECT_EQ(h.app.find("frmTrig"), right);
    EXPECT_NE(h.app.find("frmTrigMain"), nullptr);
    h.click(chooser, "Command2");
    EXPECT_NE(h.app.find("frmOblique"), nullptr);
    EXPECT_NE(h.app.find("frmTrig"), nullptr);
}

}  // namespace
}  // namespace tavrin
