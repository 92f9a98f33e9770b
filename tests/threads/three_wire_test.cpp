#include <gtest/gtest.h>

#include <optional>

#include "tests/support/drive_session.h"
#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

struct WireCase {
    int form;
    int find;
    const char* tpi;
    const char* wire;
    const char* known;
    bool metric;
    bool pitch;
    const char* answer;
};

void Fill(Harness& h, Form& f, const WireCase& c) {
    h.app.userSelect(f, "popTypThd", c.form);
    h.app.userSelect(f, "popFindThd", c.find);
    if (c.metric) {
        h.click(f, "chkTWMet");
    }
    if (c.pitch) {
        h.click(f, "chkPitch");
    }
    h.set(f, "txtTPI", c.tpi);
    h.set(f, "txtWireSize", c.wire);
    h.set(f, "txtPitchOrOverWire", c.known);
}

class ThreeWireAnswers : public ::testing::TestWithParam<WireCase> {};

TEST_P(ThreeWireAnswers, WritesInchLineAndMillimetreBracket) {
    const WireCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmThreeWire");
    Fill(h, f, c);
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.questions.empty());
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_EQ(f.text("txtTWans"), QString::fromLatin1(c.answer));
}

INSTANTIATE_TEST_SUITE_P(
    OneCasePerForm, ThreeWireAnswers,
    ::testing::Values(
        WireCase{0, 0, "20", ".032", ".2175", false, false, "Over Wire=  .2702\r\n [ 6.8631 mm]"},
        // 1/4-20 at its pitch diameter with the best wire: the shop value .2608
        WireCase{0, 0, "20", ".02887", ".2175", false, false, "Over Wire=  .2608\r\n [ 6.6243 mm]"},
        WireCase{1, 1, "16", ".0360", ".4000", false, false, "Pitch Dia.=  .3461\r\n [ 8.7909 mm]"},
        WireCase{2, 2, "10", ".058", ".5", false, false,
                 "Basic Meas O/W=  .5008\r\n [ 12.7203 mm]"},
        WireCase{3, 0, "8", ".065", ".9", false, false, "Over Wire=  .9829\r\n [ 24.9657 mm]"},
        // the metric-based forms work in millimetres; the inch line still leads
        WireCase{4, 0, "20", ".03", ".2", false, false, "Over Wire=  .2471\r\n [ 6.2758 mm]"},
        WireCase{5, 1, "1.5", ".8", "6", true, true, "Pitch Dia.=  .1936\r\n [ 4.9182 mm]"},
        WireCase{6, 1, "1.5", ".9", "10.5", true, true, "Pitch Dia.=  .3582\r\n [ 9.0983 mm]"}));

TEST(ThreeWire, LoadFillsTheFormsAndCaptions) {
    Harness h;
    Form& f = h.open("frmThreeWire");
    EXPECT_EQ(f.control("popTypThd").items,
              QStringList({QStringLiteral("ANSU (60°)"), QStringLiteral("Whitworth (55°)"),
                           QStringLiteral("Sharp V (60°)"), QStringLiteral("Acme (29°)"),
                           QStringLiteral("Löwenherz (53° 8')"),
                           QStringLiteral("British Assoc. (47° 30')"),
                           QStringLiteral("ISO Metric (60°)")}));
    EXPECT_EQ(f.listIndex("popTypThd"), 0);
    EXPECT_EQ(f.listIndex("popFindThd"), 1);
    EXPECT_EQ(f.caption("txtMultiThd"), "Meas. Over Wires");
    const std::vector<std::pair<int, QString>> captions{
        {0, "Pitch Dia."}, {2, "Major Dia."}, {1, "Meas. Over Wires"}};
    for (const auto& [find, caption] : captions) {
        h.app.userSelect(f, "popFindThd", find);
        EXPECT_EQ(f.caption("txtMultiThd"), caption);
    }
    h.click(f, "chkPitch");
    EXPECT_EQ(f.caption("Label1571"), "Pitch");
    h.click(f, "chkPitch");
    EXPECT_EQ(f.caption("Label1571"), "TPI");
}

TEST(ThreeWire, AnswerFollowsDecPlaceButTheBracketKeepsFour) {
    Harness h;
    h.app.decPlace = 2;
    Form& f = h.open("frmThreeWire");
    Fill(h, f, {0, 0, "20", ".032", ".2175", false, false, ""});
    h.click(f, "Command1");
    // .27 then .27 * 25.4 = 6.858
    EXPECT_EQ(f.text("txtTWans"), "Over Wire=  .27\r\n [ 6.858 mm]");
}

