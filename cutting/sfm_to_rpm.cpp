// SFM <--> RPM: spindle speed from surface speed and back.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

namespace {

void Calculate(Form& f) {
    if (f.text("txtDia").isEmpty() || f.text("txtSfm").isEmpty()) {
        ProgramMessage(f, "You must fill both data fields.");
        return;
    }
    // Zero only: negative speeds pass and give negative answers.
    if (ValOf(f.text("txtSfm")) == 0 || ValOf(f.text("txtDia")) == 0) {
        ProgramMessage(f, "Error, Values must be greater than zero.");
        return;
    }
    // 3.1416 and one place, whatever DecPlace says: this window has always
    // answered that way.
    if (f.value("optRpm")) {
        Real value = (ValOf(f.text("txtSfm")) * 12) / (ValOf(f.text("txtDia")) * 3.1416);
        value = RoundTo(value, 1);
        f.setText("lblRpm", "Revolutions Per Minute = " + NumToStr(value));
    } else if (f.value("optSfm")) {
        Real value = (ValOf(f.text("txtSfm")) * 3.1416 * ValOf(f.text("txtDia"))) / 12;
        value = RoundTo(value, 1);
        f.setText("lblRpm", "Surface Feet Per Minute = " + NumToStr(value));
    }
}

void ClearAll(Form& f) {
    f.setText("txtDia", QString());
    f.setText("txtSfm", QString());
    f.setText("lblRpm", QString());
}

void Build(Form& f) {
    f.setTitle("SFM<-->RPM");
    f.add(ControlKind::Frame, "Frame1", "Find");
    f.addOption("Frame1", "optRpm", "RPM", true);
    f.addOption("Frame1", "optSfm", "SFM");
    f.addRow(RowKind::Group, {"Frame1", "optRpm", "optSfm"});
    f.addField("Label1", "Cutter Size or Diameter", "txtDia");
    f.addField("Label2", "Surface Feet Per Minute", "txtSfm");
    f.addAnswerLine("lblRpm").widthChars = 34;
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");

    f.addRow(RowKind::Line, {"lblRpm"});
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("optRpm", [](Form& f) { f.setCaption("Label2", "Surface Feet Per Minute"); });
    f.onClick("optSfm", [](Form& f) { f.setCaption("Label2", "Revolutions Per Minute"); });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
}

const FormRegistration registration("frmSfmToRpm", Build);

}  // namespace

}  // namespace tavrin
