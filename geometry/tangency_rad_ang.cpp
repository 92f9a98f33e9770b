// Rad to Angle Tangency: where a radius meets a line at an angle.

#include "geometry/tangency_rad_ang.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "geometry/tangency_hub.h"

namespace tavrin {

QString RadAngAnswer(Real r, Real a, int decPlace) {
    // At 180 the tangent below would divide by zero: the corner is the tangency.
    Real c = 0;
    if (90 - a / 2 != 0) {
        c = RoundTo(r / TanDeg(90 - a / 2), decPlace);
    }
    const Real d = RoundTo(TanDeg(a) * r * CosDeg(a), decPlace);
    const Real e = RoundTo(TanDeg(a / 2) * d, decPlace);  // from the rounded D
    return "C= " + NumToStr(c) + "\r\nD= " + NumToStr(d) + "\r\nE= " + NumToStr(e);
}

namespace {

void Calculate(Form& f) {
    // No test: every radius and angle goes through.
    const Real r = ValOf(f.text("txtradar"));
    const Real a = TangencyAngle(f, "txtangar");
    f.setText("txtansar", "Calculating...");
    f.setText("txtansar", RadAngAnswer(r, a, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Rad to Angle Tangency");
    f.addField("Label1", "Radius", "txtradar");
    f.addField("Label2", "Angle", "txtangar");
    f.addAnswerBox("txtansar", 3, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtansar"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "tangency_rad_ang");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) { EmptyTexts(f, {"txtradar", "txtangar", "txtansar"}); });
}

const FormRegistration registration("frmRadAng", Build);

}  // namespace

}  // namespace tavrin
