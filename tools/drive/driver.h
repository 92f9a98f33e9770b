#pragma once

#include <QString>
#include <iosfwd>

#include "frame/app.h"
#include "frame/recording_ui.h"

namespace tavrin {

// Runs the script language of tavrin-drive over an App, one line at a time.
class Driver {
  public:
    enum class Status { Going, Finished, Failed, Fatal };

    // Writes each box the windows show as a JSON line, as it comes. While a
    // window stands modal, the next commands are read from `in` until it is
    // hidden or unloaded.
    Driver(App& app, RecordingUi& ui, std::ostream& out, std::istream& in);
    Status run(const QString& line);
    // The status the driver exits with.
    static int ExitCode(Status status);

  private:
    // Ends the run from inside a modal wait, through the handler that waits.
    struct Stop {
        Status status;
    };

    void answerModal(Form& form);
    Status fail(const QString& why);
    Status afterStep();
    Form* openForm(const QString& name, QString& why);
    Form* formOf(const QString& target, QString& controlName, QString& why);
    Status show(const QString& target);
    Status program(const QString& verb, const QString& target, const QString& argument);

    // A loop that gives the display this many passes in one step has no end
    // a script could wait for: its window is closed, as a user would close it.
    static constexpr int kEndlessPasses = 100000;
    Form* busy_ = nullptr;
    int passes_ = 0;

    App& app_;
    RecordingUi& ui_;
    std::ostream& out_;
    std::istream& in_;
};

}  // namespace tavrin
