#include "tools/drive/driver.h"

#include <QJsonArray>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>

#include "frame/form_registry.h"
#include "quickcode/gcode_reader.h"
#include "quickcode/program_tools.h"
#include "tools/drive/json_line.h"

namespace tavrin {

namespace {

void Write(std::ostream& out, const JsonLine& line) {
    out << line.toUtf8().toStdString() << '\n';
    out.flush();
}

// "frmX.Control" into its two names.
bool SplitTarget(const QString& target, QString& form, QString& control) {
    const int dot = static_cast<int>(target.indexOf(u'.'));
    if (dot <= 0 || dot == target.size() - 1) {
        return false;
    }
    form = target.left(dot);
    control = target.mid(dot + 1);
    return true;
}

bool IsClickable(ControlKind k) {
    return k == ControlKind::Button || k == ControlKind::Option || k == ControlKind::Check ||
           k == ControlKind::MenuItem;
}

JsonLine Describe(const QString& target, const Control& c, bool focused) {
    JsonLine line;
    line.add("control", target);
    switch (c.kind) {
        case ControlKind::TextBox:
            line.add("text", c.text);
            break;
        case ControlKind::Combo:
            line.add("text", c.text);
            break;
        case ControlKind::DropDownList:
        case ControlKind::ListBox:
            line.add("text", c.listIndex >= 0 ? c.items[c.listIndex] : QString());
            break;
        case ControlKind::Image:
            line.add("picture", c.picture);
            break;
        case ControlKind::Timer:
        case ControlKind::Spin:
            break;
        default:
            line.add("caption", c.caption);
            break;
    }
    line.add("visible", c.visible).add("enabled", c.enabled);
    if (c.kind == ControlKind::Option || c.kind == ControlKind::Check) {
        line.add("value", c.value);
    }
    if (IsList(c.kind)) {
        line.add("index", c.listIndex).add("items", QJsonArray::fromStringList(c.items));
    }
    if (focused) {
        line.add("focus", true);  // only where a handler put it
    }
    return line;
}

QJsonArray Xyz(const Point3& p) {
    return QJsonArray{p.x, p.y, p.z};
}

JsonLine DescribeMove(const PathMove& m) {
    const bool arc = m.kind == MoveKind::ArcCw || m.kind == MoveKind::ArcCcw;
    JsonLine line;
    line.add("kind", MoveKindName(m.kind))
        .add("from", Xyz(m.from))
        .add("to", Xyz(m.to))
        .add("centre", arc ? QJsonValue(Xyz(m.centre)) : QJsonValue())
        .add("line", m.line);
    if (m.kind == MoveKind::Hole) {
        line.add("number", m.number);
    }
    return line;
}

}  // namespace

Driver::Driver(App& app, RecordingUi& ui, std::ostream& out, std::istream& in)
    : app_(app), ui_(ui), out_(out), in_(in) {
    ui_.onModal = [this](Form& form) { answerModal(form); };
    ui_.onProcessEvents = [this] {
        if (busy_ != nullptr && ++passes_ == kEndlessPasses) {
            Form& form = *busy_;
            busy_ = nullptr;
            Write(out_, JsonLine()
                            .add("event", "closed")
                            .add("window", form.name())
                            .add("text", "still running after 100000 passes"));
            app_.userClose(form);
        }
    };
    ui_.onShown = [this](const RecordingUi::Shown& box) {
        switch (box.kind) {
            case RecordingUi::Kind::Message:
                Write(out_, JsonLine()
                                .add("event", "message")
                                .add("title", box.title)
                                .add("text", box.text));
                break;
            case RecordingUi::Kind::Question:
                Write(out_, JsonLine()
                                .add("event", "question")
                                .add("title", box.title)
                                .add("text", box.text)
                                .add("answer", box.answer ? "yes" : "no"));
                break;
            case RecordingUi::Kind::Fatal:
                Write(out_, JsonLine().add("event", "fatal").add("text", box.text));
                break;
            case RecordingUi::Kind::SaveName:  // cancelled: the driver saves through `save`
                Write(out_, JsonLine().add("event", "save").add("file", box.text));
                break;
            case RecordingUi::Kind::Clipboard:
                Write(out_, JsonLine().add("event", "clipboard").add("text", box.text));
                break;
            case RecordingUi::Kind::Path: {
                const PathReading& reading = ui_.plots.back().reading;
                Write(out_, JsonLine()
                                .add("event", "plot")
                                .add("title", box.title)
                                .add("moves", static_cast<int>(reading.moves.size()))
                                .add("problems", static_cast<int>(reading.problems.size())));
                break;
            }
        }
    };
}

void Driver::answerModal(Form& form) {
    Write(out_, JsonLine().add("event", "modal").add("form", form.name()));
    std::string line;
    while (ui_.isModal(form)) {
        // The input ends with the window up: as if the program were closed.
        if (!std::getline(in_, line)) {
            throw Stop{Status::Finished};
        }
        const Status status = run(QString::fromStdString(line));
        if (status != Status::Going) {
            throw Stop{status};
        }
    }
}

int Driver::ExitCode(Status status) {
    switch (status) {
        case Status::Failed:
            return 2;
        case Status::Fatal:
            return 3;
        case Status::Going:
        case Status::Finished:
            break;
    }
    return 0;
}

Driver::Status Driver::fail(const QString& why) {
    Write(out_, JsonLine().add("event", "error").add("text", why));
    return Status::Failed;
}

Driver::Status Driver::afterStep() {
    if (app_.ended()) {
        return Status::Fatal;
    }
    if (ui_.quits > 0) {
        Write(out_, JsonLine().add("event", "end"));
        return Status::Finished;
    }
    return Status::Going;
}

Form* Driver::openForm(const QString& name, QString& why) {
    Form* form = app_.find(name);
    if (form == nullptr) {
        why = App::IsBuilt(name) ? QStringLiteral("window %1 is not open").arg(name)
                                 : QStringLiteral("no window %1").arg(name);
    }
    return form;
}

// The window of FORM.CONTROL, opened when it is not, and the control's name;
// nullptr with the reason when either is not there.
Form* Driver::formOf(const QString& target, QString& controlName, QString& why) {
    QString formName;
    if (!SplitTarget(target, formName, controlName)) {
        why = QStringLiteral("expected FORM.CONTROL, not %1").arg(target);
        return nullptr;
    }
    Form* form = openForm(formName, why);
    if (form != nullptr && !form->has(controlName)) {
        why = QStringLiteral("no control %1 on %2").arg(controlName, formName);
        return nullptr;
    }
    return form;
}

Driver::Status Driver::show(const QString& target) {
    QString controlName;
    if (!target.contains(u'.')) {
        const Form* form = app_.find(target);
        if (form == nullptr && !App::IsBuilt(target)) {
            return fail(QStringLiteral("no window %1").arg(target));
        }
        JsonLine line;
        line.add("window", target).add("open", form != nullptr);
        if (form != nullptr) {
            line.add("title", form->title());
        }
        Write(out_, line);
        return Status::Going;
    }
    QString why;
    Form* form = formOf(target, controlName, why);
    if (form == nullptr) {
        return fail(why);
    }
    Write(out_, Describe(target, form->control(controlName), form->focus() == controlName));
    return Status::Going;
}

// `path` prints the moves of a text box's program and the lines it cannot
// read; `save` writes the box's text to a file, as Save As would.
Driver::Status Driver::program(const QString& verb, const QString& target,
                               const QString& argument) {
    QString controlName;
    QString why;
    Form* form = formOf(target, controlName, why);
    if (form == nullptr) {
        return fail(why);
    }
    if (form->control(controlName).kind != ControlKind::TextBox) {
        return fail(QStringLiteral("%1 is not a text box").arg(target));
    }
    if (verb == "path") {
        const PathReading reading = ReadPath(form->text(controlName));
        for (const PathMove& move : reading.moves) {
            Write(out_, DescribeMove(move));
        }
        for (const PathProblem& problem : reading.problems) {
            Write(out_, JsonLine().add("problem", problem.text).add("line", problem.line));
        }
        return Status::Going;
    }
    QString file;
    if (!ParseJsonString(argument, file) || file.isEmpty()) {
        return fail(QStringLiteral("expected a file name as a JSON string, not %1").arg(argument));
    }
    QString written;
    app_.guarded([&] { written = SaveProgram(*form, controlName, file); });
    if (!written.isEmpty()) {
        Write(out_, JsonLine().add("event", "saved").add("file", written));
    }
    return afterStep();
}

Driver::Status Driver::run(const QString& rawLine) {
    const QString line = rawLine.trimmed();
    if (line.isEmpty() || line.startsWith(u'#')) {
        return Status::Going;
    }
    const int firstBlank = static_cast<int>(line.indexOf(u' '));
    const QString verb = firstBlank < 0 ? line : line.left(firstBlank);
    const QString rest = firstBlank < 0 ? QString() : line.mid(firstBlank + 1).trimmed();
    const int secondBlank = static_cast<int>(rest.indexOf(u' '));
    const QString target = secondBlank < 0 ? rest : rest.left(secondBlank);
    const QString argument = secondBlank < 0 ? QString() : rest.mid(secondBlank + 1).trimmed();

    try {
        if (verb == "answer") {
            if (rest != "yes" && rest != "no") {
                return fail(QStringLiteral("answer takes yes or no, not %1").arg(rest));
            }
            ui_.answers.push_back(rest == "yes");
            return Status::Going;
        }
        if (verb == "show") {
            return show(target);
        }
        if (verb == "open") {
            if (!App::IsBuilt(target)) {
                return fail(QStringLiteral("no window %1").arg(target));
            }
            app_.guarded([&] { app_.show(target); });
            return afterStep();
        }
        if (verb == "close") {
            QString why;
            Form* form = openForm(target, why);
            if (form == nullptr) {
                return fail(why);
            }
            app_.userClose(*form);
            return afterStep();
        }
        if (verb == "path" || verb == "save") {
            return program(verb, target, argument);
        }
        if (verb != "set" && verb != "click" && verb != "select" && verb != "type" &&
            verb != "spin") {
            return fail(QStringLiteral("unknown command %1").arg(verb));
        }
        QString controlName;
        QString why;
        Form* form = formOf(target, controlName, why);
        if (form == nullptr) {
            return fail(why);
        }
        const Control& c = form->control(controlName);
        busy_ = form;
        passes_ = 0;
        if (verb == "set" || verb == "type") {
            const bool fits =
                verb == "set" ? c.kind == ControlKind::TextBox : c.kind == ControlKind::Combo;
            if (!fits) {
                return fail(QStringLiteral("%1 does not take %2").arg(target, verb));
            }
            QString text;
            if (!ParseJsonString(argument, text)) {
                return fail(QStringLiteral("expected a JSON string, not %1").arg(argument));
            }
            app_.userType(*form, controlName, text);
        } else if (verb == "click") {
            if (!IsClickable(c.kind)) {
                return fail(QStringLiteral("%1 cannot be clicked").arg(target));
            }
            app_.userClick(*form, controlName);
        } else if (verb == "select") {
            bool number = false;
            const int index = argument.toInt(&number);
            if (!IsList(c.kind)) {
                return fail(QStringLiteral("%1 is not a list").arg(target));
            }
            if (!number || index < 0 || index >= c.items.size()) {
                return fail(QStringLiteral("%1 has no item %2").arg(target, argument));
            }
            app_.userSelect(*form, controlName, index);
        } else {
            if (c.kind != ControlKind::Spin || (argument != "up" && argument != "down")) {
                return fail(QStringLiteral("spin takes a spin control and up or down"));
            }
            app_.userSpin(*form, controlName, argument == "up" ? 1 : -1);
        }
        busy_ = nullptr;
        return afterStep();
    } catch (const std::logic_error& fault) {
        busy_ = nullptr;
        return fail(QString::fromStdString(fault.what()));
    } catch (const Stop& stop) {
        busy_ = nullptr;
        return stop.status;
    }
}

}  // namespace tavrin
