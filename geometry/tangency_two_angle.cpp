// S/C to Radius Two Angle: how far the sharp corner of a vee stands from the
// radius in it.

#include "geometry/tangency_two_angle.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "geometry/tangency_hub.h"

namespace tavrin {

QString TwoAngleAnswer(Real a1, Real a2, Real r, int decPlace) {
    const Real m = 1 / SinDeg((a2 + a1) / 2) * CosDeg((a2 - a1) / 2) * r;
    return "B= " + NumToStr(RoundTo(r + m, decPlace)) + "\r\nC= " + NumToStr(RoundTo(m, decPlace)) +
           "\r\nD= " + NumToStr(RoundTo(m - r, decPlace));
}

namespace {

void Calculate(Form& f) {
    // The tests read the angles as typed, also when they are packed DMS.
    if (ValOf(f.text("txtAng1op")) == 0 && ValOf(f.text("txtAng2op")) == 0) {
        ProgramMessage(f, "Error, Only one angle can have a zero value.");
        return;
    }
    if (ValOf(f.text("txtAng1op")) > 90 || ValOf(f.text("txtAng2op")) > 90) {
        ProgramMessage(f, "Error, Angles can not be more than 90 degrees.");
        return;
    }
    f.setText("txtansop", "Calculating...");
    const Real a1 = TangencyAngle(f, "txtAng1op");
    const Real a2 = TangencyAngle(f, "txtAng2op");
    const Real r = ValOf(f.text("txtRadop"));
    f.setText("txtansop", TwoAngleAnswer(a1, a2, r, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("S/C to Radius Two Angle");
    f.addField("Label1", "Angle1", "txtAng1op");
    f.addField("Label2", "Angle2", "txtAng2op");
    f.addField("Label3", "Radius", "txtRadop");
    f.addAnswerBox("txtansop", 3, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtansop"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "tangency_two_angle");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtAng1op", "txtAng2op", "txtRadop", "txtansop"});
    });
}

const FormRegistration registration("frmTwoAngle", Build);

}  // namespace

}  // namespace tavrin
