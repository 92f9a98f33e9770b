#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

namespace tavrin {

// What the command line leaves for the windows to do; the options that open
// no window (help, version, the list, the reset) are answered at once.
struct StartRequest {
    bool startWindows = true;
    int exitCode = 0;
    QString openForm;  // empty: the home window alone, after the splash
};

// args as QCoreApplication::arguments() gives them, the program's name first.
StartRequest ReadCommandLine(const QStringList& args, const QString& settingsPath, QTextStream& out,
                             QTextStream& err);

}  // namespace tavrin
