// Lathe Drilling: a pecking cycle written out as plain moves, for controls
// without a canned drilling cycle.

#include "quickcode/lathe_drill.h"

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

QString Fmt(Real v) {
    return FormatNum(v, "####0.0###");
}

// Block numbers go up by five and stay within 16 bits.
class Blocks {
  public:
    QString text;
    void add(const QString& line) {
        text += "N" + NumToStr(number_).trimmed() + " " + line + "\r\n";
        Step16(number_, 5);
    }
    void addKeep(const QString& line) {  // the number stays for the next line
        text += "N" + NumToStr(number_).trimmed() + " " + line + "\r\n";
    }
    void skip() { Step16(number_, 5); }

  private:
    std::int16_t number_ = 20;
};

void ChipBreak(Blocks& b, const LatheDrillJob& j, Real q, std::int16_t n, const QString& r,
               Real cur, const QString& feed, const std::function<void()>& yield) {
    cur = cur + q;
    for (int i = 1; i <= n; ++i) {
        b.add("G01 Z" + Fmt(cur) + " F" + feed);
        if (i == n) {
            break;
        }
        b.add("G00 Z" + Fmt(cur + j.chipClear));
        cur = cur + q;
        yield();
    }
    if (ValOf(r) != 0) {
        b.add("G00 Z" + Fmt(cur + j.chipClear));
        b.addKeep("G01 Z" + Fmt(Negate(ValOf(r)) + cur) + " F" + feed);
    }
    // Behind a clean run the last block jumps by ten; with one peck and a
    // remainder the last two share a number.
    if (n != 1) {
        b.skip();
    }
    b.addKeep("G00 Z" + Fmt(j.rPlane + j.zStart));
}

void DeepHole(Blocks& b, const LatheDrillJob& j, Real q, std::int16_t n, const QString& r, Real cur,
              const QString& feed, const std::function<void()>& yield) {
    cur = cur + q;
    for (int i = 1; i <= n; ++i) {
        b.add("G01 Z" + Fmt(cur) + " F" + feed);
        if (i == n) {
            break;
        }
        b.add("G00 Z" + Fmt(j.rPlane + j.zStart));
        b.add("Z" + Fmt(cur + j.chipClear));
        cur = cur + q;
        yield();
    }
    if (ValOf(r) != 0) {
        b.add("G00 Z" + Fmt(j.rPlane + j.zStart));
        b.add("Z" + Fmt(cur + j.chipClear));
        b.add("G01 Z" + Fmt(Negate(ValOf(r)) + cur) + " F" + feed);
    }
    b.addKeep("G00 Z" + Fmt(j.rPlane + j.zStart));
}

// Each peck a percentage of the one before, never under the minimum; the
// formatted texts decide when a peck has landed on the bottom.
void PercentPecks(Blocks& b, const LatheDrillJob& j, Real q, Real cur, const QString& feed,
                  const std::function<void()>& yield) {
    bool done = false;
    if (!(Abs(q) < j.depth)) {
        q = Negate(j.depth);
        done = true;
    }
    cur = cur + q;
    Real peck = q;
    Real drilled = Negate(q);
    while (true) {
        b.add("G01 Z" + Fmt(cur) + " F" + feed);
        b.add("G00 Z" + Fmt(j.rPlane + j.zStart));
        if (done || Fmt(j.zStart - j.depth) == Fmt(cur)) {
            return;
        }
        b.add("Z" + Fmt(cur + j.chipClear));
        peck = Negate(PercentOf(Negate(peck), j.percent));
        if (Negate(peck) < j.minPeck) {
            peck = Negate(j.minPeck);
        }
        const Real left = j.depth - drilled;
        drilled = Negate(peck) + drilled;
        if (drilled < j.depth) {
            cur = peck + cur;
        } else {
            cur = Negate(left) + cur;
            done = true;
        }
        yield();
    }
}

}  // namespace

QString LatheDrillProgram(const LatheDrillJob& job, const std::function<void()>& yield) {
    Real q = job.peck;
    if (!(q < job.depth)) {
        q = job.depth;
    }
    const std::int16_t n = ToInt16(Int(job.depth / q));
    const QString r = NumToStr(job.depth - n * q);
    q = Negate(q);
    const QString feed = Fmt(job.feed);
    Blocks b;
    b.text = "N10 G00 X" + Fmt(job.x) + " Z" + Fmt(job.rPlane + job.zStart) + "\r\nN15 Z" +
             Fmt(job.chipClear + job.zStart) + "\r\n";
    switch (job.cycle) {
        case 0:
            ChipBreak(b, job, q, n, r, job.zStart, feed, yield);
            break;
        case 1:
            DeepHole(b, job, q, n, r, job.zStart, feed, yield);
            break;
        case 2:
            PercentPecks(b, job, q, job.zStart, feed, yield);
            break;
        default:
            break;
    }
    return b.text;
}

QString StripN(QString text) {
    while (true) {
        const auto p = text.indexOf(u'N', 0, Qt::CaseInsensitive);
        if (p < 0) {
            return text;
        }
        const auto q = text.indexOf(u' ', p);
        text = text.left(p) + (q < 0 ? QString() : text.mid(q + 1));
    }
}

