// Polar Coordinates: polar values to X and Y about a present position, and back.

#include "geometry/polar.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

QString PolarToRectangular(Real distance, Real angle, Real px, Real py, int decPlace) {
    return "X= " + NumToStr(RoundTo(px + CosDeg(angle) * distance, decPlace)) +
           "\r\nY= " + NumToStr(RoundTo(py + SinDeg(angle) * distance, decPlace));
}

PolarFigures RectangularToPolar(Real dx, Real dy) {
    if (dx == 0 && dy == 0) {
        return {0, 0, 0};
    }
    Real a;
    if (dy != 0) {
        a = 90 - Atn(dx / dy) * 180 / Pi();
    } else {
        a = dx < 0 ? 180 : 0;
    }
    PolarFigures p{0, 0, 0};
    if (dy != 0) {
        p.main = a;
        p.alternate = a - 360;
    }
    // From the angle before the quadrants move it; the size is taken later.
    if (dx == 0) {
        p.radius = dy;
    } else if (dy == 0) {
        p.radius = dx;
    } else {
        p.radius = dx / CosDeg(a);
    }
    if (dx != 0 && dy >= 0) {
        p.main = a;
        p.alternate = a - 360;
    } else if (dy < 0) {
        p.main = a - 180;
        p.alternate = a + 180;
    }
    return p;
}

QString PolarAnswer(const PolarFigures& p, int decPlace) {
    QStringList lines;
    lines << "Radius= " + NumToStr(Abs(RoundTo(p.radius, decPlace)));
    lines << "Angle DD= " + FormatNum(p.main, "####0.000000");
    lines << "Angle DMS= " + DdToDmsText(NumToStr(p.main));
    lines << "[ Angle DD= " + FormatNum(p.alternate, "####0.000000") + " ]";
    lines << "[ Angle DMS= " + DdToDmsText(NumToStr(p.alternate)) + " ]";
    return lines.join("\r\n");
}

namespace {

const char* const kFields[] = {"txtPolarInput1", "txtPolarInput2", "txtXPolarPresent",
                               "txtYPolarPresent"};

void Calculate(Form& f) {
    for (const char* field : kFields) {
        if (f.text(field).isEmpty()) {
            ProgramMessage(f, "Error, Please fill all data fields.");
            return;
        }
    }
    // The angle is tested as typed, also when it is packed DMS.
    for (const char* field : kFields) {
        if (IsNumberText(f.text(field)) == 0) {
            ProgramMessage(f, "Error, Invalid data entered");
            return;
        }
    }
    f.setText("txtPolarAns", "Calculating...");
    const Real px = ValOf(f.text("txtXPolarPresent"));
    const Real py = ValOf(f.text("txtYPolarPresent"));
    const int decPlace = f.app().decPlace;
    const int mode = f.listIndex("popPolar");
    if (mode == 0) {
        const QString angle = f.text("txtPolarInput2");
        const Real a = f.value("chkDMSpolar") ? ValOf(DmsTextToDd(angle)) : ValOf(angle);
        f.setText("txtPolarAns",
                  PolarToRectangular(ValOf(f.text("txtPolarInput1")), a, px, py, decPlace));
    } else if (mode == 1) {
        const Real dx = ValOf(f.text("txtPolarInput1")) - px;
        const Real dy = ValOf(f.text("txtPolarInput2")) - py;
        f.setText("txtPolarAns", PolarAnswer(RectangularToPolar(dx, dy), decPlace));
    }
}

void ModeChosen(Form& f) {
    const int mode = f.listIndex("popPolar");
    if (mode == 0) {
        f.setCaption("Label1214", "Distance");
        f.setCaption("Label1215", "Angle");
    } else if (mode == 1) {
        f.setCaption("Label1214", "X Axis");
        f.setCaption("Label1215", "Y Axis");
    }
}

void Build(Form& f) {
    f.setTitle("Polar Coordinates");
    f.addLabel("Label1", "Type-->");
    Control& mode = f.add(ControlKind::Combo, "popPolar");
    mode.items = QStringList{"Polar to Rectangular", "Rectangular to Polar"};
    f.addRow(RowKind::Fields, {"Label1", "popPolar"});
    f.addField("Label1214", "Distance", "txtPolarInput1");
    f.addField("Label1215", "Angle", "txtPolarInput2");
    f.addField("Label2", "Present X Pos", "txtXPolarPresent");
    f.addField("Label3", "Present Y Pos", "txtYPolarPresent");
    f.addCheck(QString(), "chkDMSpolar", "Entering DMS");
    f.addRow(RowKind::Line, {"chkDMSpolar"});
    Control& answer = f.addAnswerBox("txtPolarAns", 5, ScrollBars::None);
    answer.widthChars = 34;
    f.addRow(RowKind::Line, {"txtPolarAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad([](Form& f) {
        f.setText("txtXPolarPresent", "0");
        f.setText("txtYPolarPresent", "0");
        f.setListIndex("popPolar", 0);
    });
    f.onClick("popPolar", ModeChosen);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        f.setText("txtPolarInput1", QString());
        f.setText("txtPolarInput2", QString());
        f.setText("txtPolarAns", QString());
        f.setText("txtXPolarPresent", "0");
        f.setText("txtYPolarPresent", "0");
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmPolarView"); });
}

const FormRegistration registration("frmPolar", Build);

}  // namespace

}  // namespace tavrin
