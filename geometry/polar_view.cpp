// The picture of Polar Coordinates.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Polar Coordinates");
    f.addImage("Image1", "polar");
    f.addRow(RowKind::Line, {"Image1"});
}

const FormRegistration registration("frmPolarView", Build);

}  // namespace

}  // namespace tavrin
