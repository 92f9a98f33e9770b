// Tavrin: the desktop program.

#include <QApplication>
#include <cstdio>
#include <cstdlib>

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
    if (!HasDisplay()) {
        std::fprintf(stderr, "tavrin: no display to open windows on (DISPLAY is not set)\n");
        return 1;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tavrin"));
    QApplication::setOrganizationName(QStringLiteral("Tavrin"));
    QApplication::setQuitOnLastWindowClosed(false);  // the logic decides when the program ends

    tavrin::IniSettings settings(tavrin::IniSettings::DefaultPath());
    tavrin::QtUi ui;
    tavrin::App app(ui, settings);
    ui.setApp(&app);
    app.start();
    if (app.loadedForms().empty()) {
        return 0;
    }
    return QApplication::exec();
}
