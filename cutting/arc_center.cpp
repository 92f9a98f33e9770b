// I K - I J Arc Center: the centre offsets of an arc known by its end point
// distances and radius.

#include "cutting/arc_center.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString ArcCenterAnswer(Real x, Real z, Real r, bool lathe, int decPlace) {
    const Real a1 = Atn(Negate(x) / z) * 180 / Pi();
    const Real a2 = a1 - 90;
    const Real c = x / CosDeg(Negate(a2));
    const Real a3 = ArcCosDeg((Negate(c) / 2) / r);
    const Real a4 = a3 - a1;
    const Real a5 = a3 - Negate(a1);
    const Real p = RoundTo(r * SinDeg(a4), decPlace);
    const Real q = RoundTo(r * SinDeg(a5), decPlace);
    const Real s = RoundTo(z + q, decPlace);
    const Real u = RoundTo(Negate(x) + p, decPlace);
    const QString head = "Use of the following pairs depending on G02 or G03\r\n";
    if (lathe) {
        return head + "I= " + NumToStr(Abs(p)) + " K= " + NumToStr(Abs(s)) +
               "\r\nI= " + NumToStr(Abs(u)) + " K= " + NumToStr(Abs(q));
    }
    return head + "I= " + NumToStr(Abs(s)) + " J= " + NumToStr(Abs(p)) +
           "\r\nI= " + NumToStr(Abs(q)) + " J= " + NumToStr(Abs(u));
}

namespace {

void Calculate(Form& f) {
    // No test for empty fields: the arithmetic answers for them.
    const Real r = ValOf(f.text("txtradik"));
    if (r < ValOf(f.text("txtXik")) || r < ValOf(f.text("txtZik"))) {
        ProgramMessage(f, "Error, Distance values cannot be greater than radius.");
        return;
    }
    f.setText("txtansik", "Calculating...");
    f.setText("txtansik", ArcCenterAnswer(ValOf(f.text("txtXik")), ValOf(f.text("txtZik")), r,
                                          f.value("optLatheIK"), f.app().decPlace));
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"txtXik", "txtZik", "txtradik", "txtansik"});
}

void Build(Form& f) {
    f.setTitle("I K - I J Arc Center");
    f.add(ControlKind::Frame, "Frame1", "Machine Type");
    f.addOption("Frame1", "optLatheIK", "Lathe", true);
    f.addOption("Frame1", "optMillIK", "Mill");
    f.addRow(RowKind::Group, {"Frame1", "optLatheIK", "optMillIK"});
    f.addField("Label2696", "X Distance", "txtXik");
    f.addField("Label2697", "Z Distance", "txtZik");
    f.addField("Label3", "Radius", "txtradik");
    f.addAnswerBox("txtansik", 3, ScrollBars::None).widthChars = 44;
    f.addRow(RowKind::Line, {"txtansik"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("optLatheIK", [](Form& f) {
        f.setCaption("Label2696", "X Distance");
        f.setCaption("Label2697", "Z Distance");
    });
    f.onClick("optMillIK", [](Form& f) {
        f.setCaption("Label2696", "Y Distance");
        f.setCaption("Label2697", "X Distance");
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
}

const FormRegistration registration("frmIK", Build);

}  // namespace

}  // namespace tavrin
