// Bolt Circle: the X and Y of equally spaced holes on a circle, one line a hole.

#include "quickcode/bolt_circle.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "quickcode/program_tools.h"

namespace tavrin {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString Fmt(Real v) {
    static const QString pattern = QStringLiteral("####0.0#####");
    return FormatNum(v, pattern);
}

}  // namespace

Real BoltCircleStartAngle(const QString& typed, bool dms) {
    return dms ? ValOf(DmsTextToDd(typed)) : ValOf(typed);
}

std::vector<BoltHole> BoltCircleHoles(Real diameter, Real holes, Real xc, Real yc, Real startAngle,
                                      std::int16_t places) {
    // The step keeps the fraction of the count; the number of holes does not.
    const Real step = 360 / holes;
    const std::int16_t n = ToInt16(holes);
    std::vector<BoltHole> list;
    Real a = startAngle;
    // The count stops at n without stepping past it, so 32767 holes fit.
    for (int i = 1; i <= n; ++i) {
        Real x = (diameter / 2) * Cos(Pi() * a / 180) + xc;
        Real y = (diameter / 2) * Sin(Pi() * a / 180) + yc;
        x = RoundTo(x, places);
        y = RoundTo(y, places);
        list.push_back({a, x, y});
        // Not taken modulo 360: the angle runs on past a full turn.
        a = step + a;
    }
    return list;
}

QString BoltCircleList(const std::vector<BoltHole>& holes, bool noNumbers) {
    // Appended piece by piece into room made once: 32,767 lines come at a click.
    QString list;
    list.reserve(static_cast<qsizetype>(holes.size()) * 32);
    int i = 0;
    for (const BoltHole& hole : holes) {
        ++i;
        if (!noNumbers) {
            list += NumToStr(i);
            list += QStringLiteral("] ");
        }
        list += u'X';
        list += Fmt(hole.x);
        list += u'Y';
        list += Fmt(hole.y);
        list += kCrLf;
    }
    return list;
}

namespace {

void Calculate(Form& f) {
    if (IsNumberText(f.text("Text3")) == 0 || IsNumberText(f.text("Text4")) == 0) {
        ProgramMessage(f, "Error, Invalid input in one of the coordinate fields");
        return;
    }
    for (const char* field : {"Text1", "Text2", "Text3", "Text4", "Text5"}) {
        if (f.text(field).isEmpty()) {
            ProgramMessage(f, "Please fill all five data fields.");
            return;
        }
    }
    // Zero only: a negative diameter is taken.
    if (ValOf(f.text("Text1")) == 0) {
        ProgramMessage(f, "Error, Diameter must be greater than zero.");
        return;
    }
    if (ValOf(f.text("Text2")) == 0) {
        ProgramMessage(f, "Error, # of holes must be greater than zero.");
        return;
    }
    // On the text as typed, packed DMS or not; there is no lower limit.
    if (ValOf(f.text("Text5")) > 359) {
        ProgramMessage(f, "angle greater than 359 degrees.");
        return;
    }
    if (IsNumberText(f.text("Text5")) == 0) {
        ProgramMessage(f, "Error, Invalid input in the angle data field");
        return;
    }
    const Real a = BoltCircleStartAngle(f.text("Text5"), f.value("chkDMSbc"));
    f.setText("Text7", "Please wait..." + kCrLf + "Calculating " + f.text("Text2") + " holes.");
    // One chance to paint; a long list is not interrupted after this.
    f.app().ui().processEvents();
    const std::vector<BoltHole> holes =
        BoltCircleHoles(ValOf(f.text("Text1")), ValOf(f.text("Text2")), ValOf(f.text("Text3")),
                        ValOf(f.text("Text4")), a, f.app().decPlace);
    f.setText("Text7", BoltCircleList(holes, f.value("chkNoNumbers")));
}

void ClearAll(Form& f) {
    EmptyTexts(f, {"Text1", "Text2", "Text3", "Text4", "Text5", "Text7"});
}

void Help(Form& f) {
    ProgramMessage(f, "If entering the angle in Degrees Minutes Seconds enter " + DmsExample() +
                          " (always use a leading zero for minutes or seconds less than 10)" +
                          QChar(10) +
                          QStringLiteral("A neg. or pos. start angle may be entered. (To start "
                                         "before or after 3 o'clock pos.)"));
}

void Build(Form& f) {
    f.setTitle("Bolt Circle");
    f.addField("Label1", "Diameter", "Text1");
    f.addField("Label2", "# of Holes", "Text2");
    f.addField("Label3", "X Coordinate", "Text3");
    f.addField("Label4", "Y Coordinate", "Text4");
    f.addField("Label5", "Start Angle", "Text5");
    f.addCheck(QString(), "chkDMSbc", "Entering DMS");
    f.addCheck(QString(), "chkNoNumbers", "Do not add number count");
    f.addAnswerBox("Text7", 12, ScrollBars::Both).widthChars = 32;
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Help");

    f.addRow(RowKind::Line, {"chkDMSbc", "chkNoNumbers"});
    f.addRow(RowKind::Line, {"Text7"});
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", Help);
    AddProgramTools(f, "Text7", PathView::Holes);
}

const FormRegistration registration("frmBoltCircle", Build);

}  // namespace

}  // namespace tavrin
