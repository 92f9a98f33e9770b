#include "tests/support/harness.h"

#include <gtest/gtest.h>

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

QString Outcome(const QString& window, const QStringList& steps, const QString& shown,
                int decPlace) {
    Harness h;
    h.app.decPlace = static_cast<std::int16_t>(decPlace);
    const Form& f = h.run(window, steps);
    return h.lastBox() + '|' + f.text(shown);
}

QStringList BoxesClearAllLeaves(const QString& window, const QString& button) {
    Harness h;
    Form& f = h.open(window);
    QStringList boxes;
    for (const auto& c : f.controls()) {
        if (c->kind == ControlKind::TextBox) {
            boxes << c->name;
            h.set(f, c->name, "1");
        }
    }
    h.click(f, button);
    QStringList left;
    for (const QString& name : boxes) {
        if (!f.text(name).isEmpty()) {
            left << window + "." + name + "=" + f.text(name);
        }
    }
    return left;
}

}  // namespace tavrin::testing
