#include "inspection/picture_window.h"

#include "frame/form.h"

namespace tavrin {

void BuildPictureWindow(Form& f, const QString& title, const QString& picture) {
    f.setTitle(title);
    f.addImage("Image1", picture);
    f.addRow(RowKind::Line, {"Image1"});
}

}  // namespace tavrin
