// Dove Tails: the size over rolls from the sharp corner and back, external or
// internal, one sided, with the roll on a riser.

#include "inspection/dove_tails.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real DoveTailSolve(const DoveTail& kind, Real s, Real a, Real d, Real p) {
    if (!kind.overRolls) {
        s = -s;
    }
    const Real r = d / 2;
    if (kind.oneSided) {
        s = 2 * s;
    }
    Real q;
    if (p == 0) {
        q = SinDeg(a) * r + r;
    } else if (kind.overRolls) {
        q = SinDeg(a) * r + (r + p);
    } else {
        q = SinDeg(a) * r + (r - p);
    }
    const Real y = CosDeg(a) * r + TanDeg(a) * q;
    const Real t = kind.internal ? d - s : d + s;
    Real out = t + 2 * y;
    if (kind.oneSided) {
        out = (t + 2 * y) / 2;
    }
    // The sharp corner of an external dove tail and the size over rolls of an
    // internal one come out negative.
    if (kind.overRolls == kind.internal) {
        out = -out;
    }
    return out;
}

namespace {

void Calculate(Form& f) {
    if (!(ValOf(f.text("txtSizeRoll")) > 0 && ValOf(f.text("txtAngleRoll")) > 0 &&
          ValOf(f.text("txtRollRoll")) > 0 && !f.text("txtRiserRoll").isEmpty())) {
        ProgramMessage(f,
                       "Error, Please fill all data fields, only the riser can have a zero value.");
        return;
    }
    if (IsNumberText(f.text("txtRiserRoll")) == 0) {
        ProgramMessage(f, "Error, Invalid input in data field #4");
        return;
    }
    f.setText("txtRollAns", "Calculating...");
    const QString angle = f.text("txtAngleRoll");
    const Real a = f.value("chkDMSdove") ? ValOf(DmsTextToDd(angle)) : ValOf(angle);
    const DoveTail kind{f.value("optOverRolls"), f.value("chkDoveID"), f.value("chkNotConical")};
    const QString label = kind.overRolls ? "Size Over Rolls= " : "Sharp Corner Size= ";
    const Real out = DoveTailSolve(kind, ValOf(f.text("txtSizeRoll")), a,
                                   ValOf(f.text("txtRollRoll")), ValOf(f.text("txtRiserRoll")));
    // Four places, whatever DecPlace says.
    f.setText("txtRollAns", label + NumToStr(RoundTo(out, 4)));
}

void Build(Form& f) {
    f.setTitle("Dove Tails");
    f.addField("Field2125", "Sharp Corner Size", "txtSizeRoll");
    f.addField("Label2", "Angle", "txtAngleRoll");
    f.addField("Label3", "Roll Diameter", "txtRollRoll");
    f.addField("Label4", "Roll Position", "txtRiserRoll");
    f.add(ControlKind::Frame, "Frame1", "Find ");
    f.addOption("Frame1", "optOverRolls", "Over Rolls", true);
    f.addOption("Frame1", "optSC", "Sharp Corner");
    f.addRow(RowKind::Group, {"Frame1", "optOverRolls", "optSC"});
    f.addCheck(QString(), "chkDoveID", "Internal Dove Tail");
    f.addCheck(QString(), "chkNotConical", "One sided taper");
    f.addCheck(QString(), "chkDMSdove", "Entering DMS");
    f.addRow(RowKind::Line, {"chkDoveID", "chkNotConical", "chkDMSdove"});
    f.addAnswerLine("txtRollAns").widthChars = 30;
    f.addRow(RowKind::Line, {"txtRollAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("optOverRolls", [](Form& f) {
        f.setCaption("Field2125",
                     f.value("optOverRolls") ? "Sharp Corner Size" : "Size Over Rolls");
    });
    f.onClick("optSC", [](Form& f) {
        f.setCaption("Field2125", f.value("optSC") ? "Size Over Rolls" : "Sharp Corner Size");
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtSizeRoll", "txtAngleRoll", "txtRollRoll", "txtRiserRoll", "txtRollAns"});
    });
    f.onClick("Command3", [](Form& f) { f.app().show("frmDoveHelp"); });
}

const FormRegistration registration("frmRoll", Build);

}  // namespace

}  // namespace tavrin