// 0.56 / 20 is 0.028000000000000004 in doubles: a typed .028 lies below it.
TEST(ThreeWire, AWireOutsideItsLimitsAsksFirst) {
    struct Step {
        const char* wire;
        bool asked;
        std::optional<bool> yes;
        const char* answer;
    };
    const std::vector<Step> steps{
        {".028", true, false, ""},
        {".028", true, true, "Over Wire=  .2582\r\n [ 6.5583 mm]"},
        {".045", false, std::nullopt, "Over Wire=  .3092\r\n [ 7.8537 mm]"},
        {".0451", true, false, ""},
    };
    for (const Step& s : steps) {
        Harness h;
        Form& f = h.open("frmThreeWire");
        Fill(h, f, {0, 0, "20", s.wire, ".2175", false, false, ""});
        if (s.yes) {
            h.ui.answers.push_back(*s.yes);
        }
        h.click(f, "Command1");
        ASSERT_EQ(h.ui.questions.size(), s.asked ? 1u : 0u) << s.wire;
        if (s.asked) {
            EXPECT_EQ(h.ui.questions[0].title, "Incorrect wire size");
            EXPECT_EQ(h.ui.questions[0].text,
                      "You have entered an invalid wire size for the data entered, continue?");
        }
        EXPECT_EQ(f.text("txtTWans"), QString::fromLatin1(s.answer)) << s.wire;
    }
}

TEST(ThreeWire, ZeroFieldsAreRefusedAndTheAnswerStays) {
    Harness h;
    Form& f = h.open("frmThreeWire");
    Fill(h, f, {0, 0, "20", ".032", ".2175", false, false, ""});
    h.click(f, "Command1");
    const QString before = f.text("txtTWans");
    for (const char* field : {"txtTPI", "txtWireSize", "txtPitchOrOverWire"}) {
        const QString kept = f.text(field);
        h.set(f, field, "abc");
        h.click(f, "Command1");
        h.set(f, field, kept);
    }
    EXPECT_EQ(
        h.ui.messageTexts(),
        QStringList(3, "Error, Please fill all three data fields with values greater than zero."));
    EXPECT_EQ(f.text("txtTWans"), before);
    h.set(f, "txtTPI", "");
    h.click(f, "Command3");
    h.click(f, "Command4");
    EXPECT_EQ(h.ui.messageTexts().mid(3),
              QStringList({"Error, Pitch value must be greater than zero.",
                           "Error, TPI or Pitch value must be greater than zero."}));
}

TEST(ThreeWire, BestWireAndDepthToFivePlaces) {
    struct Case {
        int form;
        const char* tpi;
        bool metric;
        bool pitch;
        const char* best;
        const char* depth;
    };
    const std::vector<Case> cases{
        {0, "20", false, false,
         "Best wire size is  .02887 [ .73323 mm]\r\nLargest wire size is  .045 [ 1.143 mm]\r\n"
         "Smallest wire size is  .028 [ .7112 mm]",
         "Single depth of thread=  .03067\r\n [ .77906 mm]"},
        {5, "1.5", true, true,
         "Best wire size is  .03226 [ .81937 mm]\r\nLargest wire size is  .04304 [ 1.09333 mm]\r\n"
         "Smallest wire size is  .02944 [ .74778 mm]",
         nullptr},
        {3, "8", false, false, nullptr, "Single depth of thread=  .0625\r\n [ 1.5875 mm]"},
        {4, "1.5", true, true, nullptr, "Single depth of thread=  .04476\r\n [ 1.137 mm]"},
    };
    for (const Case& c : cases) {
        Harness h;
        h.app.decPlace = 1;  // five places stand whatever DecPlace says
        Form& f = h.open("frmThreeWire");
        Fill(h, f, {c.form, 1, c.tpi, "", "", c.metric, c.pitch, ""});
        QStringList expected;
        if (c.best != nullptr) {
            h.click(f, "Command3");
            expected << c.best;
        }
        if (c.depth != nullptr) {
            h.click(f, "Command4");
            expected << c.depth;
        }
        EXPECT_EQ(h.ui.messageTexts(), expected) << c.form;
    }
}

TEST(ThreeWire, ClearAllKeepsTheSelections) {
    Harness h;
    Form& f = h.open("frmThreeWire");
    Fill(h, f, {3, 2, "8", ".065", ".9", true, true, ""});
    h.click(f, "Command2");
    for (const char* field : {"txtTPI", "txtWireSize", "txtPitchOrOverWire", "txtTWans"}) {
        EXPECT_EQ(f.text(field), "") << field;
    }
    EXPECT_EQ(f.listIndex("popTypThd"), 3);
    EXPECT_EQ(f.listIndex("popFindThd"), 2);
    EXPECT_TRUE(f.value("chkTWMet"));
    EXPECT_TRUE(f.value("chkPitch"));
}

TEST(ThreeWire, DrivenFromAScript) {
    const auto s = testing::Drive(
        "select frmHome.lstSelection 28\n"
        "select frmThreeWire.popFindThd 0\n"
        "set frmThreeWire.txtTPI \"20\"\n"
        "set frmThreeWire.txtWireSize \".028\"\n"
        "set frmThreeWire.txtPitchOrOverWire \".2175\"\n"
        "answer yes\n"
        "click frmThreeWire.Command1\n"
        "show frmThreeWire.txtTWans\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 2);
    EXPECT_EQ(
        s.lines[0],
        "{\"event\": \"question\", \"title\": \"Incorrect wire size\", \"text\": \"You have "
        "entered an invalid wire size for the data entered, continue?\", \"answer\": \"yes\"}");
    EXPECT_EQ(s.lines[1],
              "{\"control\": \"frmThreeWire.txtTWans\", \"text\": \"Over Wire=  .2582\\r\\n [ "
              "6.5583 mm]\", \"visible\": true, \"enabled\": true}");
}

}  // namespace
}  // namespace tavrin
