// The longest Quick Code programs, through the whole window logic: a bolt
// circle of the largest 16-bit hole count, a 280-turn thread, a grid of 100
// by 300 holes, the longest drilling cycle whose block numbers stay within 16
// bits, and the 292 passes the label table holds for a lathe thread.

#include <benchmark/benchmark.h>

#include <stdexcept>
#include <utility>

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

void Grid100By300(benchmark::State& state) {
    Program p;
    Form& f = p.open("frmGrid");
    for (const auto& [field, text] : {std::pair{"txtX", "0"},
                                      {"txtY", "0"},
                                      {"txtHx", "100"},
                                      {"txtHy", "300"},
                                      {"txtXstep", ".125"},
                                      {"txtYstep", "-.25"}}) {
        p.app.userType(f, field, text);
    }
    for (auto _ : state) {
        p.app.userClick(f, "Command1");
        benchmark::DoNotOptimize(f.text("txtGridAns").size());
    }
    state.SetItemsProcessed(state.iterations() * 30000);
}
BENCHMARK(Grid100By300)->Unit(benchmark::kMillisecond);

// Two blocks a peck from N20 in fives: 3,270 pecks end at N32720.
void LatheDrilling3270Pecks(benchmark::State& state) {
    Program p;
    Form& f = p.open("frmLatheDrill");
    for (const auto& [field, text] : {std::pair{"fldx_start", "0"},
                                      {"fldz_start", ".1"},
                                      {"fldz_depth", "327"},
                                      {"fldq_peck", ".1"},
                                      {"fld_chipclearance", ".02"},
                                      {"fld_feedrate", ".004"},
                                      {"fldr_plane", ".05"}}) {
        p.app.userType(f, field, text);
    }
    for (auto _ : state) {
        p.app.userClick(f, "Command1");
        benchmark::DoNotOptimize(f.text("fld_lathe_drill_ans").size());
    }
    state.SetItemsProcessed(state.iterations() * 3270);
}
BENCHMARK(LatheDrilling3270Pecks)->Unit(benchmark::kMillisecond);

void LatheThreading292Passes(benchmark::State& state) {
    Program p;
    Form& f = p.open("frmLatheThread");
    p.app.userSelect(f, "popPasses", 1);
    for (const auto& [field, text] : {std::pair{"fldLT_Major", ".5"},
                                      {"fldLT_tpu", "20"},
                                      {"fldLT_xstart", ".6"},
                                      {"fldLT_zstart", ".1"},
                                      {"fldLT_zdist", "-.75"},
                                      {"fld_passes", "292"}}) {
        p.app.userType(f, field, text);
    }
    for (auto _ : state) {
        p.app.userClick(f, "Command1");
        benchmark::DoNotOptimize(f.text("fldLT_Ans").size());
    }
    state.SetItemsProcessed(state.iterations() * 292);
}
BENCHMARK(LatheThreading292Passes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavrin

BENCHMARK_MAIN();
