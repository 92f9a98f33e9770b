// Thread Milling: a helical G-code program for a hob mill or a single point
// tool, external or internal, with cutter compensation.

#include "quickcode/thread_milling.h"

#include <cstdint>

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "quickcode/program_tools.h"

namespace tavrin {

namespace {

const QString kAnswer = QStringLiteral("fld_TM_Answer");
const QString kDepth = QStringLiteral("fld_TM_Depth");

QString Fmt(Real v) {
    return FormatNum(v, "####0.0####");
}

// The texts that the lines are joined from. Each is kept as written, and a
// later sum reads the written text back, not the exact value.
struct Derived {
    QString c, r, q, s, h, a, b, e;
};

Derived Derive(const ThreadMillJob& job) {
    const Real t = job.toolDia;
    const Real m = job.major;
    const Real p = job.pitch;
    const Real d = job.depth;
    Derived x;
    x.c = Fmt(RoundTo((t + m) / 2, 6));
    x.r = Fmt(RoundTo(t / 2, 6));
    x.q = Fmt(RoundTo(p * 90 / 360, 6));
    x.s = Fmt(RoundTo(m / 2 + t, 6));
    x.h = Fmt(Negate(ValOf(Fmt(RoundTo(Negate(2 * p) + d - ValOf(x.q), 6)))));
    x.a = Fmt(RoundTo((PercentOf(m, 90) - t) / 2, 6));
    x.b = Fmt(RoundTo((m - t) / 2, 6));
    x.e = Fmt(RoundTo(PercentOf(m, 5), 6));
    return x;
}

void FillLabels(const ThreadMillJob& job, BlockLabels& labels) {
    const std::int16_t count = job.tool == 1 ? ToInt16(Int(job.depth / job.pitch + 20)) : 12;
    std::int16_t number = 10;
    for (int i = 1; i <= count; ++i) {
        labels[i] = job.numbered ? u'N' + QString::number(number) + u' ' : QString();
        Step16(number, 5);
    }
}

// Lines 1 to 12 of the hob mill program, without their labels.
QStringList HobMillLines(const ThreadMillJob& job, const Derived& x, bool internal) {
    const QString xy = Fmt(job.x) + " Y" + Fmt(job.y);
    const QString z = Fmt(job.zStart);
    const QString feed = " F" + Fmt(job.feed);
    const QString pitch = Fmt(job.pitch);
    if (!internal) {
        return {"G00 G90 X" + xy,
                "Z" + z,
                "G00 G91 X" + x.s,
                "G01 G90 Z" + x.h + feed,
                "G01 G91 G41 Y" + x.r,
                "G03 X-" + x.r + " Y-" + x.r + " Z-" + x.q + " I0.0 J-" + x.r,
                "G02 Z-" + pitch + " I-" + x.c,
                "G02 Z-" + pitch + " I-" + x.c,
                "G03 X" + x.r + " Y-" + x.r + " Z-" + x.q + " I" + x.r + " J0.0",
                "G01 G40 Y" + x.r,
                "G00 G90 Z" + z,
                "X" + xy};
    }
    // Inside, the cut climbs from the bottom, and the tool leaves in X and Y first.
    return {"G00 G90 X" + xy,
            "Z" + z,
            "G00 G91 X" + x.e,
            "G01 G90 Z" + Fmt(Negate(job.depth)) + feed,
            "G01 G91 G41 Y-" + x.a,
            "G03 X" + x.a + " Y" + x.a + " Z" + x.q + " I0.0 J" + x.a,
            "G03 Z" + pitch + " I-" + x.b,
            "G03 Z" + pitch + " I-" + x.b,
            "G03 X-" + x.a + " Y" + x.a + " Z" + x.q + " I-" + x.a + " J0.0",
            "G01 G40 Y-" + x.a,
            "G00 G90 X" + xy,
            "Z" + z};
}

QString HobMill(const ThreadMillJob& job, const Derived& x, bool internal, BlockLabels& labels) {
    const QStringList lines = HobMillLines(job, x, internal);
    QString program;
    for (int i = 1; i <= 12; ++i) {
        program += labels[i] + lines[i - 1];
        if (i < 12) {
            program += QStringLiteral("\r\n");
        }
    }
    return program;
}

// Lines 7 and 8 of the hob mill give way to one full turn per pitch, and the
// labels of the turns and of what follows come from the running counter.
QString SinglePoint(const ThreadMillJob& job, const Derived& x, bool internal,
                    BlockLabels& labels) {
    const Real d = job.depth;
    const Real p = job.pitch;
    const std::int16_t turns = ToInt16(RoundTo(Abs(d) / p + 1, 0));
    QStringList lines = HobMillLines(job, x, internal);
    if (!internal) {
        lines[3] = "G01 G90 Z" +
                   Fmt(ValOf(NumToStr(RoundTo(Real(turns) * p + ValOf(x.q) - Abs(d), 6)))) + " F" +
                   Fmt(job.feed);
    }
    const QString turn = lines[6];
    QString program;
    for (int i = 1; i <= 6; ++i) {
        program += labels[i] + lines[i - 1] + QStringLiteral("\r\n");
    }
    labels.next = 7;
    for (int i = 1; i <= turns; ++i) {
        program += labels[labels.next] + turn + QStringLiteral("\r\n");
        ++labels.next;
    }
    for (int i = 9; i <= 12; ++i) {
        program += labels[labels.next] + lines[i - 1];
        ++labels.next;
        if (i < 12) {
            program += QStringLiteral("\r\n");
        }
    }
    return program;
}

}  // namespace

ThreadMillAnswer ThreadMillProgram(const ThreadMillJob& job, BlockLabels& labels) {
    const Derived x = Derive(job);
    FillLabels(job, labels);
    if (job.thread != 0 && job.thread != 1) {
        return {};  // a thread type typed in selects no program
    }
    const bool internal = job.thread == 1;
    // A tool of exactly 90% of the major passes.
    if (internal && PercentOf(job.major, 90) < job.toolDia) {
        return {QString(), QStringLiteral("Error, Tool Diameter greater than 90% of Major.")};
    }
    if (job.tool == 0) {
        return {HobMill(job, x, internal, labels), QString()};
    }
    if (job.tool == 1) {
        return {SinglePoint(job, x, internal, labels), QString()};
    }
    return {};
}

namespace {

Real Field(const Form& f, const QString& name) {
    return ValOf(f.text(name));
}

void Stop(Form& f, const QString& message) {
    ProgramMessage(f, message);
    f.setText(kAnswer, QString());
}

void Calculate(Form& f) {
    f.setText(kAnswer, "Calculating...");
    const struct {
        const char* field;
        const char* message;
    } positions[] = {{"fld_TM_Xpos", "Invalid data in X Pos field"},
                     {"fld_TM_Ypos", "Invalid data in Y Pos field"},
                     {"fld_TM_ZStart", "Invalid data in Z Start field"}};
    for (const auto& p : positions) {
        if (IsNumberText(f.text(p.field)) == 0) {
            Stop(f, p.message);
            return;
        }
    }
    // An empty position fills itself.
    for (const char* field : {"fld_TM_Ypos", "fld_TM_Xpos", "fld_TM_ZStart"}) {
        if (Field(f, field) == 0) {
            f.setText(field, QStringLiteral("0"));
        }
    }
    for (const char* field : {"fld_TM_Depth", "fld_TM_Major", "fld_TM_ToolDia", "fld_TM_Pitch"}) {
        const Real value = Field(f, field);
        if (value < 0) {
            f.setText(field, NumToStr(Negate(value)).trimmed());
        }
    }
    // A negative feed flips the depth and stays in the program as it is.
    if (Field(f, "fld_TM_Feed") < 0) {
        f.setText(kDepth, NumToStr(Negate(Field(f, kDepth))).trimmed());
    }
    const struct {
        const char* field;
        const char* message;
    } zeros[] = {{"fld_TM_Pitch", "Error, pitch cannot have a zero value."},
                 {"fld_TM_Depth", "Error, depth cannot have a zero value."},
                 {"fld_TM_ToolDia", "Error, Tool Diameter cannot have a zero value."},
                 {"fld_TM_Major", "Error, Major cannot have a zero value."},
                 {"fld_TM_Feed", "Error, Feedrate should not have a zero value."}};
    for (const auto& z : zeros) {
        if (Field(f, z.field) == 0) {
            Stop(f, z.message);
            return;
        }
    }
    // The fields as the repairs left them.
    const ThreadMillJob job{.x = Field(f, "fld_TM_Xpos"),
                            .y = Field(f, "fld_TM_Ypos"),
                            .zStart = Field(f, "fld_TM_ZStart"),
                            .depth = Field(f, kDepth),
                            .major = Field(f, "fld_TM_Major"),
                            .toolDia = Field(f, "fld_TM_ToolDia"),
                            .pitch = Field(f, "fld_TM_Pitch"),
                            .feed = Field(f, "fld_TM_Feed"),
                            .tool = f.listIndex("popTM_Tool"),
                            .thread = f.listIndex("popTM_Thread"),
                            .numbered = f.value("Checkbox1208")};
    const ThreadMillAnswer answer = ThreadMillProgram(job, f.app().blockLabels);
    if (!answer.refusal.isEmpty()) {
        Stop(f, answer.refusal);
    } else if (!answer.program.isEmpty()) {
        f.setText(kAnswer, answer.program);
    }
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"fld_TM_Xpos", "fld_TM_Ypos", "fld_TM_Depth", "fld_TM_ZStart", "fld_TM_Major",
                   "fld_TM_ToolDia", "fld_TM_Pitch", "fld_TM_Feed"});
    f.setText(kAnswer, QString());
}

