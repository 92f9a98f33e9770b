// Tavrin: the desktop program.

#include <QApplication>
#include <QIcon>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/command_line.h"
#include "app/qt_ui.h"
#include "frame/app.h"
#include "frame/settings_store.h"

namespace {

bool HasDisplay() {
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    const char* x11 = std::getenv("DISPLAY");
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    auto set = [](const char* v) { return v != nullptr && *v != '\0'; };
    return set(platform) || set(x11) || set(wayland);
}

}  // namespace

int main(int argc, char** argv) {
    // The options that open no window work without a display too.
    const bool display = HasDisplay();
    std::unique_ptr<QCoreApplication> application(display ? new QApplication(argc, argv)
                                                          : new QCoreApplication(argc, argv));
    QCoreApplication::setApplicationName(QStringLiteral("Tavrin"));
    QCoreApplication::setOrganizationName(QStringLiteral("Tavrin"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVRIN_VERSION));

    const QString settingsPath = tavrin::IniSettings::DefaultPath();
    QTextStream out(stdout);
    QTextStream err(stderr);
    const tavrin::StartRequest request =
        tavrin::ReadCommandLine(QCoreApplication::arguments(), settingsPath, out, err);
    out.flush();
    err.flush();
    if (!request.startWindows) {
        return request.exitCode;
    }
    if (!display) {
        std::fprintf(stderr, "tavrin: no display to open windows on (DISPLAY is not set)\n");
        return 1;
    }
    QApplication::setQuitOnLastWindowClosed(false);  // the logic decides when the program ends
    // The title bars and the task bar show the icon; the desktop entry is matched by name.
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tavrin.svg")));
    QApplication::setDesktopFileName(QStringLiteral("tavrin"));

    tavrin::IniSettings settings(settingsPath);
    tavrin::QtUi ui;
    tavrin::App app(ui, settings);
    ui.setApp(&app);
    if (!request.openForm.isEmpty()) {
        // A desktop shortcut to one calculator: straight to it, over the home window.
        app.splashEnabled = false;
        app.start();
        app.guarded([&] { app.show(request.openForm); });
    } else {
        app.start();
    }
    if (app.loadedForms().empty()) {
        return 0;
    }
    return QApplication::exec();
}
