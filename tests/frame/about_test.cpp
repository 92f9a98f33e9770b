#include <gtest/gtest.h>

#include "tests/support/fake_ui.h"

namespace tavrin {
namespace {

using testing::Harness;

const QStringList kSysInfoTried{"hardinfo",
                                "hardinfo2",
                                "gnome-system-monitor",
                                "ksysguard",
                                "plasma-systemmonitor",
                                "mate-system-monitor",
                                "xfce4-taskmanager"};

struct SysInfoCase {
    QStringList installed;
    QStringList tried;  // in order, up to the one that started
    bool unavailable;
};

void PrintTo(const SysInfoCase& c, std::ostream* os) {
    *os << "installed: " << c.installed.join(", ").toStdString();
}

class AboutSysInfo : public ::testing::TestWithParam<SysInfoCase> {};

TEST_P(AboutSysInfo, StartsTheFirstToolThatIsThereOrSaysSo) {
    const SysInfoCase& c = GetParam();
    Harness h;
    h.ui.installedPrograms = c.installed;
    Form& f = h.open("frmAbout");
    h.click(f, "cmdSysInfo");
    EXPECT_EQ(h.ui.startAttempts, c.tried);
    if (c.unavailable) {
        ASSERT_EQ(h.ui.messages.size(), 1u);
        EXPECT_EQ(h.ui.messages[0].title, "Program Message");
        EXPECT_EQ(h.ui.messages[0].text, "System Information Is Unavailable At This Time");
    } else {
        EXPECT_TRUE(h.ui.messages.empty());
    }
    EXPECT_NE(h.app.find("frmAbout"), nullptr);  // the window stays open either way
}

INSTANTIATE_TEST_SUITE_P(
    Table, AboutSysInfo,
    ::testing::Values(SysInfoCase{{}, kSysInfoTried, true},
                      SysInfoCase{{"calc.exe", "msinfo32"}, kSysInfoTried, true},
                      SysInfoCase{{"hardinfo", "ksysguard"}, {"hardinfo"}, false},
                      SysInfoCase{
                          {"ksysguard", "xfce4-taskmanager"}, kSysInfoTried.mid(0, 4), false},
                      SysInfoCase{{"xfce4-taskmanager"}, kSysInfoTried, false}));

TEST(About, ShowsItsTitleAndNotices) {
    Harness h;
    h.click(*h.app.find("frmHome"), "mnuAbout");
    Form* f = h.app.find("frmAbout");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->title(), QStringLiteral("About Tavrin™"));
    EXPECT_EQ(f->caption("lblTitle"), QStringLiteral("Tavrin™ v4.0"));
    EXPECT_EQ(f->caption("lblVersion"), QStringLiteral("for Windows® OS"));
    EXPECT_EQ(f->caption("cmdOK"), "OK");
    EXPECT_EQ(f->caption("cmdSysInfo"), "&System Info...");
    // The notice line is written by the load step.
    EXPECT_FALSE(f->caption("txtCompany").isEmpty());
    EXPECT_FALSE(f->caption("lblDescription").isEmpty());
    EXPECT_FALSE(f->caption("Label1").isEmpty());
    EXPECT_TRUE(f->text("Text1").startsWith("Warning: "));
    EXPECT_TRUE(f->control("Text1").multiLine);
}

TEST(About, OkClosesTheWindowAndItOpensAgain) {
    Harness h;
    Form& f = h.open("frmAbout");
    h.click(f, "cmdOK");
    EXPECT_EQ(h.app.find("frmAbout"), nullptr);
    EXPECT_NE(h.app.find("frmHome"), nullptr);
    EXPECT_TRUE(h.ui.fatals.empty());
    h.click(*h.app.find("frmHome"), "mnuAbout");
    EXPECT_NE(h.app.find("frmAbout"), nullptr);
}

TEST(Disclaimer, ShowsTheTermsLineByLine) {
    Harness h;
    h.click(*h.app.find("frmHome"), "mnuDisclaimer");
    Form* f = h.app.find("frmDisclaimer");
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->title(), "Disclaimer");
    const Control& terms = f->control("Text1");
    EXPECT_TRUE(terms.locked);
    EXPECT_TRUE(terms.multiLine);
    EXPECT_EQ(terms.scrollBars, ScrollBars::Vertical);
    const QStringList expected{
        "This software is distributed as is.",
        "Although this software has been tested for errors,",
        "the author(s) disclaims all warranties, expressed or ",
        "implied.",
        "No guarantee is made as to its suitability or fitness ",
        "for any particular use.",
        "It may contain bugs and/or errors, so use of this ",
        "tool is at your own risk.",
        "The author(s) will assume absolutely no liability ",
        "whatsoever for scrap parts, incorrect calculations, ",
        "machine damage, and any other damages  either ",
        "from the direct use of this product or as a ",
        "consequence of the use of this product.",
        "This software should not be used where human life ",
        "or limb may be in any way at risk. ",
        "If you do not agree to any portion whatsoever of ",
        "the preceding disclaimer please discontinue use of ",
        "this software immediately!",
        "",  // a line end after the last line too
    };
    EXPECT_EQ(terms.text.split("\r\n"), expected);
    EXPECT_EQ(terms.text.size(), 776);
    EXPECT_EQ(f->control("Image1").kind, ControlKind::Image);
}

}  // namespace
}  // namespace tavrin
