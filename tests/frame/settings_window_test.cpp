#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "frame/launch_tables.h"
#include "frame/numeric_text.h"
#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::FakeUi;
using testing::Harness;

// One run of the program over a settings file; a second one over the same
// file is a restart.
struct ProgramRun {
    FakeUi ui;
    IniSettings settings;
    App app{ui, settings};
    explicit ProgramRun(const QString& path) : settings(path) {
        app.splashEnabled = false;
        app.start();
    }
    Form& home() { return *app.find("frmHome"); }
    Form& open(const QString& name) {
        app.guarded([&] { app.show(name); });
        return *app.find(name);
    }
};

QString FileText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const char* const kInvalidCall = "Run-time error '5':\r\n\r\nInvalid procedure call or argument";

TEST(Settings, LoadsWithTheDefaultsOfAnEmptyStore) {
    Harness h;
    h.click(*h.app.find("frmHome"), "mnuSettings");
    Form* f = h.app.find("frmSettings");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->title(), "Settings");
    EXPECT_EQ(f->text("Text1"), "4");  // the stored default, not the form's "1"
    EXPECT_EQ(f->text("Text2"), "1");
    EXPECT_EQ(f->listIndex("lstSelection"), 0);
    EXPECT_EQ(f->control("lstSelection").items, LaunchListTexts());
    EXPECT_EQ(f->caption("Label1"), "Decimal Place Setting");
    EXPECT_EQ(f->caption("Label2"), "Quick launcher Item #");
    EXPECT_EQ(f->caption("Command1"), "Apply Decimal Place Setting");
    EXPECT_EQ(f->caption("Command2"), "Set Quick Launcher");
    EXPECT_EQ(f->control("UpDown1").buddy, "Text1");
    EXPECT_EQ(f->control("UpDown2").buddy, "Text2");
}

TEST(Settings, TheSpinControlsKeepTheirRanges) {
    struct SpinCase {
        const char* spin;
        const char* box;
        const char* start;
        int steps;
        const char* end;
    };
    const std::vector<SpinCase> cases{
        {"UpDown1", "Text1", "4", +1, "5"}, {"UpDown1", "Text1", "4", +5, "6"},
        {"UpDown1", "Text1", "4", -5, "1"}, {"UpDown1", "Text1", "abc", +1, "2"},
        {"UpDown2", "Text2", "1", +2, "3"}, {"UpDown2", "Text2", "1", +9, "4"},
        {"UpDown2", "Text2", "3", -9, "1"}, {"UpDown2", "Text2", "9", -1, "3"},
    };
    for (const SpinCase& c : cases) {
        Harness h;
        Form& f = h.open("frmSettings");
        h.set(f, c.box, c.start);
        for (int i = 0; i < std::abs(c.steps); ++i) {
            h.app.userSpin(f, c.spin, c.steps > 0 ? 1 : -1);
        }
        EXPECT_EQ(f.text(c.box), c.end) << c.spin << " from " << c.start << " by " << c.steps;
    }
}

struct PlacesCase {
    const char* typed;
    int decPlace;
};

void PrintTo(const PlacesCase& c, std::ostream* os) {
    *os << '"' << c.typed << '"';
}

class SettingsDecimalPlaces : public ::testing::TestWithParam<PlacesCase> {};

TEST_P(SettingsDecimalPlaces, StoresTheTextAndSetsTheGlobal) {
    const PlacesCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmSettings");
    h.set(f, "Text1", c.typed);
    h.click(f, "Command1");
    EXPECT_EQ(h.app.decPlace, c.decPlace) << c.typed;
    EXPECT_EQ(h.settings.get("Reg", "DecPlace", "?"), c.typed);
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_TRUE(h.ui.fatals.empty());
}

INSTANTIATE_TEST_SUITE_P(Table, SettingsDecimalPlaces,
                         ::testing::Values(PlacesCase{"6", 6}, PlacesCase{"1", 1},
                                           PlacesCase{" 3 ", 3},
                                           PlacesCase{"2.5", 2},  // nearest, ties to even
                                           PlacesCase{"3.5", 4}, PlacesCase{"4.49", 4},
                                           PlacesCase{"abc", 0}, PlacesCase{"", 0},
                                           PlacesCase{"-2", -2}, PlacesCase{"9", 9}));

TEST(Settings, DecimalPlacesReachAWindowThatIsAlreadyOpen) {
    Harness h;
    Form& ball = h.open("frmMinMaxBall");
    h.set(ball, "txtAngMinMax", "45");
    h.set(ball, "txtThruMinMax", ".25");
    h.set(ball, "txtSCMinMax", ".625");
    Form& f = h.open("frmSettings");
    const std::vector<std::pair<const char*, const char*>> steps{
        {"6", "Min.Ball Size=  .353553\r\nMax.Ball Size=  .883883"},
        {"1", "Min.Ball Size=  .4\r\nMax.Ball Size=  .9"},
    };
    for (const auto& [places, answer] : steps) {
        h.set(f, "Text1", places);
        h.click(f, "Command1");
        h.click(ball, "Command1");
        EXPECT_EQ(ball.text("txtMMans"), answer) << places;
    }
}

TEST(Settings, ANegativeDecimalPlaceMakesEveryLaterRoundingFail) {
    Harness h;
    Form& f = h.open("frmSettings");
    h.set(f, "Text1", "-1");
    h.click(f, "Command1");
    ASSERT_EQ(h.app.decPlace, -1);
    EXPECT_TRUE(h.ui.fatals.empty());  // applying it is quiet
    h.app.guarded([&] { RoundTo(2.5, h.app.decPlace); });
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, kInvalidCall);
}

