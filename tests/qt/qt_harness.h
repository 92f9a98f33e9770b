#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QWidget>

#include "app/form_view.h"
#include "app/qt_ui.h"
#include "frame/app.h"

namespace tavrin::testing {

// The Qt display with its boxes taken down as "kind: text" lines instead of
// shown, so that nothing blocks; every question is answered No.
class InterceptingUi : public QtUi {
  public:
    QStringList boxes;
    void message(const QString&, const QString& text) override { boxes << "message: " + text; }
    bool question(const QString&, const QString& text) override {
        boxes << "question: " + text;
        return false;
    }
    void fatal(const QString&, const QString& text) override { boxes << "fatal: " + text; }
};

// The real Qt windows over the logic, offscreen, started without the splash.
struct QtHarness {
    InterceptingUi ui;
    MemorySettings settings;
    App app{ui, settings};
    QtHarness() {
        ui.setApp(&app);
        app.splashEnabled = false;
        app.start();
    }
    // Otherwise the views outlive the windows, and a late event reaches a dead one.
    ~QtHarness() {
        for (Form* f : app.loadedForms()) {
            delete ui.viewOf(*f);
        }
    }
    FormView* view(const QString& name) {
        Form* f = app.find(name);
        return f == nullptr ? nullptr : ui.viewOf(*f);
    }
    FormView* open(const QString& name) {
        app.guarded([&] { app.show(name); });
        return view(name);
    }
};

// Saves a picture of the window under build/screenshots, for people to look at.
inline void SavePicture(QWidget* w, const QString& name) {
    QDir().mkpath(TAVRIN_SCREENSHOT_DIR);
    const QString path = QStringLiteral(TAVRIN_SCREENSHOT_DIR "/%1.png").arg(name);
    ASSERT_TRUE(w->grab().save(path)) << path.toStdString();
}

template <typename W>
W* Find(FormView* view, const QString& name) {
    auto* w = qobject_cast<W*>(view->widget(name));
    EXPECT_NE(w, nullptr) << name.toStdString();
    return w;
}

}  // namespace tavrin::testing
