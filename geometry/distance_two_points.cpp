// Distance Between Two Points.

#include "geometry/distance_two_points.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real DistanceTwoPoints(Real x1, Real y1, Real x2, Real y2) {
    return Sqr((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

namespace {

const char* const kFields[] = {"txtX1D", "txtY1D", "txtX2D", "txtY2D"};

void Calculate(Form& f) {
    for (const char* field : kFields) {
        if (f.text(field).isEmpty()) {
            ProgramMessage(f, "Error, Please fill all four data fields.");
            return;
        }
    }
    for (const char* field : kFields) {
        if (IsNumberText(f.text(field)) == 0) {
            ProgramMessage(f, "Error, Invalid data in one or more data fields.");
            return;
        }
    }
    f.setText("txtDisTwoPointsAns", "Calculating...");
    const Real d = DistanceTwoPoints(ValOf(f.text("txtX1D")), ValOf(f.text("txtY1D")),
                                     ValOf(f.text("txtX2D")), ValOf(f.text("txtY2D")));
    f.setText("txtDisTwoPointsAns", "Distance= " + NumToStr(RoundTo(d, f.app().decPlace)));
}

void Build(Form& f) {
    f.setTitle("Distance Between Two Points");
    f.addLabel("Label1", "X1");
    f.addTextBox("txtX1D");
    f.addLabel("Label2", "Y1");
    f.addTextBox("txtY1D");
    f.addRow(RowKind::Fields, {"Label1", "txtX1D", "Label2", "txtY1D"});
    f.addLabel("Label3", "X2");
    f.addTextBox("txtX2D");
    f.addLabel("Label4", "Y2");
    f.addTextBox("txtY2D");
    f.addRow(RowKind::Fields, {"Label3", "txtX2D", "Label4", "txtY2D"});
    f.addAnswerLine("txtDisTwoPointsAns").widthChars = 30;
    f.addRow(RowKind::Line, {"txtDisTwoPointsAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("txtDisTwoPointsAns", QString());
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmDistancetwoPointsView"); });
}

const FormRegistration registration("frmDistTwoPoints", Build);

}  // namespace

}  // namespace tavrin
