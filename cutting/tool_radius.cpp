// Tool Radius Compensation: how far a programmed corner moves for a tool nose
// radius the control does not compensate.

#include "cutting/tool_radius.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString ToolRadiusAnswer(Real r, Real a, int decPlace) {
    const Real z = r * (1 - TanDeg(a / 2));
    const Real x = TanDeg(a) * z;
    const Real dbl = x + x;
    const Real vert = r - x;
    const Real horz = r - z;
    const auto shown = [decPlace](Real v) { return NumToStr(RoundTo(v, decPlace)); };
    // The mill takes z and x crosswise.
    return "***Lathe***\r\nX= " + shown(x) + "\r\nZ= " + shown(z) + "\r\nX Doubled= " + shown(dbl) +
           "\r\n***Mill***\r\nX= " + shown(z) + "\r\nY= " + shown(x) +
           "\r\n***Cross Over***\r\nVertical= " + shown(vert) + "\r\nHorizontal= " + shown(horz);
}

namespace {

void Calculate(Form& f) {
    if (f.text("txtTrc1").isEmpty() || f.text("txtTrc2").isEmpty()) {
        ProgramMessage(f, "Error, Please fill both data fields.");
        return;
    }
    // The angle is tested as typed, before any DMS reading.
    if (ValOf(f.text("txtTrc1")) <= 0 || ValOf(f.text("txtTrc2")) <= 0) {
        ProgramMessage(f, "Error, Values must be greater than zero.");
        return;
    }
    f.setText("Field1230", "Calculating...");
    const Real a =
        f.value("chkDMStrc") ? ValOf(DmsTextToDd(f.text("txtTrc2"))) : ValOf(f.text("txtTrc2"));
    f.setText("Field1230", ToolRadiusAnswer(ValOf(f.text("txtTrc1")), a, f.app().decPlace));
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"txtTrc1", "txtTrc2", "Field1230"});
}

void Build(Form& f) {
    f.setTitle("Tool Radius Compensation");
    f.addField("Label1", "Radius", "txtTrc1");
    f.addLabel("Label2", "Angle");
    f.addTextBox("txtTrc2");
    f.addCheck(QString(), "chkDMStrc", "Entering DMS");
    f.addRow(RowKind::Fields, {"Label2", "txtTrc2", "chkDMStrc"});
    f.addLabel("Field3079", QString()).widthChars = 30;
    f.addRow(RowKind::Line, {"Field3079"});
    f.addAnswerBox("Field1230", 10, ScrollBars::None).widthChars = 24;
    f.addRow(RowKind::Line, {"Field1230"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("chkDMStrc", [](Form& f) {
        f.setCaption("Field3079", f.value("chkDMStrc") ? "enter " + DmsExample() : QString());
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.app().show("frmToolRadCompView"); });
}

void BuildPicture(Form& f) {
    DeclarePictureWindow(f, "Tool Radius Compensation", "tool_radius");
}

const FormRegistration registration("frmTRC", Build);
const FormRegistration picture("frmToolRadCompView", BuildPicture);

}  // namespace

}  // namespace tavrin
