// Points for Rotation: the modal entry of one point of Shift and Rotation of
// Points. Next Point hides it, and the waiting loop goes on.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Points for Rotation");
    f.addLabel("lblPointNum", "Point #").widthChars = 12;
    f.addRow(RowKind::Line, {"lblPointNum"});
    f.addLabel("lblX", "X").widthChars = 5;
    f.addTextBox("txtXtoShift");
    f.addLabel("lblY", "Y").widthChars = 5;
    f.addTextBox("txtYtoShift");
    f.addRow(RowKind::Fields, {"lblX", "txtXtoShift"});
    f.addRow(RowKind::Fields, {"lblY", "txtYtoShift"});
    f.addButton("Command1", "Next Point");
    f.addRow(RowKind::Buttons, {"Command1"});

    f.onClick("Command1", [](Form& f) { f.app().hide(f); });
}

const FormRegistration registration("frmPointsRotate", Build);

}  // namespace

}  // namespace tavrin
