// Lathe Threading / G92: a threading program whose passes keep the chip's
// area constant.

#include "quickcode/lathe_thread.h"

#include <cstdint>

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "quickcode/lathe_drill.h"
#include "quickcode/program_tools.h"

namespace tavrin {

namespace {

QString Fmt(Real v) {
    return FormatNum(v, "####0.0###");
}

}  // namespace

QString LatheThreadProgram(const LatheThreadJob& job, BlockLabels& labels) {
    Real m = job.major;
    Real u = job.threadsPerUnit;
    if (job.metric) {
        m = m * 0.03937;
        u = 1 / (u * 0.03937);
    }
    const Real x = job.xStart;
    Real sdt = 0;
    if (job.manualDepth) {
        sdt = job.depth;
    } else if (m < x) {
        sdt = 0.61343 / u;  // external
    } else if (m > x) {
        sdt = 0.54127 / u;  // internal
    }
    const Real lead = 1 / u;
    const std::int16_t p = ToInt16(job.manualPasses ? job.passes : lead * 72 + 4);
    for (std::int32_t i = 1; i <= p + 8; ++i) {
        labels[i] = "N" + QString::number(5 + 5 * i) + " ";
    }
    const Real first = sdt / Sqr(p);
    const bool external = m < x;
    // Inside, the minor diameter stands for the major and the depth is added.
    const Real base = external ? m : m - (sdt + sdt);
    const auto cut = [&](Real d) { return external ? base - d : d + base; };
    QString program = labels[1] + "G00 X" + Fmt(x) + " Z" + Fmt(job.zStart) + " " + job.mCode +
                      "\r\n" + labels[2] + "G92 X" +
                      Fmt(external ? base - (first + first) : base + (first + first)) + " Z" +
                      Fmt(job.zEnd) + " F" + FormatNum(RoundTo(lead, 6), "####0.0#####") + "\r\n";
    for (labels.next = 2; labels.next <= p; ++labels.next) {
        const Real t = Sqr(labels.next) * first;
        program += labels[labels.next + 1] + "X" + Fmt(cut(t + t)) + "\r\n";
    }
    program += labels[labels.next + 1] + "X" +
               Fmt(external ? base - (sdt + sdt) : base + (sdt + sdt)) + " (CLEAN UP PASS)\r\n";
    return program + labels[labels.next + 2] + "G00 X? Z?";
}

namespace {

Real Field(const Form& f, const char* name) {
    return ValOf(f.text(name));
}

bool Refuse(Form& f, const QString& message) {
    ProgramMessage(f, message);
    f.setText("fldLT_Ans", QString());
    return false;
}

// The checks and repairs before a program; false when one refused.
bool CheckAndRepair(Form& f) {
    if (f.listIndex("popSDT") == 1 && Field(f, "Field1222") == 0) {
        return Refuse(f, "SDT cannot have a zero value.");
    }
    if (Field(f, "fldLT_Major") == 0) {
        return Refuse(f, "Error, Major cannot have a zero value.");
    }
    for (const char* name : {"fldLT_Major", "fldLT_xstart"}) {
        if (Field(f, name) < 0) {
            f.setText(name, NumToStr(Negate(Field(f, name))).trimmed());
        }
    }
    for (const char* name : {"fldLT_zdist", "fldLT_xstart", "fldLT_zstart"}) {
        if (f.text(name).isEmpty()) {
            f.setText(name, "0");
        }
    }
    if (Field(f, "fldLT_tpu") == 0) {
        return Refuse(f, "Error, TPU cannot have a zero value.");
    }
    // The Z End field has always been called Z Distance here.
    const std::pair<const char*, const char*> plain[] = {
        {"fldLT_zstart", "Invalid data in Z Start field"},
        {"fldLT_zdist", "Invalid data in Z Distance field"},
        {"fldLT_xstart", "Invalid data in X Start field"}};
    for (const auto& [name, message] : plain) {
        if (IsNumberText(f.text(name)) == 0) {
            return Refuse(f, message);
        }
    }
    if (Field(f, "fldLT_xstart") == Field(f, "fldLT_Major")) {
        return Refuse(f, "Error, Thread size and X start cannot be equal.");
    }
    return true;
}

// Any failure of the program itself is told by number, and leaves no program.
void Calculate(Form& f) {
    f.setText("fldLT_Ans", "Calculating...");
    if (!CheckAndRepair(f)) {
        return;
    }
    const LatheThreadJob job{
        Field(f, "fldLT_Major"),         Field(f, "fldLT_tpu"),      Field(f, "fldLT_xstart"),
        Field(f, "fldLT_zstart"),        Field(f, "fldLT_zdist"),    f.text("popMcode"),
        f.listIndex("popThdUnits") == 1, f.listIndex("popSDT") == 1, Field(f, "Field1222"),
        f.listIndex("popPasses") == 1,   Field(f, "fld_passes")};
    QString program;
    try {
        program = LatheThreadProgram(job, f.app().blockLabels);
    } catch (const RunTimeError& e) {
        ProgramMessage(f, "Error number " + NumToStr(e.code()) + " " + e.text());
    }
    f.setText("fldLT_Ans", program);
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"fldLT_Major", "fldLT_xstart", "fldLT_Ans", "fldLT_tpu", "fldLT_zstart",
                   "fld_passes", "fldLT_zdist", "Field1222"});
}

