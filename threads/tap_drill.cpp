// Tap Drill Size: the drill for a cutting or forming tap, inch or metric.

#include "threads/tap_drill.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real TapMinorDiameter(bool metric, bool forming, bool numbered, Real size, Real pitch,
                      Real percent) {
    // Numbered screws by their rule, not by a table.
    const Real s = numbered ? size * 0.013 + 0.06 : size;
    if (!metric) {
        return forming ? s - (percent * 0.0068) / pitch : s - (percent * 0.013) / pitch;
    }
    return forming ? s - (percent * pitch) / 147.06 : s - (percent * pitch) / 76.98;
}

QString TapDrillAnswer(Real m, bool metric, int decPlace) {
    const Real inches = metric ? RoundTo(m * 0.03937, decPlace) : RoundTo(m, decPlace);
    const Real millimetres = metric ? RoundTo(m, decPlace) : RoundTo(m * 25.4, decPlace);
    return "Minor Dia.= " + NumToStr(inches) + "\r\n[" + NumToStr(millimetres) + " mm]";
}

namespace {

void Calculate(Form& f) {
    if (f.text("txtPitch").isEmpty() || f.text("txtPercent").isEmpty() ||
        f.text("txtTapSize").isEmpty()) {
        ProgramMessage(f, "Error, Please fill all three data fields.");
        return;
    }
    if (ValOf(f.text("txtPitch")) == 0) {
        ProgramMessage(f, "Error, Pitch value must be greater than zero.");
        return;
    }
    if (ValOf(f.text("txtPercent")) == 0) {
        ProgramMessage(f, "Error, Percent value must be greater than zero.");
        return;
    }
    const int kind = f.listIndex("popTypeTap");
    // A kind typed into the drop-down is neither tap: the diameter stays 0.
    const Real m = kind < 0
                       ? Real(0)
                       : TapMinorDiameter(f.value("chkMetTap"), kind == 1, f.value("chkTapNo"),
                                          ValOf(f.text("txtTapSize")), ValOf(f.text("txtPitch")),
                                          ValOf(f.text("txtPercent")));
    f.setText("txtTapAns", TapDrillAnswer(m, f.value("chkMetTap"), f.app().decPlace));
}

// Clearing the other box runs its click first, so the captions end as told.
void MetricClick(Form& f) {
    if (f.value("chkMetTap")) {
        f.setValue("chkTapNo", false);
        f.setCaption("Field1994", "Tap Diameter");
        f.setCaption("Label1273", "Pitch");
    } else {
        f.setCaption("Label1273", "TPI");
    }
}

void NumberClick(Form& f) {
    if (f.value("chkTapNo")) {
        f.setCaption("Field1994", "Tap #");
        f.setValue("chkMetTap", false);
        f.setCaption("Label1273", "TPI");
    } else {
        f.setCaption("Field1994", "Tap Diameter");
        f.setCaption("Label1273", "TPI");
    }
}

// The percent is emptied too: no 75 comes back.
void ClearAll(Form& f) {
    EmptyTexts(f, {"txtPercent", "txtPitch", "txtTapSize", "txtTapAns"});
}

void Build(Form& f) {
    f.setTitle("Tap Drill Size");
    f.addLabel("Label1", "Using-->");
    f.add(ControlKind::Combo, "popTypeTap").items = QStringList{"Cutting Tap", "Forming Tap"};
    f.addRow(RowKind::Fields, {"Label1", "popTypeTap"});
    f.addField("Field1994", QString(), "txtTapSize");
    f.addField("Label1273", "TPI", "txtPitch");
    f.addField("Label3", "% Full Thread", "txtPercent");
    f.addCheck(QString(), "chkMetTap", "Metric Tap");
    f.addCheck(QString(), "chkTapNo", "Using Tap #");
    f.addRow(RowKind::Line, {"chkMetTap", "chkTapNo"});
    f.addAnswerBox("txtTapAns", 2, ScrollBars::None).widthChars = 24;
    f.addRow(RowKind::Line, {"txtTapAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad([](Form& f) {
        f.setListIndex("popTypeTap", 0);
        f.setCaption("Field1994", "Tap Diameter");
        f.setText("txtPercent", "75");
    });
    f.onClick("chkMetTap", MetricClick);
    f.onClick("chkTapNo", NumberClick);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.app().show("frmTapHelp"); });
}

void BuildHelp(Form& f) {
    f.setTitle("General Recommendation");
    Control& text = f.addTextBox("txtAngDrop");
    text.multiLine = true;
    text.locked = true;
    text.widthChars = 40;
    text.heightLines = 7;
    text.text =
        "Use 100% of thread when the depth of the tapped hole is one-half or less than the tap "
        "diameter. Use 75% when depth of tapped hole is up to two times the tap diameter. Use 50% "
        "thread when the depth is greater than two times the tap diameter.";
    f.addRow(RowKind::Line, {"txtAngDrop"});
}

const FormRegistration registration("frmTap", Build);
const FormRegistration help("frmTapHelp", BuildHelp);

}  // namespace

}  // namespace tavrin
