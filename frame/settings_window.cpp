// Settings: the decimal places of the answers and the four Quick Launcher
// slots of the home window.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/launch_tables.h"
#include "frame/numeric_text.h"

namespace tavrin {

namespace {

void Load(Form& f) {
    f.setText("Text1", f.app().settings().get("Reg", "DecPlace", "4"));
    f.setListIndex("lstSelection", 0);
}

// The text is stored as typed; the spin keeps it in range only when it is used.
// A text that is no number stops the next start, a negative one every RoundTo.
void ApplyDecimalPlaces(Form& f) {
    f.app().settings().save("Reg", "DecPlace", f.text("Text1"));
    f.app().decPlace = ToInt16(ValOf(f.text("Text1")));
}

void SetQuickLauncher(Form& f) {
    const QString slot = f.text("Text2");
    const QString item = f.listText("lstSelection");
    SettingsStore& store = f.app().settings();
    store.save("Quicklaunch", slot, item);
    // The home window takes the change at once. A slot outside 1 to 4 has no
    // item to remove, and that is the end of the program.
    Form& home = f.app().load("frmHome");
    const std::int16_t index = ToInt16(ValOf(slot) - 1);
    home.removeItem("Combo1", index);
    home.addItem("Combo1", store.get("Quicklaunch", slot, "Circle Segments"), index);
    ProgramMessage(
        f, "OK Quick Launcher Item #" + NumToStr(slot) + " is now set to launch " + "\r\n" + item);
}

void Build(Form& f) {
    f.setTitle("Settings");
    f.addLabel("Label1", "Decimal Place Setting");
    Control& placesText = f.addTextBox("Text1");
    placesText.text = QStringLiteral("1");
    placesText.widthChars = 4;
    Control& places = f.add(ControlKind::Spin, "UpDown1");
    places.buddy = "Text1";
    places.minimum = 1;
    places.maximum = 6;
    f.addButton("Command1", "Apply Decimal Place Setting");

    Control& list = f.add(ControlKind::ListBox, "lstSelection");
    list.items = LaunchListTexts();
    list.heightLines = 10;
    list.widthChars = 34;

    f.addLabel("Label2", "Quick launcher Item #");
    Control& slotText = f.addTextBox("Text2");
    slotText.text = QStringLiteral("1");
    slotText.widthChars = 4;
    Control& slot = f.add(ControlKind::Spin, "UpDown2");
    slot.buddy = "Text2";
    slot.minimum = 1;
    slot.maximum = kQuickLauncherSlots;
    f.addButton("Command2", "Set Quick Launcher");
    f.addImage("Image1", "settings");

    f.addRow(RowKind::Fields, {"Label1", "Text1", "UpDown1"});
    f.addRow(RowKind::Buttons, {"Command1"});
    f.addRow(RowKind::Line, {"lstSelection"});
    f.addRow(RowKind::Fields, {"Label2", "Text2", "UpDown2"});
    f.addRow(RowKind::Buttons, {"Command2"});
    f.setSide("Image1");

    f.onLoad(Load);
    f.onClick("Command1", ApplyDecimalPlaces);
    f.onClick("Command2", SetQuickLauncher);
}

const FormRegistration registration("frmSettings", Build);

}  // namespace

}  // namespace tavrin
