#pragma once

#include <QPixmap>
#include <QString>

namespace tavrin {

// A drawing of the pictures folder by name ("home", "calculator"), at its own
// size; an empty pixmap, and a warning, when there is none.
QPixmap LoadPicture(const QString& name);
bool PictureExists(const QString& name);

}  // namespace tavrin
