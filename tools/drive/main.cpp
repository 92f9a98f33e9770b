// tavrin-drive: runs any window of Tavrin from a script, with no display.
// Commands come on standard input, one a line; events and answers go to
// standard output as JSON lines.

#include <QCoreApplication>
#include <QString>
#include <iostream>
#include <memory>
#include <string>

#include "frame/settings_store.h"
#include "tools/drive/driver.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    std::unique_ptr<tavrin::SettingsStore> store;
    const QStringList args = QCoreApplication::arguments();
    for (int i = 1; i < args.size(); ++i) {
        if (args[i] == "--settings" && i + 1 < args.size()) {
            store = std::make_unique<tavrin::IniSettings>(args[++i]);
        } else {
            std::cerr << "usage: tavrin-drive [--settings FILE] < script\n";
            return 2;
        }
    }
    if (!store) {
        store = std::make_unique<tavrin::MemorySettings>();
    }
    tavrin::RecordingUi ui;
    tavrin::App app(ui, *store);
    tavrin::Driver driver(app, ui, std::cout, std::cin);
    app.splashEnabled = false;
    app.start();
    if (app.ended()) {
        return 3;
    }
    std::string line;
    while (std::getline(std::cin, line)) {
        const auto status = driver.run(QString::fromStdString(line));
        if (status != tavrin::Driver::Status::Going) {
            return tavrin::Driver::ExitCode(status);
        }
    }
    return 0;
}
