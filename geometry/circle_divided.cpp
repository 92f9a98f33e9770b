// Circle Divided: the angles of equal divisions round a circle from a start
// angle, in decimal degrees and in degrees, minutes and seconds.

#include "geometry/circle_divided.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString PositionLine(int index, const QString& angleText) {
    return NumToStr(index) + "]  " + FormatNum(ValOf(angleText), "##0.000000") + " || " +
           DdToDmsText(angleText);
}

}  // namespace

QString CircleDivisions(Real start, Real positions) {
    const Real inc = 360 / positions;
    const QString incText = NumToStr(RoundTo(inc, 6));
    QString text = incText + " DD Increments" + kCrLf + DdToDmsText(incText) + " DMS Increments" +
                   kCrLf + kCrLf + PositionLine(1, NumToStr(RoundTo(start, 6)));
    const std::int16_t last = ToInt16(positions);
    // The sum stays unrounded, so that the rounding does not pile up, and it
    // runs on past 360.
    Real angle = start;
    for (int n = 2; n <= last; ++n) {
        angle = inc + angle;
        text += kCrLf + PositionLine(n, NumToStr(RoundTo(angle, 6)));
    }
    return text;
}

namespace {

void Calculate(Form& f) {
    if (f.text("txtCirDivAng").isEmpty()) {
        ProgramMessage(f,
                       QStringLiteral("Error, Please enter an angle value, any value including 0") +
                           kDegreeSign + " is ok to enter.");
        return;
    }
    if (f.text("txtCirDivPos").contains(u'.')) {
        ProgramMessage(f, "Error, No decimal point allowed for # of positions.");
        return;
    }
    if (ValOf(f.text("txtCirDivPos")) == 0) {
        ProgramMessage(f, "Error, # of positions must be greater than zero.");
        return;
    }
    Real start = ValOf(f.text("txtCirDivAng"));
    // The number's own text, not the typed one: "22.0300" is read as 22.03.
    if (f.value("chkDMSCirDiv")) {
        start = ValOf(DmsTextToDd(NumToStr(start)));
    }
    f.setText("txtCirDivAns", "Calculating...");
    f.setText("txtCirDivAns", CircleDivisions(start, ValOf(f.text("txtCirDivPos"))));
}

void Build(Form& f) {
    f.setTitle("Circle Divided");
    f.addField("Label1", "Start Angle", "txtCirDivAng");
    f.addField("Label2", "# of Positions", "txtCirDivPos");
    f.addCheck(QString(), "chkDMSCirDiv", "Entering DMS");
    f.addRow(RowKind::Line, {"chkDMSCirDiv"});
    f.addLabel("Field2811", QString()).widthChars = 30;
    f.addRow(RowKind::Line, {"Field2811"});
    Control& answer = f.addAnswerBox("txtCirDivAns", 12);
    answer.locked = false;  // the user may edit it; it changes nothing
    answer.widthChars = 40;
    f.addRow(RowKind::Line, {"txtCirDivAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("chkDMSCirDiv", [](Form& f) {
        f.setCaption("Field2811", f.value("chkDMSCirDiv") ? "enter " + DmsExample() : QString());
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        f.setText("txtCirDivAng", QString());
        f.setText("txtCirDivPos", QString());
        f.setText("txtCirDivAns", QString());
    });
}

const FormRegistration registration("frmCirDivided", Build);

}  // namespace

}  // namespace tavrin
