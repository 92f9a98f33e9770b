#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <memory>
#include <vector>

#include "frame/app.h"
#include "frame/settings_store.h"
#include "frame/ui.h"

namespace tavrin::testing {

struct Shown {
    QString title;
    QString text;
};

// Records what the logic shows; questions are answered from a queue (No when
// it is empty); the clock moves half a second a reading.
class FakeUi : public Ui {
  public:
    std::vector<Shown> messages;
    std::vector<Shown> questions;
    std::vector<Shown> fatals;
    QStringList shownWindows;
    QStringList startAttempts;
    std::deque<bool> answers;
    QStringList installedPrograms;
    int quits = 0;

    void showWindow(Form& form) override;
    void showModal(Form& form) override;
    void windowUnloaded(Form&) override {}
    void message(const QString& title, const QString& text) override;
    bool question(const QString& title, const QString& text) override;
    void fatal(const QString& title, const QString& text) override;
    void processEvents() override {}
    bool startProgram(const QString& program) override;
    float secondsSinceMidnight() override { return clock += 0.5f; }
    void quit() override { ++quits; }

    float clock = 0;
    // The texts of the messages, in order.
    QStringList messageTexts() const;
};

// An App with a fake display and a store in memory, started without the
// splash, as most tests want it.
struct Harness {
    FakeUi ui;
    MemorySettings settings;
    App app{ui, settings};

    Harness();
    // Shows a window as the home window would and returns it.
    Form& open(const QString& name);
    // Types into a text box, as a user would.
    void set(Form& form, const QString& control, const QString& text);
    void click(Form& form, const QString& control);
};

}  // namespace tavrin::testing
