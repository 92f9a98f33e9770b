#include <gtest/gtest.h>

#include <functional>

#include "frame/angles.h"
#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

struct BoltCase {
    const char* diameter;
    const char* holes;
    const char* x;
    const char* y;
    const char* angle;
    bool dms;
    bool noNumbers;
    int places;
    QStringList lines;
};

QString Program(const QStringList& lines) {
    QString text;
    for (const QString& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

void Fill(Harness& h, Form& f, const BoltCase& c) {
    h.set(f, "Text1", c.diameter);
    h.set(f, "Text2", c.holes);
    h.set(f, "Text3", c.x);
    h.set(f, "Text4", c.y);
    h.set(f, "Text5", c.angle);
    if (c.dms) {
        h.click(f, "chkDMSbc");
    }
    if (c.noNumbers) {
        h.click(f, "chkNoNumbers");
    }
}

class BoltCircleLists : public ::testing::TestWithParam<BoltCase> {};

TEST_P(BoltCircleLists, WritesEveryHoleLine) {
    const BoltCase& c = GetParam();
    Harness h;
    h.app.decPlace = static_cast<std::int16_t>(c.places);
    Form& f = h.open("frmBoltCircle");
    Fill(h, f, c);
    h.click(f, "Command1");
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_TRUE(h.ui.fatals.empty());
    EXPECT_EQ(f.text("Text7"), Program(c.lines));
}

INSTANTIATE_TEST_SUITE_P(
    Table, BoltCircleLists,
    ::testing::Values(
        BoltCase{"2",
                 "3",
                 "0",
                 "0",
                 "90",
                 false,
                 false,
                 4,
                 {" 1] X0.0Y1.0", " 2] X-0.866Y-0.5", " 3] X0.866Y-0.5"}},
        BoltCase{
            "2", "3", "0", "0", "90", false, true, 4, {"X0.0Y1.0", "X-0.866Y-0.5", "X0.866Y-0.5"}},
        // 270 degrees: X is -4.9E-15 before rounding and is written without a sign
        BoltCase{"2",
                 "4",
                 "0",
                 "0",
                 "90",
                 false,
                 false,
                 4,
                 {" 1] X0.0Y1.0", " 2] X-1.0Y0.0", " 3] X0.0Y-1.0", " 4] X1.0Y0.0"}},
        // 4.5 holes: four of them, 80 degrees apart
        BoltCase{"2",
                 "4.5",
                 "0",
                 "0",
                 "0",
                 false,
                 false,
                 4,
                 {" 1] X1.0Y0.0", " 2] X0.1736Y0.9848", " 3] X-0.9397Y0.342", " 4] X-0.5Y-0.866"}},
        // 5.5 holes: six of them, 65.4545... apart
        BoltCase{"2",
                 "5.5",
                 "0",
                 "0",
                 "0",
                 false,
                 false,
                 4,
                 {" 1] X1.0Y0.0", " 2] X0.4154Y0.9096", " 3] X-0.6549Y0.7557",
                  " 4] X-0.9595Y-0.2817", " 5] X-0.1423Y-0.9898", " 6] X0.8413Y-0.5406"}},
        BoltCase{"3.5",
                 "6",
                 "1.25",
                 "-2",
                 "-45",
                 false,
                 false,
                 6,
                 {" 1] X2.487437Y-3.237437", " 2] X2.94037Y-1.547067", " 3] X1.702933Y-0.30963",
                  " 4] X0.012563Y-0.762563", " 5] X-0.44037Y-2.452933", " 6] X0.797067Y-3.69037"}},
        BoltCase{"-2",
                 "4",
                 "0",
                 "0",
                 "0",
                 false,
                 true,
                 4,
                 {"X-1.0Y0.0", "X0.0Y-1.0", "X1.0Y0.0", "X0.0Y1.0"}},
        // .625 and .375 are ties: RoundTo takes the even neighbour
        BoltCase{"1",
                 "4",
                 ".125",
                 ".375",
                 "0",
                 false,
                 false,
                 2,
                 {" 1] X0.62Y0.38", " 2] X0.13Y0.88", " 3] X-0.38Y0.38", " 4] X0.12Y-0.12"}},
        BoltCase{"10",
                 "5",
                 "0",
                 "0",
                 "22.0322",
                 true,
                 false,
                 4,
                 {" 1] X4.6341Y1.8776", " 2] X-0.3537Y4.9875", " 3] X-4.8527Y1.2049",
                  " 4] X-2.6454Y-4.2428", " 5] X3.2177Y-3.8271"}},
        BoltCase{"10",
                 "5",
                 "0",
                 "0",
                 "22.0322",
                 false,
                 false,
                 4,
                 {" 1] X4.6349Y1.8756", " 2] X-0.3516Y4.9876", " 3] X-4.8522Y1.2069",
                  " 4] X-2.6472Y-4.2417", " 5] X3.2161Y-3.8284"}},
        BoltCase{"6.125",
                 "8",
                 "-1",
                 "2.5",
                 "-400",
                 false,
                 true,
                 3,
                 {"X1.346Y0.531", "X2.051Y2.767", "X0.969Y4.846", "X-1.267Y5.551", "X-3.346Y4.469",
                  "X-4.051Y2.233", "X-2.969Y0.154", "X-0.733Y-0.551"}},
        // The short pi shows on a large circle: with the true pi X would be 0
        BoltCase{"2000000000",
                 "4",
                 "0",
                 "0",
                 "90",
                 false,
                 false,
                 6,
                 {" 1] X0.000002Y1000000000.0", " 2] X-1000000000.0Y0.000003",
                  " 3] X-0.000005Y-1000000000.0", " 4] X1000000000.0Y-0.000006"}},
        // Fewer than one hole, or a negative count: an empty list
        BoltCase{"2", ".4", "0", "0", "0", false, false, 4, {}},
        BoltCase{"2", "-3", "0", "0", "0", false, false, 4, {}},
        BoltCase{"2", "2abc", "0", "0", "0", false, false, 4, {" 1] X1.0Y0.0", " 2] X-1.0Y0.0"}}));

struct RefusalCase {
    const char* diameter;
    const char* holes;
    const char* x;
    const char* y;
    const char* angle;
    bool dms;
    const char* message;
};

class BoltCircleRefusals : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(BoltCircleRefusals, ShowsTheMessageAndKeepsTheList) {
    const RefusalCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmBoltCircle");
    Fill(h, f, BoltCase{"2", "3", "0", "0", "90", false, false, 4, {}});
    h.click(f, "Command1");
    const QString earlier = f.text("Text7");
    ASSERT_FALSE(earlier.isEmpty());
    Fill(h, f, BoltCase{c.diameter, c.holes, c.x, c.y, c.angle, c.dms, false, 4, {}});
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.messages.size(), 1u);
    EXPECT_EQ(h.ui.messages[0].title, "Program Message");
    EXPECT_EQ(h.ui.messages[0].text, QString::fromLatin1(c.message));
    EXPECT_EQ(f.text("Text7"), earlier);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BoltCircleRefusals,
    ::testing::Values(
        RefusalCase{"", "", "1a", "0", "0", false,
                    "Error, Invalid input in one of the coordinate fields"},
        RefusalCase{"2", "3", "0", "+1", "0", false,
                    "Error, Invalid input in one of the coordinate fields"},
        RefusalCase{"2", "3", "0", "1 ", "0", false,
                    "Error, Invalid input in one of the coordinate fields"},
        RefusalCase{"0", "3", "", "0", "0", false, "Please fill all five data fields."},
        RefusalCase{"2", "3", "0", "0", "", false, "Please fill all five data fields."},
        RefusalCase{"", "0", "0", "0", "x", false, "Please fill all five data fields."},
        RefusalCase{"0", "0", "0", "0", "0", false, "Error, Diameter must be greater than zero."},
        RefusalCase{"abc", "3", "0", "0", "0", false, "Error, Diameter must be greater than zero."},
        RefusalCase{"2", "abc", "0", "0", "0", false,
                    "Error, # of holes must be greater than zero."},
        RefusalCase{"2", "-0", "0", "0", "999", false,
                    "Error, # of holes must be greater than zero."},
        RefusalCase{"2", "3", "0", "0", "359.5", false, "angle greater than 359 degrees."},
        RefusalCase{"2", "3", "0", "0", "359.3", true, "angle greater than 359 degrees."},
        RefusalCase{"2", "3", "0", "0", "400x", false, "angle greater than 359 degrees."},
        RefusalCase{"2", "3", "0", "0", "12x", false,
                    "Error, Invalid input in the angle data field"},
        RefusalCase{"2", "3", "0", "0", "1E2", true,
                    "Error, Invalid input in the angle data field"}));

TEST(BoltCircle, AnAngleOf359AndLessPasses) {
    for (const char* angle : {"359", "-400", "358.5959"}) {
        Harness h;
        Form& f = h.open("frmBoltCircle");
        Fill(h, f, BoltCase{"2", "1", "0", "0", angle, false, true, 4, {}});
        h.click(f, "Command1");
        EXPECT_TRUE(h.ui.messages.empty()) << angle;
        EXPECT_TRUE(f.text("Text7").startsWith("X")) << angle;
    }
}

// A display whose event pass records what the answer box shows at that moment.
class WatchingUi : public testing::FakeUi {
  public:
    std::function<void()> onPass;
    int passes = 0;
    void processEvents() override {
        ++passes;
        if (onPass) {
            onPass();
        }
    }
};

TEST(BoltCircle, SaysPleaseWaitAndPaintsOnceBeforeTheList) {
    WatchingUi ui;
    MemorySettings settings;
    App app{ui, settings};
    app.splashEnabled = false;
    app.start();
    app.guarded([&] { app.show("frmBoltCircle"); });
    Form& f = *app.find("frmBoltCircle");
    QString seen;
    ui.onPass = [&] { seen = f.text("Text7"); };
    app.userType(f, "Text1", "2");
    app.userType(f, "Text2", "003");
    app.userType(f, "Text3", "0");
    app.userType(f, "Text4", "0");
    app.userType(f, "Text5", "0");
    app.userClick(f, "Command1");
    EXPECT_EQ(ui.passes, 1);
    EXPECT_EQ(seen, "Please wait...\r\nCalculating 003 holes.");
    EXPECT_EQ(f.text("Text7"), " 1] X1.0Y0.0\r\n 2] X-0.5Y0.866\r\n 3] X-0.5Y-0.866\r\n");
}

TEST(BoltCircle, HoldsTheLargestSixteenBitCount) {
    Harness h;
    Form& f = h.open("frmBoltCircle");
    Fill(h, f, BoltCase{"100", "32767", "0", "0", "0", false, false, 4, {}});
    h.click(f, "Command1");
    ASSERT_TRUE(h.ui.fatals.empty());
    const QStringList lines = f.text("Text7").split("\r\n");
    ASSERT_EQ(lines.size(), 32768);  // the last line end leaves an empty piece
    EXPECT_EQ(lines[0], " 1] X50.0Y0.0");
    EXPECT_EQ(lines[1], " 2] X50.0Y0.0096");
    EXPECT_EQ(lines[32766], " 32767] X50.0Y-0.0096");
    EXPECT_EQ(lines[32767], "");
}

TEST(BoltCircle, ACountBeyondSixteenBitsIsAnOverflow) {
    Harness h;
    Form& f = h.open("frmBoltCircle");
    Fill(h, f, BoltCase{"2", "32767.5", "0", "0", "0", false, false, 4, {}});
    h.click(f, "Command1");
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(f.text("Text7"), "Please wait...\r\nCalculating 32767.5 holes.");
    EXPECT_TRUE(h.app.ended());
}

TEST(BoltCircle, HelpClearAllAndTheChecksThatStay) {
    Harness h;
    Form& f = h.open("frmBoltCircle");
    EXPECT_EQ(f.title(), "Bolt Circle");
    h.click(f, "Command3");
    ASSERT_EQ(h.ui.messages.size(), 1u);
    EXPECT_EQ(h.ui.messages[0].text,
              QStringLiteral("If entering the angle in Degrees Minutes Seconds enter 22") +
                  kDegreeSign +
                  " 3' 22\" as 22.0322 (always use a leading zero for minutes or seconds less "
                  "than 10)\nA neg. or pos. start angle may be entered. (To start before or "
                  "after 3 o'clock pos.)");
    Fill(h, f, BoltCase{"2", "3", "0", "0", "90", true, true, 4, {}});
    h.click(f, "Command1");
    h.click(f, "Command2");
    for (const char* name : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text7"}) {
        EXPECT_EQ(f.text(name), "") << name;
    }
    EXPECT_TRUE(f.value("chkDMSbc"));
    EXPECT_TRUE(f.value("chkNoNumbers"));
}

TEST(QuickCodeHub, OpensTheBuiltGeneratorsAndIgnoresTheRest) {
    Harness h;
    h.click(*h.app.find("frmHome"), "Command4");
    Form* hub = h.app.find("frmQuickCode");
    ASSERT_NE(hub, nullptr);
    EXPECT_EQ(hub->title(), "Quick Code");
    EXPECT_EQ(hub->caption("Command1"), "Bolt Circle");
    EXPECT_EQ(hub->caption("Command2"), "Grid Hole Pattern");
    EXPECT_EQ(hub->caption("Command3"), "Thread Milling");
    EXPECT_EQ(hub->caption("Command4"), "Lathe Drilling");
    EXPECT_EQ(hub->caption("Command5"), "Lathe Threading");
    h.click(*hub, "Command1");
    Form* bolt = h.app.find("frmBoltCircle");
    ASSERT_NE(bolt, nullptr);
    h.click(*hub, "Command1");
    EXPECT_EQ(h.app.find("frmBoltCircle"), bolt);
    const struct {
        const char* button;
        const char* form;
    } others[] = {{"Command2", "frmGrid"},
                  {"Command3", "frmThdMill"},
                  {"Command4", "frmLatheDrill"},
                  {"Command5", "frmLatheThread"}};
    for (const auto& o : others) {
        const qsizetype before = h.ui.shownWindows.size();
        h.click(*hub, o.button);
        EXPECT_EQ(h.app.find(o.form) != nullptr, App::IsBuilt(o.form)) << o.form;
        EXPECT_EQ(h.ui.shownWindows.size() - before, App::IsBuilt(o.form) ? 1 : 0) << o.form;
    }
    EXPECT_TRUE(h.ui.fatals.empty());
}

TEST(QuickCodeHub, TheQuickLauncherOpensTheBoltCircle) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    const int slot = static_cast<int>(home.control("Combo1").items.indexOf("Bolt Circle"));
    if (slot < 0) {
        home.addItem("Combo1", "Bolt Circle");
    }
    h.app.userSelect(home, "Combo1",
                     static_cast<int>(home.control("Combo1").items.indexOf("Bolt Circle")));
    EXPECT_NE(h.app.find("frmBoltCircle"), nullptr);
}

}  // namespace
}  // namespace tavrin