struct SlotCase {
    const char* slot;
    int item;  // row of lstSelection
    int index;
    const char* message;
};

void PrintTo(const SlotCase& c, std::ostream* os) {
    *os << "slot \"" << c.slot << "\", row " << c.item;
}

class SettingsQuickLauncher : public ::testing::TestWithParam<SlotCase> {};

TEST_P(SettingsQuickLauncher, RewritesTheSlotAndTheHomeWindowAtOnce) {
    const SlotCase& c = GetParam();
    Harness h;
    Form& f = h.open("frmSettings");
    Form& home = *h.app.find("frmHome");
    QStringList expected = home.control("Combo1").items;
    const QString item = LaunchListTexts()[c.item];
    expected[c.index] = item;
    h.set(f, "Text2", c.slot);
    h.app.userSelect(f, "lstSelection", c.item);
    h.click(f, "Command2");
    EXPECT_EQ(home.control("Combo1").items, expected);
    EXPECT_EQ(home.text("Combo1"), "Quick Launcher");
    EXPECT_EQ(h.settings.get("Quicklaunch", c.slot, "?"), item);
    EXPECT_EQ(h.ui.messageTexts(), QStringList({QString::fromUtf8(c.message)}));
    EXPECT_TRUE(h.ui.fatals.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, SettingsQuickLauncher,
    ::testing::Values(
        SlotCase{"2", 22, 1, "OK Quick Launcher Item # 2 is now set to launch \r\nSine Plate"},
        SlotCase{"1", 0, 0, "OK Quick Launcher Item # 1 is now set to launch \r\nBall Drop"},
        SlotCase{"4", 33, 3,
                 "OK Quick Launcher Item # 4 is now set to launch \r\nTwo Ball Angle Check [Face "
                 "to Ball]"},
        SlotCase{"3", 7, 2, "OK Quick Launcher Item # 3 is now set to launch \r\nDD <--> DMS"},
        // The slot text is the key as typed, and its number in the message.
        SlotCase{" 3", 20, 2, "OK Quick Launcher Item # 3 is now set to launch \r\nSFM <--> RPM"},
        SlotCase{"2.4", 4, 1,
                 "OK Quick Launcher Item # 2.4 is now set to launch \r\nCircle Segments"}));

TEST(Settings, TheNewSlotLaunchesItsWindow) {
    Harness h;
    Form& f = h.open("frmSettings");
    h.set(f, "Text2", "2");
    h.app.userSelect(f, "lstSelection", 7);
    h.click(f, "Command2");
    Form& home = *h.app.find("frmHome");
    h.app.userSelect(home, "Combo1", 1);
    EXPECT_NE(h.app.find("frmDDtoDMS"), nullptr);
}

TEST(Settings, ASlotOutsideOneToFourIsStoredAndThenFatal) {
    for (const char* slot : {"5", "0", "-1", "abc"}) {
        Harness h;
        Form& f = h.open("frmSettings");
        Form& home = *h.app.find("frmHome");
        const QStringList before = home.control("Combo1").items;
        h.set(f, "Text2", slot);
        h.app.userSelect(f, "lstSelection", 22);
        h.click(f, "Command2");
        ASSERT_EQ(h.ui.fatals.size(), 1u) << slot;
        EXPECT_EQ(h.ui.fatals[0].text, kInvalidCall) << slot;
        EXPECT_EQ(h.settings.get("Quicklaunch", slot, "?"), "Sine Plate") << slot;
        EXPECT_EQ(home.control("Combo1").items, before) << slot;
        EXPECT_TRUE(h.ui.messages.empty()) << slot;
    }
}

TEST(Settings, RoundTripThroughTheFileAndARestart) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("Tavrin.ini");
    {
        ProgramRun first(path);
        EXPECT_EQ(first.app.decPlace, 4);
        Form& f = first.open("frmSettings");
        first.app.userType(f, "Text1", "6");
        first.app.userClick(f, "Command1");
        first.app.userType(f, "Text2", "2");
        first.app.userSelect(f, "lstSelection", 22);
        first.app.userClick(f, "Command2");
        EXPECT_EQ(first.app.decPlace, 6);
        EXPECT_TRUE(first.ui.fatals.empty());
    }
    const QString stored = FileText(path);
    EXPECT_TRUE(stored.contains("[Reg]\nDecPlace=6")) << stored.toStdString();
    EXPECT_TRUE(stored.contains("[Quicklaunch]\n2=Sine Plate")) << stored.toStdString();

    ProgramRun second(path);
    EXPECT_TRUE(second.ui.fatals.empty());
    EXPECT_EQ(second.app.decPlace, 6);
    EXPECT_EQ(second.home().control("Combo1").items,
              QStringList({"Circle Segments", "Sine Plate", "Trigonometry (Right and Oblique)",
                           "Polygons"}));
    Form& f = second.open("frmSettings");
    EXPECT_EQ(f.text("Text1"), "6");
}

TEST(Settings, ATextThatIsNoNumberStopsTheNextStart) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("Tavrin.ini");
    {
        ProgramRun first(path);
        Form& f = first.open("frmSettings");
        first.app.userType(f, "Text1", "six");
        first.app.userClick(f, "Command1");
        EXPECT_EQ(first.app.decPlace, 0);  // for the rest of this run
        EXPECT_TRUE(first.ui.fatals.empty());
    }
    ProgramRun second(path);
    ASSERT_EQ(second.ui.fatals.size(), 1u);
    EXPECT_EQ(second.ui.fatals[0].text, "Run-time error '13':\r\n\r\nType mismatch");
    EXPECT_TRUE(second.ui.shownWindows.isEmpty());
}

}  // namespace
}  // namespace tavrin
