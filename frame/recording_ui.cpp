#include "frame/recording_ui.h"

#include "frame/form.h"

namespace tavrin {

void RecordingUi::showWindow(Form& form) {
    shownWindows << form.name();
}

void RecordingUi::showModal(Form& form) {
    shownWindows << form.name();
    modal_.insert(&form);
    if (onModal) {
        onModal(form);
    }
    modal_.remove(&form);
}

void RecordingUi::hideWindow(Form& form) {
    modal_.remove(&form);
}

void RecordingUi::windowUnloaded(Form& form) {
    modal_.remove(&form);
}

void RecordingUi::record(Shown box) {
    shown.push_back(std::move(box));
    if (onShown) {
        onShown(shown.back());
    }
}

void RecordingUi::message(const QString& title, const QString& text) {
    record({Kind::Message, title, text});
}

bool RecordingUi::question(const QString& title, const QString& text) {
    bool yes = false;
    if (!answers.empty()) {
        yes = answers.front();
        answers.pop_front();
    }
    record({Kind::Question, title, text, yes});
    return yes;
}

void RecordingUi::fatal(const QString& title, const QString& text) {
    record({Kind::Fatal, title, text});
}

bool RecordingUi::startProgram(const QString& program) {
    startAttempts << program;
    return installedPrograms.contains(program);
}

QString RecordingUi::saveFileName(const QString& title, const QString& start,
                                  const QStringList& filters, int& filter) {
    QString name;
    saveStart = start;
    if (!saveNames.empty()) {
        name = saveNames.front();
        saveNames.pop_front();
        filter = saveFilter;
    }
    record({Kind::SaveName, title, name});
    return name;
}

void RecordingUi::setClipboardText(const QString& text) {
    record({Kind::Clipboard, QString(), text});
}

void RecordingUi::showPath(Form& form, const PathPlot& plot) {
    plots.push_back(plot);
    record({Kind::Path, plot.title, QString()});
}

QStringList RecordingUi::texts(Kind kind) const {
    QStringList out;
    for (const Shown& box : shown) {
        if (box.kind == kind) {
            out << box.text;
        }
    }
    return out;
}

}  // namespace tavrin
