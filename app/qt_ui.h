#pragma once

#include <QHash>
#include <QPointer>

class QEventLoop;

#include "frame/ui.h"

namespace tavrin {

class App;
class FormView;
class PathWindow;

// The Qt face of the logic: one FormView a loaded window, real message boxes,
// the Qt event loop.
class QtUi : public Ui {
  public:
    void setApp(App* app) { app_ = app; }
    FormView* viewOf(const Form& form) const;
    // The path window of a generator, once View Path has made it.
    PathWindow* pathOf(const Form& form) const;

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
    QString saveFileName(const QString& title, const QString& start, const QStringList& filters,
                         int& filter) override;
    void setClipboardText(const QString& text) override;
    void showPath(Form& form, const PathPlot& plot) override;

  private:
    FormView* ensureView(Form& form);

    App* app_ = nullptr;
    QHash<const Form*, QPointer<FormView>> views_;
    QHash<const Form*, QPointer<PathWindow>> paths_;
    // The event loop of each window shown modal, while it waits.
    QHash<const Form*, QEventLoop*> modalLoops_;
};

}  // namespace tavrin
