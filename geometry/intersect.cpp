// Intersection of Two Lines, each given by two points.

#include "geometry/intersect.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

IntersectAnswer IntersectTwoLines(Real x1, Real y1, Real x2, Real y2, Real x3, Real y3, Real x4,
                                  Real y4, int decPlace) {
    const QString refused = QStringLiteral("Error, Invalid Input.");
    if (x2 - x1 == 0 && x4 - x3 == 0) {
        return {refused, {}};
    }
    if (y1 == y2 && y3 == y4) {
        return {refused, {}};
    }
    const Real m1 = (y2 - y1) / (x2 - x1);
    const Real m2 = (y4 - y3) / (x4 - x3);
    const Real b1 = y1 - m1 * x1;
    const Real b2 = y3 - m2 * x3;
    if (m1 == m2) {
        return {refused, {}};
    }
    // The shortcuts stand as they always have: a level first line answers
    // with its own first point.
    const Real x = m1 != 0 ? (b2 - b1) / (m1 - m2) : x1;
    const Real y = m2 != 0 ? x * m1 + b1 : y3;
    return {{},
            "Intersection X= " + NumToStr(RoundTo(x, decPlace)) +
                "\r\nIntersection Y= " + NumToStr(RoundTo(y, decPlace))};
}

namespace {

const char* const kFields[] = {"txtX1", "txtY1", "txtX2", "txtY2",
                               "txtX3", "txtY3", "txtX4", "txtY4"};

void Calculate(Form& f) {
    for (const char* field : kFields) {
        if (f.text(field).isEmpty()) {
            ProgramMessage(f, "Error, Please fill all eight data fields.");
            return;
        }
    }
    for (const char* field : kFields) {
        if (IsNumberText(f.text(field)) == 0) {
            ProgramMessage(f, "Error, One or more data fields contain invalid data.");
            return;
        }
    }
    f.setText("txtIntAns", "Calculating...");
    auto v = [&f](const char* field) { return ValOf(f.text(field)); };
    const IntersectAnswer answer =
        IntersectTwoLines(v("txtX1"), v("txtY1"), v("txtX2"), v("txtY2"), v("txtX3"), v("txtY3"),
                          v("txtX4"), v("txtY4"), f.app().decPlace);
    if (!answer.refusal.isEmpty()) {
        ProgramMessage(f, answer.refusal);
    }
    f.setText("txtIntAns", answer.lines);
}

void Build(Form& f) {
    f.setTitle("Intersection of Two Lines");
    for (const char* n : {"1", "2", "3", "4"}) {
        f.addLabel(QStringLiteral("lblX%1").arg(n), QStringLiteral("X%1").arg(n));
        f.addTextBox(QStringLiteral("txtX%1").arg(n));
        f.addLabel(QStringLiteral("lblY%1").arg(n), QStringLiteral("Y%1").arg(n));
        f.addTextBox(QStringLiteral("txtY%1").arg(n));
        f.addRow(RowKind::Fields,
                 {QStringLiteral("lblX%1").arg(n), QStringLiteral("txtX%1").arg(n),
                  QStringLiteral("lblY%1").arg(n), QStringLiteral("txtY%1").arg(n)});
    }
    f.addAnswerBox("txtIntAns", 2, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtIntAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("txtIntAns", QString());
    });
}

const FormRegistration registration("frmIntersect", Build);

}  // namespace

}  // namespace tavrin
