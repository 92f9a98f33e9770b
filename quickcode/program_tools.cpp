// What a user does with a program once it is written: keeps it in a file,
// copies it for the control's editor, or looks at the path it would cut.

#include "quickcode/program_tools.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "frame/app.h"
#include "frame/form.h"

namespace tavrin {

namespace {

const QString kSection = QStringLiteral("QuickCode");
const QString kLastFolder = QStringLiteral("LastFolder");

// The file types offered, each with the extension it adds; the first is the default.
struct FileType {
    const char* filter;
    const char* extension;
};
const FileType kTypes[] = {
    {"G-code (*.nc)", "nc"}, {"Tap file (*.tap)", "tap"}, {"Text (*.txt)", "txt"}};

// The answer box's program, or empty after saying there is none.
QString Program(Form& f, const QString& answerBox) {
    const QString text = f.text(answerBox);
    if (text.isEmpty()) {
        ProgramMessage(f, QStringLiteral("There is no program yet: press Calculate first."));
    }
    return text;
}

void SaveAs(Form& f, const QString& answerBox) {
    const QString text = Program(f, answerBox);
    if (text.isEmpty()) {
        return;
    }
    App& app = f.app();
    const QString folder = app.settings().get(kSection, kLastFolder, QDir::homePath());
    // "frmBoltCircle" suggests BoltCircle.nc.
    const QString name = f.name().startsWith(QStringLiteral("frm")) ? f.name().mid(3) : f.name();
    QStringList filters;
    for (const FileType& type : kTypes) {
        filters << QString::fromLatin1(type.filter);
    }
    int chosen = 0;
    const QString path =
        app.ui().saveFileName(QStringLiteral("Save Program As"),
                              folder + u'/' + name + QStringLiteral(".nc"), filters, chosen);
    if (path.isEmpty()) {
        return;
    }
    const bool known = chosen >= 0 && chosen < static_cast<int>(std::size(kTypes));
    SaveProgram(f, answerBox, path, QString::fromLatin1(kTypes[known ? chosen : 0].extension));
}

void Copy(Form& f, const QString& answerBox) {
    const QString text = Program(f, answerBox);
    if (!text.isEmpty()) {
        f.app().ui().setClipboardText(text);
    }
}

void ViewPath(Form& f, const QString& answerBox, PathView view) {
    const QString text = Program(f, answerBox);
    if (!text.isEmpty()) {
        f.app().ui().showPath(f,
                              PathPlot{f.title() + QStringLiteral(": Path"), view, ReadPath(text)});
    }
}

}  // namespace

QString SaveProgram(Form& f, const QString& answerBox, QString path, const QString& extension) {
    const QString text = Program(f, answerBox);
    if (text.isEmpty()) {
        return QString();
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += u'.' + extension;
    }
    // Written whole or not at all: an old file of that name stays on failure.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        ProgramMessage(f, QStringLiteral("Error, the program could not be saved as %1 (%2).")
                              .arg(QDir::toNativeSeparators(path), file.errorString()));
        return QString();
    }
    f.app().settings().save(kSection, kLastFolder, QFileInfo(path).absolutePath());
    return path;
}

void AddProgramTools(Form& f, const QString& answerBox, PathView view) {
    (void)f.control(answerBox);  // a box the window does not have fails here, at once
    f.addButton(QStringLiteral("cmdSaveAs"), QStringLiteral("Save As..."));
    f.addButton(QStringLiteral("cmdCopy"), QStringLiteral("Copy"));
    f.addButton(QStringLiteral("cmdViewPath"), QStringLiteral("View Path"));
    f.addRow(RowKind::Buttons, {"cmdSaveAs", "cmdCopy", "cmdViewPath"});
    f.onClick(QStringLiteral("cmdSaveAs"), [answerBox](Form& f) { SaveAs(f, answerBox); });
    f.onClick(QStringLiteral("cmdCopy"), [answerBox](Form& f) { Copy(f, answerBox); });
    f.onClick(QStringLiteral("cmdViewPath"),
              [answerBox, view](Form& f) { ViewPath(f, answerBox, view); });
}

}  // namespace tavrin
