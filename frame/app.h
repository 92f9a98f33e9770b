#pragma once

#include <QSet>
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "frame/block_labels.h"
#include "frame/form.h"
#include "frame/settings_store.h"
#include "frame/ui.h"

namespace tavrin {

class RunTimeError;

// The program: the loaded windows, the globals they share, and the doors
// through which every user event enters the logic. An arithmetic failure that
// no handler catches ends here, in the fatal box.
class App {
  public:
    App(Ui& ui, SettingsStore& settings);
    ~App();

    Ui& ui() const { return ui_; }
    SettingsStore& settings() const { return settings_; }

    // Globals of the whole program.
    std::int16_t decPlace = 4;  // decimal places of answers
    bool tangencyDms = false;
    QString oldPointsText;
    // The folder the program runs from: the dove tail help reads its pictures there.
    QString programFolder;
    BlockLabels blockLabels;  // of the thread milling and lathe threading programs
    // The script driver and the tests skip the splash and its waits.
    bool splashEnabled = true;
    // The splash has run its three texts; later timer firings do nothing.
    bool splashShown = false;

    // Loads and shows the home window, as at program start.
    void start();

    static bool IsBuilt(const QString& name);
    Form* find(const QString& name) const;
    // Creates the window and runs its load step, if it is not loaded yet.
    Form& load(const QString& name);
    // Loads if needed, shows without blocking, brings it forward.
    Form& show(const QString& name);
    // Loads if needed and shows modal: returns once the window is hidden or
    // unloaded, while other clicks run in between.
    Form& showModal(const QString& name);
    // The window stays loaded, out of sight; a modal wait for it ends.
    void hide(Form& form);
    // Runs the closing step and drops the window.
    void unload(Form& form);
    std::vector<Form*> loadedForms() const;

    void closeAllWindows(const QString& exceptName);
    void waitSeconds(float& seconds);
    void programMessage(const QString& text);

    // User events. Each runs its handler to the end, or to the fatal box.
    void userClick(Form& form, const QString& control);
    void userType(Form& form, const QString& control, const QString& text);
    void userSelect(Form& form, const QString& control, int index);
    void userSpin(Form& form, const QString& control, int delta);
    void userTimer(Form& form, const QString& control);
    void userClose(Form& form);

    // True once the fatal box has been shown: nothing runs after it.
    bool ended() const { return ended_; }

    template <typename Step>
    void guarded(Step&& step);

  private:
    void fatal(const RunTimeError& error);
    void buryUnloaded();

    Ui& ui_;
    SettingsStore& settings_;
    std::vector<std::unique_ptr<Form>> loaded_;
    std::vector<std::unique_ptr<Form>> unloaded_;  // freed when no handler runs
    QSet<QString> runningTimers_;
    int depth_ = 0;
    bool ended_ = false;
};

// The one user message: a box titled "Program Message".
void ProgramMessage(const Form& form, const QString& text);

}  // namespace tavrin

#include "frame/app_guarded.h"
