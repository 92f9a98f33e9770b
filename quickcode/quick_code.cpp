// Quick Code: the hub of the five G-code generators.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

// Generators not built yet do nothing, as on the home window.
void ShowIfBuilt(Form& f, const QString& form) {
    if (App::IsBuilt(form)) {
        f.app().show(form);
    }
}

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

    f.onClick("Command1", [](Form& f) { ShowIfBuilt(f, "frmBoltCircle"); });
    f.onClick("Command2", [](Form& f) { ShowIfBuilt(f, "frmGrid"); });
    f.onClick("Command3", [](Form& f) { ShowIfBuilt(f, "frmThdMill"); });
    f.onClick("Command4", [](Form& f) { ShowIfBuilt(f, "frmLatheDrill"); });
    f.onClick("Command5", [](Form& f) { ShowIfBuilt(f, "frmLatheThread"); });
}

const FormRegistration registration("frmQuickCode", Build);

}  // namespace

}  // namespace tavrin
