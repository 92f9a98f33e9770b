#pragma once

#include <QString>

namespace tavrin {

// The answer line of DD <--> DMS for an entry that has passed its checks:
// "DMS= " and the degrees, minutes and seconds of decimal degrees, or "DD= "
// and the decimal degrees of a packed entry.
QString DdToDmsAnswer(const QString& entry, bool toDms);

}  // namespace tavrin
