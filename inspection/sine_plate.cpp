// Sine Plate: the gage block height that tilts the plate to an angle, or the
// angle that a height gives.

#include "inspection/sine_plate.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

std::optional<QString> SinePlateAnswer(bool heightEntered, Real l, Real e, int decPlace) {
    if (!heightEntered) {
        return "Gage Block Height= " + NumToStr(RoundTo(l * SinDeg(e), decPlace));
    }
    // The pole of the arc sine is never met.
    if (e >= l) {
        return std::nullopt;
    }
    const Real a = ArcSinDeg(e / l);
    return "Incline of Angle DD= " + NumToStr(RoundTo(a, 6)) + "\r\n" +
           "Incline of Angle DMS= " + DdToDmsText(NumToStr(RoundTo(a, 6)));
}

namespace {

void Calculate(Form& f) {
    if (!(ValOf(f.text("SinePlateLength")) > 0 && ValOf(f.text("AngleIncline")) > 0)) {
        ProgramMessage(f, "Error, Please fill both data fields with values greater than zero.");
        return;
    }
    f.setText("GageBlock", "Calculating...");
    // A height never goes through the DMS conversion.
    const Real e = f.value("chkDMSsine") && f.value("optAngle")
                       ? ValOf(DmsTextToDd(f.text("AngleIncline")))
                       : ValOf(f.text("AngleIncline"));
    const Real l = ValOf(f.text("SinePlateLength"));
    if (f.value("optAngle")) {
        f.setText("GageBlock", *SinePlateAnswer(false, l, e, f.app().decPlace));
    } else if (f.value("optHeight")) {
        const std::optional<QString> answer = SinePlateAnswer(true, l, e, f.app().decPlace);
        if (!answer) {
            ProgramMessage(f, "Error, Sine Bar equal or shorter than Height.");
        }
        f.setText("GageBlock", answer.value_or(QString()));
    }
}

void EntryCaption(Form& f, const char* option, const char* on, const char* off) {
    f.setCaption("txtSPtype", f.value(option) ? on : off);
}

void Build(Form& f) {
    f.setTitle("Sine Plate");
    f.addField("Label2", "Sine Plate Length", "SinePlateLength");
    f.addField("txtSPtype", "Angle's Incline", "AngleIncline");
    f.add(ControlKind::Frame, "Frame1", "Entering");
    f.addOption("Frame1", "optAngle", "Angle", true);
    f.addOption("Frame1", "optHeight", "Height");
    f.addRow(RowKind::Group, {"Frame1", "optAngle", "optHeight"});
    f.addCheck(QString(), "chkDMSsine", "Entering DMS");
    f.addLabel("txtHelpAng", QString());
    f.addRow(RowKind::Line, {"chkDMSsine", "txtHelpAng"});
    f.addAnswerBox("GageBlock", 2, ScrollBars::None).widthChars = 34;
    f.addRow(RowKind::Line, {"GageBlock"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("chkDMSsine", [](Form& f) {
        f.setCaption("txtHelpAng", f.value("chkDMSsine") ? "enter " + DmsExample() : QString());
    });
    f.onClick("optAngle",
              [](Form& f) { EntryCaption(f, "optAngle", "Angle's Incline", "Gage Block Height"); });
    f.onClick("optHeight", [](Form& f) {
        EntryCaption(f, "optHeight", "Gage Block Height", "Angle's Incline");
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"SinePlateLength", "AngleIncline", "GageBlock"});
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmSinePlateView"); });
}

const FormRegistration registration("frmSinePlate", Build);
const FormRegistration view("frmSinePlateView",
                            [](Form& f) { DeclarePictureWindow(f, "Sine Plate", "sine_plate"); });

}  // namespace

}  // namespace tavrin
