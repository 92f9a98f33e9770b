#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

namespace tavrin::testing {

// One run of tavrin-drive as a process: its exit status and its output lines.
struct DriveSession {
    int exitCode = -1;
    QStringList lines;
};

inline DriveSession Drive(const QByteArray& script, const QStringList& args = {}) {
    QProcess process;
    process.start(QStringLiteral(TAVRIN_DRIVE_PATH), args);
    process.write(script);
    process.closeWriteChannel();
    process.waitForFinished(30000);
    DriveSession s;
    s.exitCode = process.exitCode();
    s.lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    return s;
}

}  // namespace tavrin::testing
