// Ang Rad Ang 2: a radius between two angled lines of given heights.

#include "geometry/tangency_ara2.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "geometry/tangency_hub.h"

namespace tavrin {

QString Ara2Answer(Real h1, Real a1, Real h2, Real a2, Real r, int decPlace) {
    const Real s1 = SinDeg(a1) * r;
    const Real s2 = SinDeg(a2) * r;
    const Real t2 = TanDeg(a2 / 2) * s2;
    const Real t1 = TanDeg(a1 / 2) * s1;
    const Real l1 = h1 / TanDeg(a1) + TanDeg(a1 / 2) * r - s1;
    const Real l2 = h2 / TanDeg(a2) + TanDeg(a2 / 2) * r - s2;
    const auto line = [decPlace](const char* label, Real value) {
        return "\r\n" + (label + NumToStr(RoundTo(value, decPlace)));
    };
    return line("@1to@2 Hgt=", h1 - t1) + line("@1to@2 Len=", l1) + line("@2to@3 Hgt=", t1) +
           line("@2to@3 Len=", s1) + line("@3to@4 Hgt=", t2) + line("@3to@4 Len=", s2) +
           line("@4to@5 Hgt=", h2 - t2) + line("@4to@5 Len=", l2) +
           line("OverAll Len=", l2 + l1 + s1 + s2);
}

namespace {

void Calculate(Form& f) {
    f.setText("txtAnsRar2", "Calculating...");
    // Zero only, whatever the message says: negative values go through.
    for (const char* name :
         {"txtRadRar2", "txtAng1Rar2", "txtAng2Rar2", "txtHgt1Rar2", "txtHgt2Rar2"}) {
        if (ValOf(f.text(name)) == 0) {
            f.setText("txtAnsRar2", QString());
            ProgramMessage(f, "Error, Values must be greater than zero.");
            return;
        }
    }
    const Real a1 = TangencyAngle(f, "txtAng1Rar2");
    const Real a2 = TangencyAngle(f, "txtAng2Rar2");
    f.setText("txtAnsRar2",
              Ara2Answer(ValOf(f.text("txtHgt1Rar2")), a1, ValOf(f.text("txtHgt2Rar2")), a2,
                         ValOf(f.text("txtRadRar2")), f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Ang Rad Ang 2");
    f.addField("Label1", "Height1", "txtHgt1Rar2");
    f.addField("Label2", "Angle1", "txtAng1Rar2");
    f.addField("Label3", "Height2", "txtHgt2Rar2");
    f.addField("Label4", "Angle2", "txtAng2Rar2");
    f.addField("Label5", "Radius", "txtRadRar2");
    f.addAnswerBox("txtAnsRar2", 10, ScrollBars::None).widthChars = 22;
    f.addRow(RowKind::Line, {"txtAnsRar2"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});
    f.addImage("Image1", "tangency_ara2");
    f.setSide("Image1");

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtHgt1Rar2", "txtAng1Rar2", "txtHgt2Rar2", "txtAng2Rar2", "txtRadRar2",
                       "txtAnsRar2"});
    });
}

const FormRegistration registration("frmAra2", Build);

}  // namespace

}  // namespace tavrin
