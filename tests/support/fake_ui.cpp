#include "tests/support/fake_ui.h"

#include "frame/form.h"

namespace tavrin::testing {

FakeUi::FakeUi() {
    onShown = [this](const Shown& box) {
        auto& list = box.kind == Kind::Message    ? messages
                     : box.kind == Kind::Question ? questions
                                                  : fatals;
        list.push_back({box.title, box.text});
    };
}

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

}  // namespace tavrin::testing
