// Quick Code: the hub of the five G-code generators.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Quick Code");
    f.addImage("Picture1", "quickcode");
    f.addButton("Command1", "Bolt Circle");
    f.addButton("Command2", "Grid Hole Pattern");
    f.addButton("Command3", "Thread Milling");
    f.addButton("Command4", "Lathe Drilling");
    f.addButton("Command5", "Lathe Threading");

    f.addRow(RowKind::Line, {"Picture1"});
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});
    f.addRow(RowKind::Buttons, {"Command4", "Command5"});

    f.onClick("Command1", [](Form& f) { ShowIfBuilt(f.app(), "frmBoltCircle"); });
    f.onClick("Command2", [](Form& f) { ShowIfBuilt(f.app(), "frmGrid"); });
    f.onClick("Command3", [](Form& f) { ShowIfBuilt(f.app(), "frmThdMill"); });
    f.onClick("Command4", [](Form& f) { ShowIfBuilt(f.app(), "frmLatheDrill"); });
    f.onClick("Command5", [](Form& f) { ShowIfBuilt(f.app(), "frmLatheThread"); });
}

const FormRegistration registration("frmQuickCode", Build);

}  // namespace

}  // namespace tavrin
