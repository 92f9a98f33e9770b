// Cusp Height <--> Step Over of a ball cutter.

#include "cutting/cusp.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real CuspHeight(Real r, Real s) {
    return r - Sqr(4 * Square(r) - Square(s)) / 2;
}

Real StepOver(Real r, Real s) {
    const Real w = Sqr(s * (2 * r - s));
    return w + w;
}

namespace {

void Calculate(Form& f) {
    const Real r = ValOf(f.text("txtRadCusp"));
    const Real s = ValOf(f.text("txtStepOrCusp"));
    if (r == 0 || s == 0) {
        ProgramMessage(f, "Error, Please fill both data fields with values greater than zero.");
        return;
    }
    if (2 * r < s) {
        ProgramMessage(f, "Error, Invalid input.");
        return;
    }
    const int places = f.app().decPlace;
    if (f.value("optCusp")) {
        f.setText("txtCuspAns", "Cusp Height= " + NumToStr(RoundTo(CuspHeight(r, s), places)));
    } else if (f.value("optStep")) {
        f.setText("txtCuspAns", "Step Over= " + NumToStr(RoundTo(StepOver(r, s), places)));
    }
}

void ShowKnown(Form& f) {
    f.setCaption("lblCuspOrStep", f.value("optCusp") ? "Step Over" : "Cusp Height");
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"txtRadCusp", "txtStepOrCusp", "txtCuspAns"});
}

void Build(Form& f) {
    f.setTitle("Cusp Height<-->Step Over");
    f.add(ControlKind::Frame, "Frame1", "Find");
    f.addOption("Frame1", "optCusp", "Cusp Height", true);
    f.addOption("Frame1", "optStep", "Step Over");
    f.addRow(RowKind::Group, {"Frame1", "optCusp", "optStep"});
    f.addField("Label2", "Radius", "txtRadCusp");
    f.addField("lblCuspOrStep", "Step Over", "txtStepOrCusp");
    f.addAnswerLine("txtCuspAns").widthChars = 26;
    f.addRow(RowKind::Line, {"txtCuspAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("optCusp", ShowKnown);
    f.onClick("optStep", ShowKnown);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.app().show("frmCuspImage"); });
}

void BuildPicture(Form& f) {
    DeclarePictureWindow(f, "Cusp Height", "cusp");
}

const FormRegistration registration("frmCusp", Build);
const FormRegistration picture("frmCuspImage", BuildPicture);

}  // namespace

}  // namespace tavrin
