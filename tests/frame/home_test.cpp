#include <gtest/gtest.h>

#include <functional>

#include "frame/launch_tables.h"
#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::FakeUi;
using testing::Harness;

int CountLoaded(App& app, const QString& name) {
    int n = 0;
    for (Form* f : app.loadedForms()) {
        n += f->name() == name ? 1 : 0;
    }
    return n;
}

TEST(Home, FirstRunUsesTheDefaults) {
    Harness h;
    Form* home = h.app.find("frmHome");
    ASSERT_NE(home, nullptr);
    EXPECT_EQ(home->title(), QStringLiteral("Tavrin™"));
    EXPECT_EQ(h.app.decPlace, 4);
    EXPECT_EQ(home->left(), 3420);
    EXPECT_EQ(home->top(), 5000);
    EXPECT_EQ(
        home->control("Combo1").items,
        QStringList({"Circle Segments", "Tapers", "Trigonometry (Right and Oblique)", "Polygons"}));
    EXPECT_EQ(home->text("Combo1"), "Quick Launcher");
    EXPECT_EQ(home->control("lstSelection").items.size(), 34);
    EXPECT_EQ(home->control("lstSelection").items[20], "SFM <--> RPM");
    EXPECT_EQ(home->control("lstSelection").items[12], "I K - I J  Arc Center");
    EXPECT_EQ(home->control("lstSelection").items[33], "Two Ball Angle Check [Face to Ball]");
}

TEST(Home, StoredSettingsAreRead) {
    FakeUi ui;
    MemorySettings settings;
    settings.save("Reg", "DecPlace", "6");
    settings.save("Xpos", "Xpos", "-120");
    settings.save("Ypos", "Ypos", "32767");
    settings.save("Quicklaunch", "2", "SFM <--> RPM");
    App app(ui, settings);
    app.splashEnabled = false;
    app.start();
    Form* home = app.find("frmHome");
    ASSERT_NE(home, nullptr);
    EXPECT_EQ(app.decPlace, 6);
    EXPECT_EQ(home->left(), -120);
    EXPECT_EQ(home->top(), 32767);
    EXPECT_EQ(home->control("Combo1").items[1], "SFM <--> RPM");
}

struct BadSetting {
    const char* section;
    const char* key;
    const char* value;
    const char* fatal;
};

TEST(Home, ABadStoredValueIsFatalAtStart) {
    const std::vector<BadSetting> cases{
        {"Reg", "DecPlace", "four", "Run-time error '13':\r\n\r\nType mismatch"},
        {"Reg", "DecPlace", "", "Run-time error '13':\r\n\r\nType mismatch"},
        {"Xpos", "Xpos", "40000", "Run-time error '6':\r\n\r\nOverflow"},
        {"Ypos", "Ypos", "12px", "Run-time error '13':\r\n\r\nType mismatch"},
    };
    for (const BadSetting& c : cases) {
        FakeUi ui;
        MemorySettings settings;
        settings.save(c.section, c.key, c.value);
        App app(ui, settings);
        app.splashEnabled = false;
        app.start();
        ASSERT_EQ(ui.fatals.size(), 1u) << c.value;
        EXPECT_EQ(ui.fatals[0].text, QString::fromLatin1(c.fatal)) << c.value;
        EXPECT_TRUE(ui.shownWindows.isEmpty());
    }
}

TEST(Home, TheListOpensOneWindowPerCalculator) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    h.app.userSelect(home, "lstSelection", 20);
    h.app.userSelect(home, "lstSelection", 20);
    EXPECT_EQ(CountLoaded(h.app, "frmSfmToRpm"), 1);
    EXPECT_EQ(h.ui.shownWindows.count("frmSfmToRpm"), 2);  // the second click brings it forward
    EXPECT_EQ(home.listIndex("lstSelection"), 20);         // the selection stays
}

TEST(Home, ASecondShowKeepsTheWindowAsItWas) {
    Harness h;
    Form& f = h.open("frmSfmToRpm");
    h.set(f, "txtSfm", "300");
    Form& again = h.open("frmSfmToRpm");
    EXPECT_EQ(&again, &f);
    EXPECT_EQ(again.text("txtSfm"), "300");
}

TEST(Home, EveryListRowNamesItsWindowAndTheQuickLauncherHasTwoMore) {
    ASSERT_EQ(LaunchList().size(), 34u);
    ASSERT_EQ(QuickLauncherTable().size(), 36u);
    EXPECT_EQ(LaunchList()[9].form, "frmRoll");
    EXPECT_EQ(LaunchList()[30].form, "frmTrigMain");
    EXPECT_EQ(QuickLauncherTable()[34].text, "Bolt Circle");
    EXPECT_EQ(QuickLauncherTable()[35].form, "frmGrid");
    for (std::size_t i = 0; i < LaunchList().size(); ++i) {
        EXPECT_EQ(QuickLauncherTable()[i].text, LaunchList()[i].text);
    }
}

