// Countersink: two of angle, diameter and depth give the third, written into
// its own empty field.

#include "threads/countersink.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real CountersinkDepth(Real angle, Real diameter, int decPlace) {
    const Real half = angle / 2;
    const Real r = diameter / 2;
    return RoundTo(r / Tan(half * 3.1416 / 180), decPlace);
}

Real CountersinkDiameter(Real angle, Real depth, int decPlace) {
    const Real half = angle / 2;
    const Real t = Tan(half * 3.1416 / 180) * depth;
    return RoundTo(t + t, decPlace);
}

// The arc tangent of depth over radius is the half angle's complement.
Real CountersinkAngle(Real diameter, Real depth) {
    const Real r = diameter / 2;
    const Real a = RoundTo(Atn(depth / r) / 0.0174533, 4);
    return RoundTo(180 - (a + a), 1);
}

namespace {

const char* const kFields[] = {"txtAngle", "txtDiameter", "txtDepth"};

void Refuse(Form& f, const QString& message) {
    ProgramMessage(f, message);
    f.setFocus("txtDiameter");
}

void Calculate(Form& f) {
    int empty = 0;
    for (const char* name : kFields) {
        empty += f.text(name).isEmpty() ? 1 : 0;
    }
    if (empty == 0) {
        Refuse(f, "Please fill only two data fields.");
        return;
    }
    if (empty > 1) {
        Refuse(f, "You must fill two data fields.");
        return;
    }
    const Real angle = ValOf(f.text("txtAngle"));
    const Real diameter = ValOf(f.text("txtDiameter"));
    const Real depth = ValOf(f.text("txtDepth"));
    const bool depthSought = f.text("txtDepth").isEmpty();
    const bool diameterSought = f.text("txtDiameter").isEmpty();
    const bool givenZero = (!depthSought && depth == 0) || (!diameterSought && diameter == 0) ||
                           (!f.text("txtAngle").isEmpty() && angle == 0);
    if (givenZero) {
        ProgramMessage(f, "Error, Values must be greater than zero.");
        return;
    }
    if (depthSought) {
        f.setText("txtDepth", NumToStr(CountersinkDepth(angle, diameter, f.app().decPlace)));
    } else if (diameterSought) {
        f.setText("txtDiameter", NumToStr(CountersinkDiameter(angle, depth, f.app().decPlace)));
    } else {
        f.setText("txtAngle", NumToStr(CountersinkAngle(diameter, depth)));
    }
}

void ClearAll(Form& f) {
    EmptyTexts(f, kFields);
}

void Build(Form& f) {
    f.setTitle("Countersink");
    f.addField("Label1", "Included Angle", "txtAngle");
    f.addField("Label2", "Diameter", "txtDiameter");
    f.addField("Label3", "Depth", "txtDepth");
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.app().show("frmCounterView"); });
}

void BuildPicture(Form& f) {
    DeclarePictureWindow(f, "Countersink", "countersink");
}

const FormRegistration registration("frmCounterSink", Build);
const FormRegistration picture("frmCounterView", BuildPicture);

}  // namespace

}  // namespace tavrin
