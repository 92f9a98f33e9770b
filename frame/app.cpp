#include "frame/app.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <stdexcept>

#include "frame/form_registry.h"

namespace tavrin {

App::App(Ui& ui, SettingsStore& settings) : ui_(ui), settings_(settings) {
    // A test program may run without an application object.
    programFolder = QCoreApplication::instance() != nullptr
                        ? QCoreApplication::applicationDirPath()
                        : QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

App::~App() = default;

void App::start() {
    guarded([&] { show(QStringLiteral("frmHome")); });
}

bool App::IsBuilt(const QString& name) {
    return FindFormBuilder(name) != nullptr;
}

Form* App::find(const QString& name) const {
    for (const auto& f : loaded_) {
        if (f->name() == name) {
            return f.get();
        }
    }
    return nullptr;
}

Form& App::load(const QString& name) {
    if (Form* f = find(name)) {
        return *f;
    }
    const FormBuildFn build = FindFormBuilder(name);
    if (build == nullptr) {
        throw std::logic_error("no window " + name.toStdString());
    }
    auto form = std::make_unique<Form>(*this, name);
    build(*form);
    form->checkPlaced();
    loaded_.push_back(std::move(form));
    Form& f = *loaded_.back();
    f.fire(QString(), Event::Load);
    return f;
}

Form& App::show(const QString& name) {
    Form& f = load(name);
    ui_.showWindow(f);
    return f;
}

Form& App::showModal(const QString& name) {
    Form& f = load(name);
    ui_.showModal(f);
    return f;
}

void App::hide(Form& form) {
    ui_.hideWindow(form);
}

void App::unload(Form& form) {
    form.fire(QString(), Event::Unload);
    auto it = std::find_if(loaded_.begin(), loaded_.end(),
                           [&](const auto& f) { return f.get() == &form; });
    if (it == loaded_.end()) {
        return;  // the closing step already unloaded it
    }
    ui_.windowUnloaded(form);
    form.setObserver(nullptr);
    unloaded_.push_back(std::move(*it));
    loaded_.erase(it);
    if (loaded_.empty()) {
        ui_.quit();
    }
    if (depth_ == 0) {
        buryUnloaded();
    }
}

std::vector<Form*> App::loadedForms() const {
    std::vector<Form*> forms;
    for (const auto& f : loaded_) {
        forms.push_back(f.get());
    }
    return forms;
}

void App::closeAllWindows(const QString& exceptName) {
    for (Form* f : loadedForms()) {
        if (f->name() != exceptName && find(f->name()) == f) {
            unload(*f);
        }
    }
}

void App::waitSeconds(float& seconds) {
    const float start = ui_.secondsSinceMidnight();
    while (ui_.secondsSinceMidnight() < start + seconds && !ended_) {
        ui_.waitForEvents();
    }
}

void App::programMessage(const QString& text) {
    ui_.message(QStringLiteral("Program Message"), text);
}

void App::userClick(Form& form, const QString& control) {
    guarded([&] {
        const Control& c = form.control(control);
        switch (c.kind) {
            case ControlKind::Option:
                if (!c.value) {
                    form.setValue(control, true);
                }
                break;
            case ControlKind::Check:
                form.setValue(control, !c.value);
                break;
            default:
                form.fire(control, Event::Click);
                break;
        }
    });
}

void App::userType(Form& form, const QString& control, const QString& text) {
    guarded([&] { form.typeText(control, text); });
}

void App::userSelect(Form& form, const QString& control, int index) {
    guarded([&] { form.setListIndex(control, index); });
}

void App::userSpin(Form& form, const QString& control, int delta) {
    guarded([&] { form.spin(control, delta); });
}

void App::userTimer(Form& form, const QString& control) {
    // A timer does not fire again while its handler runs.
    const QString key = form.name() + u'.' + control;
    if (runningTimers_.contains(key)) {
        return;
    }
    runningTimers_.insert(key);
    guarded([&] { form.fire(control, Event::Timer); });
    runningTimers_.remove(key);
}

void App::userClose(Form& form) {
    guarded([&] { unload(form); });
}

void App::fatal(const RunTimeError& error) {
    if (ended_) {
        return;
    }
    ended_ = true;
    ui_.fatal(QStringLiteral("Tavrin"), error.fatalText());
}

void App::buryUnloaded() {
    if (depth_ == 0) {
        unloaded_.clear();
    }
}

void ProgramMessage(const Form& form, const QString& text) {
    form.app().programMessage(text);
}

}  // namespace tavrin
