// The picture of Middle of Two Points.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Middle");
    f.addImage("Image1", "middle_two_points");
    f.addRow(RowKind::Line, {"Image1"});
}

const FormRegistration registration("frmMiddleView", Build);

}  // namespace

}  // namespace tavrin
