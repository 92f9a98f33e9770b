#pragma once

#include <QString>

#include "frame/real.h"

namespace tavrin {

class Form;

// An angle field of a tangency solver: packed DMS while the hub's box says
// so, the field as it stands otherwise.
Real TangencyAngle(const Form& f, const QString& field);

}  // namespace tavrin
