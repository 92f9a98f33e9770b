#pragma once

#include <QString>

#include "quickcode/gcode_reader.h"

namespace tavrin {

class Form;

// Save As..., Copy and View Path for a generator's answer box: the buttons
// cmdSaveAs, cmdCopy and cmdViewPath in a row of their own under the
// window's rows, and their handlers.
void AddProgramTools(Form& f, const QString& answerBox, PathView view);

// Writes the answer box's text as it stands (its CR LF lines) to `path`, with
// `extension` added when the name has none, and remembers the folder. An
// empty box or a failure is told in the message box. The path written, or empty.
QString SaveProgram(Form& f, const QString& answerBox, QString path,
                    const QString& extension = QStringLiteral("nc"));

}  // namespace tavrin
