// Two Ball Angle Check, face to ball: the angle of a taper from two balls and
// their heights over the face, with the sharp corner at the face.

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "inspection/two_ball.h"

namespace tavrin {

QString FaceToBallAnswer(Real s, Real l, Real ps, Real pl) {
    const Real rs = s / 2;
    const Real rl = l / 2;
    const Real v = pl - rl + rs - ps;
    const Real r = (rl - rs) / v;
    if (r > 1 || r < -1) {
        return "Invalid Input";
    }
    const Real a = ArcSinDeg(r);
    const Real y = (rl - pl) + r * rl;
    const Real sc = (CosDeg(a) * rl + TanDeg(a) * y) * 2;
    // The sharp corner to four places, whatever DecPlace says.
    return "Angle per Side DD= " + NumToStr(RoundTo(a, 6)) + "\r\n" +
           "Angle per Side DMS= " + DdToDmsText(NumToStr(a)) + "\r\n" +
           "Sharp Corner Dia.= " + NumToStr(RoundTo(sc, 4)) + "\r\n" +
           "Included Angle DD= " + NumToStr(RoundTo(a * 2, 6)) + "\r\n" +
           "Included Angle DMS= " + DdToDmsText(NumToStr(a * 2));
}

namespace {

void Calculate(Form& f) {
    const Real s = ValOf(f.text("txtSB"));
    const Real l = ValOf(f.text("txtLB"));
    const Real ps = ValOf(f.text("txtSBpos"));
    const Real pl = ValOf(f.text("txtLBpos"));
    if (l < s) {
        ProgramMessage(f, "Error, Small ball larger than Large ball.");
        return;
    }
    if (s == 0 || l == 0 || ps == 0 || pl == 0) {
        ProgramMessage(f, "Error, Values must be greater than zero.");
        return;
    }
    // Each position against the diameter of its own ball.
    if (ps == s && pl == l) {
        ProgramMessage(f, "Error, Ball sizes and positions are the same.");
        return;
    }
    if (IsNumberText(f.text("txtSBpos")) == 0 || IsNumberText(f.text("txtLBpos")) == 0) {
        ProgramMessage(f, "Error, Invalid data entered in field #3 or #4");
        return;
    }
    f.setText("txtFaceBall", "Calculating...");
    f.setText("txtFaceBall", FaceToBallAnswer(s, l, ps, pl));
}

void Build(Form& f) {
    f.setTitle("Two Ball Angle Check");
    f.addField("Label1", "Small Ball Diameter", "txtSB");
    f.addField("Label2", "Large Ball Diameter", "txtLB");
    f.addField("Label3", "Small Ball Pos.", "txtSBpos");
    f.addField("Label5", "Large Ball Pos.", "txtLBpos");
    f.addLabel("Label4", "Face to Ball");
    f.addRow(RowKind::Line, {"Label4"});
    f.addAnswerBox("txtFaceBall", 5, ScrollBars::None).widthChars = 32;
    f.addRow(RowKind::Line, {"txtFaceBall"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addButton("Command4", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3", "Command4"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtSB", "txtLB", "txtSBpos", "txtLBpos", "txtFaceBall"});
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmFaceToBallHelp"); });
    f.onClick("Command4", [](Form& f) {
        ProgramMessage(
            f, "Enter negative values for below the face and positive values for above the face.");
    });
}

const FormRegistration registration("frmFaceToBall", Build);
const FormRegistration picture("frmFaceToBallHelp", [](Form& f) {
    DeclarePictureWindow(f, "Two Ball Angle Check [Face to Ball]", "face_to_ball");
});

}  // namespace

}  // namespace tavrin
