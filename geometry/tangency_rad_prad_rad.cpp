// Rad pRad Rad: a crown radius blended into a flat by two smaller radii.

#include "geometry/tangency_rad_prad_rad.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real RadPRadRadHeight(Real r1, Real v, bool width) {
    if (width) {
        return r1 - Sqr(r1 * r1 - (v / 2) * (v / 2));
    }
    return v;
}

QString RadPRadRadAnswer(Real r1, Real r2, Real h, int decPlace) {
    const Real v = r2 + (r1 - h);
    // A height of 0 puts v / (r1 + r2) on the pole of the arc sine; no guard.
    const Real a = RoundTo(ArcSinDeg(v / (r1 + r2)), 6);
    // Both sides go through their text before they are squared.
    const Real half =
        RoundTo(Sqr(SquareOfText(NumToStr(r1 + r2)) - SquareOfText(NumToStr(v))), decPlace);
    return "TD= " + NumToStr(half * 2) + "\r\nD2= " + NumToStr(RoundTo(CosDeg(a) * r2, decPlace)) +
           "\r\nD1= " + NumToStr(RoundTo(r2 - SinDeg(a) * r2, decPlace));
}

namespace {

void Calculate(Form& f) {
    const Real r1 = ValOf(f.text("txtRad1RR"));
    const Real r2 = ValOf(f.text("txtRad2RR"));
    const Real v = ValOf(f.text("txtHorWRR"));
    const bool width = f.value("optWidthrrr");
    if (r2 >= r1) {
        ProgramMessage(f, "Error, Radius #2 cannot be equal or larger than Radius #1");
        return;
    }
    if (!width && r1 + r2 < v) {
        ProgramMessage(f, "Error, Height cannot be more than radius #1 + radius #2.");
        return;
    }
    if (width && 2 * r1 < v) {
        ProgramMessage(f, "Error, Width cannot be more than two times radius #1.");
        return;
    }
    const Real h = RadPRadRadHeight(r1, v, width);
    f.setText("txtansrrr", "Calculating...");
    f.setText("txtansrrr", RadPRadRadAnswer(r1, r2, h, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Rad pRad Rad");
    f.addField("Label2", "Radius 1", "txtRad1RR");
    f.addField("Label3", "Radius 2", "txtRad2RR");
    f.addField("Label2558", "Height", "txtHorWRR");
    f.add(ControlKind::Frame, "Frame1", "Entering");
    f.addOption("Frame1", "optHeightrrr", "Height", true);
    f.addOption("Frame1", "optWidthrrr", "Width");
    f.addRow(RowKind::Group, {"Frame1", "optHeightrrr", "optWidthrrr"});
    f.addAnswerBox("txtansrrr", 3, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtansrrr"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "tangency_rad_prad_rad");
    f.setSide("Image1");

    f.onClick("optHeightrrr", [](Form& f) { f.setCaption("Label2558", "Height"); });
    f.onClick("optWidthrrr", [](Form& f) { f.setCaption("Label2558", "Width"); });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtRad1RR", "txtRad2RR", "txtansrrr", "txtHorWRR"});
    });
}

const FormRegistration registration("frmradpRadrad", Build);

}  // namespace

}  // namespace tavrin
