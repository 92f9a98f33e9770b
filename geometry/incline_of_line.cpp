// Slope and Angle of a Line.

#include "geometry/incline_of_line.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString InclineOfLine(Real x1, Real y1, Real x2, Real y2, int decPlace) {
    const Real dy = y2 - y1;
    const Real dx = x2 - x1;
    // A line parallel to the Y axis is given a slope of 0, not a division.
    const Real m = dx == 0 ? Real(0) : dy / dx;
    // The angles are sizes; only the slope keeps its sign.
    const Real a = Abs(AtanDeg(m));
    const QString one = NumToStr(RoundTo(a, 6));
    const QString two = NumToStr(RoundTo(90 - a, 6));
    QStringList lines;
    lines << "Slope= " + NumToStr(RoundTo(m, decPlace));
    lines << "Angle1 DD= " + one;
    lines << "Angle1 DMS= " + DdToDmsText(one);
    lines << "Angle2 DD= " + two;
    lines << "Angle2 DMS= " + DdToDmsText(two);
    lines << "Slope Length= " + NumToStr(Abs(RoundTo(dx / CosDeg(a), decPlace)));
    lines << "Y (Rise)= " + NumToStr(Abs(dy));
    lines << "X (Run)= " + NumToStr(Abs(dx));
    return lines.join("\r\n");
}

namespace {

const char* const kFields[] = {"txtXIncline1", "txtYIncline1", "txtXIncline2", "txtYIncline2"};

void Calculate(Form& f) {
    // This window writes its word first and tests the characters before the emptiness.
    f.setText("txtInclineLineAns", "Calculating...");
    for (const char* field : kFields) {
        if (IsNumberText(f.text(field)) == 0) {
            ProgramMessage(f, "Error, Invalid Input.");
            f.setText("txtInclineLineAns", QString());
            return;
        }
    }
    for (const char* field : kFields) {
        if (f.text(field).isEmpty()) {
            ProgramMessage(f, "Error, Please fill all data fields.");
            f.setText("txtInclineLineAns", QString());
            return;
        }
    }
    auto v = [&f](const char* field) { return ValOf(f.text(field)); };
    f.setText("txtInclineLineAns",
              InclineOfLine(v("txtXIncline1"), v("txtYIncline1"), v("txtXIncline2"),
                            v("txtYIncline2"), f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Slope and Angle of a Line");
    f.addLabel("Label1", "X1");
    f.addTextBox("txtXIncline1");
    f.addLabel("Label2", "Y1");
    f.addTextBox("txtYIncline1");
    f.addRow(RowKind::Fields, {"Label1", "txtXIncline1", "Label2", "txtYIncline1"});
    f.addLabel("Label3", "X2");
    f.addTextBox("txtXIncline2");
    f.addLabel("Label4", "Y2");
    f.addTextBox("txtYIncline2");
    f.addRow(RowKind::Fields, {"Label3", "txtXIncline2", "Label4", "txtYIncline2"});
    f.addAnswerBox("txtInclineLineAns", 8, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtInclineLineAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("txtInclineLineAns", QString());
    });
}

const FormRegistration registration("frmInclineOfLine", Build);

}  // namespace

}  // namespace tavrin