TEST(Home, QuickLauncherWorksAsAMenu) {
    FakeUi ui;
    MemorySettings settings;
    settings.save("Quicklaunch", "3", "SFM <--> RPM");
    settings.save("Quicklaunch", "4", "Lathe Boring");  // in no table
    App app(ui, settings);
    app.splashEnabled = false;
    app.start();
    Form& home = *app.find("frmHome");
    app.userSelect(home, "Combo1", 2);
    EXPECT_NE(app.find("frmSfmToRpm"), nullptr);
    EXPECT_EQ(home.text("Combo1"), "Quick Launcher");
    EXPECT_EQ(home.listIndex("Combo1"), -1);
    app.unload(*app.find("frmSfmToRpm"));
    app.userSelect(home, "Combo1", 2);  // the same item again, at once
    EXPECT_NE(app.find("frmSfmToRpm"), nullptr);
    const std::size_t loaded = app.loadedForms().size();
    app.userSelect(home, "Combo1", 3);
    EXPECT_EQ(app.loadedForms().size(), loaded);
    EXPECT_EQ(home.text("Combo1"), "Quick Launcher");
    EXPECT_TRUE(ui.fatals.empty());
}

TEST(Home, ItemsWhoseWindowsAreMissingDoNothing) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    const std::size_t loaded = h.app.loadedForms().size();
    for (int i = 0; i < 34; ++i) {
        if (!App::IsBuilt(LaunchList()[i].form)) {
            h.app.userSelect(home, "lstSelection", i);
        }
    }
    EXPECT_EQ(h.app.loadedForms().size(), loaded);
    EXPECT_TRUE(h.ui.fatals.empty());
    EXPECT_TRUE(h.ui.messages.empty());
}

TEST(Home, ClosingStoresThePositionAndClosesEveryWindow) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    h.open("frmSfmToRpm");
    home.setPosition(4000.5, 1234.4);  // twips; stored as 16-bit whole numbers
    h.app.userClose(home);
    EXPECT_TRUE(h.app.loadedForms().empty());
    EXPECT_EQ(h.settings.get("Xpos", "Xpos", "?"), "4000");
    EXPECT_EQ(h.settings.get("Ypos", "Ypos", "?"), "1234");
    EXPECT_EQ(h.ui.quits, 1);
}

TEST(Home, APositionBeyondSixteenBitsIsFatalAndNothingIsStored) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    h.open("frmSfmToRpm");
    home.setPosition(32768, 100);
    h.app.userClose(home);
    ASSERT_EQ(h.ui.fatals.size(), 1u);
    EXPECT_EQ(h.ui.fatals[0].text, "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_EQ(h.settings.get("Xpos", "Xpos", "unset"), "unset");
    EXPECT_EQ(h.settings.get("Ypos", "Ypos", "unset"), "unset");
    EXPECT_NE(h.app.find("frmSfmToRpm"), nullptr);
}

TEST(Home, CalculatorButtonTriesTheDesktopCalculators) {
    Harness h;
    Form& home = *h.app.find("frmHome");
    h.click(home, "Command2");
    EXPECT_EQ(h.ui.messageTexts(), QStringList({"Can't find the calculator!"}));
    EXPECT_FALSE(h.ui.startAttempts.isEmpty());
    h.ui.messages.clear();
    h.ui.installedPrograms << "kcalc";
    h.ui.startAttempts.clear();
    h.click(home, "Command2");
    EXPECT_TRUE(h.ui.messages.empty());
    EXPECT_EQ(h.ui.startAttempts.back(), "kcalc");
}

// The splash: its timer fires inside the home window's three-second wait, and
// its own waits run nested; later firings do nothing.
TEST(Home, SplashShowsThreeTextsThenGoes) {
    struct TickingUi : FakeUi {
        std::function<void()> tick;
        void processEvents() override {
            if (tick) {
                tick();
            }
        }
    } ui;
    MemorySettings settings;
    App app(ui, settings);
    QStringList captions;
    int firings = 0;
    ui.tick = [&] {
        if (Form* splash = app.find("frmSplash")) {
            const QString caption = splash->caption("lblProductName");
            if (captions.isEmpty() || captions.back() != caption) {
                captions << caption;
            }
            ++firings;
            app.userTimer(*splash, "Timer1");
        }
    };
    app.start();
    EXPECT_EQ(app.find("frmSplash"), nullptr);
    ASSERT_NE(app.find("frmHome"), nullptr);
    EXPECT_TRUE(app.splashShown);
    ASSERT_EQ(captions.size(), 3);
    EXPECT_EQ(captions[0], QStringLiteral("Tavrin™ v4.0      for Windows® "));
    EXPECT_EQ(ui.shownWindows.first(), "frmSplash");
    EXPECT_EQ(ui.shownWindows.last(), "frmHome");
    EXPECT_GT(firings, 3);
}

}  // namespace
}  // namespace tavrin
