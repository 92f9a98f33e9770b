// The picture of Three Point Arc Center.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Three Point Arc");
    f.addImage("Image1", "three_point_arc");
    f.addRow(RowKind::Line, {"Image1"});
}

const FormRegistration registration("frmThreePointView", Build);

}  // namespace

}  // namespace tavrin
