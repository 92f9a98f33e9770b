// The longest programs on a real window (bench/long_programs.h): from the
// click on Calculate until the answer box holds the whole program. Then the
// 32,767-hole bolt circle: the list laid into the answer box alone, and into a
// bare read-only text box, the yardstick; then what a user does with it there:
// a page of scrolling, Ctrl+End and Ctrl+Home, select all and copy, each
// painted before the next. Runs offscreen.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <cstdlib>
#include <string>

#include "app/display_text.h"
#include "app/form_view.h"
#include "app/qt_ui.h"
#include "bench/long_programs.h"
#include "frame/app.h"
#include "frame/settings_store.h"

namespace tavrin {
namespace {

class QuietQtUi : public QtUi {
  public:
    void message(const QString&, const QString&) override {}
    void fatal(const QString&, const QString&) override { std::abort(); }
};

// Tavrin with one long program's window open, its fields typed in: the bolt
// circle unless told.
struct Screen {
    QuietQtUi ui;
    MemorySettings settings;
    App app{ui, settings};
    const LongProgram& program;
    Form* form = nullptr;
    QPlainTextEdit* box = nullptr;
    explicit Screen(const LongProgram& p = LongPrograms().front()) : program(p) {
        ui.setApp(&app);
        app.splashEnabled = false;
        app.start();
        form = &app.show(program.form);
        Dress(app, *form, program.steps);
        box = qobject_cast<QPlainTextEdit*>(ui.viewOf(*form)->widget(program.answer));
    }
    // The views go with their session: a timer of one left behind would fire
    // into the next.
    ~Screen() {
        for (Form* f : app.loadedForms()) {
            delete ui.viewOf(*f);
        }
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    void calculate() {
        app.userClick(*form, "Command1");
        QApplication::processEvents();
    }
};

bool HoldsAll(benchmark::State& state, const QPlainTextEdit& box) {
    if (box.document()->blockCount() < 32767) {
        state.SkipWithError(
            ("the box holds " + std::to_string(box.document()->blockCount()) + " lines").c_str());
        return false;
    }
    return true;
}

// From the click on Calculate until the answer box holds the whole program.
void OnScreen(benchmark::State& state, const LongProgram* program) {
    Screen s(*program);
    for (auto _ : state) {
        s.calculate();
        benchmark::DoNotOptimize(s.box->document()->blockCount());
    }
    if (s.box->toPlainText().isEmpty()) {
        state.SkipWithError("the answer box is empty");
    }
}

// The screen's share: the list, built once, emptied from the answer box and
// laid into it again.
void AnswerBoxTakes32767Lines(benchmark::State& state) {
    Screen s;
    s.calculate();
    const QString list = s.form->text(s.program.answer);
    for (auto _ : state) {
        s.form->setText(s.program.answer, QString());
        s.form->setText(s.program.answer, list);
        QApplication::processEvents();
    }
    HoldsAll(state, *s.box);
}
BENCHMARK(AnswerBoxTakes32767Lines)->Unit(benchmark::kMillisecond);

// The yardstick: a bare read-only text box of the same size, the same lines.
struct Bare {
    QPlainTextEdit box;
    explicit Bare(const Screen& s) {
        box.setReadOnly(true);
        // Read-only boxes leave the keyboard out unless asked.
        box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        box.resize(s.box->size());
        box.show();
        box.setPlainText(ForDisplay(s.form->text(s.program.answer)));
        QApplication::processEvents();
    }
};

void BareTextBoxTakes32767Lines(benchmark::State& state) {
    Screen s;
    s.calculate();
    Bare bare(s);
    const QString lines = bare.box.toPlainText();
    for (auto _ : state) {
        bare.box.setPlainText(lines);
        QApplication::processEvents();
    }
    HoldsAll(state, bare.box);
}
BENCHMARK(BareTextBoxTakes32767Lines)->Unit(benchmark::kMillisecond);

void Press(QPlainTextEdit& box, int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&box, &press);
    box.viewport()->repaint();
}

// What a user does with the long list; arg 0 is Tavrin's answer box, 1 the bare box.
void ScrollOnePage(benchmark::State& state) {
    Screen s;
    s.calculate();
    Bare bare(s);
    QPlainTextEdit& box = state.range(0) == 0 ? *s.box : bare.box;
    QScrollBar* bar = box.verticalScrollBar();
    for (auto _ : state) {
        const int next = bar->value() + bar->pageStep();
        bar->setValue(next > bar->maximum() ? 0 : next);
        box.viewport()->repaint();
    }
    HoldsAll(state, box);
}
BENCHMARK(ScrollOnePage)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void CtrlEndThenCtrlHome(benchmark::State& state) {
    Screen s;
    s.calculate();
    Bare bare(s);
    QPlainTextEdit& box = state.range(0) == 0 ? *s.box : bare.box;
    for (auto _ : state) {
        Press(box, Qt::Key_End);
        Press(box, Qt::Key_Home);
    }
    Press(box, Qt::Key_End);
    if (box.textCursor().blockNumber() != box.document()->blockCount() - 1) {
        state.SkipWithError("Ctrl+End did not reach the last line");
    }
    HoldsAll(state, box);
}
BENCHMARK(CtrlEndThenCtrlHome)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void SelectAll(benchmark::State& state) {
    Screen s;
    s.calculate();
    Bare bare(s);
    QPlainTextEdit& box = state.range(0) == 0 ? *s.box : bare.box;
    for (auto _ : state) {
        Press(box, Qt::Key_Home);
        Press(box, Qt::Key_A);
    }
    if (box.textCursor().selectedText().size() != box.toPlainText().size()) {
        state.SkipWithError("not all of the list is selected");
    }
    HoldsAll(state, box);
}
BENCHMARK(SelectAll)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Select all is done once; each pass copies the whole list.
void CopyAll(benchmark::State& state) {
    Screen s;
    s.calculate();
    Bare bare(s);
    QPlainTextEdit& box = state.range(0) == 0 ? *s.box : bare.box;
    Press(box, Qt::Key_A);
    for (auto _ : state) {
        Press(box, Qt::Key_C);
    }
    if (QGuiApplication::clipboard()->text() != box.toPlainText()) {
        state.SkipWithError("the clipboard does not hold the list");
    }
    HoldsAll(state, box);
}
BENCHMARK(CopyAll)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrin

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    QApplication application(argc, argv);
    for (const tavrin::LongProgram& program : tavrin::LongPrograms()) {
        benchmark::RegisterBenchmark((std::string("OnScreen/") + program.name).c_str(),
                                     tavrin::OnScreen, &program)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
