// Three Point Arc Center: the centre and radius of the arc through three points.

#include "geometry/arc_center.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

ArcCenterAnswer ArcCenter(Real x1, Real y1, Real x2, Real y2, Real x3, Real y3, int decPlace) {
    // A chord parallel to the Y axis is refused, although its arc exists.
    if (x2 - x1 == 0 || x3 - x1 == 0) {
        return {"Error, Invalid input.", {}};
    }
    const Real m1 = (y2 - y1) / (x2 - x1);
    const Real m2 = (y3 - y1) / (x3 - x1);
    if (m2 - m1 == 0) {
        return {"Error, Straight Line.", {}};
    }
    const Real a = ((y1 + y2) * (y2 - y1) + (x2 - x1) * (x1 + x2)) / (2 * (x2 - x1));
    const Real b = ((x1 + x3) * (x3 - x1) + (y3 - y1) * (y1 + y3)) / (2 * (x3 - x1));
    const Real yc = (b - a) / (m2 - m1);
    const Real xc = b - yc * m2;
    const Real r = Sqr(Square(y3 - yc) + Square(x3 - xc));
    return {{},
            "X Arc Center= " + NumToStr(RoundTo(xc, decPlace)) + "\r\nY Arc Center= " +
                NumToStr(RoundTo(yc, decPlace)) + "\r\nRadius= " + NumToStr(RoundTo(r, decPlace))};
}

namespace {

const char* const kFields[] = {"txtX1A", "txtX2A", "txtX3A", "txtY1A", "txtY2A", "txtY3A"};

void Calculate(Form& f) {
    for (const char* field : kFields) {
        if (f.text(field).isEmpty()) {
            ProgramMessage(f, "Error, Please fill all data fields.");
            return;
        }
    }
    for (const char* field : kFields) {
        if (IsNumberText(f.text(field)) == 0) {
            ProgramMessage(f, "Error, Invalid data in one or more fields.");
            return;
        }
    }
    f.setText("txtArcCenter", "Calculating...");
    auto v = [&f](const char* field) { return ValOf(f.text(field)); };
    const ArcCenterAnswer answer = ArcCenter(v("txtX1A"), v("txtY1A"), v("txtX2A"), v("txtY2A"),
                                             v("txtX3A"), v("txtY3A"), f.app().decPlace);
    if (!answer.refusal.isEmpty()) {
        ProgramMessage(f, answer.refusal);
    }
    f.setText("txtArcCenter", answer.lines);
}

void Build(Form& f) {
    f.setTitle("Three Point Arc Center");
    for (const char* n : {"1", "2", "3"}) {
        f.addLabel(QStringLiteral("lblX%1").arg(n), QStringLiteral("X%1").arg(n));
        f.addTextBox(QStringLiteral("txtX%1A").arg(n));
        f.addLabel(QStringLiteral("lblY%1").arg(n), QStringLiteral("Y%1").arg(n));
        f.addTextBox(QStringLiteral("txtY%1A").arg(n));
        f.addRow(RowKind::Fields,
                 {QStringLiteral("lblX%1").arg(n), QStringLiteral("txtX%1A").arg(n),
                  QStringLiteral("lblY%1").arg(n), QStringLiteral("txtY%1A").arg(n)});
    }
    f.addAnswerBox("txtArcCenter", 3, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtArcCenter"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("txtArcCenter", QString());
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmThreePointView"); });
}

const FormRegistration registration("frmArcCenter", Build);

}  // namespace

}  // namespace tavrin
