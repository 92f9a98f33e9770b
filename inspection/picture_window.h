#pragma once

#include <QString>

namespace tavrin {

class Form;

// A picture window of the inspection calculators: no controls but the one
// drawing, titled, with no code of its own.
void BuildPictureWindow(Form& f, const QString& title, const QString& picture);

}  // namespace tavrin
