// The home window: the launch list, the Quick Launcher, four buttons, two
// menus; its load step starts the program and its closing step ends it.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/launch_tables.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

const QString kQuickLauncher = QStringLiteral("Quick Launcher");

void ReadSettings(Form& f) {
    SettingsStore& store = f.app().settings();
    f.app().decPlace = StrictInt16(store.get("Reg", "DecPlace", "4"));
    const std::int16_t left = StrictInt16(store.get("Xpos", "Xpos", "3420"));
    const std::int16_t top = StrictInt16(store.get("Ypos", "Ypos", "5000"));
    f.setPosition(left, top);
    for (int slot = 1; slot <= kQuickLauncherSlots; ++slot) {
        f.addItem("Combo1",
                  store.get("Quicklaunch", QString::number(slot), DefaultQuickLauncherSlot(slot)),
                  slot - 1);
    }
}

void ShowSplash(Form& f) {
    App& app = f.app();
    app.show("frmSplash");
    float seconds = 3;
    app.waitSeconds(seconds);
    if (Form* splash = app.find("frmSplash")) {
        app.unload(*splash);
    }
}

void Load(Form& f) {
    ReadSettings(f);
    if (f.app().splashEnabled) {
        ShowSplash(f);
    }
}

void Closing(Form& f) {
    const std::int16_t left = ToInt16(f.left());
    const std::int16_t top = ToInt16(f.top());
    f.app().settings().save("Xpos", "Xpos", QString::number(left));
    f.app().settings().save("Ypos", "Ypos", QString::number(top));
    f.app().closeAllWindows("frmHome");
}

void LaunchListClick(Form& f) {
    const int index = f.listIndex("lstSelection");
    const auto& list = LaunchList();
    if (index >= 0 && index < static_cast<int>(list.size())) {
        ShowIfBuilt(f.app(), list[index].form);
    }
}

void QuickLauncherClick(Form& f) {
    const QString chosen = f.listText("Combo1");
    for (const LaunchEntry& e : QuickLauncherTable()) {
        if (e.text == chosen) {
            ShowIfBuilt(f.app(), e.form);
            break;
        }
    }
    f.setText("Combo1", kQuickLauncher);
}

// The usual desktop calculators, tried in turn.
bool StartDesktopCalculator(Ui& ui) {
    for (const char* program :
         {"gnome-calculator", "kcalc", "galculator", "qalculate-gtk", "mate-calc", "xcalc"}) {
        if (ui.startProgram(QString::fromLatin1(program))) {
            return true;
        }
    }
    return false;
}

void CalculatorClick(Form& f) {
    try {
        if (!StartDesktopCalculator(f.app().ui())) {
            Raise(ErrorNumber::FileNotFound);
        }
    } catch (const RunTimeError&) {
        ProgramMessage(f, "Can't find the calculator!");
    }
}

void Build(Form& f) {
    f.setTitle(QStringLiteral("Tavrin™"));
    f.setStyle(FormStyle::Home);

    f.add(ControlKind::Menu, "mnuInfo", "Info");
    f.add(ControlKind::MenuItem, "mnuDisclaimer", "Disclaimer").container = "mnuInfo";
    f.add(ControlKind::MenuItem, "mnuAbout", "About").container = "mnuInfo";
    f.add(ControlKind::Menu, "mnuOptions", "Options");
    f.add(ControlKind::MenuItem, "mnuSettings", "Settings").container = "mnuOptions";

    f.addImage("Image1", "home");
    Control& list = f.add(ControlKind::ListBox, "lstSelection");
    list.items = LaunchListTexts();
    list.heightLines = 14;
    list.widthChars = 34;
    Control& combo = f.add(ControlKind::Combo, "Combo1");
    combo.text = kQuickLauncher;
    f.addButton("Command1", "Area / Volume");
    f.addButton("Command2", QString()).picture = "calculator";
    f.addButton("Command3", "Conversions");
    f.addButton("Command4", "Quick Code");

    f.addRow(RowKind::Line, {"Image1"});
    f.addRow(RowKind::Line, {"lstSelection"});
    f.addRow(RowKind::Line, {"Combo1"});
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3", "Command4"});

    f.onLoad(Load);
    f.onUnload(Closing);
    f.onClick("lstSelection", LaunchListClick);
    f.onClick("Combo1", QuickLauncherClick);
    f.onClick("Command1", [](Form& f) { ShowIfBuilt(f.app(), "form1"); });
    f.onClick("Command2", CalculatorClick);
    f.onClick("Command3", [](Form& f) { ShowIfBuilt(f.app(), "frmConversions"); });
    f.onClick("Command4", [](Form& f) { ShowIfBuilt(f.app(), "frmQuickCode"); });
    f.onClick("mnuDisclaimer", [](Form& f) { ShowIfBuilt(f.app(), "frmDisclaimer"); });
    f.onClick("mnuAbout", [](Form& f) { ShowIfBuilt(f.app(), "frmAbout"); });
    f.onClick("mnuSettings", [](Form& f) { ShowIfBuilt(f.app(), "frmSettings"); });
}

const FormRegistration registration("frmHome", Build);

}  // namespace

}  // namespace tavrin
