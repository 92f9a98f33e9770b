// Trigonometry: the small chooser between the two triangle windows.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Trigonometry");
    f.addLabel("Label1", "Select Triangle Type");
    f.addButton("Command1", "Right Triangle Trigonometry");
    f.addButton("Command2", "Oblique Triangle Trigonometry");

    f.addRow(RowKind::Line, {"Label1"});
    f.addRow(RowKind::Line, {"Command1"});
    f.addRow(RowKind::Line, {"Command2"});

    // The chooser stays open behind the window it shows.
    f.onClick("Command1", [](Form& f) { f.app().show("frmTrig"); });
    f.onClick("Command2", [](Form& f) { f.app().show("frmOblique"); });
}

const FormRegistration registration("frmTrigMain", Build);

}  // namespace

}  // namespace tavrin
