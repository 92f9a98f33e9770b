// The longest hole list on a real window: from the click on Calculate until the
// answer box holds all 32,767 lines. Runs offscreen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <cstdlib>
#include <string>

#include "app/form_view.h"
#include "app/qt_ui.h"
#include "frame/app.h"
#include "frame/settings_store.h"

namespace tavrin {
namespace {

class QuietQtUi : public QtUi {
  public:
    void message(const QString&, const QString&) override {}
    void fatal(const QString&, const QString&) override { std::abort(); }
};

void BoltCircle32767HolesOnScreen(benchmark::State& state) {
    QuietQtUi ui;
    MemorySettings settings;
    App app(ui, settings);
    ui.setApp(&app);
    app.splashEnabled = false;
    app.start();
    Form& f = app.show("frmBoltCircle");
    app.userType(f, "Text1", "100");
    app.userType(f, "Text2", "32767");
    app.userType(f, "Text3", "1.5");
    app.userType(f, "Text4", "-2");
    app.userType(f, "Text5", "15");
    auto* box = qobject_cast<QPlainTextEdit*>(ui.viewOf(f)->widget("Text7"));
    for (auto _ : state) {
        app.userClick(f, "Command1");
        QApplication::processEvents();
        benchmark::DoNotOptimize(box->document()->blockCount());
    }
    if (box->document()->blockCount() < 32767) {
        state.SkipWithError(
            ("the answer box holds " + std::to_string(box->document()->blockCount()) + " lines")
                .c_str());
    }
}
BENCHMARK(BoltCircle32767HolesOnScreen)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrin

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
