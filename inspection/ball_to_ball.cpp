// Two Ball Angle Check, ball to ball: the angle of a taper from two balls and
// the size between them.

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "inspection/two_ball.h"

namespace tavrin {

QString BallToBallAnswer(Real s, Real l, Real g) {
    const Real rs = s / 2;
    const Real rl = l / 2;
    const Real v = rs + g - rl;
    const Real r = (rl - rs) / v;
    if (r > 1 || r < -1) {
        return "Invalid Input";
    }
    const Real a = ArcSinDeg(r);
    return "DD= " + NumToStr(RoundTo(a, 6)) + "\r\n" + "DMS= " + DdToDmsText(NumToStr(a)) + "\r\n" +
           "Included Angle DD= " + NumToStr(RoundTo(a * 2, 6)) + "\r\n" +
           "Included Angle DMS= " + DdToDmsText(NumToStr(a * 2));
}

namespace {

void Calculate(Form& f) {
    const Real s = ValOf(f.text("txtSB2"));
    const Real l = ValOf(f.text("txtLB2"));
    const Real g = ValOf(f.text("txtSizeBetween"));
    if (l == s && s == g) {
        ProgramMessage(f, "Error, Invalid Input.");
        return;
    }
    if (l < s) {
        ProgramMessage(f, "Error, Small ball larger than Large ball.");
        return;
    }
    if (s == 0 || l == 0 || g == 0) {
        ProgramMessage(f, "Error, Values must be greater than zero.");
        return;
    }
    f.setText("txtBBans", "Calculating...");
    f.setText("txtBBans", BallToBallAnswer(s, l, g));
}

void Build(Form& f) {
    f.setTitle("Two Ball Angle Check");
    f.addField("Label1", "Small Ball Diameter", "txtSB2");
    f.addField("Label2", "Large Ball Diameter", "txtLB2");
    f.addField("Label3", "Size Between", "txtSizeBetween");
    f.addLabel("Label4", "Ball to Ball");
    f.addRow(RowKind::Line, {"Label4"});
    f.addAnswerBox("txtBBans", 4, ScrollBars::None).widthChars = 32;
    f.addRow(RowKind::Line, {"txtBBans"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtSB2", "txtLB2", "txtSizeBetween", "txtBBans"});
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmBallToBallHelp"); });
}

const FormRegistration registration("frmBallToBall", Build);
const FormRegistration picture("frmBallToBallHelp", [](Form& f) {
    DeclarePictureWindow(f, "Two Ball Angle Check [Ball to Ball]", "ball_to_ball");
});

}  // namespace

}  // namespace tavrin
