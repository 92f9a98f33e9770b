// The longest Quick Code programs, through the whole window logic: a bolt
// circle of the largest 16-bit hole count and a 280-turn thread.

#include <benchmark/benchmark.h>

#include <stdexcept>

#include "frame/app.h"
#include "frame/settings_store.h"
#include "frame/ui.h"

namespace tavrin {
namespace {

// No display: a message or the fatal box means the run went wrong.
class SilentUi : public Ui {
  public:
    void showWindow(Form&) override {}
    void showModal(Form&) override {}
    void windowUnloaded(Form&) override {}
    void message(const QString&, const QString& text) override {
        throw std::runtime_error("message: " + text.toStdString());
    }
    bool question(const QString&, const QString&) override { return false; }
    void fatal(const QString&, const QString& text) override {
        throw std::runtime_error("fatal: " + text.toStdString());
    }
    void processEvents() override {}
    bool startProgram(const QString&) override { return false; }
    float secondsSinceMidnight() override { return 0; }
    void quit() override {}
};

struct Program {
    SilentUi ui;
    MemorySettings settings;
    App app{ui, settings};
    Program() {
        app.splashEnabled = false;
        app.start();
    }
    Form& open(const char* name) {
        app.guarded([&] { app.show(name); });
        return *app.find(name);
    }
};

void BoltCircle32767Holes(benchmark::State& state) {
    Program p;
    Form& f = p.open("frmBoltCircle");
    p.app.userType(f, "Text1", "100");
    p.app.userType(f, "Text2", "32767");
    p.app.userType(f, "Text3", "1.5");
    p.app.userType(f, "Text4", "-2");
    p.app.userType(f, "Text5", "15");
    for (auto _ : state) {
        p.app.userClick(f, "Command1");
        benchmark::DoNotOptimize(f.text("Text7").size());
    }
    state.SetItemsProcessed(state.iterations() * 32767);
}
BENCHMARK(BoltCircle32767Holes)->Unit(benchmark::kMillisecond);

void ThreadMilling280Turns(benchmark::State& state) {
    Program p;
    Form& f = p.open("frmThdMill");
    p.app.userType(f, "fld_TM_ZStart", ".1");
    p.app.userType(f, "fld_TM_Depth", "279");
    p.app.userType(f, "fld_TM_Major", "1");
    p.app.userType(f, "fld_TM_ToolDia", ".5");
    p.app.userType(f, "fld_TM_Pitch", "1");
    p.app.userType(f, "fld_TM_Feed", "5");
    p.app.userSelect(f, "popTM_Tool", 1);
    p.app.userClick(f, "Checkbox1208");
    for (auto _ : state) {
        p.app.userClick(f, "Command1");
        benchmark::DoNotOptimize(f.text("fld_TM_Answer").size());
    }
    state.SetItemsProcessed(state.iterations() * 280);
}
BENCHMARK(ThreadMilling280Turns)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavrin

BENCHMARK_MAIN();
