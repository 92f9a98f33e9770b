// Drill Tip Compensation: the length of a drill's point, less a tip flat.

#include "threads/drill_tip.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real DrillTipCompensation(Real diameter, Real angle, Real flat, int decPlace) {
    const Real half = angle / 2;
    const Real full = (diameter / 2) / TanDeg(half);
    const Real cutOff = (flat / 2) / TanDeg(half);
    return RoundTo(full - cutOff, decPlace);
}

namespace {

void Calculate(Form& f) {
    // No test for empty fields: an empty flat is no flat.
    if (ValOf(f.text("txtDrillDiam")) < ValOf(f.text("txtDrillFlat"))) {
        ProgramMessage(f, "Error, Flat size cannot be greater than the drill diameter.");
        return;
    }
    if (ValOf(f.text("txtDrillDiam")) == 0 || ValOf(f.text("txtDrillAngle")) == 0) {
        ProgramMessage(f, "Error, Drill and Angle must be greater than zero.");
        return;
    }
    const Real c =
        DrillTipCompensation(ValOf(f.text("txtDrillDiam")), ValOf(f.text("txtDrillAngle")),
                             ValOf(f.text("txtDrillFlat")), f.app().decPlace);
    f.setText("txtDrillCompAns", "Compensation= " + NumToStr(c));
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"txtDrillDiam", "txtDrillAngle", "txtDrillFlat", "txtDrillCompAns"});
}

void Build(Form& f) {
    f.setTitle("Drill Tip Compensation");
    f.addField("Label1", "Drill Diameter", "txtDrillDiam");
    f.addField("Label2", "Included Angle", "txtDrillAngle");
    f.addField("Label3", "Drill Tip Flat Diam.", "txtDrillFlat");
    f.addAnswerLine("txtDrillCompAns").widthChars = 26;
    f.addRow(RowKind::Line, {"txtDrillCompAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.app().show("frmDrillCompView"); });
}

void BuildPicture(Form& f) {
    DeclarePictureWindow(f, "Drill Tip Compensation", "drill_tip");
}

const FormRegistration registration("frmDrillTip", Build);
const FormRegistration picture("frmDrillCompView", BuildPicture);

}  // namespace

}  // namespace tavrin
