// The picture of Distance Between Two Points.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Distance");
    f.addImage("Image1", "distance_two_points");
    f.addRow(RowKind::Line, {"Image1"});
}

const FormRegistration registration("frmDistancetwoPointsView", Build);

}  // namespace

}  // namespace tavrin
