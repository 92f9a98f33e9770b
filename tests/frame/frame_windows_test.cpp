// The frame's own windows: home, splash, trigonometry chooser, settings,
// about, disclaimer and DD <--> DMS, each by what its handlers do.

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

// Starts the program over a store of these section, key, value entries: the
// places, the position and the Quick Launcher items it comes up with, or the
// fatal box and the windows shown.
TEST(Home, StartReadsTheStoreStrictly) {
    const QString mismatch = "Run-time error '13':\r\n\r\nType mismatch";
    const std::tuple<QStringList, QString> rows[] = {
        {QStringList(),
         "4 3420 5000 Circle Segments|Tapers|Trigonometry (Right and Oblique)|Polygons"},
        {{"Reg", "DecPlace", "6", "Xpos", "Xpos", "-120", "Ypos", "Ypos", "32767", "Quicklaunch",
          "2", "SFM <--> RPM"},
         "6 -120 32767 Circle Segments|SFM <--> RPM|Trigonometry (Right and Oblique)|Polygons"},
        {{"Reg", "DecPlace", "four"}, mismatch},
        {{"Xpos", "Xpos", "40000"}, "Run-time error '6':\r\n\r\nOverflow"},
        {{"Ypos", "Ypos", "12px"}, mismatch},
    };
    for (const auto& [s, expected] : rows) {
        RecordingUi ui;
        MemorySettings settings;
        for (int i = 0; i + 2 < s.size(); i += 3) {
            settings.save(s[i], s[i + 1], s[i + 2]);
        }
        App app(ui, settings);
        app.splashEnabled = false;
        app.start();
        const Form& home = *app.find("frmHome");
        EXPECT_EQ(ui.shown.empty()
                      ? QString("%1 %2 %3 ").arg(app.decPlace).arg(home.left()).arg(home.top()) +
                            home.control("Combo1").items.join('|')
                      : ui.fatalTexts().join("") + ui.shownWindows.join(""),
                  expected);
    }
}

TEST(Windows, EachDoorShowsItsWindowOrSaysWhy) {
    const std::tuple<const char*, const char*, QString> rows[] = {
        {"frmHome", "lstSelection#20", "frmSfmToRpm"},
        {"frmHome", "Combo1#2", "frmTrigMain"},  // the third default slot, by its text
        {"frmHome", "Command1", "form1"},
        {"frmHome", "Command2", "Can't find the calculator!"},
        {"frmHome", "Command4", "frmQuickCode"},
        {"frmHome", "mnuDisclaimer", "frmDisclaimer"},
        {"frmHome", "mnuAbout", "frmAbout"},
        {"frmHome", "mnuSettings", "frmSettings"},
        {"frmTrigMain", "Command1", "frmTrig"},  // the chooser stays open
        {"frmTrigMain", "Command2", "frmOblique"},
        {"frmAbout", "cmdSysInfo", "System Information Is Unavailable At This Time"},
        {"frmAbout", "cmdOK", " closed"},
    };
    for (const auto& [form, step, shown] : rows) {
        Harness h;
        h.open(form);
        const auto before = h.ui.shownWindows.size();
        h.run(form, {step});
        EXPECT_EQ(h.ui.shownWindows.mid(before).join(' ') + h.ui.messageTexts().join("") +
                      (h.app.find(form) ? "" : " closed"),
                  shown)
            << form << ' ' << step;
        EXPECT_EQ(h.app.find("frmHome")->text("Combo1"), "Quick Launcher");  // a menu, not a choice
    }
    // The first program there that starts ends the search, without a word.
    for (const auto& [form, step, program] :
         {std::tuple{"frmHome", "Command2", "kcalc"}, {"frmAbout", "cmdSysInfo", "hardinfo"}}) {
        Harness h;
        h.ui.installedPrograms << program << "ksysguard";
        h.run(form, {step});
        EXPECT_EQ(h.ui.startAttempts.back() + h.ui.messageTexts().join(""), program);
    }
}

TEST(Home, ClosingStoresTheSixteenBitPositionAndClosesEveryWindow) {
    const QString overflow = "Run-time error '6':\r\n\r\nOverflow";
    const std::tuple<double, double, QString> rows[] = {
        {4000.5, 1234.4, "4000 1234, 0 open"},  // nearest, ties to even
        {32768, 100, overflow + " , 2 open"},   // nothing stored, nothing closed
        {100, -32769, overflow + " , 2 open"},
    };
    for (const auto& [left, top, expected] : rows) {
        Harness h;
        h.open("frmSfmToRpm");
        h.app.find("frmHome")->setPosition(left, top);
        h.app.userClose(*h.app.find("frmHome"));
        EXPECT_EQ(h.lastBox() + h.settings.get("Xpos", "Xpos", "") + ' ' +
                      h.settings.get("Ypos", "Ypos", "") +
                      QString(", %1 open").arg(h.app.loadedForms().size()),
                  expected);
    }
}

// The splash timer fires inside the home window's three-second wait; its
// three one-second waits run nested, and a later firing does nothing.
TEST(Home, SplashShowsThreeTextsInItsWaitsThenGoes) {
    struct TickingUi : RecordingUi {
        std::function<void()> tick;
        void processEvents() override { tick(); }
    } ui;
    MemorySettings settings;
    App app(ui, settings);
    QStringList captions;
    ui.tick = [&] {
        app.userTimer(*app.find("frmSplash"), "Timer1");
        captions << app.find("frmSplash")->caption("lblProductName");
    };
    app.start();
    captions.removeDuplicates();
    // Half a second a reading: the outer wait ends with the nested ones.
    EXPECT_EQ(QString("%1 %2 ").arg(captions.size()).arg(ui.clock) + ui.shownWindows.join(' '),
              "3 6 frmSplash frmHome");
    EXPECT_EQ(app.find("frmSplash"), nullptr);
    app.userTimer(app.show("frmSplash"), "Timer1");
    EXPECT_EQ(ui.clock, 6.0f);
}

