#pragma once

#include "tests/support/harness.h"

namespace tavrin::testing {

// On a fresh program: opens the window, runs the steps and Calculate, and
// returns the text of the last box shown followed by the texts of `boxes`
// joined by "|" (none after a fatal box).
inline QString Calculated(const QString& window, const QStringList& steps,
                          const QStringList& boxes) {
    Harness h;
    Form& f = h.run(window, steps + QStringList{"Command1"});
    QStringList texts;
    for (const QString& box : boxes) {
        texts << f.text(box);
    }
    return h.lastBox() + (h.ui.fatalTexts().isEmpty() ? texts.join(u'|') : QString());
}

}  // namespace tavrin::testing
