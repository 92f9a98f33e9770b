#pragma once

#include <QString>
#include <QStringList>

#include "frame/app.h"
#include "frame/recording_ui.h"
#include "frame/settings_store.h"

namespace tavrin::testing {

// An App on the recording display with a store in memory, started without the
// splash, as most tests want it.
struct Harness {
    RecordingUi ui;
    MemorySettings settings;
    App app{ui, settings};

    Harness();
    // Shows a window as the home window would and returns it.
    Form& open(const QString& name);
    // Types into a text box, as a user would.
    void set(Form& form, const QString& control, const QString& text);
    void click(Form& form, const QString& control);
    // Opens the window (if not open) and runs the steps in order, as a user
    // would: "txtSfm=300" types a text, "popSides#3" selects item 3, a bare
    // name clicks. Returns the window.
    Form& run(const QString& form, const QStringList& steps);
    // The text of the last message, question or fatal box; empty when none came.
    QString lastBox() const;
};

// On a fresh program with these places: runs the steps on the window, then
// gives the last box shown and the text of `shown`, as "box|text".
QString Outcome(const QString& window, const QStringList& steps, const QString& shown,
                int decPlace = 4);

// Types "1" into every text box of the window, presses its Clear All button
// and gives back "window.box=text" for each box it left filled.
QStringList BoxesClearAllLeaves(const QString& window, const QString& button);

}  // namespace tavrin::testing
