// Middle of Two Points.

#include "geometry/middle_two_points.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString MiddleTwoPoints(Real x1, Real y1, Real x2, Real y2, int decPlace) {
    return "X middle= " + NumToStr(RoundTo((x1 + x2) / 2, decPlace)) +
           "\r\nY middle= " + NumToStr(RoundTo((y1 + y2) / 2, decPlace));
}

namespace {

const char* const kFields[] = {"txtX1M", "txtY1M", "txtX2M", "txtY2M"};

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
    f.setText("txtMidTwoPointsAns", "Calculating...");
    f.setText("txtMidTwoPointsAns",
              MiddleTwoPoints(ValOf(f.text("txtX1M")), ValOf(f.text("txtY1M")),
                              ValOf(f.text("txtX2M")), ValOf(f.text("txtY2M")), f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Middle of Two Points");
    f.addLabel("Label1", "X1");
    f.addTextBox("txtX1M");
    f.addLabel("Label2", "Y1");
    f.addTextBox("txtY1M");
    f.addRow(RowKind::Fields, {"Label1", "txtX1M", "Label2", "txtY1M"});
    f.addLabel("Label3", "X2");
    f.addTextBox("txtX2M");
    f.addLabel("Label4", "Y2");
    f.addTextBox("txtY2M");
    f.addRow(RowKind::Fields, {"Label3", "txtX2M", "Label4", "txtY2M"});
    f.addAnswerBox("txtMidTwoPointsAns", 2, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtMidTwoPointsAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("txtMidTwoPointsAns", QString());
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmMiddleView"); });
}

const FormRegistration registration("frmMidTwoPoints", Build);

}  // namespace

}  // namespace tavrin
