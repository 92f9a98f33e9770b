#pragma once

#include <QString>
#include <deque>
#include <iosfwd>

#include "frame/app.h"
#include "frame/ui.h"

namespace tavrin {

// A display that has none: it writes each message, question and fatal box as
// a JSON line, answers questions from a queue, and starts no program.
class RecordingUi : public Ui {
  public:
    explicit RecordingUi(std::ostream& out) : out_(out) {}
    void queueAnswer(bool yes) { answers_.push_back(yes); }

    void showWindow(Form&) override {}
    void showModal(Form&) override {}
    void windowUnloaded(Form&) override {}
    void message(const QString& title, const QString& text) override;
    bool question(const QString& title, const QString& text) override;
    void fatal(const QString& title, const QString& text) override;
    void processEvents() override {}
    bool startProgram(const QString&) override { return false; }
    float secondsSinceMidnight() override { return clock_ += 0.5f; }
    void quit() override { quit_ = true; }

    bool quitting() const { return quit_; }

  private:
    std::ostream& out_;
    std::deque<bool> answers_;  // an empty queue answers No
    float clock_ = 0;
    bool quit_ = false;
};

// Runs the script language of tavrin-drive over an App, one line at a time.
class Driver {
  public:
    enum class Status { Going, Finished, Failed, Fatal };

    Driver(App& app, RecordingUi& ui, std::ostream& out) : app_(app), ui_(ui), out_(out) {}
    Status run(const QString& line);
    // The status the driver exits with.
    static int ExitCode(Status status);

  private:
    Status fail(const QString& why);
    Status afterStep();
    Form* openForm(const QString& name, QString& why);
    Status show(const QString& target);

    App& app_;
    RecordingUi& ui_;
    std::ostream& out_;
};

}  // namespace tavrin
