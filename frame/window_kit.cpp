#include "frame/window_kit.h"

#include <stdexcept>

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"

namespace tavrin {

QString DmsExample() {
    return QStringLiteral("22") + kDegreeSign + QStringLiteral(" 3' 22\" as 22.0322");
}

const QStringList& NotYetBuilt() {
    static const QStringList names;  // every window the tables name stands built
    return names;
}

void ShowIfBuilt(App& app, const QString& name) {
    if (App::IsBuilt(name)) {
        app.show(name);
    } else if (!NotYetBuilt().contains(name)) {
        throw std::logic_error("no window " + name.toStdString());
    }
}

void EmptyTexts(Form& f, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        f.setText(name, QString());
    }
}

void DeclarePictureWindow(Form& f, const QString& title, const QString& picture) {
    f.setTitle(title);
    f.addImage("Image1", picture);
    f.addRow(RowKind::Line, {"Image1"});
}

void ShowAnswerBox(Form& f, bool shown) {
    for (const QString& name : f.answerSwap().entries) {
        f.setVisible(name, !shown);
    }
    for (const QString& name : f.answerSwap().answer) {
        f.setVisible(name, shown);
    }
}

}  // namespace tavrin
