// Angle Radius Angle: the tangencies of a radius between two angled lines.

#include "geometry/tangency_ara.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "geometry/tangency_hub.h"

namespace tavrin {

QString AraAnswer(Real a1, Real a2, Real r, int decPlace) {
    // Either order of the angles gives the same half turn: a first angle
    // above the second is the other direction of the arc.
    Real g;
    if (a1 < a2) {
        g = (90 - a1) / 2 - (90 - a2) / 2;
    } else {
        g = (a1 - 90) / 2 - (a2 - 90) / 2;
    }
    const Real b = r * TanDeg(g) * CosDeg(a1);
    const Real c = r * SinDeg(a2) - r * SinDeg(a1);
    const Real e = TanDeg(a1) * b;
    const Real h = r * CosDeg(a1) - r * CosDeg(a2);
    const Real d = r * TanDeg(g) * CosDeg(a2);
    const Real f = TanDeg(a2) * d;
    const auto line = [decPlace](const char* label, Real value) {
        return label + NumToStr(RoundTo(value, decPlace));
    };
    return line("B= ", b) + "\r\n" + line("C= ", c) + "\r\n" + line("E= ", e) + "\r\n" +
           line("H= ", h) + "\r\n" + line("D= ", d) + "\r\n" + line("F= ", f);
}

namespace {

void Calculate(Form& f) {
    // No test: every pair of angles goes through.
    f.setText("txtAnsara", "Calculating...");
    const Real a1 = TangencyAngle(f, "txtA1ara");
    const Real a2 = TangencyAngle(f, "txtA2ara");
    const Real r = ValOf(f.text("txtRadara"));
    f.setText("txtAnsara", AraAnswer(a1, a2, r, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Angle Radius Angle");
    f.addField("Label2", "Angle 1", "txtA1ara");
    f.addField("Label3", "Angle 2", "txtA2ara");
    f.addField("Label2558", "Radius", "txtRadara");
    f.addAnswerBox("txtAnsara", 6, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtAnsara"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});
    f.addImage("Image1", "tangency_ara");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtA1ara", "txtA2ara", "txtRadara", "txtAnsara"});
    });
    f.onClick("Command3", [](Form& f) {
        ProgramMessage(f,
                       "The second angle does not have to be more than the first angle, Angle 1= "
                       "35 Angle 2= 15 is OK (G02 or G03 change).");
    });
}

const FormRegistration registration("frmARA", Build);

}  // namespace

}  // namespace tavrin
