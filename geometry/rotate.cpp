// Shift and Rotation of Points: moves a list of points to a new origin and
// rotates them. The points are asked for one at a time, in the modal window
// frmPointsRotate, and kept as typed for frmoldpoints.

#include "geometry/rotate.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

Real RotationRadians(Real degrees) {
    return degrees * Pi() / -180;
}

RotatedPoint RotatePoint(Real x, Real y, Real xo, Real yo, Real rad) {
    const Real dx = x - xo;
    const Real dy = y - yo;
    return {dx * Cos(rad) + dy * Sin(rad), Negate(dx) * Sin(rad) + dy * Cos(rad)};
}

QString RotatedPointsText(const std::vector<RotatedPoint>& points) {
    QString text;
    for (const RotatedPoint& p : points) {
        text += "X" + NumToStr(RoundTo(p.x, 4)) + " " + "Y" + NumToStr(RoundTo(p.y, 4)) + "\r\n";
    }
    return text;
}

namespace {

// No test of the fields: an empty one counts as 0.
void EnterPoints(Form& f) {
    App& app = f.app();
    f.setText("txtRotated", QString());
    const Real rad = RotationRadians(ValOf(f.text("txtRotateDeg")));
    const Real xo = ValOf(f.text("txtXNewOrigin"));
    const Real yo = ValOf(f.text("txtYNewOrigin"));
    app.oldPointsText.clear();
    const Real count = ValOf(f.text("cboPoints"));
    // The two lists are sized by the count: one beyond 32 bits cannot be.
    ToInt32(count);
    std::vector<RotatedPoint> points;
    for (double i = 1; i <= count; ++i) {
        Form& entry = app.load("frmPointsRotate");
        entry.setCaption("lblPointNum", "Point #" + NumToStr(i));
        entry.setCaption("lblX", "X" + NumToStr(i));
        entry.setCaption("lblY", "Y" + NumToStr(i));
        entry.setText("txtXtoShift", QString());
        entry.setText("txtYtoShift", QString());
        app.showModal("frmPointsRotate");
        // Closed by its close box, the window comes back empty.
        const Form& typed = app.load("frmPointsRotate");
        const QString x = typed.text("txtXtoShift");
        const QString y = typed.text("txtYtoShift");
        app.oldPointsText += " X " + x + " Y " + y + "\r\n";
        points.push_back(RotatePoint(ValOf(x), ValOf(y), xo, yo, rad));
    }
    f.setText("txtRotated", RotatedPointsText(points));
}

void ViewOldPoints(Form& f) {
    Form& old = f.app().load("frmoldpoints");
    old.setText("Text1", f.app().oldPointsText);
    f.app().show("frmoldpoints");
}

void Build(Form& f) {
    f.setTitle("Shift and Rotation of Points");
    f.addField("Label1", "New X", "txtXNewOrigin");
    f.addField("Label2", "New Y", "txtYNewOrigin");
    f.addField("Label3", "Degrees of Rotation", "txtRotateDeg");
    f.addLabel("Label4", "# of points");
    f.addTextBox("cboPoints").text = "3";
    Control& spin = f.add(ControlKind::Spin, "UpDown1");
    spin.buddy = "cboPoints";
    spin.minimum = 1;
    spin.maximum = 40;
    f.addRow(RowKind::Fields, {"Label4", "cboPoints", "UpDown1"});
    Control& answer = f.addAnswerBox("txtRotated", 10);
    answer.locked = false;  // the user may edit it; it changes nothing
    answer.widthChars = 30;
    f.addRow(RowKind::Line, {"txtRotated"});
    f.addButton("Command1", "Enter Points");
    f.addButton("Command2", "View Old Points");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("Command1", EnterPoints);
    f.onClick("Command2", ViewOldPoints);
}

const FormRegistration registration("frmRotate", Build);

}  // namespace

}  // namespace tavrin