namespace {

const char* const kFields[] = {"fldx_start",        "fldz_start",  "fldz_depth",
                               "fld_feedrate",      "fldr_plane",  "fldq_peck",
                               "fld_chipclearance", "fldPer_peck", "fldMinPeck"};

bool Refuse(Form& f, const QString& message) {
    ProgramMessage(f, message);
    f.setText("fld_lathe_drill_ans", QString());
    return false;
}

Real Field(const Form& f, const char* name) {
    return ValOf(f.text(name));
}

// The checks and repairs before a program; false when one refused.
bool CheckAndRepair(Form& f) {
    const std::pair<const char*, const char*> plain[] = {
        {"fldx_start", "Invalid data in X Start field"},
        {"fld_chipclearance", "Invalid data in Chip Clear Start field"},
        {"fldz_start", "Invalid data in Z Start field"}};
    for (const auto& [name, message] : plain) {
        if (IsNumberText(f.text(name)) == 0) {
            return Refuse(f, message);
        }
    }
    for (const auto& [name, message] : plain) {
        if (f.text(name).isEmpty()) {
            f.setText(name, "0");
        }
    }
    // A negative feed or minimum peck is written into the peck field: the
    // crossings have always been so.
    const std::pair<const char*, const char*> repairs[] = {
        {"fldq_peck", "fldq_peck"},     {"fld_feedrate", "fldq_peck"},
        {"fldMinPeck", "fldq_peck"},    {"fldz_depth", "fldz_depth"},
        {"fldPer_peck", "fldPer_peck"}, {"fld_chipclearance", "fld_chipclearance"},
        {"fldr_plane", "fldr_plane"}};
    for (const auto& [tested, written] : repairs) {
        if (Field(f, tested) < 0) {
            f.setText(written, NumToStr(Negate(Field(f, tested))).trimmed());
        }
    }
    const std::pair<const char*, const char*> zeros[] = {
        {"fldr_plane", "Error, R Plane cannot have a zero value."},
        {"fldz_depth", "Error, Z depth cannot have a zero value."},
        {"fldq_peck", "Error, peck cannot have a zero value."},
        {"fld_feedrate", "Error, feedrate should not have a zero value."}};
    for (const auto& [name, message] : zeros) {
        if (Field(f, name) == 0) {
            return Refuse(f, message);
        }
    }
    if (f.listIndex("popDrillType") != 2) {
        return true;
    }
    if (Field(f, "fldMinPeck") == 0) {
        return Refuse(f, "Error, Minimum peck value must be greater than zero.");
    }
    if (Field(f, "fldPer_peck") < 50) {
        return Refuse(f, "Error, Percent peck value must be 50% or greater.");
    }
    if (Field(f, "fldq_peck") < Field(f, "fldMinPeck")) {
        return Refuse(f, "Error, Minimum peck cannot be greater than Q Peck.");
    }
    if (Field(f, "fldMinPeck") < 0.03 &&
        !f.app().ui().question("Verification",
                               "Minimum peck value is less than .03, is this correct?")) {
        f.setText("fld_lathe_drill_ans", QString());
        return false;
    }
    return true;
}

void Calculate(Form& f) {
    f.setText("fld_lathe_drill_ans", "Calculating...");
    if (!CheckAndRepair(f)) {
        return;
    }
    const LatheDrillJob job{Field(f, "fldx_start"),        Field(f, "fldz_start"),
                            Field(f, "fldz_depth"),        Field(f, "fld_feedrate"),
                            Field(f, "fldr_plane"),        Field(f, "fldq_peck"),
                            Field(f, "fld_chipclearance"), Field(f, "fldPer_peck"),
                            Field(f, "fldMinPeck"),        f.listIndex("popDrillType")};
    App& app = f.app();
    f.setText("fld_lathe_drill_ans", LatheDrillProgram(job, [&app] { app.ui().processEvents(); }));
}

const char* const kPercentControls[] = {"fldMinPeck", "fldPer_peck", "Label1189", "Label1186"};

void DrillTypeClick(Form& f) {
    const bool percent = f.listIndex("popDrillType") == 2;
    for (const char* name : kPercentControls) {
        f.setVisible(name, percent);
    }
    if (percent) {
        f.setFocus("fldPer_peck");
    } else {
        f.setText("fldMinPeck", QString());
        f.setText("fldPer_peck", QString());
    }
}

void ClearAll(Form& f) {
    EmptyTexts(f, kFields);
    f.setText("fld_lathe_drill_ans", QString());
}

void Build(Form& f) {
    f.setTitle("Lathe Drilling");
    f.add(ControlKind::Combo, "popDrillType").items =
        QStringList{"Chip Break", "Deep Hole", "% Peck D.H."};
    f.addRow(RowKind::Line, {"popDrillType"});
    f.addField("Label1", "X Start", "fldx_start");
    f.addField("Label2", "Z Start", "fldz_start");
    f.addField("Label3", "Z Depth", "fldz_depth");
    f.addField("Label4", "Feedrate", "fld_feedrate");
    f.addField("Label5", "R Plane", "fldr_plane");
    f.addField("Label6", "Q Peck", "fldq_peck");
    f.addField("Label7", "Chip Clear", "fld_chipclearance");
    f.addField("Label1189", "% Peck", "fldPer_peck");
    f.addField("Label1186", "Min. Peck", "fldMinPeck");
    f.addAnswerBox("fld_lathe_drill_ans", 12, ScrollBars::Both).widthChars = 30;
    f.addRow(RowKind::Line, {"fld_lathe_drill_ans"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Strip \"N\"");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onLoad([](Form& f) {
        f.setListIndex("popDrillType", 0);
        for (const char* name : kPercentControls) {
            f.setVisible(name, false);
        }
        f.setText("fld_lathe_drill_ans", QString());
    });
    f.onClick("popDrillType", DrillTypeClick);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) {
        f.setText("fld_lathe_drill_ans", StripN(f.text("fld_lathe_drill_ans")));
    });
    AddProgramTools(f, "fld_lathe_drill_ans", PathView::Lathe);
}

const FormRegistration registration("frmLatheDrill", Build);

}  // namespace

}  // namespace tavrin
