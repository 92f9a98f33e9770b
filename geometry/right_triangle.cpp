// Right Triangle Trigonometry: a right triangle from two known values.
// Side a is the hypotenuse; Angle B faces side b and Angle C faces side c.

#include "geometry/right_triangle.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

// Field captions by the known pair, in the order of popSides.
struct KnownPair {
    const char* item;
    const char* one;
    const char* two;
};

constexpr KnownPair kPairs[] = {
    {"side a & side b", "a", "b"},  {"side b & side c", "b", "c"},  {"side c & side a", "c", "a"},
    {"Angle B & side a", "B", "a"}, {"Angle B & side b", "B", "b"}, {"Angle B & side c", "B", "c"},
    {"Angle C & side a", "C", "a"}, {"Angle C & side b", "C", "b"}, {"Angle C & side c", "C", "c"},
};

// The entry controls that give way to the answer box.
const QStringList kEntries{"txtSideOne", "txtSideTwo", "popSides", "Command1",
                           "Command2",   "Command4",   "chkDMS"};
const QStringList kAnswer{"field2747", "Command3"};

Real R6(Real x) {
    return RoundTo(x, 6);
}

}  // namespace

RightTriangle SolveRightTriangle(int index, Real one, Real two, int decPlace) {
    auto RD = [decPlace](Real x) { return RoundTo(x, decPlace); };
    // The known angle of cases 3 to 8.
    const Real angle = one;
    // Every case sets all five.
    RightTriangle t;
    switch (index) {
        case 0:
            t.a = one;
            t.b = two;
            t.angleB = R6(ArcSinDeg(t.b / t.a));
            t.angleC = R6(90 - t.angleB);
            t.c = RD(Sqr(Square(one) - Square(two)));
            break;
        case 1:
            t.b = one;
            t.c = two;
            t.angleC = R6(Atn(t.c / t.b) * 57.2957795130823);
            t.angleB = R6(90 - t.angleC);
            t.a = RD(Sqr(Square(two) + Square(one)));
            break;
        case 2:
            t.c = one;
            t.a = two;
            t.angleC = R6(ArcSinDeg(t.c / t.a));
            t.angleB = R6(90 - t.angleC);
            t.b = RD(Sqr(Square(two) - Square(one)));
            break;
        case 3:
            t.angleB = angle;
            t.a = two;
            t.angleC = R6(90 - angle);
            t.c = RD(CosDeg(angle) * t.a);
            t.b = RD(SinDeg(angle) * t.a);
            break;
        case 4:
            t.angleB = angle;
            t.b = two;
            t.a = RD(t.b / SinDeg(angle));
            t.c = RD(t.b / TanDeg(angle));
            t.angleC = R6(90 - angle);
            break;
        case 5:
            t.angleB = angle;
            t.c = two;
            t.a = RD(t.c / CosDeg(angle));
            t.b = RD(TanDeg(angle) * t.c);
            t.angleC = R6(90 - angle);
            break;
        case 6:
            t.angleC = angle;
            t.a = two;
            t.angleB = R6(90 - angle);
            t.b = RD(CosDeg(angle) * t.a);
            t.c = RD(SinDeg(angle) * t.a);
            break;
        case 7:
            t.angleC = angle;
            t.b = two;
            t.angleB = R6(90 - angle);
            t.a = RD(t.b / CosDeg(angle));
            t.c = RD(TanDeg(angle) * t.b);
            break;
        default:
            // The rounded Angle B, not the known C: its last digits differ,
            // and the answers have always come this way.
            t.angleC = angle;
            t.c = two;
            t.angleB = R6(90 - angle);
            t.a = RD(t.c / CosDeg(t.angleB));
            t.b = RD(TanDeg(t.angleB) * t.c);
            break;
    }
    return t;
}

QString RightTriangleAnswer(const RightTriangle& t, int decPlace) {
    QStringList lines;
    lines << "side a= " + NumToStr(t.a);
    lines << "side b= " + NumToStr(t.b);
    lines << "side c= " + NumToStr(t.c);
    lines << "Angle B= " + DdToDmsText(NumToStr(t.angleB));
    lines << "Angle C= " + DdToDmsText(NumToStr(t.angleC));
    lines << "Angle B= " + NumToStr(t.angleB) + " Dec. Deg.";
    lines << "Angle C= " + NumToStr(t.angleC) + " Dec. Deg.";
    lines << "Perimeter= " + NumToStr((t.c + t.b) + t.a);
    lines << "Area= " + NumToStr(RoundTo((t.c * t.b) / 2, decPlace));
    lines << "Inscribed Circle" + QString(kDiameterSign) + "= " +
                 NumToStr(RoundTo((t.c + t.b) - t.a, decPlace));
    lines << "Circumscribed Circle" + QString(kDiameterSign) + "= " + NumToStr(t.a);
    return lines.join("\r\n");
}

