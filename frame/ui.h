#pragma once

#include <QString>
#include <QStringList>

namespace tavrin {

class Form;
struct PathPlot;

// Everything the logic asks of a display. The Qt windows, the script driver and
// the tests each stand behind it.
class Ui {
  public:
    virtual ~Ui() = default;
    // Creates the window's view if it has none, shows it without blocking and
    // brings it forward.
    virtual void showWindow(Form& form) = 0;
    // Shows the window modal and returns once it is hidden or unloaded.
    virtual void showModal(Form& form) = 0;
    // The window stays loaded but is no longer shown. A display that shows
    // nothing has nothing to hide.
    virtual void hideWindow(Form& /*form*/) {}
    // The window is unloaded: its view goes.
    virtual void windowUnloaded(Form& form) = 0;
    // A box with the exclamation icon and the single button OK.
    virtual void message(const QString& title, const QString& text) = 0;
    // Yes and No, with the exclamation icon; true for Yes.
    virtual bool question(const QString& title, const QString& text) = 0;
    // The fatal box. The program ends when it is closed; a display that can
    // go on (a test) returns, and the logic runs nothing more.
    virtual void fatal(const QString& title, const QString& text) = 0;
    virtual void processEvents() = 0;
    // As processEvents, but waits up to 10 ms for something to happen, so
    // that a wait on the clock does not spin.
    virtual void waitForEvents() { processEvents(); }
    // Starts a program by name, without waiting; false when it cannot be started.
    virtual bool startProgram(const QString& program) = 0;
    // The clock: seconds since midnight, as a 32-bit float.
    virtual float secondsSinceMidnight() = 0;
    // The last window is gone: the program ends.
    virtual void quit() = 0;
    // The file to save under, asked from `start` (a folder and a suggested
    // name) with the file types of `filters` ("G-code (*.nc)"); `filter` is
    // the index of the type chosen. Empty when the user cancels, as a display
    // that cannot ask always does.
    virtual QString saveFileName(const QString& /*title*/, const QString& /*start*/,
                                 const QStringList& /*filters*/, int& /*filter*/) {
        return QString();
    }
    virtual void setClipboardText(const QString& /*text*/) {}
    // Shows the moves of a program, in a window of `form`'s own, reused.
    virtual void showPath(Form& /*form*/, const PathPlot& /*plot*/) {}
};

}  // namespace tavrin
