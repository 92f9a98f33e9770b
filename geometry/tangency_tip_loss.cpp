// S/C to Radius One Angle: how far a sharp corner stands from the radius
// that rounds it.

#include "geometry/tangency_tip_loss.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "geometry/tangency_hub.h"

namespace tavrin {

QString TipLossAnswer(Real r, Real a, int decPlace) {
    const Real b = 90 - a;
    // The steps of Rad to Angle Tangency, with b for its angle.
    Real c = 0;
    if (90 - b / 2 != 0) {
        c = RoundTo(r / TanDeg(90 - b / 2), decPlace);
    }
    const Real d = RoundTo(TanDeg(b) * r * CosDeg(b), decPlace);
    const Real e = RoundTo(TanDeg(b / 2) * d, decPlace);
    const Real f = RoundTo(TanDeg(b) * (r + c), decPlace);
    // The sums are written as they come, with no further rounding.
    return "E= " + NumToStr(f) + "\r\nD= " + NumToStr(e + f) + "\r\nC= " + NumToStr(r + f) +
           "\r\nB= " + NumToStr(2 * r + f);
}

namespace {

void Calculate(Form& f) {
    // The tests read the angle as typed, also when it is packed DMS.
    if (ValOf(f.text("txtangtl")) == 0) {
        ProgramMessage(f, "Error, Angle cannot have a zero value.");
        return;
    }
    if (ValOf(f.text("txtangtl")) > 90) {
        ProgramMessage(f, "Error, Angle can not be more than 90 degrees.");
        return;
    }
    f.setText("txtanstl", "Calculating...");
    const Real a = TangencyAngle(f, "txtangtl");
    const Real r = ValOf(f.text("txtradtl"));
    f.setText("txtanstl", TipLossAnswer(r, a, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("S/C to Radius One Angle");
    f.addField("Label3", "Radius", "txtradtl");
    f.addField("Label4", "Angle", "txtangtl");
    f.addAnswerBox("txtanstl", 4, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtanstl"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "tangency_tip_loss");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) { EmptyTexts(f, {"txtradtl", "txtangtl", "txtanstl"}); });
}

const FormRegistration registration("frmTipLoss", Build);

}  // namespace

}  // namespace tavrin