namespace {

void Calculate(Form& f) {
    const QString one = f.text("txtSideOne");
    const QString two = f.text("txtSideTwo");
    if (ValOf(two) <= 0 || ValOf(one) <= 0) {
        ProgramMessage(f, "Error, Values must be greater than zero");
        return;
    }
    // Behind the test above an empty field cannot reach here; it stays all the same.
    if (one.isEmpty() || two.isEmpty()) {
        ProgramMessage(f, "Please fill both data fields.");
        return;
    }
    const int index = f.listIndex("popSides");
    if (index == 0 && ValOf(one) <= ValOf(two)) {
        ProgramMessage(f, "Error, Side a cannot be less than or equal to Side b.");
        return;
    }
    if (index == 2 && ValOf(one) >= ValOf(two)) {
        ProgramMessage(f, "Error, Side a cannot be less than or equal to Side c.");
        return;
    }
    // On the entry as typed: a packed "89.6000" passes and converts to 90.
    if (index >= 3 && ValOf(one) >= 90) {
        ProgramMessage(f, "Error, Angle equal  or greater than 90 degrees");
        return;
    }
    // Only the angle of cases 3 to 8 may be typed packed.
    const QString first = index >= 3 && f.value("chkDMS") ? DmsTextToDd(one) : one;
    const int decPlace = f.app().decPlace;
    const RightTriangle t = SolveRightTriangle(index, ValOf(first), ValOf(two), decPlace);
    f.setText("field2747", "Calculating...");
    const QString answer = RightTriangleAnswer(t, decPlace);
    f.setText("field2747", answer);
    ShowAnswerBox(f, true);
}

void BackToEntry(Form& f) {
    f.setText("field2747", QString());
    ShowAnswerBox(f, false);
}

void PairChosen(Form& f) {
    const int index = f.listIndex("popSides");
    if (index < 0 || index >= static_cast<int>(std::size(kPairs))) {
        return;
    }
    f.setCaption("lblSideOne", kPairs[index].one);
    f.setCaption("lblSideTwo", kPairs[index].two);
}

void Build(Form& f) {
    f.setTitle("Right Triangle Trigonometry");
    f.setAnswerSwap({kEntries, kAnswer});
    Control& pop = f.add(ControlKind::DropDownList, "popSides");
    for (const KnownPair& p : kPairs) {
        pop.items << p.item;
    }
    pop.widthChars = 18;
    f.addLabel("lblSideOne", "a");
    f.addTextBox("txtSideOne");
    f.addLabel("lblSideTwo", "b");
    f.addTextBox("txtSideTwo");
    f.addCheck(QString(), "chkDMS", "Entering DMS");
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", "Done").visible = false;
    f.addButton("Command4", "Done");
    Control& answer = f.addAnswerBox("field2747", 11, ScrollBars::Vertical);
    // The user may edit the answer; it changes nothing.
    answer.locked = false;
    answer.visible = false;
    answer.widthChars = 30;
    // The drawing carries the same captions as these labels.
    f.addLabel("Label9", "side a (hypotenuse)");
    f.addLabel("Label6", "side b");
    f.addLabel("Label7", "side c");
    f.addLabel("Label8", "Angle B");
    f.addLabel("Label5", "Angle C");
    f.setOffLayout({"Label9", "Label6", "Label7", "Label8", "Label5"});
    f.addImage("imgTriangle", "right_triangle");
    f.setSide("imgTriangle");

    f.addRow(RowKind::Line, {"popSides"});
    f.addRow(RowKind::Fields, {"lblSideOne", "txtSideOne"});
    f.addRow(RowKind::Fields, {"lblSideTwo", "txtSideTwo"});
    f.addRow(RowKind::Line, {"chkDMS"});
    f.addRow(RowKind::Line, {"field2747"});
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command4"});
    f.addRow(RowKind::Buttons, {"Command3"});

    f.onLoad([](Form& f) { f.setListIndex("popSides", 0); });
    f.onClick("popSides", PairChosen);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", [](Form& f) {
        f.setText("txtSideOne", QString());
        f.setText("txtSideTwo", QString());
    });
    f.onClick("Command3", BackToEntry);
    f.onClick("Command4", [](Form& f) { f.app().unload(f); });
}

const FormRegistration registration("frmTrig", Build);

}  // namespace

}  // namespace tavrin
