// Min. and Max. Ball Diameters: the balls a countersink can take.

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "inspection/ball_limits.h"

namespace tavrin {

namespace {

// This window tests nothing: an angle whose cosine is 0 ends in the fatal box.
void Calculate(Form& f) {
    const Real a = f.value("chkDMSmin") ? ValOf(DmsTextToDd(f.text("txtAngMinMax")))
                                        : ValOf(f.text("txtAngMinMax"));
    f.setText("txtMMans", "Calculating...");
    f.setText("txtMMans", BallLimits(a, ValOf(f.text("txtThruMinMax")),
                                     ValOf(f.text("txtSCMinMax")), f.app().decPlace));
}

void DmsHint(Form& f) {
    f.setCaption("Field3160", f.value("chkDMSmin") ? "enter " + DmsExample() : QString());
}

void Build(Form& f) {
    f.setTitle("Min. and Max. Ball Diameters");
    f.addField("Label1", "Angle", "txtAngMinMax");
    f.addField("Label2", "Thru Hole Dia.", "txtThruMinMax");
    f.addField("Label3", "Sharp Corner Dia.", "txtSCMinMax");
    f.addCheck(QString(), "chkDMSmin", "Entering DMS");
    f.addLabel("Field3160", QString()).widthChars = 26;
    f.addRow(RowKind::Line, {"chkDMSmin"});
    f.addRow(RowKind::Line, {"Field3160"});
    f.addAnswerBox("txtMMans", 2, ScrollBars::None).widthChars = 30;
    f.addRow(RowKind::Line, {"txtMMans"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onClick("chkDMSmin", DmsHint);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        EmptyTexts(f, {"txtAngMinMax", "txtThruMinMax", "txtSCMinMax", "txtMMans"});
    });
}

const FormRegistration registration("frmMinMaxBall", Build);

}  // namespace

}  // namespace tavrin