TEST(Settings, LoadShowsTheStoredPlacesAndApplyStoresTheTextAsTyped) {
    Harness h;
    Form& f = h.open("frmSettings");
    EXPECT_EQ(f.text("Text1") + QString::number(f.listIndex("lstSelection")), "40");
    for (const auto& [typed, places] : {std::pair{"2.5", 2}, {"3.5", 4}, {"abc", 0}, {"-2", -2}}) {
        h.run("frmSettings", {QString("Text1=") + typed, "Command1"});
        EXPECT_EQ(h.app.decPlace, places) << typed;  // nearest, ties to even
        EXPECT_EQ(h.settings.get("Reg", "DecPlace", "?"), typed);
        h.app.unload(*h.app.find("frmSettings"));
        EXPECT_EQ(h.open("frmSettings").text("Text1"), typed);
    }
    EXPECT_TRUE(h.ui.shown.empty()) << "no message, no failure";
}

TEST(Settings, SetQuickLauncherRewritesTheSlotAndTheHomeWindowAtOnce) {
    const QString invalidCall = "Run-time error '5':\r\n\r\nInvalid procedure call or argument";
    // The slot as typed, the row of lstSelection, the item's index in Combo1 afterwards.
    const std::tuple<const char*, int, int, QString> rows[] = {
        {"2", 22, 1, "OK Quick Launcher Item # 2 is now set to launch \r\nSine Plate"},
        {"4", 0, 3, "OK Quick Launcher Item # 4 is now set to launch \r\nBall Drop"},
        {" 3", 20, 2, "OK Quick Launcher Item # 3 is now set to launch \r\nSFM <--> RPM"},
        {"2.4", 9, 1, "OK Quick Launcher Item # 2.4 is now set to launch \r\nDove Tails"},
        {"5", 22, -1, invalidCall},  // stored, then there is no item to remove
    };
    for (const auto& [slot, row, index, box] : rows) {
        Harness h;
        Form& f =
            h.run("frmSettings", {QString("Text2=") + slot, QString("lstSelection#%1").arg(row)});
        const QString item = f.listText("lstSelection");
        h.run("frmSettings", {"Command2"});
        const QStringList items = h.app.find("frmHome")->control("Combo1").items;
        EXPECT_EQ(QString("%1 %2 ").arg(items.indexOf(item)).arg(items.size()) + h.lastBox(),
                  QString("%1 4 ").arg(index) + box)
            << slot;
        EXPECT_EQ(h.settings.get("Quicklaunch", slot, "?"), item) << slot;
    }
}

TEST(Windows, TheNoticesAndTheTermsStand) {
    Harness h;
    EXPECT_FALSE(h.open("frmAbout").caption("txtCompany").isEmpty());  // written at load
    const QString terms = h.open("frmDisclaimer").text("Text1");
    EXPECT_TRUE(terms.endsWith("discontinue use of \r\nthis software immediately!\r\n"));
    EXPECT_EQ(QString("%1 %2").arg(terms.count("\r\n")).arg(terms.size()), "18 776");
}

// Each row runs after 22.5 has been converted: a message leaves that answer.
TEST(DdToDms, HandlerRows) {
    const QString old = "DMS= 22°  30'  0\"|";
    // The steps, the box that comes, the answer and the entry afterwards.
    const std::tuple<QStringList, QString, QString> rows[] = {
        {{"txtDD1=-22.5", "Command1"}, "", "DMS= -22°  30'  0\"|-22.5"},  // zero only is refused
        {{"optDD", "txtDD1=22.5", "Command1"}, "", "DD=  22.833333|22.5"},
        {{"txtDD1=", "Command1"}, "Error, Please enter data.", old},
        {{"txtDD1= ", "Command1"}, "Value must be greater than zero.", old + " "},  // not empty
        {{"txtDD1=0", "Command1"}, "Value must be greater than zero.", old + "0"},
        {{"txtDD1=1E400", "Command1"}, "Run-time error '6':\r\n\r\nOverflow", old + "1E400"},
        {{"optDD"}, "", "|22.5"},  // each option empties the answer, not the entry
        {{"optDD", "optDMS"}, "", "|22.5"},
        {{"Command2"}, "", "|"},
    };
    for (const auto& [steps, box, answer] : rows) {
        Harness h;
        Form& f = h.run("frmDDtoDMS", QStringList{"txtDD1=22.5", "Command1"} + steps);
        EXPECT_EQ(h.lastBox(), box) << steps.join(' ');
        EXPECT_EQ(f.text("txtDDans") + '|' + f.text("txtDD1"), answer) << steps.join(' ');
    }
}

TEST(DdToDms, OptionsSwapTheCaptions) {
    Harness h;
    Form& f = h.run("frmDDtoDMS", {"optDD"});
    EXPECT_EQ(f.caption("Label1242") + '|' + f.caption("field1262"),
              "Deg. Min. Sec.|      enter 22° 3' 22\" as 22.0322");
    h.run("frmDDtoDMS", {"optDMS"});
    EXPECT_EQ(f.caption("Label1242") + '|' + f.caption("field1262"), "Decimal Degrees|");
}

}  // namespace
}  // namespace tavrin
