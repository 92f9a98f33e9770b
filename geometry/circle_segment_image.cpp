// The picture of Circle Segments.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

void Build(Form& f) {
    f.setTitle("Circle Segment");
    f.addImage("Image1", "circle_segment");
    f.addRow(RowKind::Line, {"Image1"});
}

const FormRegistration registration("frmCircSegImage", Build);

}  // namespace

}  // namespace tavrin
