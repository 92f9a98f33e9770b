// SFM <--> RPM: spindle speed from surface speed and back.

#include "cutting/sfm_to_rpm.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

// 3.1416 and one place, whatever DecPlace says: this window has always
// answered that way.
Real SpindleRpm(Real sfm, Real diameter) {
    return RoundTo((sfm * 12) / (diameter * 3.1416), 1);
}

Real SurfaceFeet(Real rpm, Real diameter) {
    return RoundTo((rpm * 3.1416 * diameter) / 12, 1);
}

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
    const Real speed = ValOf(f.text("txtSfm"));
    const Real diameter = ValOf(f.text("txtDia"));
    if (f.value("optRpm")) {
        f.setText("lblRpm", "Revolutions Per Minute = " + NumToStr(SpindleRpm(speed, diameter)));
    } else if (f.value("optSfm")) {
        f.setText("lblRpm", "Surface Feet Per Minute = " + NumToStr(SurfaceFeet(speed, diameter)));
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
