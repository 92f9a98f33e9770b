// Rad to Rad: where a small radius meets a large one.

#include "geometry/tangency_rad_to_rad.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString RadToRadAnswer(Real r1, Real r2, Real l, int decPlace) {
    const Real w = r2 - r1;
    const Real u = l - r1;
    const Real height = r2 - RoundTo(Sqr(Square(w) - Square(u)), decPlace);
    const Real q = u / w;
    Real c = u;
    Real d = 0;
    Real e = 0;
    Real f = 0;
    // A length equal to r2 would meet the pole of the arc sine; step round it.
    if (q != 1) {
        const Real a = RoundTo(ArcSinDeg(q), 6);
        d = RoundTo(CosDeg(a) * r1, decPlace);
        c = RoundTo(r1 - RoundTo(SinDeg(a) * r1, decPlace), decPlace);
        e = l - c;
        f = height - d;
    }
    return "C= " + NumToStr(c) + "\r\nD= " + NumToStr(d) +
           "\r\nE= " + NumToStr(RoundTo(e, decPlace)) + "\r\nF= " + NumToStr(RoundTo(f, decPlace)) +
           "\r\nHeight= " + NumToStr(RoundTo(height, decPlace));
}

namespace {

void Calculate(Form& f) {
    const Real r1 = ValOf(f.text("txtRR1"));
    const Real r2 = ValOf(f.text("txtRR2"));
    const Real l = ValOf(f.text("txtRRLength"));
    if (r1 > l) {
        ProgramMessage(f, "Error, Length cannot be less than radius #1.");
        return;
    }
    if (r2 < l) {
        ProgramMessage(f, "Error, Length cannot be greater than radius #2.");
        return;
    }
    if (r2 <= r1) {
        ProgramMessage(f, "Error, Radius #1 cannot be larger than or equal to radius #2.");
        return;
    }
    f.setText("txtRRans", "Calculating...");
    f.setText("txtRRans", RadToRadAnswer(r1, r2, l, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Rad to Rad");
    f.addField("Label1", "Radius1", "txtRR1");
    f.addField("Label2", "Radius2", "txtRR2");
    f.addField("Label3", "Length", "txtRRLength");
    f.addAnswerBox("txtRRans", 5, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtRRans"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "tangency_rad_to_rad");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtRR1", "txtRR2", "txtRRLength", "txtRRans"});
    });
}

const FormRegistration registration("frmRadToRad", Build);

}  // namespace

}  // namespace tavrin
