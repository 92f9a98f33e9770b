#pragma once

#include <QHash>
#include <QPointer>

class QEventLoop;

#include "frame/ui.h"

namespace tavrin {

class App;
class FormView;

// The Qt face of the logic: one FormView a loaded window, real message boxes,
// the Qt event loop.
class QtUi : public Ui {
  public:
    void setApp(App* app) { app_ = app; }
    FormView* viewOf(const Form& form) const;

    void showWindow(Form& form) override;
    void showModal(Form& form) override;
    void hideWindow(Form& form) override;
    void windowUnloaded(Form& form) override;
    void message(const QString& title, const QString& text) override;
    bool question(const QString& title, const QString& text) override;
    // Shows the box, then ends the process at once: no closing step runs.
    void fatal(const QString& title, const QString& text) override;
    void processEvents() override;
    void waitForEvents() override;
    bool startProgram(const QString& program) override;
    float secondsSinceMidnight() override;
    void quit() override;

  private:
    FormView* ensureView(Form& form);

    App* app_ = nullptr;
    QHash<const Form*, QPointer<FormView>> views_;
    // The event loop of each window shown modal, while it waits.
    QHash<const Form*, QEventLoop*> modalLoops_;
};

}  // namespace tavrin
