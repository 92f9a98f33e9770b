// About: the program's name and edition, its notices, and a way to the
// desktop's own system information.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/run_time_error.h"

namespace tavrin {

namespace {

const QString kNoSysInfo = QStringLiteral("System Information Is Unavailable At This Time");

// Linux desktops have no one system-information tool: the usual ones are
// tried in turn, the first that starts wins.
const char* const kSysInfoPrograms[] = {
    "hardinfo",
    "hardinfo2",
    "gnome-system-monitor",
    "ksysguard",
    "plasma-systemmonitor",
    "mate-system-monitor",
    "xfce4-taskmanager",
};

void StartSysInfo(Form& f) {
    try {
        for (const char* program : kSysInfoPrograms) {
            if (f.app().ui().startProgram(QString::fromLatin1(program))) {
                return;
            }
        }
    } catch (const RunTimeError&) {
        // Any failure on the way says the same as finding nothing.
    }
    ProgramMessage(f, kNoSysInfo);
}

void Load(Form& f) {
    f.setCaption("txtCompany", "Issued by the Tavrin project as a free tool for the shop.");
}

void Build(Form& f) {
    f.setTitle(QStringLiteral("About Tavrin™"));
    f.addImage("Image1", "about");
    f.addLabel("lblTitle", QStringLiteral("Tavrin™ v4.0"));
    f.addLabel("lblVersion", QStringLiteral("for Windows® OS"));
    f.addLabel("lblDescription", "Shop math for machinists, toolmakers and CNC programmers.");
    f.addLabel("txtCompany", QString());
    f.addLabel("Label1", "Questions and reports: the Tavrin project's issue tracker.");
    Control& warning = f.add(ControlKind::TextBox, "Text1");
    warning.text = QStringLiteral(
        "Warning: Tavrin comes with no warranty of any kind. Check every answer "
        "before it goes to a machine; the people who make Tavrin are not liable "
        "for scrap, damage or injury that follows from its use.");
    warning.multiLine = true;
    warning.locked = true;
    warning.heightLines = 4;
    warning.widthChars = 46;
    warning.tabStop = false;
    f.addButton("cmdOK", "OK");
    f.addButton("cmdSysInfo", "&System Info...");

    f.addRow(RowKind::Line, {"lblTitle"});
    f.addRow(RowKind::Line, {"lblVersion"});
    f.addRow(RowKind::Line, {"lblDescription"});
    f.addRow(RowKind::Line, {"txtCompany"});
    f.addRow(RowKind::Line, {"Label1"});
    f.addRow(RowKind::Line, {"Text1"});
    f.addRow(RowKind::Buttons, {"cmdOK", "cmdSysInfo"});
    f.setSide("Image1");

    f.onLoad(Load);
    f.onClick("cmdOK", [](Form& f) { f.app().unload(f); });
    f.onClick("cmdSysInfo", StartSysInfo);
}

const FormRegistration registration("frmAbout", Build);

}  // namespace

}  // namespace tavrin
