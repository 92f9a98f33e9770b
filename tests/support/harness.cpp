#include "tests/support/harness.h"

#include "frame/form.h"

namespace tavrin::testing {

Harness::Harness() {
    app.splashEnabled = false;
    app.start();
}

Form& Harness::open(const QString& name) {
    app.guarded([&] { app.show(name); });
    return *app.find(name);
}

void Harness::set(Form& form, const QString& control, const QString& text) {
    app.userType(form, control, text);
}

void Harness::click(Form& form, const QString& control) {
    app.userClick(form, control);
}

Form& Harness::run(const QString& name, const QStringList& steps) {
    Form& form = app.find(name) != nullptr ? *app.find(name) : open(name);
    for (const QString& step : steps) {
        const auto typed = step.indexOf(u'=');
        const auto chosen = step.indexOf(u'#');
        if (typed > 0) {
            set(form, step.left(typed), step.mid(typed + 1));
        } else if (chosen > 0) {
            app.userSelect(form, step.left(chosen), step.mid(chosen + 1).toInt());
        } else {
            click(form, step);
        }
    }
    return form;
}

QString Harness::lastBox() const {
    return ui.shown.empty() ? QString() : ui.shown.back().text;
}

}  // namespace tavrin::testing
