#pragma once

#include <QChar>
#include <QString>
#include <QStringList>
#include <initializer_list>

#include "frame/form.h"

namespace tavrin {

class App;

// Small idioms that many windows share.

// The diameter sign of the answer lines ("Inscribed CircleØ= ").
const QChar kDiameterSign(0x00D8);

// How a packed angle is typed, 22° 3' 22" as 22.0322; each window puts its
// own words around it.
QString DmsExample();

// The windows that the launch list, the Quick Launcher and the Quick Code hub
// name but that are not built yet: choosing one does nothing.
const QStringList& NotYetBuilt();

// Shows a window as the home window would. A name that is neither built nor
// on the not-yet-built list is a programming fault and throws.
void ShowIfBuilt(App& app, const QString& name);

// Empties the text of each named box: the core of every Clear All.
template <typename Names>
void EmptyTexts(Form& f, const Names& names) {
    for (const auto& name : names) {
        f.setText(name, QString());
    }
}
void EmptyTexts(Form& f, std::initializer_list<const char*> names);

// A picture window: one drawing fills it, under the title; it has no code of
// its own and goes by its close box.
void DeclarePictureWindow(Form& f, const QString& title, const QString& picture);

// The answer box and its own Done button take the place of the entry
// controls, or give it back (the two sets declared by Form::setAnswerSwap).
void ShowAnswerBox(Form& f, bool shown);

}  // namespace tavrin
