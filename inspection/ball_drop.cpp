// Ball Drop: a gauge ball dropped into a countersink or tapered hole, read
// from the face, turned into sharp corner, drop, hole depth, chamfer and
// angle length.

#include "inspection/ball_drop.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "inspection/ball_limits.h"

namespace tavrin {

namespace {

enum Mode { SharpCorner, BallDrop, HoleDepth, Chamfer, AngleLength };

const QString kLineEnd = QStringLiteral("\r\n");

QString Num(Real value, int decPlace) {
    return NumToStr(RoundTo(value, decPlace));
}

Real SharpCornerFromDrop(Real a, Real r, Real drop) {
    return (CosDeg(a) * r + TanDeg(a) * (SinDeg(a) * r + (r - drop))) * 2;
}

QString TipText(Real t, Real tip, int decPlace) {
    return t > 0 ? Num(tip, decPlace) : QStringLiteral("No thru hole entered.");
}

QString SeatLines(const BallSeat& s, Real t, int decPlace) {
    return "Best Ball= " + Num(s.best, decPlace) + kLineEnd + "X Tan= " + Num(s.xtan, decPlace) +
           kLineEnd + "Y Tan= " + Num(s.ytan, decPlace) + kLineEnd +
           "TIP= " + TipText(t, s.tip, decPlace);
}

}  // namespace

BallSeat SolveSeat(Real a, Real r, Real x, Real t) {
    BallSeat s;
    const Real h = x / TanDeg(a) / 2;
    s.drop = r / SinDeg(a) - h + r;
    const Real g = (x / 2) / SinDeg(a);
    s.best = (h * 2 * x) / (g * 2 + x);
    s.ytan = -((r - s.drop) + SinDeg(a) * r);
    s.xtan = 2 * r * CosDeg(a);
    s.tip = (r - Sqr(4 * r * r - t * t) / 2) + (-2 * r + s.drop);
    return s;
}

std::optional<QString> BallSeatAnswer(Real a, Real b, Real x, Real t, Real d, int mode,
                                      int decPlace) {
    const Real r = b / 2;
    if (mode == 1) {
        x = SharpCornerFromDrop(a, r, x);
    }
    BallSeat s = SolveSeat(a, r, x, t);
    Real shift = 0;
    if (mode == 3) {
        if (s.drop < d) {
            return std::nullopt;
        }
        // The hole's diameter lies below the face the ball was read from.
        shift = s.drop - d;
        s.ytan = s.ytan - shift;
        s.tip = s.tip - shift;
    }
    QString first;
    switch (mode) {
        case 1:
            first = "SC Dia.= " + Num(x, decPlace);
            break;
        case 2:
            first = "Ball Drop= " + Num(s.drop, decPlace);
            break;
        default:
            first = "Hole Depth= " + Num(-shift, decPlace);
            break;
    }
    return first + kLineEnd + SeatLines(s, t, decPlace);
}

AngleLengthFigures SolveAngleLength(Real a, Real b, Real x, Real t, Real l) {
    AngleLengthFigures found;
    found.r = b / 2;
    found.sc = SharpCornerFromDrop(a, found.r, x);
    const Real w = (found.sc - t) / 2;
    found.len = w / TanDeg(a);
    found.maxsc = 2 * (TanDeg(a) * l) + t;
    return found;
}

QString AngleLengthOversize(const AngleLengthFigures& found) {
    // Four places here, whatever DecPlace says.
    return "Error, Invalid input or oversize." + kLineEnd +
           "Length= " + NumToStr(RoundTo(found.len, 4)) + kLineEnd +
           "Max S/C Dia.= " + NumToStr(RoundTo(found.maxsc, 4)) + kLineEnd +
           "S/C Dia. is= " + NumToStr(RoundTo(found.sc, 4));
}

QString AngleLengthAnswer(const AngleLengthFigures& found, const BallSeat& seat, Real t, Real l,
                          int decPlace) {
    if (found.len > l) {
        return "ERROR!" + kLineEnd + "Oversize or incorrect value." + kLineEnd +
               "Angle Length= " + Num(found.len, decPlace);
    }
    return "Angle Length= " + Num(found.len, decPlace) + kLineEnd +
           "S/C Dia.= " + Num(found.sc, decPlace) + kLineEnd + SeatLines(seat, t, decPlace);
}

ChamferBall CheckChamferBall(Real a, Real m, Real b) {
    const Real minball = m / CosDeg(a);
    if (minball + 0.001 > b) {
        return ChamferBall::TooSmall;
    }
    if (PercentOf(minball, 10) + minball > b) {
        return ChamferBall::NearMinimum;
    }
    return ChamferBall::Fine;
}

// The ball rests on the edge of a chamfer of at most m, dropped d from its top.
ChamferFigures SolveChamfer(Real d, Real m, Real b) {
    const Real e = b - d;
    const Real c = Sqr(b * b - 4 * (b / 2 - e) * (b / 2 - e));
    const Real limit = b / 2 - Sqr((b / 2) * (b / 2) - (m / 2) * (m / 2));
    return {c, limit < e};
}

QString ChamferAnswer(const ChamferFigures& found, int decPlace) {
    if (found.oversize) {
        return "ERROR!" + kLineEnd + "Oversize or incorrect value, check data or part." + kLineEnd +
               "S\\C Chamfer Dia.= " + Num(found.diameter, decPlace);
    }
    return "S\\C Chamfer Dia.= " + Num(found.diameter, decPlace);
}

QString ChamferBallLimits(Real a, Real m, int decPlace) {
    const Real minimum = m / CosDeg(a);
    // A bare line feed between the two lines, as this message has always had.
    return "Absolute Min.Ball Dia.= " + Num(minimum + 0.001, decPlace) + "\n" +
           "Min. recommended ball dia.= " + Num(PercentOf(minimum, 10) + minimum, decPlace);
}

QString AngleLengthBallLimits(Real a, Real l, Real t, int decPlace) {
    // Along the wall here, with the sine; Calculate goes along the axis.
    const Real s = 2 * (l * SinDeg(a)) + t;
    return BallLimits(a, t, s, decPlace);
}

namespace {

Real FieldValue(const Form& f, const char* name) {
    return ValOf(f.text(name));
}

Real AngleOf(const Form& f) {
    if (f.value("chkDMSbd")) {
        return ValOf(DmsTextToDd(f.text("txtAngDrop")));
    }
    return ValOf(f.text("txtAngDrop"));
}

bool Refused(Form& f, int mode) {
    if (mode == HoleDepth && FieldValue(f, "txtDropOrDia") <= FieldValue(f, "txtBallDrop")) {
        ProgramMessage(f, "Error, Ball dia. cannot be equal or greater than hole dia.");
        return true;
    }
    if (mode == Chamfer) {
        if (FieldValue(f, "txtDropOrDia") >= FieldValue(f, "txtBallDrop")) {
            ProgramMessage(f, "Error, Drop cannot be greater than ball dia. in chamfer selection");
            return true;
        }
        if (FieldValue(f, "txtDropOrDia") < 0) {
            ProgramMessage(f, "Error, Drop cannot be a negative value in chamfer selection");
            return true;
        }
    }
    if (mode != Chamfer && FieldValue(f, "txtThruHole") > FieldValue(f, "txtBallDrop")) {
        ProgramMessage(f, "Error, Ball dia. smaller than thru hole.");
        return true;
    }
    if (IsNumberText(f.text("txtDropOrDia")) == 0) {
        ProgramMessage(f, "Error, Invalid data in field #3");
        return true;
    }
    if (mode == BallDrop &&
        (FieldValue(f, "txtBallDrop") == 0 || FieldValue(f, "txtAngDrop") == 0 ||
         FieldValue(f, "txtDropOrDia") == 0)) {
        ProgramMessage(f, "Error, Only the thru hole value can be zero.");
        return true;
    }
    return false;
}

QString SeatAnswer(Form& f, Real a, Real b, int mode) {
    const std::optional<QString> answer =
        BallSeatAnswer(a, b, FieldValue(f, "txtDropOrDia"), FieldValue(f, "txtThruHole"),
                       FieldValue(f, "txtHoleDepth"), mode + 1, f.app().decPlace);
    if (!answer) {
        ProgramMessage(f, "Error, invalid drop value.");
        return QString();
    }
    return *answer;
}

QString ChamferMode(Form& f, Real a, Real b) {
    const Real d = FieldValue(f, "txtDropOrDia");
    const Real m = FieldValue(f, "txtThruHole");
    switch (CheckChamferBall(a, m, b)) {
        case ChamferBall::TooSmall:
            ProgramMessage(f, "Error, Invalid ball diameter.");
            return QString();
        case ChamferBall::NearMinimum:
            ProgramMessage(f, "Ball diameter is less than 10% over absolute minimum.");
            break;
        case ChamferBall::Fine:
            break;
    }
    const ChamferFigures found = SolveChamfer(d, m, b);
    if (found.oversize) {
        ProgramMessage(f, "Drop value too great, chamfer is oversize.");
    }
    return ChamferAnswer(found, f.app().decPlace);
}

QString AngleLengthMode(Form& f, Real a, Real b) {
    const Real t = FieldValue(f, "txtThruHole");
    const Real l = FieldValue(f, "txtDropOrDia");
    const AngleLengthFigures found = SolveAngleLength(a, b, FieldValue(f, "txtHoleDepth"), t, l);
    if (found.maxsc < found.sc) {
        ProgramMessage(f, AngleLengthOversize(found));
        return QString();
    }
    const BallSeat seat = SolveSeat(a, found.r, found.sc, t);
    if (found.len > l) {
        ProgramMessage(f, "Angle length is oversize.");
    }
    return AngleLengthAnswer(found, seat, t, l, f.app().decPlace);
}

void Calculate(Form& f) {
    const int mode = f.listIndex("popSelDropOrDia");
    if (Refused(f, mode)) {
        return;
    }
    const Real a = AngleOf(f);
    f.setText("txtDropAns", "Calculating...");
    const Real b = FieldValue(f, "txtBallDrop");
    QString answer;
    switch (mode) {
        case SharpCorner:
        case BallDrop:
        case HoleDepth:
            answer = SeatAnswer(f, a, b, mode);
            break;
        case Chamfer:
            answer = ChamferMode(f, a, b);
            break;
        case AngleLength:
            answer = AngleLengthMode(f, a, b);
            break;
        default:
            break;
    }
    f.setText("txtDropAns", answer);
}

void BallTolerance(Form& f) {
    const Real a = AngleOf(f);
    const Real t = FieldValue(f, "txtThruHole");
    const int decPlace = f.app().decPlace;
    switch (f.listIndex("popSelDropOrDia")) {
        case BallDrop:
        case HoleDepth:  // the hole diameter stands for the sharp corner
            ProgramMessage(f, BallLimits(a, t, FieldValue(f, "txtDropOrDia"), decPlace));
            break;
        case Chamfer:
            if (FieldValue(f, "txtAngDrop") <= 0 || t <= 0) {
                ProgramMessage(f, "Error, angle and max dia must be greater than zero.");
            } else {
                ProgramMessage(f, ChamferBallLimits(a, t, decPlace));
            }
            break;
        case AngleLength:
            ProgramMessage(f, AngleLengthBallLimits(a, FieldValue(f, "txtDropOrDia"), t, decPlace));
            break;
        default:
            break;
    }
}

struct ModeLook {
    const char* fieldCaption;
    const char* thruCaption;
    bool measuredDrop;
    bool tolerance;
};

void ModeChange(Form& f) {
    static const ModeLook looks[] = {
        {"Ball Drop", "Thru Hole Dia.", false, false},
        {"Sharp Corner Dia.", "Thru Hole Dia.", false, true},
        {"Hole Diameter", "Thru Hole Dia.", true, true},
        {"Ball Drop", "Max S/C Dia.", false, true},
        {"Max Angle Length", "Thru Hole Dia.", true, true},
    };
    const int mode = f.listIndex("popSelDropOrDia");
    if (mode < 0 || mode > AngleLength) {
        return;
    }
    const ModeLook& look = looks[mode];
    f.setCaption("lblDiaOrDrop", look.fieldCaption);
    f.setCaption("Label1541", look.thruCaption);
    f.setVisible("txtHoleDepth", look.measuredDrop);
    f.setVisible("Field4322", look.measuredDrop);
    if (look.measuredDrop) {
        f.setCaption("Field4322", "Ball Drop");
    }
    f.setVisible("cmdMinBall", look.tolerance);
}

void DmsClick(Form& f) {
    if (f.value("chkDMSbd")) {
        ProgramMessage(f, "Enter " + DmsExample() +
                              " (always use a leading zero for minutes or seconds less than 10)");
    }
}

void ClearAll(Form& f) {
    // The measured drop stays on purpose.
    EmptyTexts(f, {"txtAngDrop", "txtBallDrop", "txtDropOrDia", "txtThruHole", "txtDropAns"});
}

void Build(Form& f) {
    f.setTitle("Ball Drop");
    f.addLabel("Label5", "Find-->");
    Control& modes = f.add(ControlKind::DropDownList, "popSelDropOrDia");
    modes.items =
        QStringList{"S\\C Diameter", "Ball Drop", "Hole Depth", "Chamfer Diameter", "Angle Length"};
    f.addRow(RowKind::Fields, {"Label5", "popSelDropOrDia"});
    f.addLabel("Label1", "Angle");
    f.addTextBox("txtAngDrop");
    f.addCheck(QString(), "chkDMSbd", "DMS");
    f.addRow(RowKind::Fields, {"Label1", "txtAngDrop", "chkDMSbd"});
    f.addField("Label2", "Ball Diameter", "txtBallDrop");
    f.addField("lblDiaOrDrop", QString(), "txtDropOrDia");
    f.addField("Label1541", "Thru Hole Dia.", "txtThruHole");
    f.addField("Field4322", "Ball Drop", "txtHoleDepth");
    f.addAnswerBox("txtDropAns", 6).widthChars = 34;
    f.addRow(RowKind::Line, {"txtDropAns"});
    f.addButton("cmdMinBall", "Ball Tolerance");
    f.addRow(RowKind::Line, {"cmdMinBall"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Image");
    f.addButton("Command4", "Help");
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3", "Command4"});

    f.onLoad([](Form& f) {
        f.setCaption("lblDiaOrDrop", "Sharp Corner Dia.");
        f.setListIndex("popSelDropOrDia", 1);
    });
    f.onClick("popSelDropOrDia", ModeChange);
    f.onClick("chkDMSbd", DmsClick);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { f.app().show("frmBDImage"); });
    f.onClick("Command4", [](Form& f) {
        ProgramMessage(f, "Enter positive drop values for above the face and negative for below.");
    });
    f.onClick("cmdMinBall", BallTolerance);
}

const FormRegistration registration("frmBallDrop", Build);

}  // namespace

}  // namespace tavrin
