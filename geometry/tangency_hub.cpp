// Tangency Points and Distances: the hub of the seven tangency solvers and
// the switch that says how all of them read their angles.

#include "geometry/tangency_hub.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

Real TangencyAngle(const Form& f, const QString& field) {
    if (f.app().tangencyDms) {
        return ValOf(DmsTextToDd(f.text(field)));
    }
    return ValOf(f.text(field));
}

namespace {

void SolverChosen(Form& f) {
    static const char* const solvers[] = {"frmradpRadrad", "frmARA",     "frmAra2",    "frmRadAng",
                                          "frmRadToRad",   "frmTipLoss", "frmTwoAngle"};
    const int index = f.listIndex("lstTpoints");
    if (index >= 0 && index < 7) {
        ShowIfBuilt(f.app(), solvers[index]);
    }
}

void Build(Form& f) {
    f.setTitle("Tangency Points and Distances");
    f.addLabel("Label1", "Tangency Points Solvers");
    f.addLabel("Label2", "Select One");
    Control& list = f.add(ControlKind::ListBox, "lstTpoints");
    list.items = QStringList{"Rad pRad Rad",
                             "Angle Radius Angle",
                             "Angle Radius Angle 2",
                             "Radius Angle or Angle Radius",
                             "Rad to Rad",
                             "Sharp Corner To Radius [One Angle]",
                             "Sharp Corner To Radius [Two Angles]"};
    list.heightLines = 7;
    list.widthChars = 32;
    f.addCheck(QString(), "chkDMStp", "All angles will be entered in DMS");

    f.addRow(RowKind::Line, {"Label1"});
    f.addRow(RowKind::Line, {"Label2"});
    f.addRow(RowKind::Line, {"lstTpoints"});
    f.addRow(RowKind::Line, {"chkDMStp"});

    // No load step: the box opens cleared, and a flag set before stays set
    // until the box is clicked on and off again.
    f.onClick("lstTpoints", SolverChosen);
    f.onClick("chkDMStp", [](Form& f) { f.app().tangencyDms = f.value("chkDMStp"); });
}

const FormRegistration registration("frmTangency", Build);

}  // namespace

}  // namespace tavrin
