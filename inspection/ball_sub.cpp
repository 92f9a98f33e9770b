// Ball Substitution: the distance that another ball gives in the same angle.

#include "inspection/ball_sub.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

QString BallSubstitute(Real s, Real l, Real a, Real d, int mode, int decPlace) {
    const Real rs = s / 2;
    const Real rl = l / 2;
    // How much higher the large ball stands in the angle.
    const Real pm = (rl / SinDeg(a) + rl) - (rs / SinDeg(a) + rs);
    QString distance;
    if (d == 0) {
        distance = "No distance entered.";
    } else if (mode == 1) {
        distance = NumToStr(RoundTo(d - pm, 4));  // four places, whatever DecPlace says
    } else if (mode == 2) {
        distance = NumToStr(RoundTo(d + pm, decPlace));
    }
    return "Plus/Minus Value= " + NumToStr(RoundTo(pm, decPlace)) + "\r\n" +
           "New Distance= " + distance;
}

namespace {

const char* const kFields[] = {"txtSmBall", "txtLaBall", "txtAngBall", "txtDistance"};

void Calculate(Form& f) {
    for (const char* name : kFields) {
        if (f.text(name).isEmpty()) {
            ProgramMessage(f, "Error, Please fill all four data fields.");
            return;
        }
    }
    if (IsNumberText(f.text("txtDistance")) == 0) {
        ProgramMessage(f, "Error, Invalid input in data field #4");
        return;
    }
    // Zero only: a distance below the face is negative.
    for (const char* name : kFields) {
        if (ValOf(f.text(name)) == 0) {
            ProgramMessage(f, "Error, Values must be greater than zero.");
            return;
        }
    }
    f.setText("txtBallSubAns", "Calculating...");
    const QString angle = f.text("txtAngBall");
    const Real a = f.value("chkDMSbs") ? ValOf(DmsTextToDd(angle)) : ValOf(angle);
    f.setText(
        "txtBallSubAns",
        BallSubstitute(ValOf(f.text("txtSmBall")), ValOf(f.text("txtLaBall")), a,
                       ValOf(f.text("txtDistance")), f.listIndex("popSub") + 1, f.app().decPlace));
}

void Build(Form& f) {
    f.setTitle("Ball Substitution");
    f.addField("Label1", "Small Ball", "txtSmBall");
    f.addField("Label2", "Large Ball", "txtLaBall");
    f.addLabel("Label3", "Angle");
    f.addTextBox("txtAngBall");
    f.addCheck(QString(), "chkDMSbs", "Entering DMS");
    f.addRow(RowKind::Fields, {"Label3", "txtAngBall", "chkDMSbs"});
    f.addField("Label4", "Distance", "txtDistance");
    f.addLabel("Label5", "Substituting-->");
    f.add(ControlKind::Combo, "popSub").items = QStringList{"Small Ball", "Large Ball"};
    f.addRow(RowKind::Fields, {"Label5", "popSub"});
    f.addAnswerBox("txtBallSubAns", 2, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtBallSubAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad([](Form& f) { f.setListIndex("popSub", 0); });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, kFields);
        f.setText("txtBallSubAns", QString());
    });
    f.onClick("Command3", [](Form& f) {
        ProgramMessage(f, "If entering the angle in Degrees Minutes Seconds enter " + DmsExample() +
                              " (always use a leading zero for minutes or seconds less than 10)");
    });
}

const FormRegistration registration("frmBallSub", Build);

}  // namespace

}  // namespace tavrin