void Load(Form& f) {
    f.setListIndex("popTM_Tool", 0);
    f.setListIndex("popTM_Thread", 0);
}

void Build(Form& f) {
    f.setTitle("Thread Milling");
    f.addLabel("Label1", "X Pos");
    f.addTextBox("fld_TM_Xpos");
    f.addLabel("Label2", "Y Pos");
    f.addTextBox("fld_TM_Ypos");
    f.addLabel("Label3", "Depth");
    f.addTextBox("fld_TM_Depth");
    f.addLabel("Label4", "Z Start");
    f.addTextBox("fld_TM_ZStart");
    f.addLabel("Label5", "Major Dia.");
    f.addTextBox("fld_TM_Major");
    f.addLabel("Label6", "Tool Dia.");
    f.addTextBox("fld_TM_ToolDia");
    f.addLabel("Label7", "Pitch");
    f.addTextBox("fld_TM_Pitch");
    f.addLabel("Label8", "Feed");
    f.addTextBox("fld_TM_Feed");
    f.addLabel("Label9", "Tool");
    Control& tool = f.add(ControlKind::Combo, "popTM_Tool");
    tool.items = QStringList{"Hob-Mill", "Single Pt."};
    tool.widthChars = 12;
    f.addLabel("Label10", "Thread");
    Control& thread = f.add(ControlKind::Combo, "popTM_Thread");
    thread.items = QStringList{"Ext.", "Int."};
    thread.widthChars = 12;
    f.addCheck(QString(), "Checkbox1208", "Use \"N\" numbers");
    f.addAnswerBox(kAnswer, 14, ScrollBars::Both).widthChars = 44;
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");

    f.addRow(RowKind::Fields, {"Label1", "fld_TM_Xpos", "Label2", "fld_TM_Ypos"});
    f.addRow(RowKind::Fields, {"Label3", "fld_TM_Depth", "Label4", "fld_TM_ZStart"});
    f.addRow(RowKind::Fields, {"Label5", "fld_TM_Major", "Label6", "fld_TM_ToolDia"});
    f.addRow(RowKind::Fields, {"Label7", "fld_TM_Pitch", "Label8", "fld_TM_Feed"});
    f.addRow(RowKind::Fields, {"Label9", "popTM_Tool", "Label10", "popTM_Thread"});
    f.addRow(RowKind::Line, {"Checkbox1208"});
    f.addRow(RowKind::Line, {kAnswer});
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onLoad(Load);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    AddProgramTools(f, kAnswer, PathView::Mill);
}

const FormRegistration registration("frmThdMill", Build);

}  // namespace

}  // namespace tavrin