void Build(Form& f) {
    f.setTitle("Lathe Threading / G92");
    f.add(ControlKind::Combo, "popThdUnits").items = QStringList{"Inch ", "Metric"};
    f.add(ControlKind::Combo, "popMcode").items = QStringList{"M24", "M23"};
    f.addRow(RowKind::Line, {"popThdUnits", "popMcode"});
    f.add(ControlKind::Combo, "popPasses").items = QStringList{"Auto Passes", "Manual Passes"};
    f.add(ControlKind::Combo, "popSDT").items = QStringList{"Auto SDT", "Manual SDT"};
    f.addRow(RowKind::Line, {"popPasses", "popSDT"});
    f.addField("Label1", "Major", "fldLT_Major");
    f.addField("Label2", "TPU", "fldLT_tpu");
    f.addField("Label3", "X Start", "fldLT_xstart");
    f.addField("Label4", "Z Start", "fldLT_zstart");
    f.addField("Label5", "Z End", "fldLT_zdist");
    f.addField("Label1221", "SDT", "Field1222");
    f.addField("Label1228", "Passes", "fld_passes");
    f.addAnswerBox("fldLT_Ans", 12, ScrollBars::Both).widthChars = 34;
    f.addRow(RowKind::Line, {"fldLT_Ans"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Strip \"N\"");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad([](Form& f) {
        for (const char* name : {"popThdUnits", "popMcode", "popSDT", "popPasses"}) {
            f.setListIndex(name, 0);
        }
    });
    f.onClick("popPasses", [](Form& f) {
        f.setVisible("Label1228", f.listIndex("popPasses") == 1);
        f.setVisible("fld_passes", f.listIndex("popPasses") == 1);
    });
    f.onClick("popSDT", [](Form& f) {
        f.setVisible("Label1221", f.listIndex("popSDT") == 1);
        f.setVisible("Field1222", f.listIndex("popSDT") == 1);
    });
    f.onClick("popThdUnits", [](Form& f) {
        if (f.listIndex("popThdUnits") == 1) {
            ProgramMessage(f,
                           "For metric enter 12mm*1.75 as 12 in Major and 1.75 in TPU, output will "
                           "be in english units. All other entries should be in english units "
                           "including Manual SDT.");
        }
    });
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.setText("fldLT_Ans", StripN(f.text("fldLT_Ans"))); });
    AddProgramTools(f, "fldLT_Ans", PathView::Lathe);
}

const FormRegistration registration("frmLatheThread", Build);

}  // namespace

}  // namespace tavrin
