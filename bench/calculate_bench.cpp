// Every Calculate of every registered window, dressed with its worked example
// from the gallery: once through the window logic alone (Calculate/...), once
// through the script driver as tavrin-drive runs it (Drive/..., a fixed 10,000
// clicks in one session, with the resident size before and after them).

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/recording_ui.h"
#include "frame/settings_store.h"
#include "tools/drive/driver.h"
#include "tools/gallery/examples.h"

namespace tavrin {
namespace {

constexpr int kDriveClicks = 10000;

// A button that runs the window's arithmetic.
bool IsCalculate(const Control& c) {
    return c.kind == ControlKind::Button && (c.caption == "Calculate" || c.caption == "Convert");
}

const Example* ExampleOf(const QString& form) {
    if (form == kFigureExample.form) {
        return &kFigureExample;
    }
    for (const Example& e : kExamples) {
        if (form == e.form) {
            return &e;
        }
    }
    return nullptr;
}

// Everything a click could change, to tell that it answered.
QStringList Snapshot(const Form& f) {
    QStringList state;
    for (const auto& c : f.controls()) {
        state << c->text << c->caption << QString::number(c->listIndex)
              << QString::number(int(c->value) + 2 * int(c->visible));
    }
    return state;
}

double ResidentKib() {
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long resident = 0;
    statm >> size >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / 1024.0;
}

struct Session {
    RecordingUi ui;
    MemorySettings settings;
    App app{ui, settings};
    Session() {
        app.splashEnabled = false;
        app.start();
    }
};

// Taken as the window is loaded: every field as it stands then, and the
// example's fields over them.
QStringList Typing(const Form& form, const Example& e) {
    QStringList typing;
    for (const auto& c : form.controls()) {
        if (c->kind == ControlKind::TextBox && !c->locked) {
            typing << c->name + "=" + c->text;
        }
    }
    return typing + e.fields;
}

void Type(Session& s, Form& form, const QStringList& typing) {
    for (const QString& field : typing) {
        s.app.userType(form, field.section('=', 0, 0), field.section('=', 1));
    }
}

// The first line of what the driver wrote.
std::string FirstLine(const std::ostringstream& out) {
    const std::string text = out.str();
    return text.substr(0, text.find('\n'));
}

// Types the example into its window, clicks and says what went wrong, if
// anything. A window that fills its own fields with the answer (the three
// sizes of a polygon) refuses a second click: there every field is typed
// again, as it was loaded and then as the example has it, before every click.
std::string Dress(Session& s, const Example& e, Form*& form, QStringList& typing, bool& retype) {
    if (&e == &kFigureExample) {
        Form& catalogue = s.app.show("form1");
        s.app.userSelect(catalogue, "lstArea", kFigureRow);
    }
    form = &s.app.show(e.form);
    typing = Typing(*form, e);
    Type(s, *form, typing);
    const QStringList before = Snapshot(*form);
    s.app.userClick(*form, e.button);
    if (!s.ui.shown.empty()) {
        return "a box: " + s.ui.shown.front().text.toStdString();
    }
    const QStringList after = Snapshot(*form);
    if (after == before) {
        return "no answer";
    }
    for (const QString& text : after) {
        if (!before.contains(text) && (text.contains("Invalid") || text.contains("Error"))) {
            return "answers " + text.toStdString();
        }
    }
    s.app.userClick(*form, e.button);
    retype = !s.ui.shown.empty();
    if (retype) {
        s.ui.shown.clear();
        Type(s, *form, typing);
        s.app.userClick(*form, e.button);
        if (!s.ui.shown.empty()) {
            return "a box after typing again: " + s.ui.shown.front().text.toStdString();
        }
    }
    return {};
}

void Calculate(benchmark::State& state, const Example* e) {
    if (e == nullptr) {
        state.SkipWithError("no worked example");
        return;
    }
    Session s;
    Form* form = nullptr;
    QStringList typing;
    bool retype = false;
    if (const std::string fault = Dress(s, *e, form, typing, retype); !fault.empty()) {
        state.SkipWithError(fault.c_str());
        return;
    }
    for (auto _ : state) {
        if (retype) {
            Type(s, *form, typing);
        }
        s.app.userClick(*form, e->button);
    }
    if (!s.ui.shown.empty()) {
        state.SkipWithError(("a box: " + s.ui.shown.front().text.toStdString()).c_str());
        return;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["typed"] = retype;
}

void Drive(benchmark::State& state, const Example* e) {
    if (e == nullptr) {
        state.SkipWithError("no worked example");
        return;
    }
    Session s;
    std::ostringstream out;
    std::istringstream in;
    Driver driver(s.app, s.ui, out, in);
    auto run = [&driver](const QStringList& lines) {
        for (const QString& line : lines) {
            driver.run(line);
        }
    };
    QStringList opening;
    if (e == &kFigureExample) {
        opening << "open form1" << QString("select form1.lstArea %1").arg(kFigureRow);
    }
    opening << QString("open %1").arg(e->form);
    run(opening);
    QStringList typing;
    for (const QString& field : Typing(*s.app.find(e->form), *e)) {
        typing << QString("set %1.%2 \"%3\"")
                      .arg(e->form, field.section('=', 0, 0), field.section('=', 1));
    }
    const QString click = QString("click %1.%2").arg(e->form, e->button);
    run(typing + QStringList{click});
    if (!out.str().empty()) {
        state.SkipWithError(FirstLine(out).c_str());
        return;
    }
    driver.run(click);
    const bool retype = !out.str().empty();
    out.str({});
    run(retype ? typing : QStringList{});
    const double before = ResidentKib();
    for (auto _ : state) {
        if (retype) {
            run(typing);
        }
        driver.run(click);
    }
    const double after = ResidentKib();
    if (!out.str().empty()) {
        state.SkipWithError(FirstLine(out).c_str());
        return;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["typed"] = retype;
    state.counters["rss_before_KiB"] = before;
    state.counters["rss_after_KiB"] = after;
}

}  // namespace
}  // namespace tavrin

int main(int argc, char** argv) {
    using namespace tavrin;
    // The calculators, found by their buttons on each registered window as built.
    RecordingUi ui;
    MemorySettings settings;
    App app(ui, settings);
    std::vector<std::pair<std::string, const Example*>> calculators;
    for (const QString& name : RegisteredFormNames()) {
        Form form(app, name);
        FindFormBuilder(name)(form);
        for (const auto& c : form.controls()) {
            if (IsCalculate(*c)) {
                calculators.emplace_back(name.toStdString(), ExampleOf(name));
                break;
            }
        }
    }
    for (const auto& [name, example] : calculators) {
        benchmark::RegisterBenchmark(("Calculate/" + name).c_str(), Calculate, example)
            ->Unit(benchmark::kMicrosecond);
    }
    for (const auto& [name, example] : calculators) {
        benchmark::RegisterBenchmark(("Drive/" + name).c_str(), Drive, example)
            ->Iterations(kDriveClicks)
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
