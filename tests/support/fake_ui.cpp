#include "tests/support/fake_ui.h"

#include "frame/form.h"

namespace tavrin::testing {

void FakeUi::showWindow(Form& form) {
    shownWindows << form.name();
}
void FakeUi::showModal(Form& form) {
    shownWindows << form.name();
}

void FakeUi::message(const QString& title, const QString& text) {
    messages.push_back({title, text});
}

bool FakeUi::question(const QString& title, const QString& text) {
    questions.push_back({title, text});
    if (answers.empty()) {
        return false;
    }
    const bool yes = answers.front();
    answers.pop_front();
    return yes;
}

void FakeUi::fatal(const QString& title, const QString& text) {
    fatals.push_back({title, text});
}

bool FakeUi::startProgram(const QString& program) {
    startAttempts << program;
    return installedPrograms.contains(program);
}

QStringList FakeUi::messageTexts() const {
    QStringList texts;
    for (const Shown& m : messages) {
        texts << m.text;
    }
    return texts;
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
