// Old Points: the points of the last run of Shift and Rotation of Points, as
// they were typed.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Old Points");
    Control& text = f.addAnswerBox("Text1", 10);
    text.locked = false;
    text.widthChars = 30;
    f.addRow(RowKind::Line, {"Text1"});
    f.addButton("Command1", "Exit");
    f.addRow(RowKind::Buttons, {"Command1"});

    f.onClick("Command1", [](Form& f) { f.app().unload(f); });
}

const FormRegistration registration("frmoldpoints", Build);

}  // namespace

}  // namespace tavrin
