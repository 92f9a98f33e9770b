#include "app/command_line.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QFile>
#include <QTextStream>

#include "app/qt_ui.h"
#include "frame/app.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

// Builds each window only to read its title: no load step runs, nothing shows.
void ListWindows(QTextStream& out) {
    QtUi ui;
    MemorySettings settings;
    App app(ui, settings);
    for (const QString& name : RegisteredFormNames()) {
        Form form(app, name);
        FindFormBuilder(name)(form);
        out << name.leftJustified(22) << ' ' << form.title() << '\n';
    }
}

// A damaged decimal places or position value ends every start in the fatal
// box: the file goes aside, kept, and the next start takes the defaults.
int ResetSettings(const QString& path, QTextStream& out, QTextStream& err) {
    if (!QFile::exists(path)) {
        out << "tavrin: no settings file at " << path << "; nothing to reset\n";
        return 0;
    }
    const QString backup =
        path + QDateTime::currentDateTime().toString(QStringLiteral(".yyyyMMdd-hhmmss.'bak'"));
    if (!QFile::rename(path, backup)) {
        err << "tavrin: could not move " << path << " to " << backup << '\n';
        return 1;
    }
    out << "tavrin: settings moved to " << backup << "; the next start takes the defaults\n";
    return 0;
}

}  // namespace

StartRequest ReadCommandLine(const QStringList& args, const QString& settingsPath, QTextStream& out,
                             QTextStream& err) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tavrin: shop calculators, a unit converter and G-code for machinists."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption open(QStringLiteral("open"),
                                  QStringLiteral("Start with the window FORM open over the home "
                                                 "window, without the splash."),
                                  QStringLiteral("FORM"));
    const QCommandLineOption list(QStringLiteral("list-windows"),
                                  QStringLiteral("Print each window's name and title, and exit."));
    const QCommandLineOption reset(
        QStringLiteral("reset-settings"),
        QStringLiteral("Move the settings file aside, kept as a backup, and exit."));
    parser.addOptions({open, list, reset});

    StartRequest request;
    request.startWindows = false;
    if (!parser.parse(args) || !parser.positionalArguments().isEmpty()) {
        err << "tavrin: "
            << (parser.errorText().isEmpty() ? QStringLiteral("unexpected argument ") +
                                                   parser.positionalArguments().join(' ')
                                             : parser.errorText())
            << "; tavrin --help shows the options\n";
        request.exitCode = 2;
    } else if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all"))) {
        out << parser.helpText();
    } else if (parser.isSet(version)) {
        out << "tavrin " << TAVRIN_VERSION << '\n';
    } else if (parser.isSet(list)) {
        ListWindows(out);
    } else if (parser.isSet(reset)) {
        request.exitCode = ResetSettings(settingsPath, out, err);
    } else if (parser.isSet(open) && FindFormBuilder(parser.value(open)) == nullptr) {
        err << "tavrin: no window named '" << parser.value(open)
            << "'; tavrin --list-windows shows the names\n";
        request.exitCode = 2;
    } else {
        request.startWindows = true;
        request.openForm = parser.value(open);
    }
    return request;
}

}  // namespace tavrin
