// The longest Quick Code programs (bench/long_programs.h), through the whole
// window logic.

#include <benchmark/benchmark.h>

#include <stdexcept>

#include "bench/long_programs.h"
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

void Run(benchmark::State& state, const LongProgram* program) {
    Program p;
    Form& f = p.open(program->form);
    Dress(p.app, f, program->steps);
    for (auto _ : state) {
        p.app.userClick(f, "Command1");
        benchmark::DoNotOptimize(f.text(program->answer).size());
    }
    state.SetItemsProcessed(state.iterations() * program->items);
}

}  // namespace
}  // namespace tavrin

int main(int argc, char** argv) {
    for (const tavrin::LongProgram& program : tavrin::LongPrograms()) {
        benchmark::RegisterBenchmark(program.name, tavrin::Run, &program)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
